#include "rohe_schleife.h"

#include <windows.h>
// The tool-help and dial-up declarations need <windows.h> first.
#include <psapi.h>
#include <ras.h>
#include <tlhelp32.h>

#include <vector>

namespace kes::bench {

namespace {
constexpr const char* kRunOrte[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
};
constexpr const char* kMain = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr const char* kSearch = "Software\\Microsoft\\Internet Explorer\\Search";
constexpr const char* kDomains = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";

// Walks the subkeys of a key; je(opened key, subkey name) gives what each adds to the count.
template <typename Je>
std::size_t Unterschlüssel(HKEY root, const char* key, Je je) {
    HKEY h;
    if (::RegOpenKeyExA(root, key, 0, KEY_ENUMERATE_SUB_KEYS, &h) != ERROR_SUCCESS) return 0;
    std::size_t n = 0;
    for (DWORD i = 0;; ++i) {
        char name[256];
        DWORD grösse = sizeof name;
        if (::RegEnumKeyExA(h, i, name, &grösse, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        n += je(h, name);
    }
    ::RegCloseKey(h);
    return n;
}

std::size_t Werte(HKEY root, const char* key) {
    HKEY h;
    if (::RegOpenKeyExA(root, key, 0, KEY_QUERY_VALUE, &h) != ERROR_SUCCESS) return 0;
    std::size_t n = 0;
    for (DWORD i = 0;; ++i) {
        char name[256];
        BYTE daten[256];
        DWORD nameGrösse = sizeof name, datenGrösse = sizeof daten, typ = 0;
        if (::RegEnumValueA(h, i, name, &nameGrösse, nullptr, &typ, daten, &datenGrösse) != ERROR_SUCCESS) break;
        ++n;
    }
    ::RegCloseKey(h);
    return n;
}

std::size_t Schlüssel(HKEY root, const char* key) {
    return Unterschlüssel(root, key, [](HKEY, const char*) { return std::size_t{1}; });
}

std::size_t Lesen(HKEY root, const char* key, const char* wert) {
    HKEY h;
    if (::RegOpenKeyExA(root, key, 0, KEY_QUERY_VALUE, &h) != ERROR_SUCCESS) return 0;
    BYTE daten[512];
    DWORD grösse = sizeof daten, typ = 0;
    const bool da = ::RegQueryValueExA(h, wert, nullptr, &typ, daten, &grösse) == ERROR_SUCCESS;
    ::RegCloseKey(h);
    return da ? 1 : 0;
}

std::size_t Dateien(const std::string& ordner) {
    WIN32_FIND_DATAA fd;
    const HANDLE h = ::FindFirstFileA((ordner + "\\*.*").c_str(), &fd);
    if (h == INVALID_HANDLE_VALUE) return 0;
    std::size_t n = 0;
    do {
        if (!(fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) ++n;
    } while (::FindNextFileA(h, &fd));
    ::FindClose(h);
    return n;
}
}  // namespace

namespace {
std::size_t Baum(HKEY root, const std::string& key, bool unter) {
    HKEY h;
    if (::RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &h) != ERROR_SUCCESS) return 0;
    std::size_t n = Werte(h, "");
    if (unter) {
        std::vector<std::string> namen;
        for (DWORD i = 0;; ++i) {
            char name[256];
            DWORD grösse = sizeof name;
            if (::RegEnumKeyExA(h, i, name, &grösse, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
            namen.emplace_back(name, grösse);
        }
        for (const std::string& name : namen) n += 1 + Baum(h, name, true);
    }
    ::RegCloseKey(h);
    return n;
}
}  // namespace

std::size_t RohDerOrte(const Änderungsorte& orte) {
    std::size_t n = 0;
    for (const Änderungsort& o : orte)
        n +=
            o.root == 0
                ? Dateien(o.pfad)
                : Baum(reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG_PTR>(static_cast<LONG>(o.root)))),
                       o.pfad, o.unterschlüssel);
    return n;
}

std::size_t RohProzesse() {
    const HANDLE snap = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snap == INVALID_HANDLE_VALUE) return 0;
    std::size_t n = 0;
    PROCESSENTRY32 pe{};
    pe.dwSize = sizeof pe;
    for (BOOL ok = ::Process32First(snap, &pe); ok; ok = ::Process32Next(snap, &pe)) {
        ++n;
        if (pe.th32ProcessID == 0) continue;
        const HANDLE module = ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, pe.th32ProcessID);
        if (module == INVALID_HANDLE_VALUE) continue;
        MODULEENTRY32 me{};
        me.dwSize = sizeof me;
        for (BOOL m = ::Module32First(module, &me); m; m = ::Module32Next(module, &me)) ++n;
        ::CloseHandle(module);
    }
    ::CloseHandle(snap);
    return n;
}

std::size_t RohFavoriten(const RohOrte& o) {
    return Dateien(o.favoriten) + Dateien(o.favoriten + "\\Links");
}

std::size_t RohStartseiten() {
    struct Ort {
        HKEY root;
        const char* key;
        const char* wert;
    };
    static const Ort kOrte[] = {
        {HKEY_CURRENT_USER, kMain, "Start Page"},
        {HKEY_CURRENT_USER, kMain, "Search Page"},
        {HKEY_CURRENT_USER, kMain, "Local Page"},
        {HKEY_LOCAL_MACHINE, kMain, "Start Page"},
        {HKEY_LOCAL_MACHINE, kMain, "Search Page"},
        {HKEY_LOCAL_MACHINE, kMain, "Local Page"},
        {HKEY_LOCAL_MACHINE, kMain, "Default_Page_URL"},
        {HKEY_LOCAL_MACHINE, kMain, "Default_Search_URL"},
        {HKEY_LOCAL_MACHINE, kMain, "Search Bar"},
        {HKEY_CURRENT_USER, kMain, "Default_Search_URL"},
        {HKEY_CURRENT_USER, kMain, "Search Bar"},
        {HKEY_CURRENT_USER, kSearch, "CustomizeSearch"},
        {HKEY_CURRENT_USER, kSearch, "SearchAssistant"},
        {HKEY_LOCAL_MACHINE, kSearch, "CustomizeSearch"},
        {HKEY_LOCAL_MACHINE, kSearch, "SearchAssistant"},
        {HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\SafeSites",
         "search.msn.com"},
        {HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes", "www"},
        {HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix", ""},
        {HKEY_CURRENT_USER, kMain, "Default_Page_URL"},
    };
    std::size_t n = 0;
    for (const Ort& o : kOrte) n += Lesen(o.root, o.key, o.wert);
    return n;
}

std::size_t RohDfue() {
    std::vector<RASENTRYNAMEA> puffer(256);
    puffer[0].dwSize = sizeof(RASENTRYNAMEA);
    DWORD grösse = static_cast<DWORD>(puffer.size() * sizeof(RASENTRYNAMEA)), anzahl = 0;
    ::RasEnumEntriesA(nullptr, nullptr, puffer.data(), &grösse, &anzahl);
    return anzahl;
}

std::size_t RohAutostartOrdner(const RohOrte& o) {
    return Dateien(o.startup) + Dateien(o.startupAlle);
}

std::size_t RohAutostartRegistry() {
    std::size_t n = 0;
    // The users' hives first, as the cycle has them.
    n += Unterschlüssel(HKEY_USERS, "", [](HKEY, const char* name) {
        std::size_t werte = 0;
        for (const char* ort : kRunOrte) werte += Werte(HKEY_USERS, (std::string(name) + "\\" + ort).c_str());
        return werte;
    });
    const char* nt = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";
    n += Lesen(HKEY_CURRENT_USER, nt, "run") + Lesen(HKEY_LOCAL_MACHINE, nt, "run");
    for (HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
        for (const char* ort : kRunOrte) n += Werte(root, ort);
    return n;
}

std::size_t RohOnline() {
    std::vector<RASCONNA> puffer(256);
    puffer[0].dwSize = sizeof(RASCONNA);
    DWORD grösse = static_cast<DWORD>(puffer.size() * sizeof(RASCONNA)), anzahl = 0;
    ::RasEnumConnectionsA(puffer.data(), &grösse, &anzahl);
    return anzahl;
}

std::size_t RohHosts(const RohOrte& o) {
    WIN32_FILE_ATTRIBUTE_DATA d;
    return ::GetFileAttributesExA((o.system + "\\drivers\\etc\\hosts").c_str(), GetFileExInfoStandard, &d) ? 1 : 0;
}

std::size_t RohWindowsOrdner(const RohOrte& o) {
    return Dateien(o.windows);
}

std::size_t RohSystemOrdner(const RohOrte& o) {
    return Dateien(o.system);
}

std::size_t RohActiveX(const RohOrte& o) {
    return Dateien(o.windows + "\\Downloaded Program Files");
}

std::size_t RohBHO() {
    return Schlüssel(HKEY_LOCAL_MACHINE,
                     "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects");
}

std::size_t RohShellService() {
    return Werte(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad");
}

std::size_t RohTaskScheduler() {
    return Werte(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler");
}

std::size_t RohURLSearchHooks() {
    return Werte(HKEY_CURRENT_USER, "Software\\Microsoft\\Internet Explorer\\URLSearchHooks");
}

constexpr const char* kSystemRichtlinien = "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System";

std::size_t RohRegeditSperre() {
    return Lesen(HKEY_CURRENT_USER, kSystemRichtlinien, "DisableRegistryTools");
}

std::size_t RohTaskmanagerSperre() {
    return Lesen(HKEY_CURRENT_USER, kSystemRichtlinien, "DisableTaskMgr");
}

std::size_t RohDienste() {
    // Whether a service starts by itself is only known from its own key: each is opened.
    return Unterschlüssel(HKEY_LOCAL_MACHINE, "System\\CurrentControlSet\\Services",
                          [](HKEY h, const char* name) { return Lesen(h, name, "Start"); });
}

std::size_t RohVertrauenswuerdigeSeiten() {
    return Schlüssel(HKEY_LOCAL_MACHINE, kDomains) + Schlüssel(HKEY_CURRENT_USER, kDomains);
}

std::size_t RohShellBefehle() {
    std::size_t n = 0;
    for (const char* art : {"exefile", "comfile", "batfile", "piffile"}) {
        n += Lesen(HKEY_CLASSES_ROOT, (std::string(art) + "\\shell\\open\\command").c_str(), "");
        n += Lesen(HKEY_LOCAL_MACHINE, (std::string("Software\\CLASSES\\") + art + "\\shell\\open\\command").c_str(),
                   "");
    }
    n += Lesen(HKEY_CLASSES_ROOT, "htafile\\Shell\\Open\\Command", "");
    n += Lesen(HKEY_LOCAL_MACHINE, "Software\\CLASSES\\htafile\\Shell\\Open\\Command", "");
    return n;
}

std::size_t RohOrdnerMitLängen(const std::string& ordner) {
    WIN32_FIND_DATAA fd;
    const HANDLE h = ::FindFirstFileA((ordner + "\\*.*").c_str(), &fd);
    if (h == INVALID_HANDLE_VALUE) return 0;
    std::size_t n = 0;
    do {
        if (fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
        const HANDLE f = ::CreateFileA((ordner + "\\" + fd.cFileName).c_str(), GENERIC_READ,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        if (f == INVALID_HANDLE_VALUE) continue;
        LARGE_INTEGER länge;
        if (::GetFileSizeEx(f, &länge)) ++n;
        ::CloseHandle(f);
    } while (::FindNextFileA(h, &fd));
    ::FindClose(h);
    return n;
}

std::size_t RohProzesseMitPfaden() {
    const HANDLE snap = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snap == INVALID_HANDLE_VALUE) return 0;
    std::size_t n = 0;
    PROCESSENTRY32 pe{};
    pe.dwSize = sizeof pe;
    char pfad[MAX_PATH];
    for (BOOL ok = ::Process32First(snap, &pe); ok; ok = ::Process32Next(snap, &pe)) {
        if (pe.th32ProcessID == 0) continue;
        const HANDLE p = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, pe.th32ProcessID);
        const HANDLE module = ::CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, pe.th32ProcessID);
        if (module != INVALID_HANDLE_VALUE) {
            MODULEENTRY32 me{};
            me.dwSize = sizeof me;
            for (BOOL m = ::Module32First(module, &me); m; m = ::Module32Next(module, &me))
                if (p) n += ::GetModuleFileNameExA(p, me.hModule, pfad, sizeof pfad) > 0;
            ::CloseHandle(module);
        }
        if (p && ::GetModuleFileNameExA(p, nullptr, pfad, sizeof pfad) > 0) {
            DWORD griff = 0;
            const DWORD grösse = ::GetFileVersionInfoSizeA(pfad, &griff);
            std::vector<char> block(grösse);
            if (grösse && ::GetFileVersionInfoA(pfad, 0, grösse, block.data())) ++n;
        }
        if (p) ::CloseHandle(p);
    }
    ::CloseHandle(snap);
    return n;
}

std::size_t Roh(int box, const RohOrte& o) {
    switch (box) {
        case 4:
            return RohProzesse();
        case 5:
            return RohFavoriten(o);
        case 8:
            return RohStartseiten();
        case 10:
            return RohDfue();
        case 11:
            return RohAutostartOrdner(o);
        case 13:
            return RohAutostartRegistry();
        case 14:
            return RohOnline();
        case 15:
            return RohHosts(o);
        case 19:
            return RohWindowsOrdner(o);
        case 20:
            return RohSystemOrdner(o);
        case 21:
            return RohBHO();
        case 22:
            return RohActiveX(o);
        case 23:
            return RohShellService();
        case 24:
            return RohTaskScheduler();
        case 25:
            return RohRegeditSperre();
        case 26:
            return RohTaskmanagerSperre();
        case 27:
            return RohURLSearchHooks();
        case 28:
            return RohDienste();
        case 29:
            return RohVertrauenswuerdigeSeiten();
        case 30:
            return RohShellBefehle();
        default:
            return 0;
    }
}

}  // namespace kes::bench
