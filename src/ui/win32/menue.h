// Pop-up menus drawn from menu models.
#pragma once

#include <windows.h>

#include <vector>

#include "common/steuerelemente.h"

namespace kes::ui {

// Shows the entries at the given screen point, or at the pointer without one; the default
// entry in bold, disabled ones grey. Returns the index of the chosen entry, or -1 when the
// user dismissed the menu.
int PopupZeigen(HWND besitzer, const std::vector<MenuItem>& einträge, int standard, const POINT* ort = nullptr);

}  // namespace kes::ui
