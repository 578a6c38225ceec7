// The registry component HiveOCX: single values and keys by hive code (0 HKEY_CLASSES_ROOT
// to 6 HKEY_DYN_DATA), text in and text out, and no error for what does not exist. The
// default value of a key is named by one NUL character; the empty name means the same.
#pragma once

#include <string>

#include "platform/seam/registry_api.h"

namespace kes {

// The predefined handle of a hive code; 0 for a code outside 0..6.
RegHandle HandleVonHive(int hive);

class HiveOCX {
public:
    explicit HiveOCX(RegistryApi& reg) : reg_(reg) {}

    // The value's data as text: strings without trailing NULs, numbers as decimal digits.
    // Empty for a missing key or value.
    std::string ReadValue(int hive, const std::string& key, const std::string& name);
    // Writes a string value, creating key and value if need be.
    void WriteValue(int hive, const std::string& key, const std::string& name, const std::string& data);
    void DeleteValue(int hive, const std::string& key, const std::string& name);
    bool KeyExists(int hive, const std::string& key);
    bool ValueExists(int hive, const std::string& key, const std::string& name);

private:
    RegistryApi& reg_;
};

}  // namespace kes
