// The Win32 view of the delete question Form1. While it is open the program's other
// windows take no input, as with a modal dialog.
#pragma once

#include "ui/win32/fenster_ansicht.h"
#include "warning/form1.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class Form1Ansicht : public FensterAnsicht {
public:
    Form1Ansicht(Programm& prg, Form1Fenster& modell);
    ~Form1Ansicht() override;
    void Abgleichen() override;

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    void AndereSperren(bool sperren);
    Programm& prg_;
    Form1Fenster& f_;
    HWND check_ = nullptr;
};

}  // namespace kes::ui
