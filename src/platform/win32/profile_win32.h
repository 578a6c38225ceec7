// Ini files through the platform's own profile calls.
#pragma once

#include "platform/seam/profile_api.h"

namespace kes::win32 {

class Win32Profiles : public ProfileApi {
public:
    std::string GetString(const std::string& section, const std::string& key, const std::string& standard,
                          const std::string& file, int bufferSize = 255) override;
    bool WriteString(const std::string& section, const std::optional<std::string>& key,
                     const std::optional<std::string>& value, const std::string& file) override;
};

}  // namespace kes::win32
