// The Win32 face of the up/down number field: a window of class "KestrellaAufAb" holding an
// edit box, with the two arrows drawn beside it. Typing goes through the model's change
// routine; a held arrow steps through the model's own 100 ms timers; the arrow keys step
// once per press.
#pragma once

#include <windows.h>

#include "panel/aufab.h"

namespace kes::ui {

HWND AufAbAnlegen(HWND eltern, AufAb& modell, int id, int x, int y, int breite, int höhe);
// Shows the model's text and the state of the arrows.
void AufAbAbgleichen(HWND h);

}  // namespace kes::ui
