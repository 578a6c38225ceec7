// What the accept branches of several watchers share.
#pragma once

#include <cstdint>
#include <string>

namespace kes {

class Form3Fenster;
struct ListItem;

namespace übernehmen {

// The result of most accept log entries.
inline const std::string kOk = "< Übernommen OK >";

// FileLen: a file that has gone in the meantime ends the action in its error exit.
std::int64_t DateiLänge(Form3Fenster& f, const std::string& pfad);

// The first row of ListView4, the registry entry of the warning; an empty row when none.
const ListItem& ErsteRegistryzeile(const Form3Fenster& f);

}  // namespace übernehmen

}  // namespace kes
