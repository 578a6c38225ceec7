// The warning window's side of the trusted sites watcher: the rows of "ToolBar" (machine)
// and "ToolBar1" (user) and where their buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool ToolBar(Form3Fenster& f);  // both keys
}  // namespace übernehmen

namespace entfernen {
void ToolBar(Form3Fenster& f);
void ToolBar1(Form3Fenster& f);
}  // namespace entfernen

inline constexpr KategorieZeile kVertrauenswürdigeSeitenZeilen[] = {
    {.kategorie = Kategorie::ToolBar,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ToolBar,
     .löschen = entfernen::ToolBar,
     .löschenZweimalRaus = true,
     .regDeleteFeld = 0,
     .später = später::Text0},
    // No deferral: the same warning comes again at the next cycle.
    {.kategorie = Kategorie::ToolBar1,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ToolBar,
     .löschen = entfernen::ToolBar1,
     .löschenZweimalRaus = true,
     .regDeleteFeld = 0},
};

}  // namespace kes
