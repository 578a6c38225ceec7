#include "platform/win32/tray_win32.h"

#include <shellapi.h>

#include <cstring>

namespace kes::win32 {

namespace {
void Kopieren(char* ziel, std::size_t grösse, const std::string& text) {
    std::strncpy(ziel, text.c_str(), grösse - 1);
    ziel[grösse - 1] = '\0';
}
}  // namespace

bool Win32Tray::Notify(int message, const TrayRecord& r) {
    if (!fenster_ && fensterBesorgen) fensterBesorgen();
    NOTIFYICONDATAA d{};
    // The platform's own size of the extended record, not the 32-bit figure of the record.
    d.cbSize = NOTIFYICONDATAA_V2_SIZE;
    d.hWnd = fenster_;
    d.uID = r.uID;
    d.uFlags = r.uFlags;
    d.uCallbackMessage = r.uCallbackMessage;
    d.hIcon = r.icon.empty() ? nullptr
                             : static_cast<HICON>(::LoadImageA(::GetModuleHandleA(nullptr), r.icon.c_str(), IMAGE_ICON,
                                                               ::GetSystemMetrics(SM_CXSMICON),
                                                               ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    Kopieren(d.szTip, sizeof d.szTip, r.szTip);
    d.dwState = r.dwState;
    d.dwStateMask = r.dwStateMask;
    Kopieren(d.szInfo, sizeof d.szInfo, r.szInfo);
    d.uTimeout = r.uTimeout;
    Kopieren(d.szInfoTitle, sizeof d.szInfoTitle, r.szInfoTitle);
    d.dwInfoFlags = r.dwInfoFlags;
    return ::Shell_NotifyIconA(static_cast<DWORD>(message), &d) != FALSE;
}

}  // namespace kes::win32
