// The module IcoHolen: a file's icon from the shell's system image list, for the picture
// box of the warning window. The model keeps the icon's index in that list; the view
// draws it transparently at the box's top left corner.
#pragma once

#include <string>

#include "platform/seam/plattform.h"

namespace kes {

struct SymbolBild {
    int SystemIcon = -1;  // index in the system image list; -1: nothing drawn
    int Bild = 0;         // 1-based picture of the window's own image list; 0: none
    bool Visible = true;
};

// Draws the file's icon into the box. When the shell knows nothing of the path, the box
// stays as it was.
void IcoHolen(Plattform& p, const std::string& pfad, SymbolBild& bild);

}  // namespace kes
