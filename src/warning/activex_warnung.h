// The warning window's side of the ActiveX watcher: the row of "ActiveX" and where its
// buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool ActiveX(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void ActiveX(Form3Fenster& f);
}  // namespace entfernen

inline constexpr KategorieZeile kActiveXZeilen[] = {
    {.kategorie = Kategorie::ActiveX,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ActiveX,
     .löschen = entfernen::ActiveX,
     .später = später::Zeile2},
};

}  // namespace kes
