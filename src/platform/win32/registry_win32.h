// The registry seam on the real Win32 registry.
#pragma once

#include "platform/seam/registry_api.h"

namespace kes::win32 {

class Win32Registry : public RegistryApi {
public:
    long OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) override;
    long CreateKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) override;
    long EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) override;
    long EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) override;
    long EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen, std::uint32_t* type,
                   std::uint8_t* data, std::uint32_t* cbData) override;
    long QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                      std::uint32_t* cbData) override;
    long SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                    std::uint32_t cbData) override;
    long DeleteValue(RegHandle key, const char* name) override;
    long DeleteKey(RegHandle key, const std::string& subkey, std::uint32_t view) override;
    bool ZweiAnsichten() override;

protected:
    long CloseKey(RegHandle key) override;
};

}  // namespace kes::win32
