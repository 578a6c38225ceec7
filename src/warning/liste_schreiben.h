// Rewrites a data file whole from its in-memory list: deleted when it exists, then printed
// anew, one entry a line. A file is never edited in place.
#pragma once

#include <string>
#include <vector>

namespace kes {

class Programm;

// Returns the last line printed: the scratch text some log entries quote.
std::string ListeSchreiben(Programm& prg, const std::string& datei, const std::vector<std::string>& zeilen);

}  // namespace kes
