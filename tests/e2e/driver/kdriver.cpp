// kdriver: drives the windows of a running Kestrella from outside, as a person at the
// machine would: find a window, read its controls, press a button, pick a menu entry.
// The end-to-end harness (tests/e2e/e2e.py) runs it under Wine; it talks to the program
// only through window messages, never through anything the program offers for tests.
//
// Output, one record a line, fields separated by tabs:
//   list         hwnd, class, title, visible (0/1), process id: all top-level windows
//   wait         the hwnd of the visible window found
//   texts        class, visible, control id, text: every child control, parents first;
//                list views and list boxes follow with lines "ROW", row number, texts
//   menu         index, text ("-" for a separator), id, checked, grayed, has submenu
//   tray         the number of icons in the notification area
//   redraw       nothing; returns once the window and its controls have painted anew
//   lock         "locked" once PATH is open without sharing; holds it SECONDS, or until killed
//   between      "ready" while no window of CLASS exists; then, once a window of CLASS has
//                appeared and after it a visible window TITLE, the seconds between the two
//   row-click    nothing; a row of a list chosen and clicked (kdlisten.h)
//   end-session  hwnd, class, answer to WM_QUERYENDSESSION: the windows of one program
//   procs        process id, executable name: all processes of this Wine prefix
//   memory       working set, peak working set, private bytes of one process, in bytes
//   close-each   one line per window closed: round, hwnd, milliseconds since the start
//                when it was seen and when it had gone
//   click-kill   "seen", hwnd, process id; reads a delay in microseconds from stdin, presses
//                the button, ends the process after the delay: "killed", delay, and the
//                microseconds after which the window had gone (-1: still there)
// TITLE is a title (the first visible top-level window with exactly that title) or a
// handle "0x..." as printed by list and wait. Texts are in the ANSI code page (1252) and
// escaped so that one record stays one line: "\\" "\t" "\r" "\n".
// Exit code 0 on success, 1 on failure or time-out (with a message on stderr), 2 on usage.
#include <windows.h>
// after windows.h, which they need
#include <commctrl.h>
#include <tlhelp32.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "kdfehler.h"
#include "kdlisten.h"
#include "kdmenu.h"
#include "kdprozesse.h"
#include "kdspeicher.h"

namespace {

// A program caught in a long watch cycle still answers later; one that hangs must not
// hang the driver with it.
constexpr UINT kAntwortMs = 3000;

using kd::Fehler;

std::string Hex(HWND h) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "0x%llx", static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(h)));
    return buf;
}

std::string Escape(const std::string& s) {
    std::string aus;
    for (char c : s) {
        switch (c) {
            case '\\':
                aus += "\\\\";
                break;
            case '\t':
                aus += "\\t";
                break;
            case '\r':
                aus += "\\r";
                break;
            case '\n':
                aus += "\\n";
                break;
            default:
                aus += c;
        }
    }
    return aus;
}

std::string Klasse(HWND h) {
    char buf[256] = {};
    GetClassNameA(h, buf, sizeof buf);
    return buf;
}

bool GleichOhneFall(const std::string& a, const std::string& b) {
    return lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

// WM_GETTEXT is marshalled by the system, so it reads a control of another process.
std::string Text(HWND h) {
    DWORD_PTR länge = 0;
    if (!SendMessageTimeoutA(h, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, kAntwortMs, &länge)) return {};
    std::vector<char> buf(länge + 2, '\0');
    DWORD_PTR kopiert = 0;
    if (!SendMessageTimeoutA(h, WM_GETTEXT, buf.size(), reinterpret_cast<LPARAM>(buf.data()), SMTO_ABORTIFHUNG,
                             kAntwortMs, &kopiert))
        return {};
    return std::string(buf.data(), std::min<std::size_t>(kopiert, länge + 1));
}

// Top-level titles live in the window manager's copy, so no message is needed and a
// busy program cannot block the search.
std::string Titel(HWND h) {
    char buf[1024] = {};
    GetWindowTextA(h, buf, sizeof buf);
    return buf;
}

std::vector<HWND> ObersteFenster() {
    std::vector<HWND> alle;
    EnumWindows(
        [](HWND h, LPARAM l) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(l)->push_back(h);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&alle));
    return alle;
}

// TITLE is a window title, or "0x..." for a window handle printed by `list` or `wait`.
HWND SichtbaresFenster(const std::string& titel) {
    if (titel.rfind("0x", 0) == 0) {
        HWND h = reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::strtoull(titel.c_str(), nullptr, 16)));
        return IsWindow(h) && IsWindowVisible(h) ? h : nullptr;
    }
    for (HWND h : ObersteFenster())
        if (IsWindowVisible(h) && Titel(h) == titel) return h;
    return nullptr;
}

// Children depth first, each parent before its own children, siblings in z-order.
void Kinder(HWND eltern, const std::function<void(HWND)>& tu) {
    for (HWND h = GetWindow(eltern, GW_CHILD); h; h = GetWindow(h, GW_HWNDNEXT)) {
        tu(h);
        Kinder(h, tu);
    }
}

bool Warten(double sekunden, const std::function<bool()>& erfüllt, int schrittMs = 100) {
    const auto ende = std::chrono::steady_clock::now() + std::chrono::duration<double>(sekunden);
    for (;;) {
        if (erfüllt()) return true;
        if (std::chrono::steady_clock::now() >= ende) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(schrittMs));
    }
}

double Sekunden(int argc, char** argv, int i) {
    return argc > i ? std::atof(argv[i]) : 20.0;
}

std::string Zahl(double x) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%g", x);
    return buf;
}

using kdspeicher::FremderSpeicher;

// Rows of a list view in report form: item text, then the sub-item texts. The list view
// writes into the buffer that LVITEMA names, so LVITEMA and buffer must both live in the
// list view's process; kdriver is 64-bit like the program, so the layouts agree.
void ListViewZeilen(HWND lv) {
    const auto zeilen = static_cast<int>(SendMessageA(lv, LVM_GETITEMCOUNT, 0, 0));
    HWND kopf = reinterpret_cast<HWND>(SendMessageA(lv, LVM_GETHEADER, 0, 0));
    int spalten = kopf ? static_cast<int>(SendMessageA(kopf, HDM_GETITEMCOUNT, 0, 0)) : 1;
    if (spalten < 1) spalten = 1;
    constexpr SIZE_T kTextGröße = 2048;
    DWORD pid = 0;
    GetWindowThreadProcessId(lv, &pid);
    FremderSpeicher speicher(pid, sizeof(LVITEMA) + kTextGröße);
    if (!speicher.Gut()) {
        std::printf("ROW\t-1\t(rows not readable: error %lu)\n", GetLastError());
        return;
    }
    for (int z = 0; z < zeilen; ++z) {
        std::string zeile = "ROW\t" + std::to_string(z);
        for (int s = 0; s < spalten; ++s) {
            LVITEMA item{};
            item.iSubItem = s;
            item.pszText = speicher.Adresse(sizeof(LVITEMA));
            item.cchTextMax = kTextGröße;
            const char leer = '\0';
            speicher.Schreiben(sizeof(LVITEMA), &leer, 1);
            speicher.Schreiben(0, &item, sizeof item);
            DWORD_PTR n = 0;
            SendMessageTimeoutA(lv, LVM_GETITEMTEXTA, z, reinterpret_cast<LPARAM>(speicher.Adresse()), SMTO_ABORTIFHUNG,
                                kAntwortMs, &n);
            std::vector<char> text(kTextGröße + 1, '\0');
            speicher.Lesen(sizeof(LVITEMA), text.data(), kTextGröße);
            zeile += "\t" + Escape(text.data());
        }
        std::printf("%s\n", zeile.c_str());
    }
}

// List boxes (the control panel's lists). Wine returns LB_GETTEXT of another process's
// list box in UTF-16 even to an ANSI caller, so the text is fetched wide and turned into
// the ANSI code page here.
void ListBoxZeilen(HWND lb) {
    const auto zeilen = static_cast<int>(SendMessageW(lb, LB_GETCOUNT, 0, 0));
    for (int z = 0; z < zeilen; ++z) {
        const auto länge = SendMessageW(lb, LB_GETTEXTLEN, z, 0);
        if (länge < 0) continue;
        std::vector<wchar_t> breit(länge + 2, L'\0');
        SendMessageW(lb, LB_GETTEXT, z, reinterpret_cast<LPARAM>(breit.data()));
        std::vector<char> text(2 * länge + 2, '\0');
        WideCharToMultiByte(CP_ACP, 0, breit.data(), -1, text.data(), static_cast<int>(text.size()) - 1, nullptr,
                            nullptr);
        std::printf("ROW\t%d\t%s\n", z, Escape(text.data()).c_str());
    }
}

int List() {
    for (HWND h : ObersteFenster()) {
        DWORD pid = 0;
        GetWindowThreadProcessId(h, &pid);
        std::printf("%s\t%s\t%s\t%d\t%lu\n", Hex(h).c_str(), Escape(Klasse(h)).c_str(), Escape(Titel(h)).c_str(),
                    IsWindowVisible(h) ? 1 : 0, pid);
    }
    return 0;
}

int Wait(const std::string& titel, double sekunden) {
    HWND gefunden = nullptr;
    if (!Warten(sekunden, [&] { return (gefunden = SichtbaresFenster(titel)) != nullptr; }))
        return Fehler("no visible window \"" + titel + "\" within " + Zahl(sekunden) + " s");
    std::printf("%s\n", Hex(gefunden).c_str());
    return 0;
}

int Gone(const std::string& titel, double sekunden) {
    if (!Warten(sekunden, [&] { return SichtbaresFenster(titel) == nullptr; }))
        return Fehler("window \"" + titel + "\" still visible after " + Zahl(sekunden) + " s");
    return 0;
}

int Texts(const std::string& titel) {
    HWND fenster = SichtbaresFenster(titel);
    if (!fenster) return Fehler("no visible window \"" + titel + "\"");
    Kinder(fenster, [](HWND h) {
        const std::string klasse = Klasse(h);
        std::printf("%s\t%d\t%d\t%s\n", Escape(klasse).c_str(), IsWindowVisible(h) ? 1 : 0, GetDlgCtrlID(h),
                    Escape(Text(h)).c_str());
        if (GleichOhneFall(klasse, WC_LISTVIEWA)) ListViewZeilen(h);
        if (GleichOhneFall(klasse, "ListBox")) ListBoxZeilen(h);
    });
    return 0;
}

std::string OhneKürzel(const std::string& s) {
    std::string aus;
    for (char c : s)
        if (c != '&') aus += c;
    return aus;
}

int Click(const std::string& titel, const std::string& beschriftung) {
    HWND fenster = SichtbaresFenster(titel);
    if (!fenster) return Fehler("no visible window \"" + titel + "\"");
    HWND knopf = nullptr;
    std::vector<std::string> gesehen;
    Kinder(fenster, [&](HWND h) {
        if (knopf || !GleichOhneFall(Klasse(h), "Button")) return;
        const std::string text = Text(h);
        gesehen.push_back(text);
        if (IsWindowVisible(h) && IsWindowEnabled(h) && (text == beschriftung || OhneKürzel(text) == beschriftung))
            knopf = h;
    });
    if (!knopf) {
        std::string liste;
        for (const auto& t : gesehen) liste += " \"" + t + "\"";
        return Fehler("no visible, enabled button \"" + beschriftung + "\" in \"" + titel + "\"; buttons:" + liste);
    }
    // Posted, not sent: a button whose handler opens a modal dialog would otherwise keep
    // the driver waiting until that dialog closes.
    if (!PostMessageA(knopf, BM_CLICK, 0, 0)) return Fehler("BM_CLICK could not be posted");
    return 0;
}

int Close(const std::string& titel) {
    HWND fenster = SichtbaresFenster(titel);
    if (!fenster) return Fehler("no visible window \"" + titel + "\"");
    if (!PostMessageA(fenster, WM_SYSCOMMAND, SC_CLOSE, 0)) return Fehler("WM_SYSCOMMAND could not be posted");
    return 0;
}

// A picture taken right after a window appears may catch it half painted. RDW_UPDATENOW
// sends WM_PAINT to each part that needs it and waits for the owner to handle it.
int Redraw(const std::string& titel) {
    HWND fenster = SichtbaresFenster(titel);
    if (!fenster) return Fehler("no visible window \"" + titel + "\"");
    if (!RedrawWindow(fenster, nullptr, nullptr,
                      RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW))
        return Fehler("RedrawWindow failed: error " + std::to_string(GetLastError()));
    return 0;
}

// As another program that holds a file open for itself alone: nobody else can open it.
int Lock(const std::string& pfad, double sekunden) {
    HANDLE datei = CreateFileA(pfad.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (datei == INVALID_HANDLE_VALUE)
        return Fehler("cannot open " + pfad + ": error " + std::to_string(GetLastError()));
    std::printf("locked\n");
    std::fflush(stdout);
    Sleep(static_cast<DWORD>(sekunden * 1000));
    CloseHandle(datei);
    return 0;
}

// Times from one process that polls both windows closely, so that the start-up time of
// the tools cannot shorten or lengthen what is measured.
int Between(const std::string& klasse, const std::string& titel, double sekunden) {
    if (FindWindowA(klasse.c_str(), nullptr)) return Fehler("a window of class \"" + klasse + "\" exists already");
    std::printf("ready\n");
    std::fflush(stdout);
    const auto genau = [](double s, const std::function<bool()>& erfüllt) {
        const auto ende = std::chrono::steady_clock::now() + std::chrono::duration<double>(s);
        while (!erfüllt()) {
            if (std::chrono::steady_clock::now() >= ende) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return true;
    };
    if (!genau(sekunden, [&] { return FindWindowA(klasse.c_str(), nullptr) != nullptr; }))
        return Fehler("no window of class \"" + klasse + "\" within " + Zahl(sekunden) + " s");
    const auto erst = std::chrono::steady_clock::now();
    if (!genau(sekunden, [&] { return SichtbaresFenster(titel) != nullptr; }))
        return Fehler("no visible window \"" + titel + "\" within " + Zahl(sekunden) + " s");
    const std::chrono::duration<double> dazwischen = std::chrono::steady_clock::now() - erst;
    std::printf("%.2f\n", dazwischen.count());
    return 0;
}

int Post(const std::string& klasse, const char* msg, const char* wparam, const char* lparam) {
    HWND fenster = FindWindowA(klasse.c_str(), nullptr);
    if (!fenster) return Fehler("no top-level window of class \"" + klasse + "\"");
    const auto m = static_cast<UINT>(std::strtoul(msg, nullptr, 0));
    const auto w = static_cast<WPARAM>(std::strtoull(wparam, nullptr, 0));
    const auto l = static_cast<LPARAM>(std::strtoll(lparam, nullptr, 0));
    if (!PostMessageA(fenster, m, w, l)) return Fehler("PostMessage failed: error " + std::to_string(GetLastError()));
    return 0;
}

// Wine draws each icon of the notification area as a window of its own in the desktop
// process: a child of its stand-alone tray window when no X tray is there, a top-level
// window docked into the X tray otherwise. On Windows the icons are the buttons of the
// toolbar in the taskbar's notification area.
int Tray() {
    constexpr const char* kWineSymbol = "__winex11_tray_icon";
    int anzahl = 0;
    for (HWND h : ObersteFenster()) {
        const std::string klasse = Klasse(h);
        if (klasse == kWineSymbol && IsWindowVisible(h)) ++anzahl;
        if (klasse == "__winex11_standalone_tray")
            Kinder(h, [&](HWND k) { anzahl += Klasse(k) == kWineSymbol && IsWindowVisible(k) ? 1 : 0; });
    }
    HWND leiste = FindWindowA("Shell_TrayWnd", nullptr);
    HWND bereich = leiste ? FindWindowExA(leiste, nullptr, "TrayNotifyWnd", nullptr) : nullptr;
    HWND blätter = bereich ? FindWindowExA(bereich, nullptr, "SysPager", nullptr) : nullptr;
    HWND knöpfe = FindWindowExA(blätter ? blätter : bereich, nullptr, TOOLBARCLASSNAMEA, nullptr);
    if (knöpfe && bereich) anzahl += static_cast<int>(SendMessageA(knöpfe, TB_BUTTONCOUNT, 0, 0));
    std::printf("%d\n", anzahl);
    return 0;
}

HWND OffenesMenü() {
    for (HWND h : ObersteFenster())
        if (IsWindowVisible(h) && Klasse(h) == "#32768") return h;
    return nullptr;
}

std::string Ordner(const std::string& pfad) {
    return pfad.substr(0, pfad.find_last_of("\\/") + 1);
}

std::string EigenerOrdner() {
    char pfad[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, pfad, MAX_PATH);
    return Ordner(pfad);
}

// Runs a routine of the target process as a thread there and waits for it.
bool FremdAufrufen(HANDLE prozess, void* routine, void* parameter, DWORD& ergebnis) {
    HANDLE faden = CreateRemoteThread(prozess, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(routine), parameter,
                                      0, nullptr);
    if (!faden) return false;
    const bool fertig = WaitForSingleObject(faden, kAntwortMs) == WAIT_OBJECT_0 && GetExitCodeThread(faden, &ergebnis);
    CloseHandle(faden);
    return fertig;
}

void* FremdesModul(DWORD pid, const char* name) {
    HANDLE schnapp = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, pid);
    if (schnapp == INVALID_HANDLE_VALUE) return nullptr;
    MODULEENTRY32 modul{};
    modul.dwSize = sizeof modul;
    void* basis = nullptr;
    for (BOOL gut = Module32First(schnapp, &modul); gut && !basis; gut = Module32Next(schnapp, &modul))
        if (GleichOhneFall(modul.szModule, name)) basis = modul.modBaseAddr;
    CloseHandle(schnapp);
    return basis;
}

// Reads the items of the open popup menu. The menu functions read a menu of another
// process on Windows, so that is tried first; under Wine a menu is known only in its own
// process, and kdmenu.dll is loaded there to read it.
bool MenüLesen(HWND fenster, kdmenu::Block& block, std::string& fehler) {
    static const std::string dll = EigenerOrdner() + "kdmenu.dll";
    HMODULE hier = LoadLibraryA(dll.c_str());
    auto* leser =
        hier ? reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(GetProcAddress(hier, kdmenu::kLeser)))
             : nullptr;
    if (!leser) return fehler = "cannot load " + dll, false;
    block = {};
    block.menü = static_cast<std::uint64_t>(SendMessageA(fenster, MN_GETHMENU, 0, 0));
    if (!block.menü) return fehler = "MN_GETHMENU gave no menu", false;
    if (leser(&block) == 0) return true;

    DWORD pid = 0;
    GetWindowThreadProcessId(fenster, &pid);
    FremderSpeicher speicher(pid, sizeof block);
    if (!speicher.Gut()) return fehler = "no memory in process " + std::to_string(pid), false;
    DWORD ergebnis = 0;
    void* laden = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "LoadLibraryA"));
    if (!speicher.Schreiben(0, dll.c_str(), dll.size() + 1) ||
        !FremdAufrufen(speicher.Prozess(), laden, speicher.Adresse(), ergebnis) || !ergebnis)
        return fehler = "cannot load kdmenu.dll into process " + std::to_string(pid), false;
    char* basis = static_cast<char*>(FremdesModul(pid, "kdmenu.dll"));
    if (!basis) return fehler = "kdmenu.dll not found in process " + std::to_string(pid), false;
    void* routine = basis + (reinterpret_cast<char*>(leser) - reinterpret_cast<char*>(hier));
    const bool gelesen = speicher.Schreiben(0, &block, sizeof block) &&
                         FremdAufrufen(speicher.Prozess(), routine, speicher.Adresse(), ergebnis) && ergebnis == 0 &&
                         speicher.Lesen(0, &block, sizeof block);
    void* freigeben = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "FreeLibrary"));
    FremdAufrufen(speicher.Prozess(), freigeben, basis, ergebnis);
    if (!gelesen) return fehler = "menu not readable in process " + std::to_string(pid), false;
    return true;
}

// The text as shown, without the accelerator part after a tab and without '&'.
std::string MenüText(const kdmenu::Eintrag& e) {
    return OhneKürzel(std::string(e.text).substr(0, std::string(e.text).find('\t')));
}

int MenuList() {
    HWND fenster = OffenesMenü();
    if (!fenster) return Fehler("no popup menu is open");
    kdmenu::Block block;
    std::string fehler;
    if (!MenüLesen(fenster, block, fehler)) return Fehler(fehler);
    for (int i = 0; i < block.anzahl; ++i) {
        const auto& e = block.einträge[i];
        const bool trenner = e.typ & MFT_SEPARATOR;
        std::printf("%d\t%s\t%u\t%d\t%d\t%d\n", i, trenner ? "-" : Escape(e.text).c_str(), e.id,
                    (e.zustand & MFS_CHECKED) ? 1 : 0, (e.zustand & MFS_GRAYED) ? 1 : 0, e.hatUntermenü ? 1 : 0);
    }
    return 0;
}

int MarkierterEintrag(const kdmenu::Block& block) {
    for (int i = 0; i < block.anzahl; ++i)
        if (block.einträge[i].zustand & MFS_HILITE) return i;
    return -1;
}

// Chooses as the keyboard does: arrow down until the item is highlighted, then Enter. The
// menu's own tracking loop reads these keys, so the owner gets its WM_COMMAND as usual.
int MenuClick(const std::string& text) {
    HWND fenster = OffenesMenü();
    if (!fenster) return Fehler("no popup menu is open");
    kdmenu::Block block;
    std::string fehler;
    if (!MenüLesen(fenster, block, fehler)) return Fehler(fehler);
    int ziel = -1;
    std::string liste;
    for (int i = 0; i < block.anzahl; ++i) {
        const auto& e = block.einträge[i];
        if (e.typ & MFT_SEPARATOR) continue;
        liste += " \"" + std::string(e.text) + "\"";
        if (ziel < 0 && (text == e.text || text == MenüText(e))) ziel = i;
    }
    if (ziel < 0) return Fehler("no menu item \"" + text + "\"; items:" + liste);
    if (block.einträge[ziel].zustand & MFS_GRAYED) return Fehler("menu item \"" + text + "\" is disabled");
    for (int schritt = 0; schritt <= 2 * block.anzahl + 1; ++schritt) {
        if (MarkierterEintrag(block) == ziel) {
            PostMessageA(fenster, WM_KEYDOWN, VK_RETURN, 0);
            if (!Warten(5, [] { return OffenesMenü() == nullptr; })) return Fehler("menu still open after Enter");
            return 0;
        }
        PostMessageA(fenster, WM_KEYDOWN, VK_DOWN, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        if (!MenüLesen(fenster, block, fehler)) return Fehler(fehler);
    }
    return Fehler("menu item \"" + text + "\" could not be selected with the keyboard");
}

// Closes ROUNDS windows titled TITLE one after the other with the close box, each within
// SECONDS of the one before: one driver for a long series, so that starting it does not
// dominate each round.
int CloseEach(const std::string& titel, int runden, double sekunden) {
    const auto anfang = std::chrono::steady_clock::now();
    auto ms = [&] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - anfang).count();
    };
    for (int runde = 1; runde <= runden; ++runde) {
        HWND fenster = nullptr;
        // Looked for often: the next window's timer starts only when this one has closed.
        if (!Warten(
                sekunden, [&] { return (fenster = SichtbaresFenster(titel)) != nullptr; }, 10))
            return Fehler("round " + std::to_string(runde) + ": no visible window \"" + titel + "\" within " +
                          Zahl(sekunden) + " s");
        const auto gesehen = ms();
        if (!PostMessageA(fenster, WM_SYSCOMMAND, SC_CLOSE, 0)) return Fehler("WM_SYSCOMMAND could not be posted");
        if (!Warten(
                sekunden, [&] { return !IsWindow(fenster); }, 10))
            return Fehler("round " + std::to_string(runde) + ": window " + Hex(fenster) + " still there after " +
                          Zahl(sekunden) + " s");
        std::printf("%d\t%s\t%lld\t%lld\n", runde, Hex(fenster).c_str(), static_cast<long long>(gesehen),
                    static_cast<long long>(ms()));
    }
    return 0;
}

// Presses a button and ends the window's process from outside after DELAY microseconds, as
// a crash or a power cut would: "seen HWND PID" once the window is up, then DELAY is read
// from stdin, so that the caller can look at the files first. Prints "killed DELAY GONE",
// GONE the microseconds after the press at which the window had gone, -1 while it stood.
int ClickKill(const std::string& titel, const std::string& beschriftung, double sekunden) {
    HWND fenster = nullptr;
    if (!Warten(
            sekunden, [&] { return (fenster = SichtbaresFenster(titel)) != nullptr; }, 20))
        return Fehler("no visible window \"" + titel + "\" within " + Zahl(sekunden) + " s");
    DWORD pid = 0;
    GetWindowThreadProcessId(fenster, &pid);
    HANDLE prozess = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, pid);
    if (!prozess) return Fehler("no process " + std::to_string(pid));
    std::printf("seen\t%s\t%lu\n", Hex(fenster).c_str(), pid);
    std::fflush(stdout);
    char zeile[64] = {};
    if (!std::fgets(zeile, sizeof zeile, stdin)) return CloseHandle(prozess), Fehler("no delay on stdin");
    const long long verzug = std::atoll(zeile);
    HWND knopf = nullptr;
    Kinder(fenster, [&](HWND h) {
        if (!knopf && GleichOhneFall(Klasse(h), "Button") && OhneKürzel(Text(h)) == beschriftung) knopf = h;
    });
    if (!knopf) return CloseHandle(prozess), Fehler("no button \"" + beschriftung + "\"");
    LARGE_INTEGER takt, anfang, jetzt;
    QueryPerformanceFrequency(&takt);
    QueryPerformanceCounter(&anfang);
    PostMessageA(knopf, BM_CLICK, 0, 0);
    long long us = 0, weg = -1;
    do {
        QueryPerformanceCounter(&jetzt);
        us = (jetzt.QuadPart - anfang.QuadPart) * 1000000 / takt.QuadPart;
        if (weg < 0 && !IsWindow(fenster)) weg = us;
    } while (us < verzug);
    const bool beendet = TerminateProcess(prozess, 1) && WaitForSingleObject(prozess, 10000) == WAIT_OBJECT_0;
    CloseHandle(prozess);
    if (!beendet) return Fehler("process " + std::to_string(pid) + " did not end");
    std::printf("killed\t%lld\t%lld\n", verzug, weg);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string befehl = argc > 1 ? argv[1] : "";
    if (befehl == "list" && argc == 2) return List();
    if (befehl == "wait" && (argc == 3 || argc == 4)) return Wait(argv[2], Sekunden(argc, argv, 3));
    if (befehl == "gone" && (argc == 3 || argc == 4)) return Gone(argv[2], Sekunden(argc, argv, 3));
    if (befehl == "texts" && argc == 3) return Texts(argv[2]);
    if (befehl == "click" && argc == 4) return Click(argv[2], argv[3]);
    if (befehl == "close" && argc == 3) return Close(argv[2]);
    if (befehl == "post" && argc == 6) return Post(argv[2], argv[3], argv[4], argv[5]);
    if (befehl == "tray" && argc == 2) return Tray();
    if (befehl == "redraw" && argc == 3) return Redraw(argv[2]);
    if (befehl == "lock" && argc == 4) return Lock(argv[2], Sekunden(argc, argv, 3));
    if (befehl == "between" && argc == 5) return Between(argv[2], argv[3], Sekunden(argc, argv, 4));
    if (befehl == "menu" && argc == 2) return MenuList();
    if (befehl == "menu-click" && argc == 3) return MenuClick(argv[2]);
    if (befehl == "row-click" && (argc == 4 || argc == 5)) {
        const std::string knopf = argc == 5 ? argv[4] : "right";
        if (knopf != "right" && knopf != "left") return Fehler("the button is right or left, not \"" + knopf + "\"");
        HWND fenster = SichtbaresFenster(argv[2]);
        if (!fenster) return Fehler("no visible window \"" + std::string(argv[2]) + "\"");
        return kdlisten::ZeileKlicken(fenster, argv[3], knopf == "right");
    }
    if (befehl == "end-session" && argc == 3) return kdlisten::SitzungBeenden(argv[2]);
    if (befehl == "procs" && argc == 2) return kdprozesse::Liste();
    if (befehl == "kill" && argc == 3) return kdprozesse::Beenden(argv[2]);
    if (befehl == "memory" && argc == 3) return kdprozesse::Speicher(argv[2]);
    if (befehl == "close-each" && (argc == 4 || argc == 5))
        return CloseEach(argv[2], std::atoi(argv[3]), Sekunden(argc, argv, 4));
    if (befehl == "click-kill" && (argc == 4 || argc == 5)) return ClickKill(argv[2], argv[3], Sekunden(argc, argv, 4));
    std::fprintf(stderr,
                 "usage: kdriver list\n"
                 "       kdriver wait TITLE [SECONDS=20]\n"
                 "       kdriver gone TITLE [SECONDS=20]\n"
                 "       kdriver texts TITLE\n"
                 "       kdriver click TITLE CAPTION\n"
                 "       kdriver close TITLE\n"
                 "       kdriver post CLASS MSG WPARAM LPARAM\n"
                 "       kdriver tray\n"
                 "       kdriver redraw TITLE\n"
                 "       kdriver lock PATH SECONDS\n"
                 "       kdriver between CLASS TITLE SECONDS\n"
                 "       kdriver menu\n"
                 "       kdriver menu-click TEXT\n"
                 "       kdriver row-click TITLE TEXT [right|left]\n"
                 "       kdriver end-session CLASS\n"
                 "       kdriver procs\n"
                 "       kdriver kill PID\n"
                 "       kdriver memory PID\n"
                 "       kdriver close-each TITLE ROUNDS [SECONDS=20]\n"
                 "       kdriver click-kill TITLE CAPTION [SECONDS=20]\n");
    return 2;
}
