// The registry component HiveOCX: single values and keys by hive code (0 HKEY_CLASSES_ROOT
// to 6 HKEY_DYN_DATA), text in and text out, and no error for what does not exist. The
// default value of a key is named by one NUL character; the empty name means the same.
#pragma once

#include <cstdint>
#include <string>

#include "platform/seam/registry_api.h"

namespace kes {

// The predefined handle of a hive code; 0 for a code outside 0..6.
RegHandle HandleVonHive(int hive);

class HiveOCX {
public:
    explicit HiveOCX(RegistryApi& reg) : reg_(reg) {}

    // The value's data as text: strings without trailing NULs (not expanded), DWORD and
    // QWORD numbers as decimal digits, multi-strings joined by one blank, anything else as
    // hex byte pairs separated by blanks ("01 a0 ff"). Empty for a missing key or value.
    std::string ReadValue(int hive, const std::string& key, const std::string& name);
    // The second reading beside a listing's own: the same text as ReadValue, without the
    // listing's 255-byte limit. Key and name are taken by reference and left as they are.
    std::string ReadValueText(int hive, std::string& key, std::string& name);
    // Writes a string value, creating key and value if need be; a value of another type
    // becomes a string value.
    void WriteValue(int hive, const std::string& key, const std::string& name, const std::string& data);
    void DeleteValue(int hive, const std::string& key, const std::string& name);
    // Removes one key; a key that still has subkeys stays.
    void DeleteKey(int hive, const std::string& key);
    // Removes a key with everything below it. Takes the predefined handle, not the code.
    void DeleteKeyTree(std::int32_t root, const std::string& key);
    bool KeyExists(int hive, const std::string& key);
    bool ValueExists(int hive, const std::string& key, const std::string& name);

    // One key opened once for several reads: the same answers as ReadValue and ValueExists
    // give for it, each of which opens the key anew.
    class Offen {
    public:
        Offen(HiveOCX& ocx, int hive, const std::string& key);
        std::string ReadValue(const std::string& name);
        bool ValueExists(const std::string& name);

    private:
        RegistryApi& reg_;
        RegKey k_;
    };

private:
    void Baum(RegHandle root, const std::string& key, int tiefe);
    RegistryApi& reg_;
};

}  // namespace kes
