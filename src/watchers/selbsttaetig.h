// The steps the program takes on its own (a new autostart file or favourite removed, a start
// page or an open command put back): the backup of what goes comes first, the step only
// when the backup stands, and the journal's "auto" line after it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/sicherung.h"
#include "watchers/kontext.h"

namespace kes {

// An empty backup for a step of the program's own.
Sicherung SelbstSicherung(WächterKontext& k);
// Writes the backup: its name, or nullopt when it could not be written; then the step must
// not happen, and a balloon has told the user.
std::optional<std::string> SelbstSichern(WächterKontext& k, Sicherung& s);
// The removal of a file after its backup (an unreadable one stays, see UnlesbarGemeldet).
// SICHERUNG gets the backup's name.
bool DateiSelbstLöschen(WächterKontext& k, const std::string& pfad, std::string& sicherung);
// The journal's line of a step taken.
void SelbstJournal(WächterKontext& k, Kategorie kategorie, const std::string& ziel, const std::string& aktion,
                   const std::string& sicherung, std::vector<std::string> texte);

}  // namespace kes
