// The warning window's side of the process watcher: the row of "Prozesse" and where its
// buttons lead.
#pragma once

#include <string>

#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool Prozesse(Form3Fenster& f);
}  // namespace übernehmen

namespace später {
// The watcher asks by the process name, with case; the path on row 2 would never match.
std::string Zeile1(const Form3Fenster& f);
}  // namespace später

namespace weitere {
// Image2 of "Prozesse".
void ProzessTöten(Form3Fenster& f);
// The menu of Image1 for "Prozesse": 0 the process, 1 its maker, 2 this run only.
void ProzessZulassen(Form3Fenster& f, int index);
}  // namespace weitere

inline constexpr KategorieZeile kProzesseZeilen[] = {
    {.kategorie = Kategorie::Prozesse,
     .knöpfe = {1, 2},
     .übernehmen = übernehmen::Prozesse,
     .später = später::Zeile1,  // the name: the watcher asks by it
     .töten = weitere::ProzessTöten},
};

}  // namespace kes
