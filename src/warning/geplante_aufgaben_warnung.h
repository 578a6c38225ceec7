// The warning window's side of the scheduled tasks watcher: the row of "GeplanteAufgaben"
// and where its buttons lead. The watcher fills the fields: 0 the task file, 1 the program
// it starts with its arguments.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool GeplanteAufgabe(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
// Removes the task file alone, after its backup.
void GeplanteAufgabe(Form3Fenster& f);
}  // namespace entfernen

// Deferred by the file, as the watcher asks: a deferred task whose command changes stays
// deferred.
inline constexpr KategorieZeile kGeplanteAufgabenZeilen[] = {
    {.kategorie = Kategorie::GeplanteAufgaben,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::GeplanteAufgabe,
     .löschen = entfernen::GeplanteAufgabe,
     .später = später::Text0},
};

}  // namespace kes
