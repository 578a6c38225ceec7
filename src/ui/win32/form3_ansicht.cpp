#include "ui/win32/form3_ansicht.h"

#include <commctrl.h>
#include <shellapi.h>

#include "core/programm.h"
#include "ui/win32/bilder.h"
#include "ui/win32/menue.h"

namespace kes::ui {

namespace {
enum : int { kIdImage = 100, kIdCheck = 200, kIdLv1 = 300, kIdLv2, kIdLv3, kIdLv4 };
constexpr int kRand = 10;
constexpr int kKnopfBreite = 100;
constexpr int kKnopfHöhe = 30;
// Order of the buttons in the bar, left to right: the actions, then "Später" and the switch.
constexpr int kReihe[] = {1, 2, 3, 4, 5, 8, 9, 6};
}  // namespace

Form3Ansicht::Form3Ansicht(Programm& prg, Form3Fenster& modell)
    : FensterAnsicht(modell, "KestrellaWarnung",
                     WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN),
      prg_(prg),
      f_(modell) {
    RECT r;
    ::GetClientRect(h_, &r);
    const int breite = r.right - 2 * kRand;

    symbol_ = Kind(h_, "STATIC", "", WS_VISIBLE | SS_ICON, 0, kRand, kRand, 32, 32);
    ::SendMessageA(symbol_, STM_SETICON, reinterpret_cast<WPARAM>(ProgrammIcon("SCAN", 32)), 0);
    for (int i = 0; i < 3; ++i)
        label1_[i] = Kind(h_, "STATIC", "", WS_VISIBLE | SS_NOPREFIX | SS_LEFTNOWORDWRAP, 10 + i, 0, 0, 10, 10);
    ::SendMessageA(label1_[0], WM_SETFONT, reinterpret_cast<WPARAM>(Fettschrift()), FALSE);
    // Name and path, and the registry row, are shown whole: their columns follow the content.
    lv2_.NachInhalt();
    lv4_.NachInhalt();
    lv2_.Anlegen(h_, kIdLv2, kRand, 0, breite, 10, false);
    lv1_.Anlegen(h_, kIdLv1, kRand, 0, breite, 10);
    attribut_ = Kind(h_, "STATIC", "Attribut:", WS_VISIBLE | SS_NOPREFIX, 0, 0, 0, 10, 10);
    for (int i = 0; i < 8; ++i)
        check1_[i] = Kind(h_, "BUTTON", f_.Check1[i].Caption, WS_VISIBLE | BS_CHECKBOX, kIdCheck + i, 0, 0, 10, 10);
    lv4_.Anlegen(h_, kIdLv4, kRand, 0, breite, 10);
    module_ = Kind(h_, "STATIC", "Modules:", WS_VISIBLE | SS_NOPREFIX, 0, 0, 0, 10, 10);
    ::SendMessageA(module_, WM_SETFONT, reinterpret_cast<WPARAM>(Fettschrift()), FALSE);
    modulName_ = Kind(h_, "STATIC", "", WS_VISIBLE | SS_NOPREFIX, 20, 0, 0, 10, 10);
    modulPfad_ = Kind(h_, "STATIC", "", WS_VISIBLE | SS_NOPREFIX | SS_PATHELLIPSIS, 21, 0, 0, 10, 10);
    lv3_.Anlegen(h_, kIdLv3, kRand, 0, breite, 10);
    for (int i = 1; i <= 9; ++i) {
        const DWORD stil = WS_TABSTOP | (i == 7 ? BS_ICON : BS_PUSHBUTTON);
        image_[i] = Kind(h_, "BUTTON", "", stil, kIdImage + i, 0, 0, 10, 10);
    }
    ::SendMessageA(image_[7], BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(ProgrammIcon("AUS", 16)));
    tipps_ = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, h_,
                               nullptr, ::GetModuleHandleA(nullptr), nullptr);
    for (int i = 1; i <= 9; ++i) {
        TTTOOLINFOA ti{};
        ti.cbSize = sizeof ti;
        ti.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        ti.hwnd = h_;
        ti.uId = reinterpret_cast<UINT_PTR>(image_[i]);
        ti.lpszText = const_cast<char*>("");
        ::SendMessageA(tipps_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&ti));
    }
    Abgleichen();
}

void Form3Ansicht::Anordnen() {
    RECT r;
    ::GetClientRect(h_, &r);
    const int breite = r.right - 2 * kRand;
    int y = 0;
    auto pane = [&](int i) {
        const bool sichtbar = f_.Picture3[i].Visible;
        const int oben = y;
        if (sichtbar) y += f_.Picture3[i].Height;
        return std::pair<bool, int>{sichtbar, oben};
    };

    auto [p0, y0] = pane(0);
    Sichtbar(symbol_, p0);
    for (int i = 0; i < 3; ++i) {
        Platz(label1_[i], kRand + 44, y0 + kRand + i * 20 + (i ? 2 : 0), breite - 44, 18);
        Sichtbar(label1_[i], p0 && f_.Label1[i].Visible);
    }
    Platz(lv2_.Fenster(), kRand, y0 + 74, breite, 46);
    if (!p0) Sichtbar(lv2_.Fenster(), false);

    auto [p1, y1] = pane(1);
    Platz(lv1_.Fenster(), kRand, y1 + 4, breite, f_.Picture3[1].Height - 8);
    if (!p1) Sichtbar(lv1_.Fenster(), false);

    auto [p2, y2] = pane(2);
    Platz(attribut_, kRand, y2 + 4, breite, 16);
    Sichtbar(attribut_, p2);
    for (int i = 0; i < 8; ++i) {
        Platz(check1_[i], kRand + (i % 4) * (breite / 4), y2 + 22 + (i / 4) * 24, breite / 4 - 4, 22);
        Sichtbar(check1_[i], p2 && f_.Check1[i].Visible);
    }

    auto [p3, y3] = pane(3);
    Platz(lv4_.Fenster(), kRand, y3 + 4, breite, f_.Picture3[3].Height - 8);
    if (!p3) Sichtbar(lv4_.Fenster(), false);

    auto [p4, y4] = pane(4);
    Platz(module_, kRand, y4 + 4, breite, 18);
    Platz(modulName_, kRand, y4 + 24, breite, 18);
    Platz(modulPfad_, kRand, y4 + 44, breite, 18);
    Sichtbar(module_, p4);
    Sichtbar(modulName_, p4);
    Sichtbar(modulPfad_, p4);
    Platz(lv3_.Fenster(), kRand, y4 + 66, breite, f_.Picture3[4].Height - 70);
    if (!p4) Sichtbar(lv3_.Fenster(), false);

    // The bar: visible action buttons from the left, the switch-off button at the right.
    int x = kRand;
    const int knopfY = y + (f_.Picture2.Height - kKnopfHöhe) / 2;
    for (int i : kReihe) {
        if (!f_.Image[i].Visible) continue;
        Platz(image_[i], x, knopfY, kKnopfBreite, kKnopfHöhe);
        x += kKnopfBreite + 6;
    }
    Platz(image_[7], r.right - kRand - kKnopfHöhe, knopfY, kKnopfHöhe, kKnopfHöhe);
}

void Form3Ansicht::MenüZeigen() {
    const PopupWunsch w = f_.Popup;
    f_.Popup = PopupWunsch{};
    std::vector<MenuItem> einträge;
    auto übernehmen = [&](const auto& menü) { einträge.assign(menü.begin(), menü.end()); };
    if (w.Menü == "Prozesse") übernehmen(f_.Prozesse1);
    if (w.Menü == "regedit") übernehmen(f_.regedit1);
    if (w.Menü == "killprozess") übernehmen(f_.killprozess1);
    if (w.Menü == "dienst") übernehmen(f_.dienst1);
    if (w.Menü == "host") übernehmen(f_.host1);
    if (w.Menü == "dfü") übernehmen(f_.dfü1);
    if (einträge.empty()) return;
    // The menus of "Übernehmen" open under that button, the one of the name list above it
    // (its offset is in twips); the others at the pointer.
    POINT ort{};
    RECT r{};
    const bool amKnopf = w.Menü == "killprozess" || w.Menü == "dienst" || w.Menü == "host" || w.Menü == "dfü";
    if (amKnopf) {
        ::GetWindowRect(image_[w.Menü == "host" ? 8 : w.Menü == "dfü" ? 9 : 1], &r);
        ort = {r.left, r.bottom};
    } else if (!w.AmZeiger) {
        ::GetWindowRect(lv2_.Fenster(), &r);
        ort = {r.left, r.top + w.VersatzY / 15};
    }
    const int wahl = PopupZeigen(h_, einträge, w.Standard, amKnopf || !w.AmZeiger ? &ort : nullptr);
    if (wahl < 0) return;  // dismissed: the warning stays as it was
    if (w.Menü == "Prozesse") f_.Prozesse1_Click(wahl);
    if (w.Menü == "regedit") f_.regedit1_Click(wahl);
    if (w.Menü == "host") f_.host1_Click(wahl);
    if (w.Menü == "killprozess") f_.killprozess1_Click(wahl);
    if (w.Menü == "dienst") f_.dienst1_Click(wahl);
    if (w.Menü == "dfü") f_.dfü1_Click(wahl);
}

void Form3Ansicht::Abgleichen() {
    // The client area follows the model's outer size; the layout follows the client area.
    FensterAnsicht::Abgleichen();
    for (int i = 0; i < 3; ++i) TextSetzen(label1_[i], f_.Label1[i].Caption);
    if (f_.Picture3[0].Visible) lv2_.Abgleichen(f_.ListView2);
    if (f_.Picture3[1].Visible) lv1_.Abgleichen(f_.ListView1);
    if (f_.Picture3[3].Visible) lv4_.Abgleichen(f_.ListView4);
    if (f_.Picture3[4].Visible) lv3_.Abgleichen(f_.ListView3);
    if (f_.picProcIcon.SystemIcon != symbolIndex_ || f_.picProcIcon.Bild != bild_) {
        // A picture of the program's own list, or the file's own icon from the shell's
        // image list, in place of the program's.
        symbolIndex_ = f_.picProcIcon.SystemIcon;
        bild_ = f_.picProcIcon.Bild;
        SHFILEINFOA info{};
        const auto liste = reinterpret_cast<HIMAGELIST>(
            ::SHGetFileInfoA("C:\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_LARGEICON));
        dateiSymbol_.Reset();
        if (liste && symbolIndex_ >= 0)
            dateiSymbol_.Reset(::ImageList_GetIcon(liste, symbolIndex_, ILD_NORMAL));  // gdi-check: owned
        HICON icon = BildIcon(bild_, 32);
        if (!icon) icon = dateiSymbol_ ? dateiSymbol_.Get() : ProgrammIcon("SCAN", 32);
        ::SendMessageA(symbol_, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
    }
    for (int i = 0; i < 8; ++i) {
        ::EnableWindow(check1_[i], f_.Check1[i].Enabled ? TRUE : FALSE);
        TextSetzen(check1_[i], f_.Check1[i].Caption);
        ::SendMessageA(check1_[i], BM_SETCHECK, f_.Check1[i].Value ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    TextSetzen(modulName_, f_.lblModName.Caption);
    TextSetzen(modulPfad_, f_.txtMdlLPath.Text);
    for (int i = 1; i <= 9; ++i) {
        const int k = Form3Fenster::LabelVon(i);
        TextSetzen(image_[i], k >= 0 ? f_.Label3[k].Caption : f_.Image[i].ToolTipText);
        Sichtbar(image_[i], f_.Image[i].Visible);
        if (tippTexte_[i] != f_.Image[i].ToolTipText) {
            tippTexte_[i] = f_.Image[i].ToolTipText;
            TTTOOLINFOA ti{};
            ti.cbSize = sizeof ti;
            ti.uFlags = TTF_IDISHWND;
            ti.hwnd = h_;
            ti.uId = reinterpret_cast<UINT_PTR>(image_[i]);
            ti.lpszText = const_cast<char*>(tippTexte_[i].c_str());
            ::SendMessageA(tipps_, TTM_UPDATETIPTEXTA, 0, reinterpret_cast<LPARAM>(&ti));
        }
    }
    Anordnen();
    FokusGeben();
    if (!f_.Popup.Menü.empty()) MenüZeigen();
}

void Form3Ansicht::FokusGeben() {
    if (!f_.picProcIconFokus) return;
    f_.picProcIconFokus = false;
    ::SetFocus(symbol_);
}

bool Form3Ansicht::Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) {
    switch (msg) {
        case WM_COMMAND: {
            const int id = LOWORD(wp);
            if (id > kIdImage && id <= kIdImage + 9 && HIWORD(wp) == BN_CLICKED) {
                f_.Image_Click(id - kIdImage);
                return true;
            }
            return false;
        }
        case WM_NOTIFY: {
            const auto* kopf = reinterpret_cast<const NMHDR*>(lp);
            if (kopf->code == NM_CUSTOMDRAW)
                return lv1_.Zeichnen(lp, ergebnis) || lv2_.Zeichnen(lp, ergebnis) || lv3_.Zeichnen(lp, ergebnis) ||
                       lv4_.Zeichnen(lp, ergebnis);
            if (kopf->code != NM_CLICK && kopf->code != NM_RCLICK) return false;
            const int zeile = reinterpret_cast<const NMITEMACTIVATE*>(lp)->iItem + 1;
            if (zeile < 1) return false;
            if (kopf->idFrom == kIdLv2) f_.ListView2_ItemClick(zeile);
            if (kopf->idFrom == kIdLv3) f_.ListView3_ItemClick(zeile);
            if (kopf->idFrom == kIdLv4) f_.ListView4_ItemClick(zeile);
            return false;
        }
        case WM_CTLCOLORSTATIC:
            // The box "Versteckt" alone has a red caption, so a hidden file stands out.
            if (reinterpret_cast<HWND>(lp) == check1_[3]) {
                const HDC dc = reinterpret_cast<HDC>(wp);
                ::SetTextColor(dc, RGB(255, 0, 0));
                ::SetBkColor(dc, ::GetSysColor(COLOR_BTNFACE));
                ergebnis = reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
                return true;
            }
            return false;
        case WM_ACTIVATE:
            if (LOWORD(wp) == WA_INACTIVE) return false;
            f_.Form_Activate();
            // Handled here: the default handling would put the focus on the window itself.
            FokusGeben();
            ergebnis = 0;
            return true;
        case WM_CLOSE:
            // The close box is no action: the window goes, nothing is written.
            prg_.Form3Entladen();
            ergebnis = 0;
            return true;
        default:
            return false;
    }
}

}  // namespace kes::ui
