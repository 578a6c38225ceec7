#include "ui/win32/fenster_ansicht.h"

#include <cstring>
#include <map>
#include <string>
#include <utility>

#include "platform/win32/unique_handle.h"

namespace kes::ui {

HICON ProgrammIcon(const char* name, int grösse) {
    // Each name and size is loaded once and kept for the whole run: every warning asks
    // for the same few icons. Not shared by the system instead, because a shared icon
    // comes in the size it was first loaded in, whatever size is asked for later.
    static std::map<std::pair<std::string, int>, win32::UniqueIcon> geladen;
    auto& icon = geladen[{name, grösse}];
    if (!icon) icon = win32::LoadOwnedIcon(::GetModuleHandleA(nullptr), name, grösse);
    return icon.Get();
}

FensterAnsicht::FensterAnsicht(kes::Fenster& modell, const char* klasse, DWORD stil, DWORD exStil) : modell_(modell) {
    WNDCLASSA wc{};
    if (!::GetClassInfoA(::GetModuleHandleA(nullptr), klasse, &wc)) {
        wc = WNDCLASSA{};
        wc.lpfnWndProc = &FensterAnsicht::Proc;
        wc.hInstance = ::GetModuleHandleA(nullptr);
        wc.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        wc.hIcon = ProgrammIcon("SCAN", 32);
        wc.lpszClassName = klasse;
        ::RegisterClassA(&wc);
    }
    h_ = ::CreateWindowExA(exStil, klasse, modell.Caption.c_str(), stil, CW_USEDEFAULT, CW_USEDEFAULT, modell.Width,
                           modell.Height, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    // Messages reach the view only from here on: during creation the derived view does not
    // exist yet.
    ::SetWindowLongPtrA(h_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    modell.hWnd = reinterpret_cast<std::uintptr_t>(h_);
}

FensterAnsicht::~FensterAnsicht() {
    if (h_) {
        ::SetWindowLongPtrA(h_, GWLP_USERDATA, 0);
        ::DestroyWindow(h_);
    }
}

LRESULT CALLBACK FensterAnsicht::Proc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    auto* self = reinterpret_cast<FensterAnsicht*>(::GetWindowLongPtrA(h, GWLP_USERDATA));
    if (self) {
        try {
            if (msg == WM_MOVE || msg == WM_SIZE) {
                // The user moved the window: the model follows, so the view does not move it back.
                RECT r;
                ::GetWindowRect(h, &r);
                self->modell_.Left = r.left, self->modell_.Top = r.top;
                if (msg == WM_SIZE) self->modell_.WindowState = wp == SIZE_MINIMIZED ? 1 : wp == SIZE_MAXIMIZED ? 2 : 0;
                self->angewandt_ = {r.left, r.top, self->modell_.Width, self->modell_.Height};
            }
            LRESULT ergebnis = 0;
            if (self->Nachricht(msg, wp, lp, ergebnis)) return ergebnis;
        } catch (...) {
            return 0;
        }
    }
    return ::DefWindowProcA(h, msg, wp, lp);
}

void FensterAnsicht::Abgleichen() {
    char alt[512] = {};
    ::GetWindowTextA(h_, alt, sizeof alt);
    if (modell_.Caption != alt) ::SetWindowTextA(h_, modell_.Caption.c_str());

    const RECT soll{modell_.Left, modell_.Top, modell_.Width, modell_.Height};
    if (std::memcmp(&soll, &angewandt_, sizeof soll) != 0) {
        angewandt_ = soll;
        ::SetWindowPos(h_, nullptr, soll.left, soll.top, soll.right, soll.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (modell_.Topmost != oben_) {
        oben_ = modell_.Topmost;
        ::SetWindowPos(h_, oben_ ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
    const bool sichtbar = ::IsWindowVisible(h_) != FALSE;
    if (modell_.Visible != sichtbar) ::ShowWindow(h_, modell_.Visible ? SW_SHOW : SW_HIDE);
    if (modell_.Visible && modell_.Vordergrund) {
        modell_.Vordergrund = false;
        ::SetForegroundWindow(h_);
    }
}

}  // namespace kes::ui
