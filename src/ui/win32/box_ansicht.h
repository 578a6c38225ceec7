// The Win32 face of the program's own check box: a window of class "KestrellaBox" that draws
// its three states itself and passes a click on face or caption, or the Space key, to its
// model.
#pragma once

#include <windows.h>

#include "common/box.h"

namespace kes::ui {

// Width of a box for its caption at the dialog font: the text plus 360 twips (24 pixels);
// the height is 240 twips (16 pixels).
int BoxBreite(HWND eltern, const std::string& caption);
HWND BoxAnlegen(HWND eltern, Box& modell, int id, int x, int y, int breite);
// Draws the box again when its value, caption or colour changed.
void BoxAbgleichen(HWND h);

// Registers a window class of the program's own controls once.
void KlasseRegistrieren(const char* klasse, WNDPROC proc);

}  // namespace kes::ui
