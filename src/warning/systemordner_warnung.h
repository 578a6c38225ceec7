// The warning window's side of the Windows and system folder watchers, which share the
// key "WindowsDatei": its row and where its buttons lead.
#pragma once

#include "warning/aufschub.h"
#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool WindowsDatei(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void WindowsDatei(Form3Fenster& f);
}  // namespace entfernen

namespace weitere {
void Ausnahmeliste(Form3Fenster& f);  // Image4 of "WindowsDatei"
void NaGut(Form3Fenster& f);          // Image5 of "WindowsDatei"
}  // namespace weitere

inline constexpr KategorieZeile kSystemordnerZeilen[] = {
    // The file watchers show their buttons themselves, by the event.
    {.kategorie = Kategorie::WindowsDatei,
     .übernehmen = übernehmen::WindowsDatei,
     .löschen = entfernen::WindowsDatei,
     .später = später::Text0,
     .ausnahme = weitere::Ausnahmeliste,
     .nagut = weitere::NaGut},
};

}  // namespace kes
