// The raw registry calls the program makes, with the Win32 contracts kept: return codes are
// Win32 error codes (0 success, 2 not found, 234 more data, 259 no more items, 1018 the
// key was deleted while open), names and
// data are ANSI bytes, and buffers are the caller's with the sizes the caller announces.
// A 64-bit Windows keeps two views of the registry: 32-bit programs write below
// HKLM\Software\Wow6432Node and the 32-bit Classes\CLSID without knowing it. Every open,
// create and delete names the view it goes to in its access mask; without a view flag it is
// the program's own, the 64-bit one.
#pragma once

#include <cstdint>
#include <string>

#include "platform/seam/seam_handle.h"

namespace kes {

using RegHandle = std::uintptr_t;

class RegistryApi;
// An opened key, closed when its owner goes.
using RegKey = SeamHandle<RegistryApi>;

inline constexpr RegHandle kHkeyClassesRoot = 0x80000000u;
inline constexpr RegHandle kHkeyCurrentUser = 0x80000001u;
inline constexpr RegHandle kHkeyLocalMachine = 0x80000002u;
inline constexpr RegHandle kHkeyUsers = 0x80000003u;
inline constexpr RegHandle kHkeyPerformanceData = 0x80000004u;
inline constexpr RegHandle kHkeyCurrentConfig = 0x80000005u;
inline constexpr RegHandle kHkeyDynData = 0x80000006u;

inline constexpr long kErrorSuccess = 0;
inline constexpr long kErrorFileNotFound = 2;
inline constexpr long kErrorAccessDenied = 5;
inline constexpr long kErrorInvalidHandle = 6;
inline constexpr long kErrorMoreData = 234;
inline constexpr long kErrorNoMoreItems = 259;
inline constexpr long kErrorKeyDeleted = 1018;

inline constexpr std::uint32_t kRegNone = 0;
inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegExpandSz = 2;
inline constexpr std::uint32_t kRegBinary = 3;
inline constexpr std::uint32_t kRegDword = 4;
inline constexpr std::uint32_t kRegMultiSz = 7;

inline constexpr std::uint32_t kKeyQueryValue = 0x0001;
inline constexpr std::uint32_t kKeyEnumerateSubKeys = 0x0008;
inline constexpr std::uint32_t kKeyRead = 0x20019;
inline constexpr std::uint32_t kKeyAllAccess = 0xF003F;
inline constexpr std::uint32_t kKeyWow64_64Key = 0x0100;
inline constexpr std::uint32_t kKeyWow64_32Key = 0x0200;
// No view flag: the program's own view.
inline constexpr std::uint32_t kAnsichtNativ = 0;

// The view a caller reads: the program's own (on a 32-bit Windows the only one), or the one
// that 32-bit programs see on a 64-bit Windows.
enum class Ansicht { Nativ, Bit32 };

// The view's flag, to be or-ed into an access mask; a 32-bit Windows ignores it.
constexpr std::uint32_t AnsichtFlag(Ansicht a) {
    return a == Ansicht::Bit32 ? kKeyWow64_32Key : kAnsichtNativ;
}

class RegistryApi {
public:
    virtual ~RegistryApi() = default;

    // RegOpenKeyExA. On failure *out is left unchanged. ROOT is a predefined key or an
    // open one's Get(); sam holds the rights and the view.
    virtual long OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) = 0;
    // RegCreateKeyExA with the rights and view of sam; opens the key when it exists already.
    // On failure *out is left unchanged.
    virtual long CreateKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) = 0;
    // RegEnumKeyExA: *nameLen is the buffer size in, the name length without NUL out.
    // A buffer too small gives 234 and leaves the buffer's content undefined.
    virtual long EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) = 0;
    // RegEnumKeyA: cb is the buffer size; the name comes NUL-terminated.
    virtual long EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) = 0;
    // RegEnumValueA. type, data and cbData may be null. With data null only the size is told.
    virtual long EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen, std::uint32_t* type,
                           std::uint8_t* data, std::uint32_t* cbData) = 0;
    // RegQueryValueExA. name null or "" is the default value.
    virtual long QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                              std::uint32_t* cbData) = 0;
    virtual long SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                            std::uint32_t cbData) = 0;
    virtual long DeleteValue(RegHandle key, const char* name) = 0;
    // RegDeleteKeyExA: view is the flag of the view the key is looked up in. Fails with 5
    // on a key that still has subkeys.
    virtual long DeleteKey(RegHandle key, const std::string& subkey, std::uint32_t view) = 0;
    // Whether the machine keeps a second, 32-bit view: true on a 64-bit Windows.
    virtual bool ZweiAnsichten() = 0;

protected:
    // RegCloseKey, called by the key's owner only.
    virtual long CloseKey(RegHandle key) = 0;

private:
    friend RegKey;
    long CloseOwned(RegHandle key) { return CloseKey(key); }
};

}  // namespace kes
