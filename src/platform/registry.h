// The listings of the registry: which subkeys and values a key holds, walked with the
// platform's enumeration calls while pending window messages run between the steps. The
// walks keep the buffer sizes and access masks they were designed with, because the
// watchers' baselines depend on what these limits let through: EnumSubkeys and EnumValues
// end with the entry of the failing call, GetValueList drops values of 256 bytes or more,
// and a subkey walk under the category key "Dienste" gives up past a fixed count.
// Each opens in the view it is given: the program's own unless the caller asks for the one
// of the 32-bit programs.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "common/kategorie.h"
#include "platform/seam/plattform.h"

namespace kes {

// The root name of a predefined handle ("HKEY_LOCAL_MACHINE"); empty for any other handle.
std::string RootName(RegHandle root);
// The hive code of HiveOCX for a predefined handle; -1 for any other handle.
int HiveVonHandle(RegHandle root);

// The path by which the program's own view reaches the key a 32-bit program means by KEY:
// below HKLM the first component gets Wow6432Node after it ("SOFTWARE\\Wow6432Node\\..."),
// below HKEY_CLASSES_ROOT Wow6432Node goes in front. What a user finds in a registry editor.
std::string Pfad32(RegHandle root, const std::string& key);
// Whether a path goes through a Wow6432Node component: the 32-bit form of a place.
bool IstPfad32(const std::string& key);
// The paths a watcher reads for one place, in this order: the place itself, and on a machine
// with two views its 32-bit form after it. Both are read in the program's own view.
std::vector<std::string> BeideAnsichten(Plattform& p, RegHandle root, const std::string& key);

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

// Beyond this many entries a subkey walk under the key "Dienste" gives up: the guard
// against a runaway enumeration of the services. The key stays after the services watcher
// until another sets its own, so whatever walks meanwhile has the same bound.
inline constexpr std::size_t kDiensteGrenze = 3000;

// The module Registry.
class Registry {
public:
    explicit Registry(Plattform& p) : p_(p) {}

    // RegOpenKeyExA with all access; the return code is dropped, so a failed open leaves
    // the handle as it was (empty when the caller started from an empty one).
    void OpenKey(RegHandle root, const std::string& key, RegKey& handle, Ansicht ansicht = Ansicht::Nativ);
    // Closes now: true when RegCloseKey returned 0.
    bool CloseKey(RegKey& handle);

    // Subkey names; the last entry is that of the failing call (2000 NULs). The current
    // category key is the process-wide one, read at every round: while it is "Dienste" a
    // walk past kDiensteGrenze entries gives no entries at all, and so does a walk on a
    // handle the platform refuses (it would never reach the end). These two walk a key
    // the caller holds, with the messages running between the rounds; the Get... listings
    // below read with the key open and let the messages run after it is closed.
    std::vector<std::string> EnumSubkeys(RegHandle handle, const Kategorie& kategorieschlüssel);
    // Types and names of the values, the last column again from the failing call.
    std::vector<WertEintrag> EnumValues(RegHandle handle);

    // Opens with all access whatever the outcome, walks, closes.
    std::vector<std::string> GetSubkeys(RegHandle root, const std::string& key, const Kategorie& kategorieschlüssel,
                                        Ansicht ansicht = Ansicht::Nativ);
    // The names of EnumValues, surplus entry included.
    std::vector<std::string> GetValueNames(RegHandle root, const std::string& key, Ansicht ansicht = Ansicht::Nativ);
    // Opens with query rights only. Only the last value survives in the result (the array
    // is redimensioned each round); every value is also handed to zeile as it is read,
    // which is the real result for the caller that lists rows. A missing key gives an empty
    // result and no call.
    std::vector<WertDaten> GetValueList(RegHandle root, const std::string& key,
                                        const std::function<void(const WertDaten&)>& zeile = {},
                                        Ansicht ansicht = Ansicht::Nativ);

private:
    std::vector<std::string> Unterschlüssel(RegHandle handle, const Kategorie& kategorieschlüssel,
                                            const std::function<void()>& pumpen);
    std::vector<WertEintrag> Werte(RegHandle handle, const std::function<void()>& pumpen);
    void Nachholen(int pumpen);

    Plattform& p_;
};

// Subkey names, opened with enumerate rights only: exactly one entry per subkey, or one
// empty entry when there are none or the key cannot be opened.
std::vector<std::string> ListSubkeys(Plattform& p, RegHandle root, const std::string& key,
                                     Ansicht ansicht = Ansicht::Nativ);

}  // namespace kes
