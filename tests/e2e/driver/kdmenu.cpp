// kdmenu.dll: loaded by kdriver into the process that shows a popup menu, where it reads
// the menu's items into a kdmenu::Block (see kdmenu.h). It does nothing when loaded.
#include "kdmenu.h"

#include <windows.h>

extern "C" __declspec(dllexport) DWORD WINAPI KdMenuLesen(void* parameter) {
    auto* block = static_cast<kdmenu::Block*>(parameter);
    const auto menü = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(block->menü));
    const int n = GetMenuItemCount(menü);
    block->anzahl = n < 0 ? -1 : (n < kdmenu::kMaxEinträge ? n : kdmenu::kMaxEinträge);
    for (int i = 0; i < block->anzahl; ++i) {
        auto& e = block->einträge[i];
        MENUITEMINFOA info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
        info.dwTypeData = e.text;
        info.cch = kdmenu::kTextLänge - 1;
        e.text[0] = '\0';
        if (!GetMenuItemInfoA(menü, i, TRUE, &info)) continue;
        e.id = info.wID;
        e.typ = info.fType;
        e.zustand = info.fState;
        e.hatUntermenü = info.hSubMenu != nullptr;
    }
    return block->anzahl < 0 ? 1 : 0;
}
