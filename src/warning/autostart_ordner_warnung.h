// The warning window's side of the autostart folder watcher: the row of "AutostartOrdner"
// and where its buttons lead. Its keys Ordnermeister and OrdnerAllUser select the folder a
// pass walks and never carry a warning: their rows are empty.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool AutostartOrdner(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void AutostartOrdner(Form3Fenster& f);
}  // namespace entfernen

inline constexpr KategorieZeile kAutostartOrdnerZeilen[] = {
    {Kategorie::Ordnermeister},
    {Kategorie::OrdnerAllUser},
    {.kategorie = Kategorie::AutostartOrdner,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::AutostartOrdner,
     .löschen = entfernen::AutostartOrdner,
     .später = später::Zeile2},
};

}  // namespace kes
