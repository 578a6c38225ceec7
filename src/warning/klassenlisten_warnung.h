// The warning window's side of the class list watcher: the rows of "BHO", "ShellService",
// "TaskScheduler" and "URLSearchHooks" and where their buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool URLSearchHooks(Form3Fenster& f);
bool KlassenIni(Form3Fenster& f);  // BHO, ShellService, TaskScheduler
}  // namespace übernehmen

namespace später {
// The deferred text of Text1(0) or Text1(1), marked as the watcher marks an entry of the
// 32-bit view.
std::string Klasse0(const Form3Fenster& f);
std::string Klasse1(const Form3Fenster& f);
}  // namespace später

namespace entfernen {
void URLSearchHooks(Form3Fenster& f);
void TaskScheduler(Form3Fenster& f);
void ShellService(Form3Fenster& f);
void BHO(Form3Fenster& f);
}  // namespace entfernen

inline constexpr KategorieZeile kKlassenlistenZeilen[] = {
    {.kategorie = Kategorie::BHO,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::BHO,
     .regDeleteFeld = 0,
     .später = später::Klasse0},
    {.kategorie = Kategorie::ShellService,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::ShellService,
     .regDeleteFeld = 1,
     .später = später::Klasse0},
    {.kategorie = Kategorie::TaskScheduler,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::TaskScheduler,
     .regDeleteFeld = 0,
     .später = später::Klasse1},
    {.kategorie = Kategorie::URLSearchHooks,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::URLSearchHooks,
     .löschen = entfernen::URLSearchHooks,
     .löschenZweimalRaus = true,
     .regDeleteFeld = 0,
     .später = später::Text0},
};

}  // namespace kes
