// What the program learns about single files beyond their content: the complete record of
// a folder walk (short name, all three times), the version resource, the times of a file
// opened without sharing, and the shell's icon for it. Paths are ANSI with "\" separators.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/seam/file_api.h"

namespace kes {

class FileDetailApi;
// A running folder walk of the detail seam, closed when its owner goes.
using DetailFind = SeamHandle<FileDetailApi>;

// One hit of FindFirstFileA/FindNextFileA with every field of WIN32_FIND_DATAA the walk keeps.
struct FindRecord {
    std::string name;       // cFileName
    std::string shortName;  // cAlternateFileName: empty when the name is already of 8.3 form
    std::uint32_t attributes = 0;
    std::uint64_t creationTime = 0;  // FILETIME as one number, UTC
    std::uint64_t lastAccessTime = 0;
    std::uint64_t lastWriteTime = 0;
    std::uint32_t sizeHigh = 0;
    std::uint32_t sizeLow = 0;
};

class FileDetailApi {
public:
    virtual ~FileDetailApi() = default;

    // FindFirstFileA: an empty owner when nothing matches or the folder is missing.
    virtual DetailFind FindFirst(const std::string& pattern, FindRecord* out) = 0;
    // FindNextFileA: false at the end, *out unchanged then.
    virtual bool FindNext(FindHandle h, FindRecord* out) = 0;

    // GetFileVersionInfoSizeA: 0 for a missing file or one without a version resource.
    virtual std::uint32_t VersionInfoSize(const std::string& path) = 0;
    // GetFileVersionInfoA into a block of the given size: false on failure.
    virtual bool VersionInfo(const std::string& path, std::uint32_t size, std::vector<std::uint8_t>* block) = 0;
    // VerQueryValueA on a block: the bytes at the sub-block, as many as the call reports
    // (strings with their NUL where the platform counts it). False when there is none.
    // Names compare without regard to case, as the platform does.
    virtual bool QueryValue(std::vector<std::uint8_t>& block, const std::string& subBlock, std::string* value) = 0;

    // CreateFileA for reading with no sharing, then GetFileTime: the three times as UTC
    // FILETIME numbers. False when the file cannot be opened so (missing, a folder, open
    // elsewhere) or the times cannot be read.
    virtual bool FileTimes(const std::string& path, std::uint64_t* created, std::uint64_t* accessed,
                           std::uint64_t* written) = 0;
    // FileTimeToLocalFileTime: UTC to the machine's local time, by the rule in force now.
    virtual std::uint64_t ToLocalFileTime(std::uint64_t utc) = 0;

    // SHGetFileInfoA with the system icon index: the icon's index in the shell's system
    // image list, or -1 when the shell knows nothing of the path.
    virtual int SystemIconIndex(const std::string& path) = 0;

protected:
    // FindClose, called by the walk's owner only.
    virtual void FindClose(FindHandle h) = 0;

private:
    friend DetailFind;
    long CloseOwned(FindHandle h) {
        FindClose(h);
        return 0;
    }
};

}  // namespace kes
