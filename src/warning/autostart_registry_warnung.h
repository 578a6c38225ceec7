// The warning window's side of the autostart registry watcher: the row of
// "AutostartRegistry" and where its buttons lead.
#pragma once

#include <string>

#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool AutostartRegistry(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void AutostartRegistry(Form3Fenster& f);
}  // namespace entfernen

namespace später {
// Without the data: a deferred value that changes stays deferred.
std::string Registryzeile(const Form3Fenster& f);
}  // namespace später

inline constexpr KategorieZeile kAutostartRegistryZeilen[] = {
    {.kategorie = Kategorie::AutostartRegistry,
     .knöpfe = {1, 3},
     .löschenText = "Registry löschen",
     .übernehmen = übernehmen::AutostartRegistry,
     .löschen = entfernen::AutostartRegistry,
     .später = später::Registryzeile},
};

}  // namespace kes
