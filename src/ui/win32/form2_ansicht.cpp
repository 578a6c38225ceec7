#include "ui/win32/form2_ansicht.h"

#include "core/programm.h"
#include "ui/win32/steuerung.h"

namespace kes::ui {

namespace {
enum : int { kIdCommand2 = 100, kIdCommand3 = 110 };
// The pages stand at 120 and 600 twips: 8 and 40 pixels at 96 dpi.
constexpr int kSeiteX = 8, kSeiteY = 40;
}  // namespace

Form2Ansicht::Form2Ansicht(Programm& prg, Form2Fenster& modell)
    : FensterAnsicht(modell, "KestrellaAssistent", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU), prg_(prg), f_(modell) {
    RECT r;
    ::GetClientRect(h_, &r);
    const int breite = r.right - 2 * kSeiteX;
    const int höhe = r.bottom - kSeiteY - 8;

    HWND symbol = Kind(h_, "STATIC", "", WS_VISIBLE | SS_ICON, 0, kSeiteX + 2, 4, 32, 32);
    ::SendMessageA(symbol, STM_SETICON, reinterpret_cast<WPARAM>(ProgrammIcon("SCAN", 32)), 0);
    label_[0] = Kind(h_, "STATIC", f_.Label1[0].Caption, WS_VISIBLE | SS_NOPREFIX, 10, 52, 12, breite - 44, 22);
    ::SendMessageA(label_[0], WM_SETFONT, reinterpret_cast<WPARAM>(Fettschrift()), FALSE);

    for (int s = 1; s <= 2; ++s)
        rahmen_[s] = Kind(h_, "BUTTON", f_.Frame1[s].Caption, BS_GROUPBOX, 0, kSeiteX, kSeiteY, breite, höhe);
    const int x = kSeiteX + 16, innen = breite - 32;
    label_[1] = Kind(h_, "STATIC", f_.Label1[1].Caption, SS_NOPREFIX, 11, x, kSeiteY + 24, innen, 18);
    ::SendMessageA(label_[1], WM_SETFONT, reinterpret_cast<WPARAM>(Fettschrift()), FALSE);
    label_[3] = Kind(h_, "STATIC", f_.Label1[3].Caption, SS_NOPREFIX, 13, x, kSeiteY + 50, innen, 36);
    command2_[0] = Kind(h_, "BUTTON", f_.Command2[0].Caption, WS_TABSTOP | BS_DEFPUSHBUTTON, kIdCommand2, x + 40,
                        kSeiteY + 100, innen - 80, 28);
    command2_[1] = Kind(h_, "BUTTON", f_.Command2[1].Caption, WS_TABSTOP | BS_PUSHBUTTON, kIdCommand2 + 1, x + 40,
                        kSeiteY + 138, innen - 80, 28);
    label_[4] = Kind(h_, "STATIC", f_.Label1[4].Caption, SS_NOPREFIX, 14, x, kSeiteY + 40, innen, 20);
    ::SendMessageA(label_[4], WM_SETFONT, reinterpret_cast<WPARAM>(Fettschrift()), FALSE);
    command3_ = Kind(h_, "BUTTON", f_.Command3.Caption, WS_TABSTOP | BS_DEFPUSHBUTTON, kIdCommand3,
                     kSeiteX + breite - 112, kSeiteY + höhe - 44, 96, 28);
    Abgleichen();
}

void Form2Ansicht::Abgleichen() {
    FensterAnsicht::Abgleichen();
    const bool eins = f_.Frame1[1].Visible, zwei = f_.Frame1[2].Visible;
    Sichtbar(rahmen_[1], eins);
    Sichtbar(label_[1], eins);
    Sichtbar(label_[3], eins);
    Sichtbar(command2_[0], eins);
    Sichtbar(command2_[1], eins);
    Sichtbar(rahmen_[2], zwei);
    Sichtbar(label_[4], zwei);
    Sichtbar(command3_, zwei);
    if (zwei && ::GetFocus() != command3_ && ::GetForegroundWindow() == h_) ::SetFocus(command3_);
}

bool Form2Ansicht::Nachricht(UINT msg, WPARAM wp, LPARAM, LRESULT& ergebnis) {
    if (msg == WM_COMMAND && HIWORD(wp) == BN_CLICKED) {
        const int id = LOWORD(wp);
        if (id == kIdCommand2 || id == kIdCommand2 + 1) {
            f_.Command2_Click(id - kIdCommand2);
            return true;
        }
        if (id == kIdCommand3) {
            f_.Command3_Click();
            return true;
        }
    }
    if (msg == WM_CLOSE) {
        // No routine handles this closing: the window goes, the hidden Start stays.
        prg_.Form2Entladen();
        ergebnis = 0;
        return true;
    }
    return false;
}

}  // namespace kes::ui
