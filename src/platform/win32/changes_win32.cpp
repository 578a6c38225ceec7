#include "platform/win32/changes_win32.h"

#include <algorithm>
#include <memory>

namespace kes::win32 {

namespace {
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
    const REGSAM rechte = KEY_NOTIFY | (sam & (KEY_WOW64_32KEY | KEY_WOW64_64KEY));
    long rc = ::RegOpenKeyExA(reinterpret_cast<HKEY>(root), subkey.c_str(), 0, rechte, &q->key);
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

long Win32Changes::CloseSource(std::uintptr_t source) {
    std::unique_ptr<Quelle> q(reinterpret_cast<Quelle*>(source));
    if (q->key) {
        ::CloseHandle(q->ereignis);
        return ::RegCloseKey(q->key);
    }
    return ::FindCloseChangeNotification(q->ereignis) ? ERROR_SUCCESS : static_cast<long>(::GetLastError());
}

}  // namespace kes::win32
