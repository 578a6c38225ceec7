#include "warning/kategorien.h"

#include "warning/aktionen.h"

namespace kes {

namespace {
using K = Kategorie;

// One row per key. Captions and tips are the window's own texts.
constexpr KategorieZeile kTabelle[] = {
    {K::Keine},
    {.kategorie = K::Prozesse,
     .knöpfe = {1, 2},
     .übernehmen = übernehmen::Prozesse,
     .später = später::Zeile1,  // the name: the watcher asks by it
     .töten = weitere::ProzessTöten},
    {.kategorie = K::HostsDatei,
     .knöpfe = {1, 8, 9},
     .originalText = "Original",
     .originalTipp = "Original Grösse setzen",
     .infosText = "Öffnen",
     .übernehmen = übernehmen::HostsDatei,
     .später = später::Label1_1,
     .original = weitere::HostsMenü,
     .infos = weitere::HostsÖffnen},
    {.kategorie = K::Favorit1,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
    {.kategorie = K::Favorit2,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
    {.kategorie = K::Favoriten,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::Favoriten,
     .löschen = entfernen::Favoriten,
     .später = FavoritenPfad},
    {.kategorie = K::StartPage,
     .knöpfe = {1, 8},
     .originalText = "Original",
     .originalTipp = "Original Wert setzen",
     .übernehmen = übernehmen::StartPage,
     .später = später::Label1_1,
     .original = weitere::StartPageOriginal},
    {.kategorie = K::DFÜ,
     .knöpfe = {1, 3, 9},
     .übernehmen = übernehmen::DFÜ,
     .löschen = entfernen::DFÜ,
     .später = später::Label1_1,
     .infos = weitere::DFÜMenü},
    {K::Ordnermeister},
    {K::OrdnerAllUser},
    {.kategorie = K::AutostartOrdner,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::AutostartOrdner,
     .löschen = entfernen::AutostartOrdner,
     .später = später::Zeile2},
    {.kategorie = K::AutostartRegistry,
     .knöpfe = {1, 3},
     .löschenText = "Registry löschen",
     .übernehmen = übernehmen::AutostartRegistry,
     .löschen = entfernen::AutostartRegistry,
     .später = später::Registryzeile},
    // The file watchers show their buttons themselves, by the event.
    {.kategorie = K::WindowsDatei,
     .übernehmen = übernehmen::WindowsDatei,
     .löschen = entfernen::WindowsDatei,
     .später = später::Text0,
     .ausnahme = weitere::Ausnahmeliste,
     .nagut = weitere::NaGut},
    {.kategorie = K::BHO,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::BHO,
     .später = später::Text0},
    {.kategorie = K::ShellService,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::ShellService,
     .später = später::Text0},
    {.kategorie = K::TaskScheduler,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::KlassenIni,
     .löschen = entfernen::TaskScheduler,
     .später = später::Text1},
    {.kategorie = K::URLSearchHooks,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::URLSearchHooks,
     .löschen = entfernen::URLSearchHooks,
     .löschenZweimalRaus = true,
     .später = später::Text0},
    {.kategorie = K::ActiveX,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ActiveX,
     .löschen = entfernen::ActiveX,
     .später = später::Zeile2},
    {.kategorie = K::Dienste,
     .knöpfe = {1, 3, 9},
     .infosText = "Service-Dienste",
     .übernehmen = übernehmen::Dienste,
     .löschen = entfernen::Dienste,
     .später = später::Text3,
     .infos = weitere::DiensteÖffnen},
    // The lock watchers show "Freigeben" themselves and hide "Später".
    {.kategorie = K::RegeditDeaktiviert, .original = weitere::SperreFreigeben},
    {.kategorie = K::TaskmanagerDeaktiviert, .original = weitere::SperreFreigeben},
    {.kategorie = K::HtaFile,
     .knöpfe = {8},
     .originalText = "Original",
     .originalTipp = "Original Wert setzen",
     .später = später::Text3,
     .original = weitere::ShellBefehlOriginal},
    {.kategorie = K::ToolBar,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ToolBar,
     .löschen = entfernen::ToolBar,
     .löschenZweimalRaus = true,
     .später = später::Text0},
    // No deferral: the same warning comes again at the next cycle.
    {.kategorie = K::ToolBar1,
     .knöpfe = {1, 3},
     .übernehmen = übernehmen::ToolBar,
     .löschen = entfernen::ToolBar1,
     .löschenZweimalRaus = true},
};

static_assert(std::size(kTabelle) == kKategorieAnzahl, "one row for every category key");

constexpr bool InDerReihe() {
    for (int i = 0; i < kKategorieAnzahl; ++i)
        if (static_cast<int>(kTabelle[i].kategorie) != i) return false;
    return true;
}
static_assert(InDerReihe(), "the rows stand in the order of the keys");
}  // namespace

const KategorieZeile& Zeile(Kategorie k) {
    return kTabelle[static_cast<int>(k)];
}

}  // namespace kes
