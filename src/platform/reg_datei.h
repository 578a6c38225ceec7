// Registry data as a .reg file in the ANSI form regedit writes and reads ("REGEDIT4"): the
// backup of what an action removes, and the way to put it back byte for byte. Values keep
// their type and their bytes exactly; a string is written as text only when the text gives
// back the same bytes, otherwise as hex of its type.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/seam/registry_api.h"

namespace kes {

struct RegWert {
    std::string name;  // empty: the key's default value
    std::uint32_t typ = kRegSz;
    std::string daten;  // the raw bytes
};

// One key with the values saved of it; a key saved whole has a section for itself and one
// for every key below it, values or not.
struct RegAbschnitt {
    std::string pfad;  // with the root's name: "HKEY_LOCAL_MACHINE\SOFTWARE\..."
    std::vector<RegWert> werte;
};

// The root handle and the path below it of a full key path; nullopt for an unknown root.
std::optional<std::pair<RegHandle, std::string>> RegPfadTeilen(const std::string& pfad);

// One value, or nothing when it is missing. NAME empty is the default value.
std::vector<RegAbschnitt> RegWertLesen(RegistryApi& reg, RegHandle root, const std::string& key,
                                       const std::string& name);
// A key with all values and keys below it, or nothing when it is missing. A subkey that
// vanishes during the walk is left out.
std::vector<RegAbschnitt> RegBaumLesen(RegistryApi& reg, RegHandle root, const std::string& key);

// The file's text, CR LF.
std::string RegDateiText(const std::vector<RegAbschnitt>& abschnitte);
// The sections of such a file; nullopt when the text is no such file or a line is garbled.
std::optional<std::vector<RegAbschnitt>> RegDateiLesen(const std::string& text);

// What of the sections stands in the registry now: a value of the same name, or for a
// section without values the key itself. Empty when a restore overwrites nothing.
std::vector<std::string> RegVorhanden(RegistryApi& reg, const std::vector<RegAbschnitt>& abschnitte);
// Creates every key and writes every value; false at the first failure.
bool RegEinspielen(RegistryApi& reg, const std::vector<RegAbschnitt>& abschnitte);

}  // namespace kes
