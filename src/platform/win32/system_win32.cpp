#include "platform/win32/system_win32.h"

#include <mmsystem.h>
#include <ras.h>
#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace kes::win32 {

bool Win32Shell::RunCommand(const std::string& commandLine, int show) {
    STARTUPINFOA si{};
    si.cb = sizeof si;
    si.dwFlags = STARTF_USESHOWWINDOW;
    si.wShowWindow = static_cast<WORD>(show);
    PROCESS_INFORMATION pi{};
    std::vector<char> zeile(commandLine.begin(), commandLine.end());
    zeile.push_back('\0');
    if (!::CreateProcessA(nullptr, zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &si, &pi)) return false;
    ::CloseHandle(pi.hThread);
    ::CloseHandle(pi.hProcess);
    return true;
}

long Win32Shell::OpenWithShell(const std::string& verb, const std::string& file, const std::string& params, int show) {
    const HINSTANCE r = ::ShellExecuteA(nullptr, verb.empty() ? nullptr : verb.c_str(), file.c_str(),
                                        params.empty() ? nullptr : params.c_str(), nullptr, show);
    return static_cast<long>(reinterpret_cast<INT_PTR>(r));
}

std::optional<std::string> Win32Shell::SpecialFolder(int csidl) {
    LPITEMIDLIST liste = nullptr;
    if (::SHGetSpecialFolderLocation(nullptr, csidl, &liste) != S_OK || !liste) return std::nullopt;
    char puffer[MAX_PATH * 2] = {};
    const BOOL ok = ::SHGetPathFromIDListA(liste, puffer);
    ::CoTaskMemFree(liste);
    if (!ok) return std::string();
    return std::string(puffer);
}

int Win32Dialogs::ShowMessage(const std::string& text, const std::string& title, int flags) {
    // The program's default title is its own name.
    return ::MessageBoxA(nullptr, text.c_str(), title.empty() ? "Kestrella" : title.c_str(),
                         static_cast<UINT>(flags) | MB_SETFOREGROUND);
}

bool Win32Sound::PlayResource(const std::string& name, unsigned flags) {
    const HRSRC r = ::FindResourceA(nullptr, name.c_str(), "WAVE");
    if (!r) return false;
    const HGLOBAL g = ::LoadResource(nullptr, r);
    const void* daten = g ? ::LockResource(g) : nullptr;
    if (!daten) return false;
    // Played from memory with the caller's flags; without SND_ASYNC the warning follows the sound.
    return ::sndPlaySoundA(static_cast<LPCSTR>(daten), SND_MEMORY | flags) != FALSE;
}

namespace {
constexpr char kTimerKlasse[] = "KestrellaZeitgeber";
}

Win32Timers::Win32Timers() {
    WNDCLASSA wc{};
    wc.lpfnWndProc = &Win32Timers::Proc;
    wc.hInstance = ::GetModuleHandleA(nullptr);
    wc.lpszClassName = kTimerKlasse;
    ::RegisterClassA(&wc);
    fenster_.Reset(::CreateWindowExA(0, kTimerKlasse, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, wc.hInstance, nullptr));
    ::SetWindowLongPtrA(fenster_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Win32Timers::~Win32Timers() {
    ::SetWindowLongPtrA(fenster_.Get(), GWLP_USERDATA, 0);
}

LRESULT CALLBACK Win32Timers::Proc(HWND h, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == WM_TIMER) {
        auto* self = reinterpret_cast<Win32Timers*>(::GetWindowLongPtrA(h, GWLP_USERDATA));
        // Nothing may leave a window procedure; the handler catches its own errors.
        if (self && self->handler_) {
            try {
                self->handler_(static_cast<int>(wp));
            } catch (...) {
            }
        }
        return 0;
    }
    return ::DefWindowProcA(h, msg, wp, lp);
}

void Win32Timers::Set(int id, int intervalMs) {
    if (intervalMs <= 0) {
        Kill(id);
        return;
    }
    // Setting an existing timer again restarts its interval, as the logic expects.
    ::SetTimer(fenster_.Get(), static_cast<UINT_PTR>(id), static_cast<UINT>(intervalMs), nullptr);
}

void Win32Timers::Kill(int id) {
    ::KillTimer(fenster_.Get(), static_cast<UINT_PTR>(id));
}

void Win32Timers::PumpMessages() {
    // The walks yield at every entry, thousands of times a cycle, and each look into the
    // queue is a round trip to the system (under Wine, to its server) that costs more
    // than the entry itself. A yield within the same step of the system's tick count as
    // the last look is passed over: a message waits at most one step (about 16 ms, below
    // what anyone can see), and the walk costs what its entries cost. The tick count is
    // read from memory the system keeps up to date (2 ns under Wine); a precise clock
    // cost 50 to 90 ns, as much as a cheap entry of the walk.
    if (::GetTickCount64() == zuletzt_) return;
    MSG m;
    while (::PeekMessageA(&m, nullptr, 0, 0, PM_REMOVE)) {
        if (m.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(m.wParam));
            break;
        }
        ::TranslateMessage(&m);
        ::DispatchMessageA(&m);
        if (nachNachricht) nachNachricht();
    }
    // From the end of the look: a message that took long must not spare the next look.
    zuletzt_ = ::GetTickCount64();
}

Win32System::Win32System() {
    instanz_.Reset(::CreateMutexA(nullptr, FALSE, "Halvenik-Kestrella-Instanz"));
    vorherige_ = ::GetLastError() == ERROR_ALREADY_EXISTS;
}

std::string Win32System::ExecutablePath() {
    char puffer[MAX_PATH * 2] = {};
    const DWORD n = ::GetModuleFileNameA(nullptr, puffer, sizeof puffer);
    return std::string(puffer, n);
}

std::string Win32System::Wow64SystemDirectory() {
    char puffer[MAX_PATH * 2] = {};
    // A 32-bit Windows answers 0 (ERROR_CALL_NOT_IMPLEMENTED): it has no such folder.
    const UINT n = ::GetSystemWow64DirectoryA(puffer, sizeof puffer);
    if (n == 0 || n >= sizeof puffer) return {};
    return std::string(puffer, n);
}

std::string Win32System::CommandLine() {
    // Everything behind the program's name, which may stand in quotes.
    const char* z = ::GetCommandLineA();
    if (*z == '"') {
        ++z;
        while (*z && *z != '"') ++z;
        if (*z) ++z;
    } else {
        while (*z && *z != ' ' && *z != '\t') ++z;
    }
    while (*z == ' ' || *z == '\t') ++z;
    return z;
}

std::string Win32System::ShortDate() {
    char puffer[128] = {};
    ::GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, puffer, sizeof puffer);
    return puffer;
}

std::string Win32System::ShortTime() {
    char puffer[128] = {};
    ::GetTimeFormatA(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, puffer, sizeof puffer);
    return puffer;
}

Uhrzeit Win32System::Jetzt() {
    SYSTEMTIME t{};
    ::GetLocalTime(&t);
    TIME_ZONE_INFORMATION z{};
    const DWORD art = ::GetTimeZoneInformation(&z);
    // UTC = local time + bias; the season's own bias is added where the zone knows one.
    LONG bias = z.Bias;
    if (art == TIME_ZONE_ID_DAYLIGHT)
        bias += z.DaylightBias;
    else if (art == TIME_ZONE_ID_STANDARD)
        bias += z.StandardBias;
    if (art == TIME_ZONE_ID_INVALID) bias = 0;
    return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds, static_cast<int>(-bias)};
}

Zahlenformat Win32System::NumberFormat() {
    char dezimal[8] = {}, tausend[8] = {};
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, dezimal, sizeof dezimal);
    ::GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, tausend, sizeof tausend);
    return Zahlenformat{dezimal[0] ? dezimal[0] : '.', tausend[0] ? tausend[0] : ','};
}

int Win32Dialup::ConnectionCount() {
    // The platform's own record size; the count is all that matters, not the return code.
    std::vector<RASCONNA> puffer(256);
    puffer[0].dwSize = sizeof(RASCONNA);
    DWORD grösse = static_cast<DWORD>(puffer.size() * sizeof(RASCONNA));
    DWORD anzahl = 0;
    ::RasEnumConnectionsA(puffer.data(), &grösse, &anzahl);
    return static_cast<int>(anzahl);
}

long Win32Dialup::DeleteEntry(const std::string& name) {
    return static_cast<long>(::RasDeleteEntryA(nullptr, name.c_str()));
}

long Win32Dialup::EnumEntries(std::vector<std::string>* names) {
    // The platform's own record size, 256 of them: a phone book with more entries does not
    // fit, and the call fails.
    std::vector<RASENTRYNAMEA> puffer(256);
    puffer[0].dwSize = sizeof(RASENTRYNAMEA);
    DWORD grösse = static_cast<DWORD>(puffer.size() * sizeof(RASENTRYNAMEA));
    DWORD anzahl = 0;
    const DWORD r = ::RasEnumEntriesA(nullptr, nullptr, puffer.data(), &grösse, &anzahl);
    names->clear();
    if (r != 0) return static_cast<long>(r);
    for (DWORD k = 0; k < anzahl && k < puffer.size(); ++k) {
        const char* name = puffer[k].szEntryName;
        names->emplace_back(name, ::strnlen(name, sizeof puffer[k].szEntryName));
    }
    return 0;
}

long Win32Dialup::EntryPropertiesSize(const std::string& name, std::uint32_t* size) {
    DWORD grösse = 0;
    const DWORD r = ::RasGetEntryPropertiesA(nullptr, name.c_str(), nullptr, &grösse, nullptr, nullptr);
    *size = grösse;
    return static_cast<long>(r);
}

long Win32Dialup::EntryProperties(const std::string& name, std::uint32_t size, DfuEintrag* out) {
    // A byte buffer of the size the platform asked for, never smaller than the record.
    std::vector<std::uint8_t> puffer(std::max<std::size_t>(size, sizeof(RASENTRYA)));
    auto* eintrag = reinterpret_cast<RASENTRYA*>(puffer.data());
    eintrag->dwSize = sizeof(RASENTRYA);
    DWORD grösse = static_cast<DWORD>(puffer.size());
    const DWORD r = ::RasGetEntryPropertiesA(nullptr, name.c_str(), eintrag, &grösse, nullptr, nullptr);
    if (r != 0) return static_cast<long>(r);
    out->countryCode = eintrag->dwCountryCode;
    out->areaCode.assign(eintrag->szAreaCode, ::strnlen(eintrag->szAreaCode, sizeof eintrag->szAreaCode));
    out->localPhoneNumber.assign(eintrag->szLocalPhoneNumber,
                                 ::strnlen(eintrag->szLocalPhoneNumber, sizeof eintrag->szLocalPhoneNumber));
    return 0;
}

long Win32Dialup::EditEntry(std::uintptr_t parent, const std::string& name) {
    return static_cast<long>(
        ::RasEditPhonebookEntryA(reinterpret_cast<HWND>(parent), nullptr, const_cast<char*>(name.c_str())));
}

}  // namespace kes::win32
