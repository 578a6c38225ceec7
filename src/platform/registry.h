// The listings of the registry: which subkeys and values a key holds, walked with the
// platform's enumeration calls while pending window messages run between the steps. The
// walks keep the buffer sizes and access masks they were designed with, because the
// watchers' baselines depend on what these limits let through: EnumSubkeys and EnumValues
// end with the entry of the failing call, GetValueList drops values of 256 bytes or more,
// and the services walk gives up above 3000 subkeys.
#pragma once

#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

struct ListView;

// The root name of a predefined handle ("HKEY_LOCAL_MACHINE"); empty for any other handle.
std::string RootName(RegHandle root);
// The hive code of HiveOCX for a predefined handle; -1 for any other handle.
int HiveVonHandle(RegHandle root);

// One column of EnumValues: the value's type as decimal text and its name.
struct WertEintrag {
    std::string Typ;
    std::string Name;
};

// One row of GetValueList: name and data as text.
struct WertDaten {
    std::string Name;
    std::string Daten;
};

// The module Registry. It reads the current category key live, since the key decides the
// services cut-off and whether GetValueList adds rows to ListView33 of the window Alarm.
class Registry {
public:
    Registry(Plattform& p, const std::string& kategorie, ListView* listView33 = nullptr)
        : p_(p), kategorie_(kategorie), listView33_(listView33) {}

    // RegOpenKeyExA with all access; the return code is dropped, so a failed open leaves
    // the handle as it was (0 when the caller started from 0).
    void OpenKey(RegHandle root, const std::string& key, RegHandle& handle);
    // True when RegCloseKey returned 0.
    bool CloseKey(RegHandle handle);

    // Subkey names; the last entry is that of the failing call (2000 NULs). With the
    // category "Dienste" a walk past 3000 entries gives no entries at all, and so does a
    // walk on a handle the platform refuses (it would never reach the end).
    std::vector<std::string> EnumSubkeys(RegHandle handle);
    // Types and names of the values, the last column again from the failing call.
    std::vector<WertEintrag> EnumValues(RegHandle handle);

    // Opens with all access whatever the outcome, walks, closes.
    std::vector<std::string> GetSubkeys(RegHandle root, const std::string& key);
    // The names of EnumValues, surplus entry included.
    std::vector<std::string> GetValueNames(RegHandle root, const std::string& key);
    // Opens with query rights only. Only the last value survives in the result (the array
    // is redimensioned each round); with the category "AutostartRegistry" every value of
    // HKLM, HKCU and HKU adds a row to ListView33, which is the real result. A missing key
    // gives an empty result and no row.
    std::vector<WertDaten> GetValueList(RegHandle root, const std::string& key);

private:
    Plattform& p_;
    const std::string& kategorie_;
    ListView* listView33_;
};

// Subkey names, opened with enumerate rights only: exactly one entry per subkey, or one
// empty entry when there are none or the key cannot be opened.
std::vector<std::string> ListSubkeys(Plattform& p, RegHandle root, const std::string& key);

}  // namespace kes
