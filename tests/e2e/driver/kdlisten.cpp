#include "kdlisten.h"
#include "kdfehler.h"

// after windows.h, which it needs
#include <commctrl.h>

#include <cstdio>
#include <vector>

#include "kdspeicher.h"

namespace kdlisten {

namespace {

constexpr UINT kAntwortMs = 5000;

using kd::Fehler;

std::string Klasse(HWND h) {
    char buf[256] = {};
    GetClassNameA(h, buf, sizeof buf);
    return buf;
}

LRESULT Senden(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    DWORD_PTR ergebnis = 0;
    if (!SendMessageTimeoutA(h, msg, wp, lp, SMTO_ABORTIFHUNG, kAntwortMs, &ergebnis)) return -1;
    return static_cast<LRESULT>(ergebnis);
}

// The item text of each row; the list view writes it into a buffer in its own process.
std::vector<std::string> ListViewTexte(HWND lv, const kdspeicher::FremderSpeicher& speicher, SIZE_T textGröße) {
    std::vector<std::string> texte;
    const auto zeilen = static_cast<int>(Senden(lv, LVM_GETITEMCOUNT, 0, 0));
    for (int z = 0; z < zeilen; ++z) {
        LVITEMA item{};
        item.pszText = speicher.Adresse(sizeof(LVITEMA));
        item.cchTextMax = static_cast<int>(textGröße);
        const char leer = '\0';
        speicher.Schreiben(sizeof(LVITEMA), &leer, 1);
        speicher.Schreiben(0, &item, sizeof item);
        Senden(lv, LVM_GETITEMTEXTA, z, reinterpret_cast<LPARAM>(speicher.Adresse()));
        std::vector<char> text(textGröße + 1, '\0');
        speicher.Lesen(sizeof(LVITEMA), text.data(), textGröße);
        texte.emplace_back(text.data());
    }
    return texte;
}

// Wine answers LB_GETTEXT of another process's list box in UTF-16 even to an ANSI caller.
std::vector<std::string> ListBoxTexte(HWND lb) {
    std::vector<std::string> texte;
    const auto zeilen = static_cast<int>(SendMessageW(lb, LB_GETCOUNT, 0, 0));
    for (int z = 0; z < zeilen; ++z) {
        const auto länge = SendMessageW(lb, LB_GETTEXTLEN, z, 0);
        std::vector<wchar_t> breit(länge > 0 ? länge + 2 : 2, L'\0');
        if (länge > 0) SendMessageW(lb, LB_GETTEXT, z, reinterpret_cast<LPARAM>(breit.data()));
        std::vector<char> text(2 * breit.size() + 2, '\0');
        WideCharToMultiByte(CP_ACP, 0, breit.data(), -1, text.data(), static_cast<int>(text.size()) - 1, nullptr,
                            nullptr);
        texte.emplace_back(text.data());
    }
    return texte;
}

int Zeile(const std::vector<std::string>& texte, const std::string& text) {
    for (std::size_t i = 0; i < texte.size(); ++i)
        if (texte[i] == text) return static_cast<int>(i);
    return -1;
}

// Posted, as the input queue delivers a click: a handler that opens a menu or a modal
// dialog must not keep the driver waiting.
void Klicken(HWND h, POINT p, bool rechts) {
    const LPARAM ort = MAKELPARAM(p.x, p.y);
    PostMessageA(h, rechts ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, rechts ? MK_RBUTTON : MK_LBUTTON, ort);
    PostMessageA(h, rechts ? WM_RBUTTONUP : WM_LBUTTONUP, 0, ort);
}

bool ListViewZeileKlicken(HWND lv, const std::string& text, bool rechts) {
    constexpr SIZE_T kTextGröße = 2048;
    DWORD pid = 0;
    GetWindowThreadProcessId(lv, &pid);
    kdspeicher::FremderSpeicher speicher(pid, sizeof(LVITEMA) + kTextGröße);
    if (!speicher.Gut()) return false;
    const int zeile = Zeile(ListViewTexte(lv, speicher, kTextGröße), text);
    if (zeile < 0) return false;
    LVITEMA zustand{};
    zustand.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    speicher.Schreiben(0, &zustand, sizeof zustand);
    Senden(lv, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(speicher.Adresse()));
    zustand.state = LVIS_SELECTED | LVIS_FOCUSED;
    speicher.Schreiben(0, &zustand, sizeof zustand);
    Senden(lv, LVM_SETITEMSTATE, zeile, reinterpret_cast<LPARAM>(speicher.Adresse()));
    Senden(lv, LVM_ENSUREVISIBLE, zeile, FALSE);
    RECT r{LVIR_LABEL, 0, 0, 0};
    speicher.Schreiben(0, &r, sizeof r);
    if (!Senden(lv, LVM_GETITEMRECT, zeile, reinterpret_cast<LPARAM>(speicher.Adresse()))) return false;
    speicher.Lesen(0, &r, sizeof r);
    Klicken(lv, {(r.left + r.right) / 2, (r.top + r.bottom) / 2}, rechts);
    return true;
}

bool ListBoxZeileKlicken(HWND lb, const std::string& text, bool rechts) {
    const int zeile = Zeile(ListBoxTexte(lb), text);
    if (zeile < 0) return false;
    Senden(lb, LB_SETCURSEL, zeile, 0);
    // No pointer needed: the rows are of one height from the top row on.
    const auto oben = static_cast<int>(Senden(lb, LB_GETTOPINDEX, 0, 0));
    const auto höhe = static_cast<int>(Senden(lb, LB_GETITEMHEIGHT, 0, 0));
    Klicken(lb, {8, (zeile - oben) * höhe + höhe / 2}, rechts);
    return true;
}

}  // namespace

int ZeileKlicken(HWND fenster, const std::string& text, bool rechts) {
    struct Suche {
        const std::string& text;
        bool rechts;
        bool getroffen = false;
    } suche{text, rechts};
    EnumChildWindows(
        fenster,
        [](HWND h, LPARAM l) -> BOOL {
            auto& s = *reinterpret_cast<Suche*>(l);
            if (!IsWindowVisible(h)) return TRUE;
            const std::string klasse = Klasse(h);
            if (lstrcmpiA(klasse.c_str(), WC_LISTVIEWA) == 0)
                s.getroffen = ListViewZeileKlicken(h, s.text, s.rechts);
            else if (lstrcmpiA(klasse.c_str(), "ListBox") == 0)
                s.getroffen = ListBoxZeileKlicken(h, s.text, s.rechts);
            return !s.getroffen;
        },
        reinterpret_cast<LPARAM>(&suche));
    if (!suche.getroffen) return Fehler("no visible list with a row \"" + text + "\"");
    return 0;
}

int SitzungBeenden(const std::string& klasse) {
    HWND eines = FindWindowA(klasse.c_str(), nullptr);
    if (!eines) return Fehler("no top-level window of class \"" + klasse + "\"");
    DWORD pid = 0;
    GetWindowThreadProcessId(eines, &pid);
    struct Sammlung {
        DWORD pid;
        std::vector<HWND> fenster;
    } s{pid, {}};
    EnumWindows(
        [](HWND h, LPARAM l) -> BOOL {
            auto& s = *reinterpret_cast<Sammlung*>(l);
            DWORD pid = 0;
            GetWindowThreadProcessId(h, &pid);
            if (pid == s.pid) s.fenster.push_back(h);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&s));
    bool alleJa = true;
    for (HWND h : s.fenster) {
        const LRESULT antwort = Senden(h, WM_QUERYENDSESSION, 0, 0);
        std::printf("0x%llx\t%s\t%lld\n", static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(h)),
                    Klasse(h).c_str(), static_cast<long long>(antwort));
        if (antwort == 0) alleJa = false;
    }
    for (HWND h : s.fenster)
        if (IsWindow(h)) Senden(h, WM_ENDSESSION, alleJa ? TRUE : FALSE, 0);
    return 0;
}

}  // namespace kdlisten
