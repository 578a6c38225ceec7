// The warning window's side of the two lock watchers: the rows of "RegeditDeaktiviert"
// and "TaskmanagerDeaktiviert" and their one action.
#pragma once

#include "warning/kategorien.h"

namespace kes {

class Form3Fenster;

namespace weitere {
// Image8, "Freigeben": the policy lock removed, then raus.
void SperreFreigeben(Form3Fenster& f);
}  // namespace weitere

inline constexpr KategorieZeile kSperrenZeilen[] = {
    // The lock watchers show "Freigeben" themselves and hide "Später".
    {.kategorie = Kategorie::RegeditDeaktiviert, .original = weitere::SperreFreigeben},
    {.kategorie = Kategorie::TaskmanagerDeaktiviert, .original = weitere::SperreFreigeben},
};

}  // namespace kes
