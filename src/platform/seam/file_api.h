// The file calls the program makes. Paths are ANSI with "\" separators and compare without
// regard to case, as on Windows. Whether a file can be opened for reading is the program's
// test for its existence, so ReadAll fails alike for a missing and for a locked file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/seam/seam_handle.h"

namespace kes {

inline constexpr std::uint32_t kAttrReadOnly = 0x01;
inline constexpr std::uint32_t kAttrHidden = 0x02;
inline constexpr std::uint32_t kAttrSystem = 0x04;
inline constexpr std::uint32_t kAttrDirectory = 0x10;
inline constexpr std::uint32_t kAttrArchive = 0x20;
inline constexpr std::uint32_t kAttrNormal = 0x80;
inline constexpr std::uint32_t kInvalidAttributes = 0xFFFFFFFFu;

// One hit of FindFirst/FindNext, the fields of WIN32_FIND_DATAA the program uses.
struct FindData {
    std::string name;
    std::uint32_t attributes = 0;
    std::uint64_t size = 0;
    std::uint64_t creationTime = 0;  // FILETIME as one number, UTC
    std::uint64_t lastWriteTime = 0;
};

using FindHandle = std::uintptr_t;
inline constexpr FindHandle kInvalidFind = 0;

class FileApi;
// A running FindFirst/FindNext walk, closed when its owner goes.
using FileFind = SeamHandle<FileApi>;

class FileApi {
public:
    virtual ~FileApi() = default;

    // The whole file; nullopt when it is missing, a folder, or locked against reading.
    virtual std::optional<std::string> ReadAll(const std::string& path) = 0;
    // Opens the file for reading and closes it again: false when missing or locked.
    virtual bool CanRead(const std::string& path) = 0;
    // Creates or replaces the file. False when it cannot be written (locked, no folder).
    virtual bool WriteAll(const std::string& path, const std::string& data) = 0;
    // Appends, creating the file if need be.
    virtual bool Append(const std::string& path, const std::string& data) = 0;
    // Puts FROM in the place of TO in one step (MoveFileExA, replacing and writing through),
    // FROM's data on the disk first: a reader sees the old TO or the new one, never a part.
    // False, both left as they were, when TO is locked, read-only or a folder, or FROM is
    // missing or locked.
    virtual bool MoveReplacing(const std::string& from, const std::string& to) = 0;
    // DeleteFileA: 0 on success, else the Win32 error (2 missing, 5 read-only, 32 in use).
    virtual long Delete(const std::string& path) = 0;
    // GetFileAttributesA: kInvalidAttributes for a missing path.
    virtual std::uint32_t GetAttributes(const std::string& path) = 0;
    virtual bool SetAttributes(const std::string& path, std::uint32_t attributes) = 0;
    // Length in bytes, taken from the file opened for reading: nullopt for a missing file,
    // a folder, or a file locked against reading.
    virtual std::optional<std::int64_t> Length(const std::string& path) = 0;
    virtual bool MakeDirectory(const std::string& path) = 0;
    // FindFirstFileA with a pattern such as "C:\dir\*.*" ('*' and '?' in the last part).
    // An empty owner when nothing matches or the folder is missing.
    virtual FileFind FindFirst(const std::string& pattern, FindData* out) = 0;
    virtual bool FindNext(FindHandle h, FindData* out) = 0;

protected:
    // FindClose, called by the walk's owner only.
    virtual void FindClose(FindHandle h) = 0;

private:
    friend FileFind;
    long CloseOwned(FindHandle h) {
        FindClose(h);
        return 0;
    }
};

}  // namespace kes
