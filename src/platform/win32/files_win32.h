// The file seam on the real Win32 file system.
#pragma once

#include "platform/seam/file_api.h"

namespace kes::win32 {

class Win32Files : public FileApi {
public:
    bool CanRead(const std::string& path) override;
    std::optional<std::string> ReadAll(const std::string& path) override;
    bool WriteAll(const std::string& path, const std::string& data) override;
    bool Append(const std::string& path, const std::string& data) override;
    bool MoveReplacing(const std::string& from, const std::string& to) override;
    long Delete(const std::string& path) override;
    std::uint32_t GetAttributes(const std::string& path) override;
    bool SetAttributes(const std::string& path, std::uint32_t attributes) override;
    std::optional<std::int64_t> Length(const std::string& path) override;
    bool MakeDirectory(const std::string& path) override;
    FileFind FindFirst(const std::string& pattern, FindData* out) override;
    bool FindNext(FindHandle h, FindData* out) override;

protected:
    void FindClose(FindHandle h) override;
};

}  // namespace kes::win32
