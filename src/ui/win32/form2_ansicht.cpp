#include "ui/win32/form2_ansicht.h"

#include "core/programm.h"
#include "ui/win32/steuerung.h"

namespace kes::ui {

namespace {
constexpr int kIdBeenden = 1;
}

Form2Ansicht::Form2Ansicht(Programm& prg, Form2Fenster& modell)
    : FensterAnsicht(modell, "KestrellaAssistent", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU), prg_(prg) {
    RECT r;
    ::GetClientRect(h_, &r);
    HWND symbol = Kind(h_, "STATIC", "", WS_VISIBLE | SS_ICON, 0, 16, 16, 32, 32);
    ::SendMessageA(symbol, STM_SETICON, reinterpret_cast<WPARAM>(ProgrammIcon("SCAN", 32)), 0);
    Kind(h_, "STATIC", modell.Hinweis.Caption, WS_VISIBLE | SS_NOPREFIX, 0, 64, 16, r.right - 80, r.bottom - 70);
    Kind(h_, "BUTTON", "Beenden", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, kIdBeenden, r.right - 106, r.bottom - 40,
         90, 28);
    Abgleichen();
}

bool Form2Ansicht::Nachricht(UINT msg, WPARAM wp, LPARAM, LRESULT& ergebnis) {
    if ((msg == WM_COMMAND && LOWORD(wp) == kIdBeenden) || msg == WM_CLOSE) {
        prg_.Beenden = true;
        ergebnis = 0;
        return true;
    }
    return false;
}

}  // namespace kes::ui
