#include "platform/win32/file_details_win32.h"

#include <windows.h>
// The shell's declarations need <windows.h> first.
#include <shellapi.h>

#include <algorithm>

#include "platform/win32/unique_handle.h"

namespace kes::win32 {

namespace {
std::uint64_t Zahl(const FILETIME& ft) {
    return (static_cast<std::uint64_t>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
}

void Übernehmen(const WIN32_FIND_DATAA& w, FindRecord* out) {
    out->name = w.cFileName;
    out->shortName = w.cAlternateFileName;
    out->attributes = w.dwFileAttributes;
    out->creationTime = Zahl(w.ftCreationTime);
    out->lastAccessTime = Zahl(w.ftLastAccessTime);
    out->lastWriteTime = Zahl(w.ftLastWriteTime);
    out->sizeHigh = w.nFileSizeHigh;
    out->sizeLow = w.nFileSizeLow;
}
}  // namespace

DetailFind Win32FileDetails::FindFirst(const std::string& pattern, FindRecord* out) {
    WIN32_FIND_DATAA w{};
    const HANDLE h = ::FindFirstFileA(pattern.c_str(), &w);
    if (h == INVALID_HANDLE_VALUE) return {};
    Übernehmen(w, out);
    return DetailFind(*this, reinterpret_cast<FindHandle>(h));
}

bool Win32FileDetails::FindNext(FindHandle h, FindRecord* out) {
    WIN32_FIND_DATAA w{};
    if (h == kInvalidFind || !::FindNextFileA(reinterpret_cast<HANDLE>(h), &w)) return false;
    Übernehmen(w, out);
    return true;
}

void Win32FileDetails::FindClose(FindHandle h) {
    if (h != kInvalidFind) ::FindClose(reinterpret_cast<HANDLE>(h));
}

std::uint32_t Win32FileDetails::VersionInfoSize(const std::string& path) {
    DWORD unbenutzt = 0;
    return ::GetFileVersionInfoSizeA(path.c_str(), &unbenutzt);
}

bool Win32FileDetails::VersionInfo(const std::string& path, std::uint32_t size, std::vector<std::uint8_t>* block) {
    block->assign(size, 0);
    return size > 0 && ::GetFileVersionInfoA(path.c_str(), 0, size, block->data()) != 0;
}

bool Win32FileDetails::QueryValue(std::vector<std::uint8_t>& block, const std::string& subBlock, std::string* value) {
    if (block.empty()) return false;
    void* zeiger = nullptr;
    UINT länge = 0;
    if (!::VerQueryValueA(block.data(), subBlock.c_str(), &zeiger, &länge) || !zeiger) return false;
    // Strings are counted in characters with their NUL, anything else in bytes; both are
    // bytes of the ANSI copy the call made inside the block.
    const auto* anfang = static_cast<const char*>(zeiger);
    const auto* ende = reinterpret_cast<const char*>(block.data() + block.size());
    value->assign(anfang, std::min<std::size_t>(länge, static_cast<std::size_t>(ende - anfang)));
    return true;
}

bool Win32FileDetails::FileTimes(const std::string& path, std::uint64_t* created, std::uint64_t* accessed,
                                 std::uint64_t* written) {
    UniqueFile datei(::CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!datei) return false;
    FILETIME e{}, z{}, g{};
    if (!::GetFileTime(datei.Get(), &e, &z, &g)) return false;
    *created = Zahl(e);
    *accessed = Zahl(z);
    *written = Zahl(g);
    return true;
}

std::uint64_t Win32FileDetails::ToLocalFileTime(std::uint64_t utc) {
    FILETIME ein{static_cast<DWORD>(utc & 0xFFFFFFFFu), static_cast<DWORD>(utc >> 32)}, aus{};
    if (!::FileTimeToLocalFileTime(&ein, &aus)) return utc;
    return Zahl(aus);
}

int Win32FileDetails::SystemIconIndex(const std::string& path) {
    SHFILEINFOA info{};
    // System icon index, type name, display name, shell icon size. The exe type, which
    // the design asks for as well, may not be combined with other flags: Wine answers
    // such a call with nothing at all, and the result was never looked at.
    constexpr UINT kFlags = SHGFI_SYSICONINDEX | SHGFI_TYPENAME | SHGFI_DISPLAYNAME | SHGFI_SHELLICONSIZE;
    if (::SHGetFileInfoA(path.c_str(), 0, &info, sizeof info, kFlags) == 0) return -1;
    return info.iIcon;
}

}  // namespace kes::win32
