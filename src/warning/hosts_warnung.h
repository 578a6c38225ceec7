// The warning window's side of the hosts file watcher: the row of "HostsDatei" and where
// its buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool HostsDatei(Form3Fenster& f);
}  // namespace übernehmen

namespace weitere {
void HostsMenü(Form3Fenster& f);    // Image8 of "HostsDatei"
void HostsÖffnen(Form3Fenster& f);  // Image9 of "HostsDatei"
}  // namespace weitere

inline constexpr KategorieZeile kHostsZeilen[] = {
    {.kategorie = Kategorie::HostsDatei,
     .knöpfe = {1, 8, 9},
     .originalText = "Original",
     .originalTipp = "Original Grösse setzen",
     .infosText = "Öffnen",
     .übernehmen = übernehmen::HostsDatei,
     .später = später::Label1_1,
     .original = weitere::HostsMenü,
     .infos = weitere::HostsÖffnen},
};

}  // namespace kes
