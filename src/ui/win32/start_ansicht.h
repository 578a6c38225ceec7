// The Win32 view of the hidden window Start: owner of the tray icon, receiver of its
// callback message, and of the shell's news that the taskbar was restarted.
#pragma once

#include <functional>

#include "core/start.h"
#include "ui/win32/fenster_ansicht.h"

namespace kes {
class Programm;
}

namespace kes::ui {

class StartAnsicht : public FensterAnsicht {
public:
    StartAnsicht(Programm& prg, StartFenster& modell);

    // Told the window handle once it exists, so the tray calls can name their owner.
    static std::function<void(HWND)> fensterBekannt;

private:
    bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) override;
    void MenüZeigen();
    Programm& prg_;
    StartFenster& s_;
    UINT taskleisteNeu_ = 0;
};

}  // namespace kes::ui
