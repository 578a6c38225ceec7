// The warning window's side of the watchers of further registry places: one row per key,
// all leading to the same branches, which find the watcher by the key.
#pragma once

#include <string>

#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace übernehmen {
bool RegistryOrt(Form3Fenster& f);
}  // namespace übernehmen

namespace entfernen {
// Removes exactly what was found: the value, the one part of a multi-string, or the subkey,
// each after its backup.
void RegistryOrt(Form3Fenster& f);
}  // namespace entfernen

namespace weitere {
// "Original" for a value Windows needs: the known data back, never a delete.
void RegistryOrtOriginal(Form3Fenster& f);
}  // namespace weitere

namespace später {
// The entry without its data, as the watcher asks: a deferred value that changes stays
// deferred; a part of a multi-string is deferred by itself.
std::string RegistryOrt(const Form3Fenster& f);
}  // namespace später

inline constexpr KategorieZeile RegistryOrtZeile(Kategorie k, Aktion original = nullptr) {
    return {.kategorie = k,
            .knöpfe = {1, 3},
            .löschenText = "Registry löschen",
            .übernehmen = übernehmen::RegistryOrt,
            .löschen = entfernen::RegistryOrt,
            .später = später::RegistryOrt,
            .original = original};
}

// A row whose values are put back or released, never deleted.
inline constexpr KategorieZeile RegistryOrtZurückZeile(Kategorie k) {
    KategorieZeile z = RegistryOrtZeile(k, weitere::RegistryOrtOriginal);
    z.knöpfe = {1, 0};
    z.löschen = nullptr;
    return z;
}

inline constexpr KategorieZeile kRegistryOrteZeilen[] = {
    // Winlogon has values Windows needs, which go back instead of being deleted.
    RegistryOrtZeile(Kategorie::Winlogon, weitere::RegistryOrtOriginal),
    RegistryOrtZeile(Kategorie::AppInitDLLs),
    RegistryOrtZeile(Kategorie::ImageFileExecution),
    RegistryOrtZeile(Kategorie::PoliciesRun),
    RegistryOrtZeile(Kategorie::ActiveSetup),
    RegistryOrtZeile(Kategorie::BootSicherheit),
    RegistryOrtZeile(Kategorie::Winsock),
    RegistryOrtZeile(Kategorie::ShellErweiterungen),
    RegistryOrtZeile(Kategorie::IEToolbar),
    // A text of the browser goes back to its original, a lock is released, a file type's
    // class repaired: none of them is deleted.
    RegistryOrtZurückZeile(Kategorie::Browsereinstellungen),
    RegistryOrtZurückZeile(Kategorie::WeitereSperren),
    RegistryOrtZurückZeile(Kategorie::Dateitypen),
};

// The services' programs: a new service is deleted with its key, a changed one gets its
// known program back.
inline constexpr KategorieZeile kDienstpfadeZeilen[] = {
    RegistryOrtZeile(Kategorie::Dienstpfade, weitere::RegistryOrtOriginal),
};

}  // namespace kes
