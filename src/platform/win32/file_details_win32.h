// The file-detail seam on the find, version, file-time and shell-icon calls of Win32.
#pragma once

#include "platform/seam/file_detail_api.h"

namespace kes::win32 {

class Win32FileDetails : public FileDetailApi {
public:
    DetailFind FindFirst(const std::string& pattern, FindRecord* out) override;
    bool FindNext(FindHandle h, FindRecord* out) override;
    std::uint32_t VersionInfoSize(const std::string& path) override;
    bool VersionInfo(const std::string& path, std::uint32_t size, std::vector<std::uint8_t>* block) override;
    bool QueryValue(std::vector<std::uint8_t>& block, const std::string& subBlock, std::string* value) override;
    bool FileTimes(const std::string& path, std::uint64_t* created, std::uint64_t* accessed,
                   std::uint64_t* written) override;
    std::uint64_t ToLocalFileTime(std::uint64_t utc) override;
    int SystemIconIndex(const std::string& path) override;

protected:
    void FindClose(FindHandle h) override;
};

}  // namespace kes::win32
