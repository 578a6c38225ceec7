// The warning window's side of the shell open command watcher: the row of "HtaFile" and
// its one action.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace weitere {
// Image8, "Original": the expected open command written back, then raus.
void ShellBefehlOriginal(Form3Fenster& f);
}  // namespace weitere

inline constexpr KategorieZeile kShellBefehleZeilen[] = {
    {.kategorie = Kategorie::HtaFile,
     .knöpfe = {8},
     .originalText = "Original",
     .originalTipp = "Original Wert setzen",
     .später = später::Text3,
     .original = weitere::ShellBefehlOriginal},
};

}  // namespace kes
