#include "ui/win32/alarm_ansicht.h"

#include <commctrl.h>

#include <cstdio>
#include <cstdlib>

#include "core/programm.h"
#include "platform/win32/unique_handle.h"
#include "ui/win32/aufab_ansicht.h"
#include "ui/win32/box_ansicht.h"
#include "ui/win32/menue.h"
#include "ui/win32/schliessen.h"
#include "watchers/waechter.h"

namespace kes::ui {

namespace {
COLORREF Farbe(long wert, int system) {
    return wert < 0 || wert == kSystemFensterText ? ::GetSysColor(system) : static_cast<COLORREF>(wert);
}
}  // namespace

AlarmAnsicht::AlarmAnsicht(Programm& prg, AlarmFenster& modell)
    : FensterAnsicht(modell, "KestrellaPanel", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                     WS_EX_CONTROLPARENT),
      prg_(prg),
      f_(modell) {
    // The window is sized for its client area: sidebar and one page with a margin.
    RECT r{0, 0, kSeiteLinks + kSeiteBreite + 8, kSeiteOben + kSeiteHöhe + 8};
    ::AdjustWindowRectEx(&r, WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, FALSE, WS_EX_CONTROLPARENT);
    f_.Width = r.right - r.left;
    f_.Height = r.bottom - r.top;
    tipps_ = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, h_,
                               nullptr, ::GetModuleHandleA(nullptr), nullptr);
    Seitenleiste();
    for (int s = 0; s < kSeiten; ++s)
        Neu(s, "BUTTON", kSeitenTitel[s], BS_GROUPBOX, kIdSonst, 0, 0, kSeiteBreite, kSeiteHöhe);
    SeitenAllgemein();
    SeitenInternet();
    SeitenRegistry();
    AllesPlatziert();
    Abgleichen();
}

// A box or list that no page places could not be switched or edited at all, and nothing
// else would notice: the program stops at its first start instead, naming what is missing.
// A box number that neither the panel nor a row of the watcher table takes needs none.
void AlarmAnsicht::AllesPlatziert() const {
    std::array<bool, kBoxAnzahl> genommen{};
    for (int i = 0; i < kEigeneBoxen; ++i) genommen[static_cast<std::size_t>(i)] = true;
    for (const WächterZeile& z : Wächtertabelle()) {
        genommen.at(static_cast<std::size_t>(z.box)) = true;
        for (const Option& o : z.optionen)
            if (o.box >= 0) genommen.at(static_cast<std::size_t>(o.box)) = true;
    }
    std::string fehlt;
    for (int i = 0; i < kBoxAnzahl; ++i)
        if (genommen[static_cast<std::size_t>(i)] && !box_[static_cast<std::size_t>(i)])
            fehlt += " Box1(" + std::to_string(i) + ")";
    for (int l = 0; l < kAusnahmelistenAnzahl; ++l) {
        bool da = false;
        for (const Ausnahme& a : ausnahmen_) da = da || a.liste == static_cast<Ausnahmeliste>(l);
        if (!da) fehlt += " Liste " + std::to_string(l);
    }
    if (fehlt.empty()) return;
    std::fprintf(stderr, "Kestrella: auf keiner Seite des Panels:%s\n", fehlt.c_str());
    std::abort();
}

HWND AlarmAnsicht::Neu(int seite, const char* klasse, const std::string& text, DWORD stil, int id, int x, int y, int b,
                       int h) {
    HWND w = Kind(h_, klasse, text, stil, id, kSeiteLinks + x, kSeiteOben + y, b, h);
    teile_.push_back({seite, w});
    return w;
}

HWND AlarmAnsicht::Überschrift(int seite, const std::string& text, int x, int y, int b) {
    return Neu(seite, "STATIC", text, SS_NOPREFIX, kIdSonst, x, y, b, 15);
}

HWND AlarmAnsicht::Hilfe(int seite, const std::string& text, int x, int y, int b, int h) {
    return Neu(seite, "EDIT", text, ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_BORDER, kIdSonst, x, y, b, h);
}

void AlarmAnsicht::BoxNeu(int seite, int index, int x, int y) {
    const auto i = static_cast<std::size_t>(index);
    box_.at(i) = BoxAnlegen(h_, f_.Box1.at(i), kIdBox + index, kSeiteLinks + x, kSeiteOben + y, 0);
    teile_.push_back({seite, box_[i]});
}

HWND AlarmAnsicht::ListeNeu(int seite, const ListView& modell, int x, int y, int b, int h) {
    auto ansicht = std::make_unique<ListenAnsicht>();
    ansicht->Anlegen(h_, kIdListe + static_cast<int>(listen_.size()), kSeiteLinks + x, kSeiteOben + y, b, h);
    HWND w = ansicht->Fenster();
    teile_.push_back({seite, w});
    listen_.push_back({seite, std::move(ansicht), &modell});
    AusnahmeMerken(w, modell);
    return w;
}

void AlarmAnsicht::ListBoxNeu(int seite, const ListBox& modell, int x, int y, int b, int h) {
    HWND w = Neu(seite, "LISTBOX", "", WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY,
                 kIdSonst, x, y, b, h);
    kästen_.push_back({w, &modell, {"\x01"}});
    AusnahmeMerken(w, modell);
    ::SetWindowSubclass(w, &AlarmAnsicht::KastenProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK AlarmAnsicht::KastenProc(HWND h, UINT msg, WPARAM wp, LPARAM lp, UINT_PTR, DWORD_PTR ansicht) {
    const LRESULT ergebnis = ::DefSubclassProc(h, msg, wp, lp);
    // The right button's release arrives as WM_CONTEXTMENU at the panel.
    if (msg == WM_LBUTTONUP) reinterpret_cast<AlarmAnsicht*>(ansicht)->AusnahmeMausLos(h);
    if (msg == WM_NCDESTROY) ::RemoveWindowSubclass(h, &AlarmAnsicht::KastenProc, 0);
    return ergebnis;
}

void AlarmAnsicht::LabelNeu(int seite, const Label& modell, int x, int y, int b, int h) {
    HWND w = Neu(seite, "STATIC", modell.Caption, SS_NOPREFIX | SS_PATHELLIPSIS, kIdSonst, x, y, b, h);
    beschriftungen_.push_back({w, &modell});
}

void AlarmAnsicht::Seitenleiste() {
    // The entries, 26 pixels each from the top, the two links at the foot.
    for (int i = 0; i < kLeisteEinträge; ++i) {
        leiste_[i] = Kind(h_, "BUTTON", f_.Label1[i].Caption, WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, kIdLeiste + i, 8,
                          kSeiteOben + 6 + i * 30, kSeiteLinks - 16, 26);
    }
    const char* tipps[2] = {"Internet Homepage", "Email schreiben"};
    for (int i = 0; i < 2; ++i) {
        image_[i] = Kind(h_, "BUTTON", tipps[i], WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, kIdImage + i, 16 + i * 48,
                         kSeiteOben + kSeiteHöhe - 40, 40, 40);
        TTTOOLINFOA ti{};
        ti.cbSize = sizeof ti;
        ti.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        ti.hwnd = h_;
        ti.uId = reinterpret_cast<UINT_PTR>(image_[i]);
        ti.lpszText = const_cast<char*>(tipps[i]);
        ::SendMessageA(tipps_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&ti));
    }
}

void AlarmAnsicht::LeisteMalen(const DRAWITEMSTRUCT& d) {
    const int i = static_cast<int>(d.CtlID) - kIdLeiste;
    const Label& l = f_.Label1[i];
    RECT r = d.rcItem;
    win32::UniqueGdi grund(::CreateSolidBrush(Farbe(l.BackColor < 0 ? kLeisteRuhe : l.BackColor, COLOR_BTNFACE)));
    ::FillRect(d.hDC, &r, static_cast<HBRUSH>(grund.Get()));
    ::DrawEdge(d.hDC, &r, (d.itemState & ODS_SELECTED) ? EDGE_SUNKEN : BDR_RAISEDINNER, BF_RECT);
    HGDIOBJ alt = ::SelectObject(d.hDC, Fettschrift());
    ::SetBkMode(d.hDC, TRANSPARENT);
    ::SetTextColor(d.hDC, Farbe(l.ForeColor, COLOR_WINDOWTEXT));
    ::DrawTextA(d.hDC, l.Caption.c_str(), -1, &r, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
    ::SelectObject(d.hDC, alt);
    if (d.itemState & ODS_FOCUS) {
        ::InflateRect(&r, -3, -3);
        ::DrawFocusRect(d.hDC, &r);
    }
}

// The two link pictures: a globe for the web site, a letter for the mail.
void AlarmAnsicht::LinkMalen(const DRAWITEMSTRUCT& d) {
    RECT r = d.rcItem;
    ::FillRect(d.hDC, &r, ::GetSysColorBrush(COLOR_BTNFACE));
    win32::UniqueGdi stift(::CreatePen(PS_SOLID, 2, RGB(20, 60, 140)));
    HGDIOBJ alterStift = ::SelectObject(d.hDC, stift.Get());
    const int m = (d.itemState & ODS_SELECTED) ? 1 : 0;
    if (d.CtlID == kIdImage) {
        win32::UniqueGdi blau(::CreateSolidBrush(RGB(120, 170, 230)));
        HGDIOBJ alt = ::SelectObject(d.hDC, blau.Get());
        ::Ellipse(d.hDC, 6 + m, 6 + m, 34 + m, 34 + m);
        ::SelectObject(d.hDC, ::GetStockObject(NULL_BRUSH));
        ::Ellipse(d.hDC, 14 + m, 6 + m, 26 + m, 34 + m);
        ::MoveToEx(d.hDC, 6 + m, 20 + m, nullptr);
        ::LineTo(d.hDC, 34 + m, 20 + m);
        ::SelectObject(d.hDC, alt);
    } else {
        win32::UniqueGdi gelb(::CreateSolidBrush(RGB(250, 240, 200)));
        HGDIOBJ alt = ::SelectObject(d.hDC, gelb.Get());
        ::Rectangle(d.hDC, 5 + m, 10 + m, 35 + m, 30 + m);
        ::MoveToEx(d.hDC, 5 + m, 10 + m, nullptr);
        ::LineTo(d.hDC, 20 + m, 21 + m);
        ::LineTo(d.hDC, 35 + m, 10 + m);
        ::SelectObject(d.hDC, alt);
    }
    ::SelectObject(d.hDC, alterStift);
    if (d.itemState & ODS_FOCUS) {
        ::InflateRect(&r, -2, -2);
        ::DrawFocusRect(d.hDC, &r);
    }
}

void AlarmAnsicht::Abgleichen() {
    // The panel is hidden for most of a run while its lists change at every cycle (the
    // folder snapshot alone holds thousands of rows): its controls follow their models
    // only while it shows or is about to, and before it shows, so it never paints old rows.
    if (f_.Visible || ::IsWindowVisible(h_)) Inhalt();
    FensterAnsicht::Abgleichen();
    if (f_.Text1Fokus) {
        f_.Text1Fokus = false;
        ::SetFocus(text1_);
    }
    if (!f_.Menü.Name.empty()) ::PostMessageA(h_, WM_APP, 0, 0);
}

void AlarmAnsicht::Inhalt() {
    for (int i = 0; i < kLeisteEinträge; ++i) {
        const Label& l = f_.Label1[i];
        if (leisteFarben_[2 * i] != l.BackColor || leisteFarben_[2 * i + 1] != l.ForeColor) {
            leisteFarben_[2 * i] = l.BackColor;
            leisteFarben_[2 * i + 1] = l.ForeColor;
            ::InvalidateRect(leiste_[i], nullptr, FALSE);
        }
    }
    // The pages lie on top of each other, the higher number above: of two visible pages
    // only the upper one can be seen.
    int oben = -1;
    for (int s = 0; s < kSeiten; ++s)
        if (f_.Frame1[s].Visible) oben = s;
    for (const Teil& t : teile_) Sichtbar(t.h, t.seite == oben);
    if (sofort_) BoxAbgleichen(sofort_);
    for (std::size_t i = 0; i < box_.size(); ++i)
        if (box_[i]) {
            BoxAbgleichen(box_[i]);
            if (!f_.Box1[i].Visible) Sichtbar(box_[i], false);
        }
    // A list is filled (and shown) only while its page shows; the page decides visibility.
    for (Liste& l : listen_)
        if (l.seite == oben) l.ansicht->Abgleichen(*l.modell);
    for (Kasten& k : kästen_) {
        if (k.zuletzt == k.modell->Items) continue;
        ::SendMessageA(k.h, LB_RESETCONTENT, 0, 0);
        for (const std::string& z : k.modell->Items)
            ::SendMessageA(k.h, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(z.c_str()));
        k.zuletzt = k.modell->Items;
    }
    for (const Beschriftung& b : beschriftungen_) TextSetzen(b.h, b.modell->Caption);
    if (text2Zuletzt_ != f_.Text2.Text) {
        text2Zuletzt_ = f_.Text2.Text;
        ::SetWindowTextA(text2_, text2Zuletzt_.c_str());
    }
    AufAbAbgleichen(aufab_);
    TextSetzen(text1_, f_.Text1.Text);
    ::EnableWindow(command1_, f_.Command1.Enabled);
    for (int i = 0; i < 3; ++i) TextSetzen(text5_[i], f_.Text5[i].Text);
}

void AlarmAnsicht::MenüZeigen() {
    const MenüWunsch wunsch = f_.Menü;
    f_.Menü = {};
    std::vector<MenuItem> einträge;
    if (wunsch.Name == "Internet") einträge.assign(f_.Internet1.begin(), f_.Internet1.end());
    if (wunsch.Name == "autostart") einträge.assign(f_.autostart1.begin(), f_.autostart1.end());
    if (wunsch.Name == "hijacker") einträge.assign(f_.hijacker1.begin(), f_.hijacker1.end());
    if (wunsch.Name == "PageÄndern") einträge.assign(f_.PageÄndern1.begin(), f_.PageÄndern1.end());
    if (wunsch.Name == "sicherung") einträge.assign(f_.sicherung1.begin(), f_.sicherung1.end());
    if (einträge.empty()) return;
    POINT ort{};
    const POINT* wo = nullptr;
    if (wunsch.Label >= 0) {
        // At the label's right edge, level with its top.
        RECT r;
        ::GetWindowRect(leiste_[wunsch.Label], &r);
        ort = {r.right, r.top};
        wo = &ort;
    }
    const int wahl = PopupZeigen(h_, einträge, -1, wo);
    if (wahl < 0) return;
    if (wunsch.Name == "Internet") f_.Internet1_Click(wahl);
    if (wunsch.Name == "autostart") f_.autostart1_Click(wahl);
    if (wunsch.Name == "hijacker") f_.hijacker1_Click(wahl);
    if (wunsch.Name == "PageÄndern") f_.PageÄndern1_Click(wahl);
    if (wunsch.Name == "sicherung") f_.sicherung1_Click(wahl);
}

bool AlarmAnsicht::Befehl(int id, int code, HWND quelle) {
    if (id >= kIdLeiste && id < kIdLeiste + kLeisteEinträge && code == BN_CLICKED) {
        // "Zurücksetzen" closes the panel: a close of the program's own, not one from outside.
        EigenesSchliessen eigenes;
        f_.Label1_MouseDown(id - kIdLeiste);
        f_.Label1_MouseUp(id - kIdLeiste);
        return true;
    }
    if ((id == kIdImage || id == kIdImage + 1) && code == BN_CLICKED) {
        f_.Image1_Click(id - kIdImage);
        return true;
    }
    if (code == BN_CLICKED) {
        if (id == kIdLogLöschen || id == kIdLogÖffnen) f_.Command2_Click(id - kIdLogLöschen);
        if (id == kIdÄndern) f_.Command1_Click();
        if (id == kIdZonen) f_.Command3_Click();
        return true;
    }
    char puffer[2048] = {};
    if (id == kIdText1 && code == EN_CHANGE) {
        ::GetWindowTextA(quelle, puffer, sizeof puffer);
        f_.Text1.Text = puffer;
        return true;
    }
    if (id == kIdText1 && code == EN_SETFOCUS) {
        ::SendMessageA(quelle, EM_SETSEL, 0, -1);
        return true;
    }
    if (id >= kIdText5 && id < kIdText5 + 3 && code == EN_CHANGE) {
        ::GetWindowTextA(quelle, puffer, sizeof puffer);
        f_.Text5[id - kIdText5].Text = puffer;
        return true;
    }
    return false;
}

void AlarmAnsicht::AusnahmeMerken(HWND h, const ListView& modell) {
    if (const auto liste = f_.Ausnahmen.ListeVon(modell))
        ausnahmen_.push_back({h, *liste, const_cast<ListView*>(&modell), nullptr});
}

void AlarmAnsicht::AusnahmeMerken(HWND h, const ListBox& modell) {
    if (const auto liste = f_.Ausnahmen.ListeVon(modell))
        ausnahmen_.push_back({h, *liste, nullptr, const_cast<ListBox*>(&modell)});
}

void AlarmAnsicht::AusnahmeMausLos(HWND liste) {
    for (const Ausnahme& a : ausnahmen_) {
        if (a.h != liste) continue;
        if (a.ansicht) {
            for (std::size_t i = 0; i < a.ansicht->Items.size(); ++i)
                a.ansicht->Items[i].Selected =
                    ::SendMessageA(liste, LVM_GETITEMSTATE, i, LVIS_SELECTED) & LVIS_SELECTED;
        } else {
            a.kasten->ListIndex = static_cast<int>(::SendMessageA(liste, LB_GETCURSEL, 0, 0));
        }
        f_.Ausnahmen.MausLos(a.liste);
        // The menu opens after the click that asked for it has ended.
        if (f_.Ausnahmen.Popup) ::PostMessageA(h_, WM_APP + 1, 0, 0);
        return;
    }
}

void AlarmAnsicht::AusnahmeMenüZeigen() {
    if (!f_.Ausnahmen.Popup) return;
    const Ausnahmeliste liste = *f_.Ausnahmen.Popup;
    f_.Ausnahmen.Popup.reset();
    const int wahl = PopupZeigen(h_, f_.Ausnahmen.Menü(liste).Einträge, -1, nullptr);
    if (wahl >= 0) f_.Ausnahmen.MenüKlick(liste, wahl);
}

bool AlarmAnsicht::Benachrichtigung(LPARAM lp, LRESULT& ergebnis) {
    const auto* kopf = reinterpret_cast<const NMHDR*>(lp);
    if (kopf->code == NM_CUSTOMDRAW) {
        for (const Liste& l : listen_)
            if (l.ansicht->Zeichnen(lp, ergebnis)) return true;
        return false;
    }
    if (kopf->hwndFrom == listView2_ && kopf->code == LVN_COLUMNCLICK) {
        f_.ListView2_ColumnClick(reinterpret_cast<const NMLISTVIEW*>(lp)->iSubItem + 1);
        return true;
    }
    if (kopf->code == NM_CLICK || kopf->code == NM_RCLICK) AusnahmeMausLos(kopf->hwndFrom);
    if (kopf->hwndFrom == sicherungen_ && (kopf->code == NM_CLICK || kopf->code == NM_RCLICK)) {
        f_.SicherungenAuswahl = static_cast<int>(::SendMessageA(sicherungen_, LVM_GETNEXTITEM, -1, LVNI_SELECTED));
        if (kopf->code == NM_RCLICK) f_.Sicherungen_MouseUp();
        return true;
    }
    if (kopf->hwndFrom == listView3_ && (kopf->code == NM_CLICK || kopf->code == NM_RCLICK)) {
        f_.ListView3Auswahl = static_cast<int>(::SendMessageA(listView3_, LVM_GETNEXTITEM, -1, LVNI_SELECTED));
        f_.ListView3_MouseUp();
        return true;
    }
    return false;
}

bool AlarmAnsicht::Nachricht(UINT msg, WPARAM wp, LPARAM lp, LRESULT& ergebnis) {
    switch (msg) {
        case WM_CLOSE: {
            const int grund = GrundFürWmClose(h_);
            if (grund == kEntladenNormal) {
                EigenesSchliessen eigenes;
                Entladen(prg_, grund);
            } else if (grund >= 0) {
                Entladen(prg_, grund);
            }
            ergebnis = 0;
            return true;
        }
        case WM_COMMAND:
            return Befehl(LOWORD(wp), HIWORD(wp), reinterpret_cast<HWND>(lp));
        case WM_NOTIFY:
            return Benachrichtigung(lp, ergebnis);
        case WM_DRAWITEM: {
            const auto& d = *reinterpret_cast<const DRAWITEMSTRUCT*>(lp);
            if (d.CtlID >= kIdLeiste && d.CtlID < kIdLeiste + kLeisteEinträge) LeisteMalen(d);
            if (d.CtlID == kIdImage || d.CtlID == kIdImage + 1) LinkMalen(d);
            ergebnis = TRUE;
            return true;
        }
        case WM_APP:
            // The menu opens after the click that asked for it has ended.
            MenüZeigen();
            return true;
        case WM_APP + 1:
            AusnahmeMenüZeigen();
            return true;
        case WM_CONTEXTMENU: {
            // A list box tells its parent of a right click by this message alone; a list view
            // has told it by NM_RCLICK already, and one release opens one menu.
            char klasse[16] = {};
            ::GetClassNameA(reinterpret_cast<HWND>(wp), klasse, sizeof klasse);
            if (::lstrcmpiA(klasse, "ListBox") == 0) AusnahmeMausLos(reinterpret_cast<HWND>(wp));
            return true;
        }
        case WM_CTLCOLORSTATIC: {
            // Read-only help texts on the face colour, like the labels around them; the log
            // reads like a page of text.
            HDC dc = reinterpret_cast<HDC>(wp);
            if (reinterpret_cast<HWND>(lp) == text2_) {
                ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
                ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
                ergebnis = reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW));
                return true;
            }
            ::SetBkColor(dc, ::GetSysColor(COLOR_BTNFACE));
            ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
            ergebnis = reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
            return true;
        }
        default:
            return false;
    }
}

}  // namespace kes::ui
