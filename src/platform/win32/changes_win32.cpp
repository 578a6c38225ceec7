#include "platform/win32/changes_win32.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "common/mischen.h"

namespace kes::win32 {

namespace {
// A key written less than this before its imprint has none: Windows stamps keys by a clock
// that steps every 16 ms, and a second change within the step would keep the stamp.
constexpr ULONGLONG kJung = 250 * 10000ULL;  // in FILETIME's 100 ns

ULONGLONG Zeit(const FILETIME& ft) {
    return (static_cast<ULONGLONG>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
}

// The key's own stamp and counts, then its subkeys': by name and stamp as the enumeration
// gives them at the last level, opened and taken whole above it. A subkey that goes during
// the walk ends the enumeration early: no imprint, rather than a wrong one.
bool Abdrucken(HKEY key, REGSAM sicht, int tiefe, ULONGLONG grenze, std::uint64_t& h) {
    DWORD unter = 0, werte = 0, längsterWert = 0, meisteDaten = 0;
    FILETIME ft{};
    if (::RegQueryInfoKeyA(key, nullptr, nullptr, nullptr, &unter, nullptr, nullptr, &werte, &längsterWert,
                           &meisteDaten, nullptr, &ft) != ERROR_SUCCESS ||
        Zeit(ft) >= grenze)
        return false;
    for (std::uint64_t x : {Zeit(ft), std::uint64_t{unter}, std::uint64_t{werte}, std::uint64_t{längsterWert},
                            std::uint64_t{meisteDaten}})
        Mischen(h, x);
    if (tiefe == 0) return true;
    char name[256];
    for (DWORD i = 0; i < unter; ++i) {
        DWORD länge = sizeof name;
        if (::RegEnumKeyExA(key, i, name, &länge, nullptr, nullptr, nullptr, &ft) != ERROR_SUCCESS) return false;
        Mischen(h, std::string_view(name, länge));
        if (tiefe == 1) {
            if (Zeit(ft) >= grenze) return false;
            Mischen(h, Zeit(ft));
            continue;
        }
        HKEY kind = nullptr;
        if (::RegOpenKeyExA(key, name, 0, KEY_READ | sicht, &kind) != ERROR_SUCCESS) return false;
        const bool ganz = Abdrucken(kind, sicht, tiefe - 1, grenze, h);
        ::RegCloseKey(kind);
        if (!ganz) return false;
    }
    return true;
}

constexpr DWORD kRegistryFilter = REG_NOTIFY_CHANGE_NAME | REG_NOTIFY_CHANGE_LAST_SET;
constexpr DWORD kOrdnerFilter = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME | FILE_NOTIFY_CHANGE_SIZE |
                                FILE_NOTIFY_CHANGE_LAST_WRITE;
}  // namespace

long Win32Changes::Schärfen(Quelle& q) {
    return ::RegNotifyChangeKeyValue(q.key, q.subtree ? TRUE : FALSE, kRegistryFilter, q.ereignis, TRUE);
}

long Win32Changes::WatchKey(RegHandle root, const std::string& subkey, std::uint32_t sam, bool subtree,
                            ChangeSource* out) {
    auto q = std::make_unique<Quelle>();
    q->subtree = subtree;
    q->sicht = sam & (KEY_WOW64_32KEY | KEY_WOW64_64KEY);
    // Read access for the imprint; a key that grants only notification is watched without.
    long rc = ::RegOpenKeyExA(reinterpret_cast<HKEY>(root), subkey.c_str(), 0, KEY_READ | q->sicht, &q->key);
    q->lesbar = rc == ERROR_SUCCESS;
    if (rc == ERROR_ACCESS_DENIED)
        rc = ::RegOpenKeyExA(reinterpret_cast<HKEY>(root), subkey.c_str(), 0, KEY_NOTIFY | q->sicht, &q->key);
    if (rc != ERROR_SUCCESS) return rc;
    // Manual reset, so that a look at many sources at once takes nothing back; the ask
    // that sees it signalled resets it before it arms the key again.
    q->ereignis = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    rc = q->ereignis ? Schärfen(*q) : static_cast<long>(::GetLastError());
    if (rc != ERROR_SUCCESS) {
        if (q->ereignis) ::CloseHandle(q->ereignis);
        ::RegCloseKey(q->key);
        return rc;
    }
    *out = ChangeSource(*this, reinterpret_cast<std::uintptr_t>(q.release()));
    return ERROR_SUCCESS;
}

long Win32Changes::WatchFolder(const std::string& path, ChangeSource* out) {
    HANDLE h = ::FindFirstChangeNotificationA(path.c_str(), FALSE, kOrdnerFilter);
    if (h == INVALID_HANDLE_VALUE) return static_cast<long>(::GetLastError());
    auto q = std::make_unique<Quelle>();
    q->ereignis = h;
    *out = ChangeSource(*this, reinterpret_cast<std::uintptr_t>(q.release()));
    return ERROR_SUCCESS;
}

bool Win32Changes::Fired(std::uintptr_t source) {
    auto& q = *reinterpret_cast<Quelle*>(source);
    if (q.kaputt) return true;
    if (::WaitForSingleObject(q.ereignis, 0) != WAIT_OBJECT_0) {
        // Wine signals nothing when the watched key itself is deleted; its handle says so.
        if (q.key && ::RegQueryInfoKeyA(q.key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                        nullptr, nullptr, nullptr) == ERROR_KEY_DELETED)
            return q.kaputt = true;
        return false;
    }
    // Armed again before the caller walks, so that what changes meanwhile fires next time.
    if (q.key) ::ResetEvent(q.ereignis);
    const bool scharf = q.key ? Schärfen(q) == ERROR_SUCCESS : ::FindNextChangeNotification(q.ereignis) != FALSE;
    q.kaputt = !scharf;
    return true;
}

std::optional<std::size_t> Win32Changes::FirstFired(std::span<const std::uintptr_t> sources) {
    // One wait for up to 64 handles instead of one per source: the look between ticks
    // then costs the server a call or two, whatever the number of places. The wait names
    // the lowest of the handles that are set.
    std::vector<HANDLE> griffe;
    griffe.reserve(sources.size());
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const auto& q = *reinterpret_cast<const Quelle*>(sources[i]);
        if (q.kaputt) return i;
        griffe.push_back(q.ereignis);
    }
    for (std::size_t i = 0; i < griffe.size(); i += MAXIMUM_WAIT_OBJECTS) {
        const auto n = static_cast<DWORD>(std::min<std::size_t>(MAXIMUM_WAIT_OBJECTS, griffe.size() - i));
        const DWORD rc = ::WaitForMultipleObjects(n, griffe.data() + i, FALSE, 0);
        if (rc < WAIT_OBJECT_0 + n) return i + (rc - WAIT_OBJECT_0);
        // A handle that cannot be waited on: the first of this wait's, so that its owner
        // asks its sources one by one, and a look behind it goes on.
        if (rc == WAIT_FAILED) return i;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> Win32Changes::Imprint(std::uintptr_t source, int depth) {
    const auto& q = *reinterpret_cast<const Quelle*>(source);
    if (!q.key || !q.lesbar || q.kaputt || depth < 0) return std::nullopt;
    FILETIME jetzt{};
    ::GetSystemTimeAsFileTime(&jetzt);
    std::uint64_t h = 0;
    if (!Abdrucken(q.key, q.sicht, depth, Zeit(jetzt) - kJung, h)) return std::nullopt;
    return h;
}

long Win32Changes::CloseSource(std::uintptr_t source) {
    std::unique_ptr<Quelle> q(reinterpret_cast<Quelle*>(source));
    if (q->key) {
        ::CloseHandle(q->ereignis);
        return ::RegCloseKey(q->key);
    }
    return ::FindCloseChangeNotification(q->ereignis) ? ERROR_SUCCESS : static_cast<long>(::GetLastError());
}

}  // namespace kes::win32
