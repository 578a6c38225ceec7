// The module dfü: the default phone book of remote access as the dial-up watcher and the
// warning window use it. The list of entry names, the numbers of one entry, deleting one,
// and its edit dialog. Return codes are the only failure signal; nothing here speaks.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

// The entry names; nullopt when the enumeration failed (more than 256 entries among it).
std::optional<std::vector<std::string>> DFUEintraege(Plattform& p);

// The country code ("" for 0), the area code and the local number of an entry; false,
// with the texts left as they were, when the entry cannot be read.
bool DFUEigenschaften(Plattform& p, const std::string& name, std::string& landeskennzahl, std::string& vorwahl,
                      std::string& nummer);

// True when the platform removed the entry.
bool DFULoeschen(Plattform& p, const std::string& name);

// Opens the platform's edit dialog of the entry over the given window (0: none).
void DFUBearbeiten(Plattform& p, const std::string& name, std::uintptr_t fenster);

}  // namespace kes
