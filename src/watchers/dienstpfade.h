// The programs of the services, of any start type: a service that is new, or whose ImagePath
// has changed, warns; the services watcher of the program looks at new automatic services
// only. Off until the user switches it on. A new service goes with its key, a changed one
// gets its known program back.
#pragma once

#include "watchers/registry_orte.h"

namespace kes {

inline constexpr const char* kDienstpfadeDatei = "daten\\Dienstpfade.txt";
inline constexpr int kDienstpfadeBox = 46;

// True for a new service that starts by itself while the services watcher's box is on:
// that watcher warns of it already.
bool AutomatischerDienstGemeldet(WächterKontext& k, const OrtEintrag& e);

namespace orte {
// The services' key is one in both views.
inline constexpr RegistryOrt kDienstpfade_[] = {
    {kHkeyLocalMachine,
     "System\\CurrentControlSet\\Services",
     Ortsart::Unterschlüssel,
     {"ImagePath"},
     false,
     {},
     Klassenform::Keine,
     Rückweg::Original},
};
}  // namespace orte

inline constexpr OrteBeschreibung kDienstpfadeOrte{Kategorie::Dienstpfade, kDienstpfadeDatei,
                                                   "Ein Dienst wurde eingetragen oder sein Programm geändert.",
                                                   orte::kDienstpfade_, AutomatischerDienstGemeldet};

}  // namespace kes
