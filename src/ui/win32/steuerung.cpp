#include "ui/win32/steuerung.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/win32/unique_handle.h"
#include "ui/win32/bilder.h"

namespace kes::ui {

// Both fonts are made once and serve every window until the program ends.
HFONT Dialogschrift() {
    static const win32::UniqueFont f = [] {
        NONCLIENTMETRICSA m{};
        m.cbSize = sizeof m;
        return ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof m, &m, 0) ? win32::MakeFont(m.lfMessageFont)
                                                                                 : win32::UniqueFont{};
    }();
    return f ? f.Get() : static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
}

HFONT Fettschrift() {
    static const win32::UniqueFont f = [] {
        LOGFONTA lf{};
        ::GetObjectA(Dialogschrift(), sizeof lf, &lf);
        lf.lfWeight = FW_BOLD;
        lf.lfHeight = lf.lfHeight < 0 ? lf.lfHeight - 2 : lf.lfHeight + 2;
        return win32::MakeFont(lf);
    }();
    return f ? f.Get() : Dialogschrift();
}

HWND Kind(HWND eltern, const char* klasse, const std::string& text, DWORD stil, int id, int x, int y, int b, int h) {
    HWND w = ::CreateWindowExA(0, klasse, text.c_str(), WS_CHILD | stil, x, y, b, h, eltern,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleA(nullptr), nullptr);
    ::SendMessageA(w, WM_SETFONT, reinterpret_cast<WPARAM>(Dialogschrift()), FALSE);
    return w;
}

void TextSetzen(HWND h, const std::string& text) {
    char alt[1024] = {};
    ::GetWindowTextA(h, alt, sizeof alt);
    if (text != alt) ::SetWindowTextA(h, text.c_str());
}

void Sichtbar(HWND h, bool ja) {
    if (((::GetWindowLongA(h, GWL_STYLE) & WS_VISIBLE) != 0) != ja) ::ShowWindow(h, ja ? SW_SHOWNA : SW_HIDE);
}

void Platz(HWND h, int x, int y, int b, int hoch) {
    ::SetWindowPos(h, nullptr, x, y, b, hoch, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ListenAnsicht::Anlegen(HWND eltern, int id, int x, int y, int b, int h, bool kopf) {
    h_ = Kind(eltern, WC_LISTVIEWA, "",
              WS_VISIBLE | WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                  LVS_SHAREIMAGELISTS | (kopf ? 0 : LVS_NOCOLUMNHEADER),
              id, x, y, b, h);
    ::SendMessageA(h_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
}

// Each column as wide as its header and content ask for, and the last one also fills what
// is left of the list: LVSCW_AUTOSIZE_USEHEADER, worked out here, since Wine's list view
// cuts the header short and fills the last column to the very edge, where a horizontal
// scroll bar then hides the second row of a two-row list.
void ListenAnsicht::NachInhaltBreiten(const ListView& modell) {
    const int n = static_cast<int>(modell.Columns.size());
    const bool kopf = !(::GetWindowLongA(h_, GWL_STYLE) & LVS_NOCOLUMNHEADER);
    auto breite = [&](int i) {
        ::SendMessageA(h_, LVM_SETCOLUMNWIDTH, i, LVSCW_AUTOSIZE);
        int b = static_cast<int>(::SendMessageA(h_, LVM_GETCOLUMNWIDTH, i, 0));
        // The header's text with the margins the header control draws around it.
        if (kopf)
            b = std::max(b, 16 + static_cast<int>(::SendMessageA(h_, LVM_GETSTRINGWIDTHA, 0,
                                                                 reinterpret_cast<LPARAM>(modell.Columns[i].c_str()))));
        return b;
    };
    int links = 0;
    for (int i = 0; i < n; ++i) {
        int b = breite(i);
        if (i + 1 == n) {
            // What is left is measured on the outer size, whatever scroll bars show at the
            // moment, less room for a vertical one, so that no horizontal one comes up.
            RECT r;
            ::GetWindowRect(h_, &r);
            b = std::max<int>(b, r.right - r.left - 4 - ::GetSystemMetrics(SM_CXVSCROLL) - links);
        }
        ::SendMessageA(h_, LVM_SETCOLUMNWIDTH, i, b);
        links += b;
    }
}

void ListenAnsicht::Spaltenbreiten(const ListView& modell) {
    if (nachInhalt_) {
        NachInhaltBreiten(modell);
        return;
    }
    RECT r;
    ::GetClientRect(h_, &r);
    // Room for a vertical scroll bar, so that no horizontal one eats a row.
    int rest = r.right - ::GetSystemMetrics(SM_CXVSCROLL) - 4;
    int offen = 0;
    const std::size_t n = modell.Columns.size();
    auto fest = [&](std::size_t i) { return i < modell.ColumnWidths.size() ? modell.ColumnWidths[i] : 0; };
    for (std::size_t i = 0; i < n; ++i) fest(i) > 0 ? rest -= fest(i) : ++offen;
    for (std::size_t i = 0; i < n; ++i) {
        const int breite = fest(i) > 0 ? fest(i) : (offen ? std::max(rest / offen, 40) : 40);
        ::SendMessageA(h_, LVM_SETCOLUMNWIDTH, i, breite);
    }
}

bool ListenAnsicht::Zeichnen(LPARAM lp, LRESULT& ergebnis) const {
    auto* cd = reinterpret_cast<NMLVCUSTOMDRAW*>(lp);
    if (cd->nmcd.hdr.hwndFrom != h_) return false;
    switch (cd->nmcd.dwDrawStage) {
        case CDDS_PREPAINT:
            ergebnis = CDRF_NOTIFYITEMDRAW;
            return true;
        case CDDS_ITEMPREPAINT:
            ergebnis = CDRF_NOTIFYSUBITEMDRAW;
            return true;
        case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
            const std::size_t zeile = cd->nmcd.dwItemSpec;
            const auto spalte = static_cast<std::size_t>(cd->iSubItem);
            long farbe = -1;
            if (zeile < zeilen_.size() && spalte < zeilen_[zeile].ForeColors.size())
                farbe = zeilen_[zeile].ForeColors[spalte];
            cd->clrText = farbe < 0 ? ::GetSysColor(COLOR_WINDOWTEXT) : static_cast<COLORREF>(farbe);
            ergebnis = CDRF_DODEFAULT;
            return true;
        }
        default:
            return false;
    }
}

void ListenAnsicht::Abgleichen(const ListView& modell) {
    Sichtbar(h_, modell.Visible);
    if (modell.Columns != spalten_) {
        while (::SendMessageA(h_, LVM_DELETECOLUMN, 0, 0)) {
        }
        for (std::size_t i = 0; i < modell.Columns.size(); ++i) {
            LVCOLUMNA c{};
            c.mask = LVCF_TEXT | LVCF_WIDTH;
            c.pszText = const_cast<char*>(modell.Columns[i].c_str());
            c.cx = 50;
            ::SendMessageA(h_, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&c));
        }
        spalten_ = modell.Columns;
        Spaltenbreiten(modell);
        zeilen_.clear();
        ::SendMessageA(h_, LVM_DELETEALLITEMS, 0, 0);
    }
    const bool gleich =
        zeilen_.size() == modell.Items.size() &&
        std::equal(zeilen_.begin(), zeilen_.end(), modell.Items.begin(), [](const ListItem& a, const ListItem& b) {
            return a.Text == b.Text && a.SubItems == b.SubItems && a.ForeColors == b.ForeColors &&
                   a.SmallIcon == b.SmallIcon;
        });
    if (gleich) return;
    // The pictures take room before each row's text: a list gets them with its first picture.
    if (!bilder_ && std::any_of(modell.Items.begin(), modell.Items.end(),
                                [](const ListItem& z) { return BildIndex(z.SmallIcon) != I_IMAGENONE; })) {
        ::SendMessageA(h_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(Bilderliste()));
        bilder_ = true;
    }
    ::SendMessageA(h_, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(h_, LVM_DELETEALLITEMS, 0, 0);
    for (std::size_t i = 0; i < modell.Items.size(); ++i) {
        const ListItem& z = modell.Items[i];
        LVITEMA it{};
        it.mask = LVIF_TEXT | LVIF_IMAGE;
        it.iItem = static_cast<int>(i);
        it.pszText = const_cast<char*>(z.Text.c_str());
        it.iImage = BildIndex(z.SmallIcon);
        ::SendMessageA(h_, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&it));
        for (std::size_t s = 0; s < z.SubItems.size(); ++s) {
            LVITEMA sub{};
            sub.iSubItem = static_cast<int>(s + 1);
            sub.pszText = const_cast<char*>(z.SubItems[s].c_str());
            ::SendMessageA(h_, LVM_SETITEMTEXTA, i, reinterpret_cast<LPARAM>(&sub));
        }
    }
    zeilen_ = modell.Items;
    if (nachInhalt_) Spaltenbreiten(modell);
    ::SendMessageA(h_, WM_SETREDRAW, TRUE, 0);
}

}  // namespace kes::ui
