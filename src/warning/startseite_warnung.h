// The warning window's side of the start page watcher: the row of "StartPage" and where
// its buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool StartPage(Form3Fenster& f);
}  // namespace übernehmen

namespace weitere {
// Image8 of "StartPage".
void StartPageOriginal(Form3Fenster& f);
}  // namespace weitere

inline constexpr KategorieZeile kStartseiteZeilen[] = {
    {.kategorie = Kategorie::StartPage,
     .knöpfe = {1, 8},
     .originalText = "Original",
     .originalTipp = "Original Wert setzen",
     .übernehmen = übernehmen::StartPage,
     .später = später::Label1_1,
     .original = weitere::StartPageOriginal},
};

}  // namespace kes
