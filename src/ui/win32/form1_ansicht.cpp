#include "ui/win32/form1_ansicht.h"

#include "core/programm.h"
#include "ui/win32/steuerung.h"

namespace kes::ui {

namespace {
enum : int { kIdCheck = 10, kIdJa = 20, kIdNein = 21 };

BOOL CALLBACK Sperren(HWND h, LPARAM lp) {
    DWORD prozess = 0;
    ::GetWindowThreadProcessId(h, &prozess);
    auto* eigenes = reinterpret_cast<std::pair<HWND, bool>*>(lp);
    if (prozess == ::GetCurrentProcessId() && h != eigenes->first) ::EnableWindow(h, eigenes->second ? FALSE : TRUE);
    return TRUE;
}
}  // namespace

Form1Ansicht::Form1Ansicht(Programm& prg, Form1Fenster& modell)
    : FensterAnsicht(modell, "KestrellaFrage", WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME),
      prg_(prg),
      f_(modell) {
    RECT r;
    ::GetClientRect(h_, &r);
    HWND symbol = Kind(h_, "STATIC", "", WS_VISIBLE | SS_ICON, 0, 14, 14, 32, 32);
    // The system's own warning sign, shared: it is never destroyed.
    const auto warnung =
        ::LoadImageA(nullptr, reinterpret_cast<LPCSTR>(IDI_WARNING), IMAGE_ICON, 0, 0, LR_SHARED | LR_DEFAULTSIZE);
    ::SendMessageA(symbol, STM_SETICON, reinterpret_cast<WPARAM>(warnung), 0);
    Kind(h_, "STATIC", f_.Label1.Caption, WS_VISIBLE | SS_NOPREFIX, 0, 58, 18, r.right - 70, 34);
    check_ = Kind(h_, "BUTTON", f_.Check1.Caption, WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX, kIdCheck, 58, 56,
                  r.right - 70, 20);
    Kind(h_, "BUTTON", f_.Command1[0].Caption, WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, kIdJa, r.right - 212,
         r.bottom - 40, 96, 28);
    HWND nein = Kind(h_, "BUTTON", f_.Command1[1].Caption, WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, kIdNein,
                     r.right - 108, r.bottom - 40, 96, 28);
    ::SetFocus(nein);
    AndereSperren(true);
    Abgleichen();
}

Form1Ansicht::~Form1Ansicht() {
    AndereSperren(false);
}

void Form1Ansicht::AndereSperren(bool sperren) {
    std::pair<HWND, bool> eigenes{h_, sperren};
    ::EnumWindows(&Sperren, reinterpret_cast<LPARAM>(&eigenes));
}

void Form1Ansicht::Abgleichen() {
    FensterAnsicht::Abgleichen();
    ::SendMessageA(check_, BM_SETCHECK, f_.Check1.Value ? BST_CHECKED : BST_UNCHECKED, 0);
}

bool Form1Ansicht::Nachricht(UINT msg, WPARAM wp, LPARAM, LRESULT& ergebnis) {
    if (msg == WM_COMMAND && HIWORD(wp) == BN_CLICKED) {
        switch (LOWORD(wp)) {
            case kIdCheck:
                f_.Check1.Value = ::SendMessageA(check_, BM_GETCHECK, 0, 0) == BST_CHECKED ? 1 : 0;
                f_.Check1_Click();
                return true;
            case kIdJa:
                f_.Command1_Click(0);
                return true;
            case kIdNein:
                f_.Command1_Click(1);
                return true;
            default:
                return false;
        }
    }
    if (msg == WM_CLOSE) {
        prg_.Form1Entladen();
        ergebnis = 0;
        return true;
    }
    return false;
}

}  // namespace kes::ui
