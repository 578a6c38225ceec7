// The warning window's side of the dial-up watcher: the row of "DFÜ" and where its buttons
// lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool DFÜ(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void DFÜ(Form3Fenster& f);
}  // namespace entfernen

namespace weitere {
void DFÜMenü(Form3Fenster& f);  // Image9 of "DFÜ"
}  // namespace weitere

inline constexpr KategorieZeile kDfueZeilen[] = {
    {.kategorie = Kategorie::DFÜ,
     .knöpfe = {1, 3, 9},
     .übernehmen = übernehmen::DFÜ,
     .löschen = entfernen::DFÜ,
     .später = später::Label1_1,
     .infos = weitere::DFÜMenü},
};

}  // namespace kes
