// The Win32 view of the first-run assistant: heading, the page "Werte:" with its two
// choices and the page "Assistent" with "Fertig"; one page shows at a time. The close box
// unloads the window and nothing else, so the next start is a first run again.
#pragma once

#include <array>

#include "assistant/form2.h"
#include "ui/win32/fenster_ansicht.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class Form2Ansicht : public FensterAnsicht {
public:
    Form2Ansicht(Programm& prg, Form2Fenster& modell);
    void Abgleichen() override;

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;

    Programm& prg_;
    Form2Fenster& f_;
    std::array<HWND, 3> rahmen_{};
    std::array<HWND, 5> label_{};
    std::array<HWND, 2> command2_{};
    HWND command3_ = nullptr;
};

}  // namespace kes::ui
