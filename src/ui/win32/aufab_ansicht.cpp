#include "ui/win32/aufab_ansicht.h"

#include <windowsx.h>

#include <array>
#include <string>

#include "platform/win32/unique_handle.h"
#include "ui/win32/box_ansicht.h"
#include "ui/win32/steuerung.h"

namespace kes::ui {

namespace {
constexpr const char* kKlasse = "KestrellaAufAb";
constexpr int kPfeilBreite = 17;
constexpr int kIdText = 1;

struct AufAbZustand {
    AufAb* modell;
    HWND text;
    WNDPROC textProc;
    std::array<bool, 2> gedrückt{};
    int gehalten = -1;  // the arrow under the captured mouse
};

AufAbZustand* Zustand(HWND h) {
    return reinterpret_cast<AufAbZustand*>(::GetWindowLongPtrA(h, GWLP_USERDATA));
}

RECT Pfeil(HWND h, int i) {
    RECT c;
    ::GetClientRect(h, &c);
    const int mitte = c.bottom / 2;
    return i == 0 ? RECT{c.right - kPfeilBreite, 0, c.right, mitte}
                  : RECT{c.right - kPfeilBreite, mitte, c.right, c.bottom};
}

// An arrow as a small raised button with a dark triangle; sunken while pressed.
void PfeilMalen(HDC dc, RECT r, bool hoch, bool gedrückt) {
    ::FillRect(dc, &r, ::GetSysColorBrush(COLOR_BTNFACE));
    ::DrawEdge(dc, &r, gedrückt ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    const int versatz = gedrückt ? 1 : 0;
    const int mx = (r.left + r.right) / 2 + versatz, my = (r.top + r.bottom) / 2 + versatz;
    POINT p[3];
    if (hoch)
        p[0] = {mx - 4, my + 2}, p[1] = {mx + 4, my + 2}, p[2] = {mx, my - 2};
    else
        p[0] = {mx - 4, my - 2}, p[1] = {mx + 4, my - 2}, p[2] = {mx, my + 2};
    win32::UniqueGdi pinsel(::CreateSolidBrush(::GetSysColor(COLOR_BTNTEXT)));
    win32::UniqueGdi stift(::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNTEXT)));
    HGDIOBJ a = ::SelectObject(dc, pinsel.Get());
    HGDIOBJ b = ::SelectObject(dc, stift.Get());
    ::Polygon(dc, p, 3);
    ::SelectObject(dc, a);
    ::SelectObject(dc, b);
}

void Sicher(const std::function<void()>& f) {
    try {
        f();
    } catch (...) {
    }
}

// The arrow keys step once; the dialog manager leaves them to the box.
LRESULT CALLBACK TextProc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    HWND feld = ::GetParent(h);
    AufAbZustand* z = Zustand(feld);
    if (!z) return ::DefWindowProcA(h, msg, wp, lp);
    if (msg == WM_GETDLGCODE) return ::CallWindowProcA(z->textProc, h, msg, wp, lp) | DLGC_WANTARROWS;
    if (msg == WM_KEYDOWN && (wp == VK_UP || wp == VK_DOWN)) {
        Sicher([&] { z->modell->PfeilSchritt(wp == VK_UP); });
        AufAbAbgleichen(feld);
        return 0;
    }
    return ::CallWindowProcA(z->textProc, h, msg, wp, lp);
}

LRESULT CALLBACK FeldProc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    AufAbZustand* z = Zustand(h);
    switch (msg) {
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = ::BeginPaint(h, &ps);
            if (z) {
                PfeilMalen(dc, Pfeil(h, 0), true, z->modell->Gedrückt(0));
                PfeilMalen(dc, Pfeil(h, 1), false, z->modell->Gedrückt(1));
            }
            ::EndPaint(h, &ps);
            return 0;
        }
        case WM_LBUTTONDOWN: {
            if (!z) break;
            const POINT p{GET_X_LPARAM(lp), GET_Y_LPARAM(lp)};
            for (int i = 0; i < 2; ++i) {
                RECT r = Pfeil(h, i);
                if (!::PtInRect(&r, p)) continue;
                ::SetCapture(h);
                z->gehalten = i;
                Sicher([&] { z->modell->PfeilDrücken(i); });
                AufAbAbgleichen(h);
            }
            return 0;
        }
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            if (z && z->gehalten >= 0) {
                const int i = z->gehalten;
                z->gehalten = -1;
                Sicher([&] { z->modell->PfeilLoslassen(i); });
                if (msg == WM_LBUTTONUP) ::ReleaseCapture();
                AufAbAbgleichen(h);
            }
            return 0;
        case WM_COMMAND:
            if (z && LOWORD(wp) == kIdText && HIWORD(wp) == EN_CHANGE) {
                char puffer[64] = {};
                ::GetWindowTextA(z->text, puffer, sizeof puffer);
                Sicher([&] { z->modell->TextGeändert(puffer); });
                AufAbAbgleichen(h);
            }
            return 0;
        case WM_SETFOCUS:
            if (z) ::SetFocus(z->text);
            return 0;
        case WM_NCDESTROY:
            delete z;
            ::SetWindowLongPtrA(h, GWLP_USERDATA, 0);
            break;
        default:
            break;
    }
    return ::DefWindowProcA(h, msg, wp, lp);
}
}  // namespace

HWND AufAbAnlegen(HWND eltern, AufAb& modell, int id, int x, int y, int breite, int höhe) {
    KlasseRegistrieren(kKlasse, &FeldProc);
    HWND h = ::CreateWindowExA(WS_EX_CONTROLPARENT, kKlasse, "", WS_CHILD | WS_TABSTOP, x, y, breite, höhe, eltern,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleA(nullptr), nullptr);
    HWND text = Kind(h, "EDIT", modell.Text(), WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, kIdText, 0, 0,
                     breite - kPfeilBreite - 1, höhe);
    ::SetWindowLongA(text, GWL_EXSTYLE, ::GetWindowLongA(text, GWL_EXSTYLE) | WS_EX_CLIENTEDGE);
    ::SetWindowPos(text, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    auto* z = new AufAbZustand{&modell, text, nullptr};
    ::SetWindowLongPtrA(h, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(z));
    z->textProc =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(text, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TextProc)));
    return h;
}

void AufAbAbgleichen(HWND h) {
    AufAbZustand* z = Zustand(h);
    if (!z) return;
    char puffer[64] = {};
    ::GetWindowTextA(z->text, puffer, sizeof puffer);
    if (z->modell->Text() != puffer) {
        ::SetWindowTextA(z->text, z->modell->Text().c_str());
        // A cut character puts the caret at the end.
        const auto n = static_cast<int>(z->modell->Text().size());
        ::SendMessageA(z->text, EM_SETSEL, n, n);
    }
    const std::array<bool, 2> jetzt{z->modell->Gedrückt(0), z->modell->Gedrückt(1)};
    if (jetzt != z->gedrückt) {
        z->gedrückt = jetzt;
        RECT r{};
        ::GetClientRect(h, &r);
        r.left = r.right - kPfeilBreite;
        ::InvalidateRect(h, &r, FALSE);
    }
}

}  // namespace kes::ui
