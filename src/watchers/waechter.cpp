#include "watchers/waechter.h"

#include "watchers/alarm_daten.h"

namespace kes {

namespace {
using K = Kategorie;
using A = AlarmDaten;
using W = Prozesswerte;

// The order is the cycle's and fixed: box 22 comes before box 21 on purpose.
constexpr WächterZeile kWächter[] = {
    {.name = "processes",
     .box = 4,
     .kategorien = {K::Prozesse},
     .zyklus = {[](A& a, W&) { a.prozesse.TesteProzesse(); }},
     .laden = {[](A& a, W&) { a.prozesse.LadeProzessFirmen(); }, [](A& a, W&) { a.prozesse.LadeProzesse(); }},
     .zurücksetzen = {{{2, kProzesseDatei}, {13, kFirmaDatei}}},
     .erstaufnahme = ErstemalAnzeigen,
     .assistent = true},
    // One pass for both folders: Favorit2 runs even after Favorit1 raised.
    {.name = "favourites",
     .box = 5,
     .kategorien = {K::Favorit1, K::Favorit2, K::Favoriten},
     .zyklus = {[](A& a, W& w) {
         w.Kategorieschlüssel = K::Favorit1;
         a.favoriten.TesteFavoriten();
         w.Kategorieschlüssel = K::Favorit2;
         a.favoriten.TesteFavoriten();
     }},
     .danachPumpen = true,
     .laden = {[](A& a, W&) { a.favoriten.LadeFavoriten(); }},
     .zurücksetzen = {{{7, kFavoritenDatei}}},
     .assistent = true},
    {.name = "start pages",
     .box = 8,
     .kategorien = {K::StartPage},
     .zyklus = {[](A& a, W&) { a.startSeite.TesteStartPage(); }},
     .laden = {[](A& a, W&) { a.startSeite.LadeStartPage(); }},
     .erstaufnahme = Holestartpage,
     .assistent = true},
    {.name = "dial-up",
     .box = 10,
     .kategorien = {K::DFÜ},
     .zyklus = {[](A& a, W&) { a.dfü.TesteDFÜ(); }},
     .laden = {[](A& a, W&) { a.dfü.LadeDFÜ(); }},
     .zurücksetzen = {{{5, kDFÜDatei}}},
     .assistent = true},
    {.name = "autostart folders",
     .box = 11,
     .kategorien = {K::Ordnermeister, K::OrdnerAllUser, K::AutostartOrdner},
     .zyklus = {[](A& a, W& w) {
                    w.Kategorieschlüssel = K::Ordnermeister;
                    a.autostartOrdner.TesteAutostartOrdner();
                },
                [](A& a, W& w) {
                    w.Kategorieschlüssel = K::OrdnerAllUser;
                    a.autostartOrdner.TesteAutostartOrdner();
                }},
     .laden = {[](A& a, W&) { a.autostartOrdner.LadeAutostart(); }},
     .assistent = true},
    {.name = "autostart registry",
     .box = 13,
     .kategorien = {K::AutostartRegistry},
     .zyklus = {[](A& a, W&) { a.autostartRegistry.TesteAutostartHkeyUser(); },
                [](A& a, W&) { a.autostartRegistry.TesteAutostartRegistry(); }},
     .laden = {[](A& a, W&) { a.autostartRegistry.LadeAutostartregistry(); }},
     .zurücksetzen = {{{6, kAutostartREGDatei}}},
     .assistent = true},
    {.name = "online", .box = 14, .zyklus = {[](A& a, W&) { a.hosts.TesteOnline(); }}, .assistent = true},
    {.name = "hosts",
     .box = 15,
     .kategorien = {K::HostsDatei},
     .zyklus = {[](A& a, W&) { a.hosts.TesteHosts(); }},
     .assistent = true},
    // The folder baselines load only for a box that is on; at the panel's load the stored
    // values have not arrived yet, and the settings load repeats both.
    {.name = "Windows folder",
     .box = 19,
     .kategorien = {K::WindowsDatei},
     .zyklus = {[](A& a, W&) { a.windowsDateien.TesteWindowsGelöscht(); },
                [](A& a, W&) { a.windowsDateien.TesteWindowsErstellt(); }},
     .laden = {[](A& a, W&) { a.windowsDateien.LadeWindowsausnahme(); },
               [](A& a, W&) {
                   if (a.Box1[19].value() == 1) a.windowsDateien.LadeWindows();
               }},
     .assistent = true},
    {.name = "system folder",
     .box = 20,
     .kategorien = {K::WindowsDatei},
     .zyklus = {[](A& a, W&) { a.windowsDateien.TesteWindowsSystem32Gelöscht(); },
                [](A& a, W&) { a.windowsDateien.TesteWindowsSystem32Erstellt(); }},
     .laden = {[](A& a, W&) {
         if (a.Box1[20].value() == 1) a.windowsDateien.LadeWindowsSys32();
     }}},
    {.name = "ActiveX",
     .box = 22,
     .kategorien = {K::ActiveX},
     .zyklus = {[](A& a, W&) { a.activeX.Testeactivx(); }},
     .laden = {[](A& a, W&) { a.activeX.LadeActiveX(); }}},
    {.name = "helper objects",
     .box = 21,
     .kategorien = {K::BHO},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteBHO(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeBHO(); }}},
    {.name = "shell service objects",
     .box = 23,
     .kategorien = {K::ShellService},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteShellService(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeShellService(); }},
     .zurücksetzen = {{{8, kShellServiceDatei}}}},
    {.name = "shared task schedulers",
     .box = 24,
     .kategorien = {K::TaskScheduler},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteSharedTaskScheduler(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeSharedTaskScheduler(); }},
     .zurücksetzen = {{{9, kTaskSchedulerDatei}}}},
    {.name = "registry editor lock", .box = 25, .kategorien = {K::RegeditDeaktiviert}, .zyklus = {[](A& a, W&) {
                                                                                           a.sperren.TesteSonstiges();
                                                                                       }}},
    {.name = "task manager lock", .box = 26, .kategorien = {K::TaskmanagerDeaktiviert}, .zyklus = {[](A& a, W&) {
                                                                                            a.sperren.TesteSonstiges1();
                                                                                        }}},
    {.name = "URL search hooks",
     .box = 27,
     .kategorien = {K::URLSearchHooks},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteSonstiges2(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeURLSearchHook(); }},
     .zurücksetzen = {{{10, kURLSearchHookDatei}}}},
    {.name = "services",
     .box = 28,
     .kategorien = {K::Dienste},
     .zyklus = {[](A& a, W&) { a.dienste.TesteDienste(); }},
     .laden = {[](A& a, W&) { a.dienste.LadeDienste(); }, [](A& a, W&) { a.dienste.LadeDiensteHersteller(); }},
     .zurücksetzen = {{{3, kDiensteDatei}, {4, kDiensteFirmenDatei}}},
     .erstaufnahme = holedienste},
    // The reset deletes daten\toolbar.ini, a file no version of the program ever wrote; the
    // baseline daten\V_seiten.txt survives it, as intended.
    {.name = "trusted sites",
     .box = 29,
     .kategorien = {K::ToolBar, K::ToolBar1},
     .zyklus = {[](A& a, W&) { a.vertrauenswürdigeSeiten.TesteToolBar(); },
                [](A& a, W&) { a.vertrauenswürdigeSeiten.TesteToolBar1(); }},
     .laden = {[](A& a, W&) { a.vertrauenswürdigeSeiten.LadeToolbar(); }},
     .zurücksetzen = {{{1, "daten\\toolbar.ini"}}}},
    {.name = "shell open commands",
     .box = 30,
     .kategorien = {K::HtaFile},
     .zyklus = {[](A& a, W&) { a.shellBefehle.TesteHTafile(); }},
     .danachPumpen = true},
};

// Every key but Keine is carried by a row, and every row has a box and a pass.
constexpr bool Vollständig() {
    for (int k = 1; k < kKategorieAnzahl; ++k) {
        bool gefunden = false;
        for (const WächterZeile& z : kWächter)
            for (Kategorie c : z.kategorien) gefunden = gefunden || static_cast<int>(c) == k;
        if (!gefunden) return false;
    }
    for (const WächterZeile& z : kWächter)
        if (!z.name || z.box < 0 || !z.zyklus[0]) return false;
    return true;
}
static_assert(Vollständig(), "every category key has a watcher, every watcher a name, a box and a pass");
}  // namespace

std::span<const WächterZeile> Wächtertabelle() {
    return kWächter;
}

}  // namespace kes
