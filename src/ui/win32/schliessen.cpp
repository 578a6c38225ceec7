#include "ui/win32/schliessen.h"

#include "core/programm.h"

namespace kes::ui {

int EigenesSchliessen::tiefe_ = 0;

EigenesSchliessen::EigenesSchliessen() {
    ++tiefe_;
}

EigenesSchliessen::~EigenesSchliessen() {
    --tiefe_;
}

bool EigenesSchliessen::Läuft() {
    return tiefe_ > 0;
}

// The program itself never sends WM_CLOSE to a hidden window: its menu entry "Beenden" and
// the reset unload Alarm directly, and the user can reach a close box only on a visible
// window. So a WM_CLOSE that arrives at a hidden window while none of the program's own
// closes is under way was sent from outside, which is what the task manager's "End task"
// does: reason 3, ended without a question. A visible window's close is the user's close
// box (reason 0, with the question). One that arrives while the program's own close is
// asking its question is swallowed: the question on screen decides.
int GrundFürWmClose(HWND fenster) {
    if (EigenesSchliessen::Läuft()) return -1;
    return ::IsWindowVisible(fenster) ? kEntladenNormal : kEntladenTaskmanager;
}

void Entladen(Programm& prg, int grund) {
    prg.AlarmEntladen(grund);
    if (prg.Beenden) ::PostQuitMessage(0);
}

}  // namespace kes::ui
