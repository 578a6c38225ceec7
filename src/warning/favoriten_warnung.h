// The warning window's side of the favourites watcher: the rows of its three keys, which
// every action treats alike, and where their buttons lead.
#pragma once

#include <string>

#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool Favoriten(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
void Favoriten(Form3Fenster& f);
}  // namespace entfernen

// The file a favourites warning is about: the folder of Label1(1), which ends in "\", and
// the name of Label1(2). The watcher defers by this path, and it is the file to delete.
std::string FavoritenPfad(const Form3Fenster& f);

inline constexpr KategorieZeile kFavoritenZeilen[] = {
    {.kategorie = Kategorie::Favorit1,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
    {.kategorie = Kategorie::Favorit2,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
    {.kategorie = Kategorie::Favoriten,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
};

}  // namespace kes
