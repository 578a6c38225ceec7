// Rewrites a data file whole from its in-memory list, one entry a line. A file is never
// edited in place, and a crash while it is written leaves the old list.
#pragma once

#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

enum class Schreibfehler { Melden, Übergehen };

// Returns the last line printed: the scratch text some log entries quote. A file that
// cannot be written throws Fehler 75 for the caller's error exit, unless the caller passes
// such errors over.
std::string ListeSchreiben(Plattform& p, const std::string& programmordner, const std::string& datei,
                           const std::vector<std::string>& zeilen, Schreibfehler fehler = Schreibfehler::Melden);

}  // namespace kes
