#include "platform/win32/registry_win32.h"

#include <windows.h>

namespace kes::win32 {

namespace {
// The seam numbers the predefined roots 0x80000000..6; on 64-bit Windows their HKEY values
// are those numbers sign-extended.
HKEY Key(RegHandle h) {
    if (h >= 0x80000000u && h <= 0x80000006u)
        return reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG_PTR>(static_cast<LONG>(h))));
    return reinterpret_cast<HKEY>(h);
}
RegHandle Handle(HKEY k) {
    return reinterpret_cast<RegHandle>(k);
}
DWORD* Dw(std::uint32_t* p) {
    return reinterpret_cast<DWORD*>(p);
}
}  // namespace

long Win32Registry::OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) {
    HKEY k = nullptr;
    const LONG rc = ::RegOpenKeyExA(Key(root), subkey.c_str(), 0, sam, &k);
    if (rc == ERROR_SUCCESS) *out = RegKey(*this, Handle(k));
    return rc;
}

long Win32Registry::CreateKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) {
    HKEY k = nullptr;
    const LONG rc = ::RegCreateKeyExA(Key(root), subkey.c_str(), 0, nullptr, 0, sam, nullptr, &k, nullptr);
    if (rc == ERROR_SUCCESS) *out = RegKey(*this, Handle(k));
    return rc;
}

long Win32Registry::CloseKey(RegHandle key) {
    return ::RegCloseKey(Key(key));
}

long Win32Registry::EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) {
    FILETIME zeit;
    return ::RegEnumKeyExA(Key(key), index, name, Dw(nameLen), nullptr, nullptr, nullptr, &zeit);
}

long Win32Registry::EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) {
    return ::RegEnumKeyA(Key(key), index, name, cb);
}

long Win32Registry::EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen,
                              std::uint32_t* type, std::uint8_t* data, std::uint32_t* cbData) {
    return ::RegEnumValueA(Key(key), index, name, Dw(nameLen), nullptr, Dw(type), data, Dw(cbData));
}

long Win32Registry::QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                                 std::uint32_t* cbData) {
    return ::RegQueryValueExA(Key(key), name, nullptr, Dw(type), data, Dw(cbData));
}

long Win32Registry::SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                               std::uint32_t cbData) {
    return ::RegSetValueExA(Key(key), name, 0, type, data, cbData);
}

long Win32Registry::DeleteValue(RegHandle key, const char* name) {
    return ::RegDeleteValueA(Key(key), name);
}

long Win32Registry::DeleteKey(RegHandle key, const std::string& subkey, std::uint32_t view) {
    return ::RegDeleteKeyExA(Key(key), subkey.c_str(), view, 0);
}

bool Win32Registry::ZweiAnsichten() {
    // Only a 64-bit Windows has a folder for its 32-bit programs; elsewhere the call fails.
    char ordner[MAX_PATH];
    return ::GetSystemWow64DirectoryA(ordner, sizeof ordner) != 0;
}

}  // namespace kes::win32
