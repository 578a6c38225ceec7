// The REG DELETE command lines that the delete action of a warning starts. reg.exe reads
// its arguments as the C runtime splits a command line: at blanks and tabs outside quotes,
// with quotes and the backslashes before them as escapes. A name from the registry goes at
// the end of the key argument, so it must not split that argument, end it, or name the
// parent key.
#pragma once

#include <string>

namespace kes {

// Whether the name can end a key argument and still name just that key: not empty (that
// would be the parent), no quote (it would end the argument), no backslash (another key
// below), no control character but the tab (a NUL would cut the line before its switches).
bool RegNameSicher(const std::string& name);

// "REG DELETE " + pfad + name + " " + schalter. As it stands for a name without blanks or
// tabs; else the key argument in quotes, so that the name stays in it whole. The name must
// pass RegNameSicher.
std::string RegDelete(const std::string& pfad, const std::string& name, const std::string& schalter);

// The message that refuses a delete whose name cannot go on the command line safely.
std::string RegNameUnsicherText(const std::string& name);

}  // namespace kes
