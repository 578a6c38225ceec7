#include "ui/win32/start_ansicht.h"

#include "core/programm.h"
#include "ui/win32/menue.h"
#include "ui/win32/schliessen.h"

namespace kes::ui {

std::function<void(HWND)> StartAnsicht::fensterBekannt;

StartAnsicht::StartAnsicht(Programm& prg, StartFenster& modell)
    : FensterAnsicht(modell, "KestrellaStart", WS_OVERLAPPED), prg_(prg), s_(modell) {
    taskleisteNeu_ = ::RegisterWindowMessageA("TaskbarCreated");
    if (fensterBekannt) fensterBekannt(h_);
}

void StartAnsicht::MenüZeigen() {
    s_.MenüÖffnen = false;
    // Without the foreground the menu would not close when the user clicks elsewhere.
    ::SetForegroundWindow(h_);
    const int wahl = PopupZeigen(h_, std::vector<MenuItem>(s_.fox1.begin(), s_.fox1.end()), 0);
    ::PostMessageA(h_, WM_NULL, 0, 0);
    if (wahl < 0) return;
    // "Beenden" is one of the program's own ways out.
    EigenesSchliessen eigenes;
    s_.fox1_Click(wahl);
}

bool StartAnsicht::Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) {
    if (msg == WM_MOUSEMOVE) {
        // The tray icon's callback: the mouse message travels in the low word.
        s_.Form_MouseMove(LOWORD(lp));
        if (s_.Vordergrund) {
            s_.Vordergrund = false;
            ::SetForegroundWindow(h_);
        }
        if (s_.MenüÖffnen) MenüZeigen();
        return true;
    }
    if (msg == taskleisteNeu_ && taskleisteNeu_ != 0) {
        s_.TaskleisteNeu();
        return true;
    }
    if (msg == WM_CLOSE) {
        // Never left to DefWindowProc, which would destroy the icon's owner and leave the
        // program running without it.
        const int grund = GrundFürWmClose(h_);
        if (grund >= 0) Entladen(prg_, grund);
        ergebnis = 0;
        return true;
    }
    if (msg == WM_QUERYENDSESSION) {
        ergebnis = TRUE;
        return true;
    }
    if (msg == WM_ENDSESSION) {
        if (wp) Entladen(prg_, kEntladenSitzungsende);
        return true;
    }
    (void)ergebnis;
    return false;
}

}  // namespace kes::ui
