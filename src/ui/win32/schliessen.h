// Which way out a WM_CLOSE is. The platform names no sender, so the views tell an "End task"
// of the task manager from the program's own closes by where the close comes from; the rule
// is at GrundFürWmClose.
#pragma once

#include <windows.h>

namespace kes {
class Programm;
}

namespace kes::ui {

// Held while the program runs one of its own ways out (the tray menu, the panel's close
// box): a WM_CLOSE that arrives meanwhile belongs to that close and starts no second one.
class EigenesSchliessen {
public:
    EigenesSchliessen();
    ~EigenesSchliessen();
    EigenesSchliessen(const EigenesSchliessen&) = delete;
    EigenesSchliessen& operator=(const EigenesSchliessen&) = delete;
    static bool Läuft();

private:
    static int tiefe_;
};

// The unload reason for a WM_CLOSE that reached FENSTER, or -1 when it is to be swallowed.
int GrundFürWmClose(HWND fenster);

// The way out for GRUND, from a window procedure. A close that came as a sent message (the
// system's WM_ENDSESSION, a WM_CLOSE sent by another program) runs inside GetMessage,
// which then waits on for a posted message; when the program is to end, the quit message
// lets the loop see it.
void Entladen(Programm& prg, int grund);

}  // namespace kes::ui
