// The Win32 view of one window model: creates the real window, keeps caption, place,
// size, visibility and topmost state equal to the model, and hands messages to the view.
// Nothing thrown by the logic leaves the window procedure.
#pragma once

#include <windows.h>

#include "common/fenster.h"

namespace kes::ui {

class FensterAnsicht {
public:
    FensterAnsicht(Fenster& modell, const char* klasse, DWORD stil, DWORD exStil = 0);
    virtual ~FensterAnsicht();
    FensterAnsicht(const FensterAnsicht&) = delete;
    FensterAnsicht& operator=(const FensterAnsicht&) = delete;

    // Brings the real window in line with the model; views add their controls.
    virtual void Abgleichen();
    HWND Fenster() const { return h_; }
    const kes::Fenster* Modell() const { return &modell_; }

protected:
    // A message for this window; return true when handled (ergebnis is the result).
    virtual bool Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) = 0;
    kes::Fenster& modell_;
    HWND h_ = nullptr;

private:
    static LRESULT CALLBACK Proc(HWND, UINT, WPARAM, LPARAM);
    RECT angewandt_{-1, -1, -1, -1};
    bool oben_ = false;
};

// An icon of the program's resources; it stays valid, and owned here, until the program ends.
HICON ProgrammIcon(const char* name, int grösse);

}  // namespace kes::ui
