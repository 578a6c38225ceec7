// The small pictures of the program's lists: one image list that every list view shares,
// and the same pictures at any size for a picture box. The models name a picture by its
// number in the window's image list; the table in bilder.cpp maps each number to one of
// the program's own icons. A number without a picture draws nothing.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace kes::ui {

// The shared list of 16 x 16 pictures, made at the first call and kept until the program
// ends. A list view that shows it must have LVS_SHAREIMAGELISTS, or it would destroy it.
HIMAGELIST Bilderliste();
// The place of picture NUMMER in that list; I_IMAGENONE for 0 or an unknown number.
int BildIndex(int nummer);
// Picture NUMMER at GRÖSSE pixels square, owned for the whole run; nullptr if unknown.
HICON BildIcon(int nummer, int grösse);

}  // namespace kes::ui
