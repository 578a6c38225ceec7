#include "platform/win32/profile_win32.h"

#include <windows.h>

#include <vector>

namespace kes::win32 {

std::string Win32Profiles::GetString(const std::string& section, const std::string& key, const std::string& standard,
                                     const std::string& file, int bufferSize) {
    std::vector<char> puffer(static_cast<std::size_t>(bufferSize > 0 ? bufferSize : 1), '\0');
    const DWORD n = ::GetPrivateProfileStringA(section.c_str(), key.c_str(), standard.c_str(), puffer.data(),
                                               static_cast<DWORD>(puffer.size()), file.c_str());
    return std::string(puffer.data(), n);
}

bool Win32Profiles::WriteString(const std::string& section, const std::optional<std::string>& key,
                                const std::optional<std::string>& value, const std::string& file) {
    return ::WritePrivateProfileStringA(section.c_str(), key ? key->c_str() : nullptr, value ? value->c_str() : nullptr,
                                        file.c_str()) != FALSE;
}

}  // namespace kes::win32
