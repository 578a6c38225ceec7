// Pop-up menus drawn from menu models.
#pragma once

#include <windows.h>

#include <vector>

#include "core/steuerelemente.h"

namespace kes::ui {

// Shows the entries at the pointer, the default entry in bold; returns the index of the
// chosen entry, or -1 when the user dismissed the menu.
int PopupZeigen(HWND besitzer, const std::vector<MenuItem>& einträge, int standard);

}  // namespace kes::ui
