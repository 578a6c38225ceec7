#include "ui/win32/box_ansicht.h"

#include <windowsx.h>

#include "platform/win32/unique_handle.h"
#include "ui/win32/steuerung.h"

namespace kes::ui {

namespace {
constexpr const char* kBoxKlasse = "KestrellaBox";
constexpr int kKasten = 13;  // the face, as the system draws a check box at 96 dpi
constexpr int kAbstand = 5;

// What a box last drew, to draw again only on a change.
struct BoxZustand {
    Box* modell;
    std::int16_t wert;
    std::string caption;
    long farbe;
};

BoxZustand* Zustand(HWND h) {
    return reinterpret_cast<BoxZustand*>(::GetWindowLongPtrA(h, GWLP_USERDATA));
}

// The three pictures: 0 an empty face, 1 a tick, 2 a grey face with a grey tick.
void Gesicht(HDC dc, const RECT& r, std::int16_t wert) {
    const bool grau = wert == 2;
    win32::UniqueGdi füllung(::CreateSolidBrush(grau ? ::GetSysColor(COLOR_BTNFACE) : RGB(255, 255, 255)));
    win32::UniqueGdi rand(::CreatePen(PS_SOLID, 1, RGB(28, 81, 128)));
    HGDIOBJ alterStift = ::SelectObject(dc, rand.Get());
    HGDIOBJ alterPinsel = ::SelectObject(dc, füllung.Get());
    ::Rectangle(dc, r.left, r.top, r.right, r.bottom);
    if (wert == 1 || grau) {
        win32::UniqueGdi haken(::CreatePen(PS_SOLID, 2, grau ? RGB(140, 140, 140) : RGB(33, 161, 33)));
        ::SelectObject(dc, haken.Get());
        const POINT p[3] = {{r.left + 3, r.top + 6}, {r.left + 5, r.top + 9}, {r.left + 10, r.top + 3}};
        ::Polyline(dc, p, 3);
        ::SelectObject(dc, rand.Get());
    }
    ::SelectObject(dc, alterPinsel);
    ::SelectObject(dc, alterStift);
}

void BoxMalen(HWND h) {
    PAINTSTRUCT ps;
    HDC dc = ::BeginPaint(h, &ps);
    BoxZustand* z = Zustand(h);
    RECT c;
    ::GetClientRect(h, &c);
    ::FillRect(dc, &c, ::GetSysColorBrush(COLOR_BTNFACE));
    if (z) {
        const int oben = (c.bottom - kKasten) / 2;
        Gesicht(dc, RECT{0, oben, kKasten, oben + kKasten}, z->modell->value());
        HGDIOBJ alt = ::SelectObject(dc, Dialogschrift());
        ::SetBkMode(dc, TRANSPARENT);
        const long farbe = z->modell->ForeColor;
        ::SetTextColor(
            dc, farbe < 0 || farbe == kSystemFensterText ? ::GetSysColor(COLOR_BTNTEXT) : static_cast<COLORREF>(farbe));
        RECT text{kKasten + kAbstand, 0, c.right, c.bottom};
        ::DrawTextA(dc, z->modell->Caption.c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if (::GetFocus() == h) {
            RECT mass = text;
            ::DrawTextA(dc, z->modell->Caption.c_str(), -1, &mass,
                        DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_CALCRECT);
            mass.top = (c.bottom - (mass.bottom - mass.top)) / 2 - 1;
            mass.bottom = c.bottom - mass.top;
            mass.left -= 1;
            mass.right += 1;
            ::DrawFocusRect(dc, &mass);
        }
        ::SelectObject(dc, alt);
    }
    ::EndPaint(h, &ps);
}

// A click runs the owner's handler, which handles its own errors; nothing may leave here.
void Klicken(HWND h, BoxZustand* z) {
    try {
        z->modell->KlickVomBenutzer();
    } catch (...) {
    }
    BoxAbgleichen(h);
}
LRESULT CALLBACK BoxProc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    BoxZustand* z = Zustand(h);
    switch (msg) {
        case WM_PAINT:
            BoxMalen(h);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_LBUTTONDOWN:
            ::SetFocus(h);
            ::SetCapture(h);
            return 0;
        case WM_LBUTTONUP: {
            if (::GetCapture() != h) return 0;
            ::ReleaseCapture();
            RECT c;
            ::GetClientRect(h, &c);
            const POINT p{GET_X_LPARAM(lp), GET_Y_LPARAM(lp)};
            // Face and caption are one target.
            if (z && ::PtInRect(&c, p)) Klicken(h, z);
            return 0;
        }
        case WM_GETDLGCODE:
            return DLGC_WANTCHARS;
        case WM_CHAR:
            if (wp == ' ' && z) Klicken(h, z);
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
            ::InvalidateRect(h, nullptr, FALSE);
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

void KlasseRegistrieren(const char* klasse, WNDPROC proc) {
    WNDCLASSA wc{};
    if (::GetClassInfoA(::GetModuleHandleA(nullptr), klasse, &wc)) return;
    wc = WNDCLASSA{};
    wc.lpfnWndProc = proc;
    wc.hInstance = ::GetModuleHandleA(nullptr);
    wc.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    wc.lpszClassName = klasse;
    ::RegisterClassA(&wc);
}

int BoxBreite(HWND eltern, const std::string& caption) {
    HDC dc = ::GetDC(eltern);
    HGDIOBJ alt = ::SelectObject(dc, Dialogschrift());
    SIZE s{};
    ::GetTextExtentPoint32A(dc, caption.c_str(), static_cast<int>(caption.size()), &s);
    ::SelectObject(dc, alt);
    ::ReleaseDC(eltern, dc);
    return s.cx + 24;
}

HWND BoxAnlegen(HWND eltern, Box& modell, int id, int x, int y, int breite) {
    KlasseRegistrieren(kBoxKlasse, &BoxProc);
    if (breite <= 0) breite = BoxBreite(eltern, modell.Caption);
    HWND h = ::CreateWindowExA(0, kBoxKlasse, modell.Caption.c_str(), WS_CHILD | WS_TABSTOP, x, y, breite, 16, eltern,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleA(nullptr), nullptr);
    ::SetWindowLongPtrA(
        h, GWLP_USERDATA,
        reinterpret_cast<LONG_PTR>(new BoxZustand{&modell, modell.value(), modell.Caption, modell.ForeColor}));
    return h;
}

void BoxAbgleichen(HWND h) {
    BoxZustand* z = Zustand(h);
    if (!z) return;
    const Box& m = *z->modell;
    if (m.value() == z->wert && m.Caption == z->caption && m.ForeColor == z->farbe) return;
    z->wert = m.value();
    z->farbe = m.ForeColor;
    if (m.Caption != z->caption) {
        z->caption = m.Caption;
        ::SetWindowTextA(h, m.Caption.c_str());
    }
    ::InvalidateRect(h, nullptr, FALSE);
}

}  // namespace kes::ui
