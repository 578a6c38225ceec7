// The least a tray program can be: one hidden window and one icon in the notification
// area, and a message loop. What it costs is the yardstick for the watchdog's own memory.
#include <windows.h>

#include <shellapi.h>

namespace {
LRESULT CALLBACK Proc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_DESTROY) {
        ::PostQuitMessage(0);
        return 0;
    }
    return ::DefWindowProcA(h, msg, wp, lp);
}
}  // namespace

int WINAPI WinMain(HINSTANCE instanz, HINSTANCE, LPSTR, int) {
    WNDCLASSA wc{};
    wc.lpfnWndProc = &Proc;
    wc.hInstance = instanz;
    wc.lpszClassName = "KestrellaMinimalTray";
    ::RegisterClassA(&wc);
    HWND h = ::CreateWindowExA(0, wc.lpszClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr, instanz,
                               nullptr);
    NOTIFYICONDATAA nid{};
    nid.cbSize = sizeof nid;
    nid.hWnd = h;
    nid.uID = 1;
    nid.uFlags = NIF_ICON | NIF_TIP | NIF_MESSAGE;
    nid.uCallbackMessage = WM_APP;
    nid.hIcon = ::LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
    lstrcpynA(nid.szTip, "Minimal", sizeof nid.szTip);
    ::Shell_NotifyIconA(NIM_ADD, &nid);
    MSG m;
    while (::GetMessageA(&m, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&m);
        ::DispatchMessageA(&m);
    }
    ::Shell_NotifyIconA(NIM_DELETE, &nid);
    return 0;
}
