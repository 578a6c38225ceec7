// Values of the registry read and written as raw bytes where their text form would lose
// something: the parts of a multi-string (REG_MULTI_SZ), which HiveOCX joins with blanks,
// and the names of all values of a key without the listing's length limit.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/seam/registry_api.h"

namespace kes {

// The parts of a multi-string value, empty parts dropped; none when the key or the value
// is missing or the value is of another type.
std::optional<std::vector<std::string>> MehrfachLesen(RegistryApi& reg, RegHandle root, const std::string& key,
                                                      const std::string& name);
// The value written anew as a multi-string of these parts; false when the key cannot be
// opened or the write fails. Nothing else of the key is touched.
bool MehrfachSchreiben(RegistryApi& reg, RegHandle root, const std::string& key, const std::string& name,
                       const std::vector<std::string>& teile);
// The names of all values of the key, in the registry's order; empty for a missing key. A
// key deleted in the middle of the walk ends it with the names read so far.
std::vector<std::string> AlleWertnamen(RegistryApi& reg, RegHandle root, const std::string& key);

}  // namespace kes
