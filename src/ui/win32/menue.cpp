#include "ui/win32/menue.h"

#include "platform/win32/unique_handle.h"

namespace kes::ui {

int PopupZeigen(HWND besitzer, const std::vector<MenuItem>& einträge, int standard, const POINT* ort) {
    const win32::UniqueMenu menü = win32::MakePopupMenu();
    for (std::size_t i = 0; i < einträge.size(); ++i) {
        const MenuItem& e = einträge[i];
        if (!e.Visible) continue;
        if (e.Separator) {
            ::AppendMenuA(menü.Get(), MF_SEPARATOR, 0, nullptr);
            continue;
        }
        const UINT art = MF_STRING | (e.Checked ? MF_CHECKED : 0) | (e.Enabled ? 0 : MF_GRAYED);
        ::AppendMenuA(menü.Get(), art, i + 1, e.Caption.c_str());
    }
    if (standard >= 0) ::SetMenuDefaultItem(menü.Get(), static_cast<UINT>(standard + 1), FALSE);
    POINT p;
    if (ort)
        p = *ort;
    else
        ::GetCursorPos(&p);
    const int wahl =
        ::TrackPopupMenu(menü.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_NONOTIFY, p.x, p.y, 0, besitzer, nullptr);
    return wahl - 1;
}

}  // namespace kes::ui
