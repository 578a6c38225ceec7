// The notification-area icon on Shell_NotifyIconA, for the hidden window Start.
#pragma once

#include <windows.h>

#include <functional>

#include "platform/seam/tray_api.h"

namespace kes::win32 {

class Win32Tray : public TrayApi {
public:
    // The window that owns the icon and gets its callback message; set by the view of Start.
    void SetzeFenster(HWND h) { fenster_ = h; }
    // Asked for the window when a call comes before the view of Start exists.
    std::function<void()> fensterBesorgen;
    bool Notify(int message, const TrayRecord& record) override;

private:
    HWND fenster_ = nullptr;
};

}  // namespace kes::win32
