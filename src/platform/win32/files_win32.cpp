#include "platform/win32/files_win32.h"

#include <windows.h>

#include "platform/win32/unique_handle.h"

namespace kes::win32 {

namespace {
UniqueFile Öffnen(const std::string& path, DWORD zugriff, DWORD teilen, DWORD wie) {
    return UniqueFile(::CreateFileA(path.c_str(), zugriff, teilen, nullptr, wie, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool Schreiben(HANDLE h, const std::string& data) {
    std::size_t fertig = 0;
    while (fertig < data.size()) {
        DWORD geschrieben = 0;
        const DWORD stück = static_cast<DWORD>(std::min<std::size_t>(data.size() - fertig, 1 << 20));
        if (!::WriteFile(h, data.data() + fertig, stück, &geschrieben, nullptr) || geschrieben == 0) return false;
        fertig += geschrieben;
    }
    return true;
}

std::uint64_t Zeit(const FILETIME& ft) {
    return (static_cast<std::uint64_t>(ft.dwHighDateTime) << 32) | ft.dwLowDateTime;
}

void Übernehmen(const WIN32_FIND_DATAA& w, FindData* out) {
    out->name = w.cFileName;
    out->attributes = w.dwFileAttributes;
    out->size = (static_cast<std::uint64_t>(w.nFileSizeHigh) << 32) | w.nFileSizeLow;
    out->creationTime = Zeit(w.ftCreationTime);
    out->lastWriteTime = Zeit(w.ftLastWriteTime);
}
}  // namespace

bool Win32Files::CanRead(const std::string& path) {
    return static_cast<bool>(Öffnen(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING));
}

std::optional<std::string> Win32Files::ReadAll(const std::string& path) {
    UniqueFile f = Öffnen(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (!f) return std::nullopt;
    std::string inhalt;
    char puffer[65536];
    for (;;) {
        DWORD gelesen = 0;
        if (!::ReadFile(f.Get(), puffer, sizeof puffer, &gelesen, nullptr)) return std::nullopt;
        if (gelesen == 0) break;
        inhalt.append(puffer, gelesen);
    }
    return inhalt;
}

bool Win32Files::WriteAll(const std::string& path, const std::string& data) {
    UniqueFile f = Öffnen(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS);
    return f && Schreiben(f.Get(), data);
}

bool Win32Files::Append(const std::string& path, const std::string& data) {
    UniqueFile f = Öffnen(path, FILE_APPEND_DATA, FILE_SHARE_READ, OPEN_ALWAYS);
    return f && Schreiben(f.Get(), data);
}

bool Win32Files::MoveReplacing(const std::string& from, const std::string& to) {
    // Windows refuses to replace a read-only file; Wine replaces it. Refused here alike, so
    // that a file the user made read-only stays as it is everywhere.
    const DWORD ziel = ::GetFileAttributesA(to.c_str());
    if (ziel != INVALID_FILE_ATTRIBUTES && (ziel & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY))) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    {
        // The data first: after a power cut the new name must not stand for lost bytes.
        UniqueFile f = Öffnen(from, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
        if (!f || !::FlushFileBuffers(f.Get())) return false;
    }
    return ::MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

long Win32Files::Delete(const std::string& path) {
    return ::DeleteFileA(path.c_str()) ? 0 : ::GetLastError();
}

std::uint32_t Win32Files::GetAttributes(const std::string& path) {
    return ::GetFileAttributesA(path.c_str());
}

bool Win32Files::SetAttributes(const std::string& path, std::uint32_t attributes) {
    return ::SetFileAttributesA(path.c_str(), attributes) != 0;
}

std::optional<std::int64_t> Win32Files::Length(const std::string& path) {
    // Measured through a handle opened for reading, like every other existence test of the
    // program: a file that another program holds open without sharing counts as missing.
    // A folder cannot be opened this way either.
    UniqueFile f = Öffnen(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (!f) return std::nullopt;
    LARGE_INTEGER größe{};
    if (!::GetFileSizeEx(f.Get(), &größe)) return std::nullopt;
    return static_cast<std::int64_t>(größe.QuadPart);
}

bool Win32Files::MakeDirectory(const std::string& path) {
    return ::CreateDirectoryA(path.c_str(), nullptr) != 0;
}

FileFind Win32Files::FindFirst(const std::string& pattern, FindData* out) {
    WIN32_FIND_DATAA w;
    const HANDLE h = ::FindFirstFileA(pattern.c_str(), &w);
    if (h == INVALID_HANDLE_VALUE) return {};
    Übernehmen(w, out);
    return FileFind(*this, reinterpret_cast<FindHandle>(h));
}

bool Win32Files::FindNext(FindHandle h, FindData* out) {
    WIN32_FIND_DATAA w;
    if (!::FindNextFileA(reinterpret_cast<HANDLE>(h), &w)) return false;
    Übernehmen(w, out);
    return true;
}

void Win32Files::FindClose(FindHandle h) {
    ::FindClose(reinterpret_cast<HANDLE>(h));
}

}  // namespace kes::win32
