// reg.exe's DELETE as the platform runs it from a command line: the line is split into
// arguments as the C runtime splits it (blanks and tabs outside quotes; quotes and the
// backslashes before them as escapes), and "REG DELETE key [/v name | /ve | /va] [/f]" is
// carried out on the registry. Anything else in the line (a second key, an unknown switch
// such as "/v/f", no "/f", which would ask and find no answer) changes nothing.
#pragma once

#include <string>
#include <vector>

#include "platform/seam/registry_api.h"

namespace kes::fake {

// The arguments of a command line, as the C runtime's startup code gives them to main.
std::vector<std::string> Befehlsargumente(const std::string& zeile);

// Runs the line if it is a REG DELETE; true when it changed the registry.
bool RegDeleteAusführen(RegistryApi& registry, const std::string& zeile);

}  // namespace kes::fake
