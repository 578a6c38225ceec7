// Rewrites a file whole so that a reader, or a start after the program was killed, finds
// either the old file or the new one and never a part of it: the text goes to a scratch
// file in the same folder, which then takes the old file's place in one step. The scratch
// file has a name that no reader of the program asks for.
#pragma once

#include <string>

#include "platform/seam/file_api.h"

namespace kes {

// The scratch file beside PFAD.
std::string ErsatzName(const std::string& pfad);
// False when the file could not be written; the old one then stays as it was, and no
// scratch file is left. A scratch file left by an earlier crash is written over.
bool DateiErsetzen(FileApi& files, const std::string& pfad, const std::string& inhalt);

}  // namespace kes
