// The warning window's side of the service watcher: the row of "Dienste" and where its
// buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool Dienste(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void Dienste(Form3Fenster& f);
}  // namespace entfernen

namespace weitere {
void DiensteÖffnen(Form3Fenster& f);  // Image9 of "Dienste"
}  // namespace weitere

inline constexpr KategorieZeile kDiensteZeilen[] = {
    {.kategorie = Kategorie::Dienste,
     .knöpfe = {1, 3, 9},
     .infosText = "Service-Dienste",
     .übernehmen = übernehmen::Dienste,
     .löschen = entfernen::Dienste,
     .regDeleteFeld = 0,
     .später = später::Text3,
     .infos = weitere::DiensteÖffnen},
};

}  // namespace kes
