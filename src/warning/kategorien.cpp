#include "warning/kategorien.h"

#include <cstddef>
#include <tuple>

#include "warning/activex_warnung.h"
#include "warning/autostart_ordner_warnung.h"
#include "warning/autostart_registry_warnung.h"
#include "warning/dfue_warnung.h"
#include "warning/dienste_warnung.h"
#include "warning/favoriten_warnung.h"
#include "warning/geplante_aufgaben_warnung.h"
#include "warning/hosts_warnung.h"
#include "warning/klassenlisten_warnung.h"
#include "warning/prozesse_warnung.h"
#include "warning/registry_orte_warnung.h"
#include "warning/shell_befehle_warnung.h"
#include "warning/sperren_warnung.h"
#include "warning/startseite_warnung.h"
#include "warning/systemordner_warnung.h"
#include "warning/vertrauenswuerdige_seiten_warnung.h"
#include "watchers/warnung.h"

namespace kes {

namespace {
// Keine is the key of no warning.
constexpr KategorieZeile kOhneWarnung[] = {{Kategorie::Keine}};

// The rows of the watchers one after another.
template <std::size_t... N>
constexpr auto Aneinander(const KategorieZeile (&... teile)[N]) {
    std::array<KategorieZeile, (N + ...)> alle{};
    std::size_t i = 0;
    auto anhängen = [&](const auto& teil) {
        for (const KategorieZeile& z : teil) alle[i++] = z;
    };
    (anhängen(teile), ...);
    return alle;
}

// One row per key, each watcher's rows from its warning, in the order of the keys.
// clang-format off
constexpr auto kTabelle = Aneinander(kOhneWarnung,
                                     kProzesseZeilen,
                                     kHostsZeilen,
                                     kFavoritenZeilen,
                                     kStartseiteZeilen,
                                     kDfueZeilen,
                                     kAutostartOrdnerZeilen,
                                     kAutostartRegistryZeilen,
                                     kSystemordnerZeilen,
                                     kKlassenlistenZeilen,
                                     kActiveXZeilen,
                                     kDiensteZeilen,
                                     kSperrenZeilen,
                                     kShellBefehleZeilen,
                                     kVertrauenswürdigeSeitenZeilen,
                                     kRegistryOrteZeilen,
                                     kGeplanteAufgabenZeilen,
                                     kDienstpfadeZeilen);
// clang-format on

static_assert(std::size(kTabelle) == kKategorieAnzahl, "one row for every category key");

constexpr bool InDerReihe() {
    for (int i = 0; i < kKategorieAnzahl; ++i)
        if (static_cast<int>(kTabelle[static_cast<std::size_t>(i)].kategorie) != i) return false;
    return true;
}
static_assert(InDerReihe(), "the rows stand in the order of the keys");

constexpr bool FelderImFenster() {
    for (const KategorieZeile& z : kTabelle)
        if (z.regDeleteFeld >= static_cast<int>(std::tuple_size_v<decltype(Warnung::Text1)>)) return false;
    return true;
}
static_assert(FelderImFenster(), "a row's REG DELETE field is one of the window's Text1 fields");
}  // namespace

const KategorieZeile& Zeile(Kategorie k) {
    return kTabelle[static_cast<std::size_t>(k)];
}

}  // namespace kes
