// The Win32 view of the warning window: five stacked panes and the bar of picture buttons,
// each drawn from the controls of Form3; buttons and the close box go back to the model.
#pragma once

#include <array>

#include "platform/win32/unique_handle.h"
#include "ui/win32/fenster_ansicht.h"
#include "ui/win32/steuerung.h"
#include "warning/form3.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class Form3Ansicht : public FensterAnsicht {
public:
    Form3Ansicht(Programm& prg, Form3Fenster& modell);
    void Abgleichen() override;

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    void Anordnen();
    void MenüZeigen();
    // Carries out the model's wish for the focus on picProcIcon.
    void FokusGeben();

    Programm& prg_;
    Form3Fenster& f_;
    HWND symbol_ = nullptr;
    std::array<HWND, 3> label1_{};
    ListenAnsicht lv1_, lv2_, lv3_, lv4_;
    std::array<HWND, 8> check1_{};
    std::array<HWND, 10> image_{};
    HWND attribut_ = nullptr, module_ = nullptr;  // the captions of panes 2 and 4
    HWND modulName_ = nullptr, modulPfad_ = nullptr;
    HWND tipps_ = nullptr;
    int symbolIndex_ = -1;
    int bild_ = 0;
    win32::UniqueIcon dateiSymbol_;
    std::array<std::string, 10> tippTexte_;
};

}  // namespace kes::ui
