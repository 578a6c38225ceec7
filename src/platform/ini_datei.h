// Ini files read and written over the file seam, with the platform's rules: this is what a
// machine without the profile calls uses, and what the fake of those calls rests on.
#pragma once

#include "platform/seam/file_api.h"
#include "platform/seam/profile_api.h"

namespace kes {

class IniDatei : public ProfileApi {
public:
    explicit IniDatei(FileApi& files) : files_(files) {}
    std::string GetString(const std::string& section, const std::string& key, const std::string& standard,
                          const std::string& file, int bufferSize = 255) override;
    bool WriteString(const std::string& section, const std::optional<std::string>& key,
                     const std::optional<std::string>& value, const std::string& file) override;

private:
    FileApi& files_;
};

}  // namespace kes
