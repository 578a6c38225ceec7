// Ini files as the platform reads and writes them: sections and keys compare without regard
// to case, a missing file, section or key gives the default, and a write creates what is
// missing. The program keeps its class baselines in such files.
#pragma once

#include <optional>
#include <string>

namespace kes {

class ProfileApi {
public:
    virtual ~ProfileApi() = default;
    // GetPrivateProfileStringA into a buffer of bufferSize characters: the value, cut to
    // bufferSize - 1, or the default.
    virtual std::string GetString(const std::string& section, const std::string& key, const std::string& standard,
                                  const std::string& file, int bufferSize = 255) = 0;
    // WritePrivateProfileStringA: no key removes the whole section, no value removes the key.
    virtual bool WriteString(const std::string& section, const std::optional<std::string>& key,
                             const std::optional<std::string>& value, const std::string& file) = 0;
};

}  // namespace kes
