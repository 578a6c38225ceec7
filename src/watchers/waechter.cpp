#include "watchers/waechter.h"

#include "watchers/alarm_daten.h"

namespace kes {

namespace {
using K = Kategorie;
using A = AlarmDaten;
using W = Prozesswerte;
using L = Ausnahmeliste;

// The row of a watcher of further registry places: its pass, its loader, its baseline with
// the panel's menu, the reset of its file and the assistant's first baseline.
template <RegistryOrte AlarmDaten::*Wächter, ListView AlarmDaten::*Ansicht, Ausnahmeliste Liste,
          const OrteBeschreibung& B>
constexpr WächterZeile OrteZeile(const char* name, int box, const char* beschriftung, int rang, const char* menü,
                                 bool assistent = true) {
    return {.name = name,
            .box = box,
            .beschriftung = beschriftung,
            .kategorien = {B.kategorie},
            .zyklus = {[](A& a, W&) { (a.*Wächter).Teste(); }},
            .laden = {[](A& a, W&) { (a.*Wächter).Laden(); }},
            .zurücksetzen = {{{rang, B.datei}}},
            .erstaufnahme = [](WächterKontext& k) { RegistryOrte::Erstaufnahme(k, B); },
            .assistent = assistent,
            .listen = {{{Liste,
                         nullptr,
                         Ansicht,
                         [](A& a) -> Grundliste& { return (a.*Wächter).basis; },
                         [](A& a) { (a.*Wächter).Laden(); },
                         menü,
                         {""},
                         0,
                         " --> Eintrag löschen",
                         [](A& a, ListenPanel& panel, int) { (a.*Wächter).MarkierteLöschen(panel); }}}},
            .orte = [](A& a, W&) { return (a.*Wächter).Orte(); }};
}

// The order is the cycle's and fixed: box 22 comes before box 21 on purpose.
constexpr WächterZeile kWächter[] = {
    {.name = "processes",
     .box = 4,
     .beschriftung = "Neue Prozesse im Speicher sofort melden !",
     .kategorien = {K::Prozesse},
     .zyklus = {[](A& a, W&) { a.prozesse.TesteProzesse(); }},
     .laden = {[](A& a, W&) { a.prozesse.LadeProzessFirmen(); }, [](A& a, W&) { a.prozesse.LadeProzesse(); }},
     .zurücksetzen = {{{2, kProzesseDatei}, {13, kFirmaDatei}}},
     .erstaufnahme = ErstemalAnzeigen,
     .assistent = true,
     .listen = {{{L::List1,
                  &A::List1,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.prozesse.firmen; },
                  [](A& a) { a.prozesse.LadeProzessFirmen(); },
                  "Prozess",
                  {""},
                  0,
                  " Eintrag löschen",
                  Pro_Click},
                 {L::ListView6,
                  nullptr,
                  &A::ListView6,
                  [](A& a) -> Grundliste& { return a.prozesse.basis; },
                  [](A& a) { a.prozesse.LadeProzesse(); },
                  "ProzessListview6",
                  {"Löschen"},
                  0,
                  " Eintrag löschen",
                  Pro1_Click}}}},
    // One pass for both folders: Favorit2 runs even after Favorit1 raised.
    {.name = "favourites",
     .box = 5,
     .beschriftung = "Wenn neue  Favoriten hinzugefügt werden [sofort melden]",
     .optionen = {{{6, "Automatisch löschen"}, {7, "Automatisch löschen (Hinweise anzeigen)     "}}},
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
     .assistent = true,
     .listen = {{{L::List4,
                  &A::List4,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.favoriten.basis; },
                  [](A& a) { a.favoriten.LadeFavoriten(); },
                  "LöschFavoriten",
                  {""},
                  0,
                  " Eintrag löschen",
                  LöscheFavoriten_Click}}},
     .orte = [](A& a, W&) { return a.favoriten.Orte(); }},
    {.name = "start pages",
     .box = 8,
     .beschriftung = "IExplorer Überwachung Registry",
     .optionen = {{{9, "Automatisch Original Einträge wiederherstellen"}}},
     .kategorien = {K::StartPage},
     .zyklus = {[](A& a, W&) { a.startSeite.TesteStartPage(); }},
     .laden = {[](A& a, W&) { a.startSeite.LadeStartPage(); }},
     .erstaufnahme = Holestartpage,
     .assistent = true,
     .orte = [](A& a, W&) { return a.startSeite.Orte(); }},
    {.name = "dial-up",
     .box = 10,
     .beschriftung = "Warnen wenn eine neue DFÜ-Verbindung erstellt wird.",
     .kategorien = {K::DFÜ},
     .zyklus = {[](A& a, W&) { a.dfü.TesteDFÜ(); }},
     .laden = {[](A& a, W&) { a.dfü.LadeDFÜ(); }},
     .zurücksetzen = {{{5, kDFÜDatei}}},
     .assistent = true,
     // The quoted text of the menu holds the name and the number.
     .listen = {{{L::ListView2,
                  nullptr,
                  &A::ListView2,
                  [](A& a) -> Grundliste& { return a.dfü.basis; },
                  [](A& a) { a.dfü.LadeDFÜ(); },
                  "löschedfü",
                  {"Info zur DFÜ-Verbindung", "lösche"},
                  1,
                  " --> Eintrag aus der Liste löschen",
                  löschedfü1_Click,
                  [](const A& a) {
                      const ListItem* z = ErsteMarkierte(a.ListView2);
                      return z ? z->Text + "\" Nummer: " + z->SubItem(1) : std::string("\" Nummer: ");
                  }}}}},
    {.name = "autostart folders",
     .box = 11,
     .beschriftung = "Autostart Ordner sollen  überwacht werden",
     .optionen = {{{12, "Automatisch löschen"}}},
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
     .assistent = true,
     .listen = {{{L::List3,
                  &A::List3,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.autostartOrdner.basis; },
                  [](A& a) { a.autostartOrdner.LadeAutostart(); },
                  "LöscheAutostartordner",
                  {"lösche"},
                  0,
                  " Eintrag löschen",
                  LöscheAutostartordner1_Click}}},
     .orte =
         [](A& a, W&) {
             return Änderungsorte{{0, a.Label2[2].Caption}, {0, a.Label2[3].Caption}};
         }},
    {.name = "autostart registry",
     .box = 13,
     .beschriftung = "Sofort warnen wenn Registryeinträge geändert werden.",
     .kategorien = {K::AutostartRegistry},
     .zyklus = {[](A& a, W&) { a.autostartRegistry.TesteAutostartHkeyUser(); },
                [](A& a, W&) { a.autostartRegistry.TesteAutostartRegistry(); }},
     .laden = {[](A& a, W&) { a.autostartRegistry.LadeAutostartregistry(); }},
     .zurücksetzen = {{{6, kAutostartREGDatei}}},
     .assistent = true,
     // The user reads a row number in the menu, not the entry.
     .listen = {{{L::ListView1,
                  nullptr,
                  &A::ListView1,
                  [](A& a) -> Grundliste& { return a.autostartRegistry.basis; },
                  [](A& a) { a.autostartRegistry.LadeAutostartregistry(); },
                  "löscheRegistry",
                  {""},
                  0,
                  " --> Eintrag löschen",
                  löscheRegistry1_Click,
                  [](const A& a) {
                      for (std::size_t i = 0; i < a.ListView1.Items.size(); ++i)
                          if (a.ListView1.Items[i].Selected) return std::to_string(i + 1);
                      return std::string("0");
                  }}}},
     .orte = [](A& a, W&) { return a.autostartRegistry.Orte(); }},
    {.name = "online",
     .box = 14,
     .beschriftung = "Nachrichtendienst beenden wenn eine  Online-Verbindung besteht.",
     .zyklus = {[](A& a, W&) { a.hosts.TesteOnline(); }},
     .assistent = true},
    {.name = "hosts",
     .box = 15,
     .beschriftung = "Wenn die Hosts Datei geändert wird sofort melden!",
     .kategorien = {K::HostsDatei},
     .zyklus = {[](A& a, W&) { a.hosts.TesteHosts(); }},
     .assistent = true,
     .orte =
         [](A&, W& w) {
             return Änderungsorte{{0, HostsOrdner(w)}};
         }},
    // The folder baselines load only for a box that is on; at the panel's load the stored
    // values have not arrived yet, and the settings load repeats both.
    {.name = "Windows folder",
     .box = 19,
     // Its caption is the folder, set when the panel loads.
     .optionen = {{{16, "Warnen wenn eine neue Datei erstellt wird."},
                   {17, "Warnen wenn eine Datei  gelöscht wird."},
                   {18, "Warnen wenn eine Datei  geändert wird."}}},
     .kategorien = {K::WindowsDatei},
     .zyklus = {[](A& a, W&) { a.windowsDateien.TesteWindowsGelöscht(); },
                [](A& a, W&) { a.windowsDateien.TesteWindowsErstellt(); }},
     .laden = {[](A& a, W&) { a.windowsDateien.LadeWindowsausnahme(); },
               [](A& a, W&) {
                   if (a.Box1[19].value() == 1) a.windowsDateien.LadeWindows();
               }},
     // The baseline is loaded at once whether the box went on or off.
     .beimKlick =
         [](A& a, W&) {
             if (a.ListView4.Items.empty()) a.windowsDateien.LadeWindows();
         },
     .assistent = true,
     .listen = {{{L::List5,
                  &A::List5,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.windowsDateien.ausnahmen; },
                  [](A& a) { a.windowsDateien.LadeWindowsausnahme(); },
                  "Löschewindows",
                  {"lösche"},
                  0,
                  " Eintrag löschen",
                  Löschewindows1_Click}}},
     .orte =
         [](A&, W& w) {
             return Änderungsorte{{0, w.Windowsordner}};
         }},
    {.name = "system folder",
     .box = 20,
     // Its caption is the folder, set when the panel loads.
     .kategorien = {K::WindowsDatei},
     .zyklus = {[](A& a, W&) { a.windowsDateien.TesteWindowsSystem32Gelöscht(); },
                [](A& a, W&) { a.windowsDateien.TesteWindowsSystem32Erstellt(); }},
     .laden = {[](A& a, W&) {
         if (a.Box1[20].value() == 1) a.windowsDateien.LadeWindowsSys32();
     }},
     .beimKlick =
         [](A& a, W&) {
             if (a.ListView7.Items.empty()) a.windowsDateien.LadeWindowsSys32();
         },
     .orte =
         [](A&, W& w) {
             return Änderungsorte{{0, w.Systemordner}};
         }},
    {.name = "SysWOW64 folder",
     .box = 32,
     // Its caption is the folder, set when the panel loads; without the folder (a 32-bit
     // Windows) the box stays and the passes do nothing.
     .kategorien = {K::WindowsDatei},
     .zyklus = {[](A& a, W&) { a.windowsDateien.TesteWindowsSysWow64Gelöscht(); },
                [](A& a, W&) { a.windowsDateien.TesteWindowsSysWow64Erstellt(); }},
     .laden = {[](A& a, W&) {
         if (a.Box1[32].value() == 1) a.windowsDateien.LadeWindowsSysWow64();
     }},
     .beimKlick =
         [](A& a, W&) {
             if (a.ListView13.Items.empty()) a.windowsDateien.LadeWindowsSysWow64();
         },
     // Without the folder there is nothing to watch, and the passes do nothing.
     .orte =
         [](A&, W& w) {
             return w.SysWow64ordner.empty() ? Änderungsorte{} : Änderungsorte{{0, w.SysWow64ordner}};
         }},
    {.name = "ActiveX",
     .box = 22,
     .beschriftung = " ActiveX-Objekte (auch bekannt als Downloaded Program Files)  sofort melden.",
     .kategorien = {K::ActiveX},
     .zyklus = {[](A& a, W&) { a.activeX.Testeactivx(); }},
     .laden = {[](A& a, W&) { a.activeX.LadeActiveX(); }},
     .listen = {{{L::List6,
                  &A::List6,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.activeX.basis; },
                  [](A& a) { a.activeX.LadeActiveX(); },
                  "löscheactivex",
                  {"löschen"},
                  0,
                  " --> Eintrag löschen",
                  löscheactivex1_Click}}}},
    {.name = "helper objects",
     .box = 21,
     .beschriftung = "BHO-Programmerweiterungen des IE (Browser Helper Objects) sofort melden.",
     .kategorien = {K::BHO},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteBHO(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeBHO(); }},
     .listen = {{{L::ListView8,
                  nullptr,
                  &A::ListView8,
                  [](A& a) -> Grundliste& { return a.klassenlisten.bho; },
                  [](A& a) { a.klassenlisten.LadeBHO(); },
                  "bho",
                  {"bholöschen"},
                  0,
                  " --> Eintrag aus der Liste löschen",
                  bho1_Click}}},
     .orte = [](A& a, W&) { return a.klassenlisten.Orte(Klassenlisten::Art::BHO); }},
    {.name = "shell service objects",
     .box = 23,
     .beschriftung = " ShellServiceObjectDelayLoad (SSODL)-Autostarteinträge in der Registry sofort melden.",
     .kategorien = {K::ShellService},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteShellService(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeShellService(); }},
     .zurücksetzen = {{{8, kShellServiceDatei}}},
     .listen = {{{L::ListView9,
                  nullptr,
                  &A::ListView9,
                  [](A& a) -> Grundliste& { return a.klassenlisten.shellService; },
                  [](A& a) { a.klassenlisten.LadeShellService(); },
                  "shellservice",
                  {"löschen"},
                  0,
                  " --> Eintrag aus der Liste löschen",
                  shellservice1_Click}}},
     .orte = [](A& a, W&) { return a.klassenlisten.Orte(Klassenlisten::Art::ShellService); }},
    {.name = "shared task schedulers",
     .box = 24,
     .beschriftung = " SharedTaskScheduler-Autostarteinträge in der Registry sofort melden.",
     .kategorien = {K::TaskScheduler},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteSharedTaskScheduler(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeSharedTaskScheduler(); }},
     .zurücksetzen = {{{9, kTaskSchedulerDatei}}},
     .listen = {{{L::ListView10,
                  nullptr,
                  &A::ListView10,
                  [](A& a) -> Grundliste& { return a.klassenlisten.taskScheduler; },
                  [](A& a) { a.klassenlisten.LadeSharedTaskScheduler(); },
                  "taskscheduler",
                  {"löschen"},
                  0,
                  " --> Eintrag aus der Liste löschen",
                  taskscheduler1_Click}}},
     .orte = [](A& a, W&) { return a.klassenlisten.Orte(Klassenlisten::Art::TaskScheduler); }},
    {.name = "registry editor lock",
     .box = 25,
     .beschriftung = "Zugang auf Regedit durch Administrator verhindert [sofort melden]",
     .kategorien = {K::RegeditDeaktiviert},
     .zyklus = {[](A& a, W&) { a.sperren.TesteSonstiges(); }}},
    {.name = "task manager lock",
     .box = 26,
     .beschriftung = "Zugang auf den Taskmanager deaktiviert  [sofort melden]",
     .kategorien = {K::TaskmanagerDeaktiviert},
     .zyklus = {[](A& a, W&) { a.sperren.TesteSonstiges1(); }}},
    {.name = "URL search hooks",
     .box = 27,
     .beschriftung = "Default URLSearchHook ",
     .kategorien = {K::URLSearchHooks},
     .zyklus = {[](A& a, W&) { a.klassenlisten.TesteSonstiges2(); }},
     .laden = {[](A& a, W&) { a.klassenlisten.LadeURLSearchHook(); }},
     .zurücksetzen = {{{10, kURLSearchHookDatei}}},
     .listen = {{{L::List9,
                  &A::List9,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.klassenlisten.urlSearchHooks; },
                  [](A& a) { a.klassenlisten.LadeURLSearchHook(); },
                  "searchhook",
                  {"löschen"},
                  0,
                  " ---> Eintrag löschen",
                  searchhook1_Click}}},
     .orte = [](A& a, W&) { return a.klassenlisten.Orte(Klassenlisten::Art::URLSearchHooks); }},
    {.name = "services",
     .box = 28,
     .beschriftung = "Sofort Melden, wenn ein Dienst hinzugefügt wird.",
     .kategorien = {K::Dienste},
     .zyklus = {[](A& a, W&) { a.dienste.TesteDienste(); }},
     .laden = {[](A& a, W&) { a.dienste.LadeDienste(); }, [](A& a, W&) { a.dienste.LadeDiensteHersteller(); }},
     .zurücksetzen = {{{3, kDiensteDatei}, {4, kDiensteFirmenDatei}}},
     .erstaufnahme = holedienste,
     .listen = {{{L::List10,
                  &A::List10,
                  nullptr,
                  [](A& a) -> Grundliste& { return a.dienste.firmen; },
                  [](A& a) { a.dienste.LadeDiensteHersteller(); },
                  "dienst2",
                  {"Alle Einträge aus der liste entfernen", "löschen"},
                  1,
                  " ---> Eintrag löschen",
                  dienst22_Click},
                 {L::ListView11,
                  nullptr,
                  &A::ListView11,
                  [](A& a) -> Grundliste& { return a.dienste.basis; },
                  [](A& a) { a.dienste.LadeDienste(); },
                  "dienst",
                  {"", "Alle Dienste aus der Liste entfernen"},
                  0,
                  " --> Eintrag aus der Liste löschen",
                  dienst1_Click}}},
     .orte = [](A&, W&) { return Dienste::Orte(); }},
    // The reset deletes daten\toolbar.ini, a file no version of the program ever wrote; the
    // baseline daten\V_seiten.txt survives it, as intended.
    {.name = "trusted sites",
     .box = 29,
     .beschriftung = "Warnen wenn sich eine neue Url einträgt.",
     .kategorien = {K::ToolBar, K::ToolBar1},
     .zyklus = {[](A& a, W&) { a.vertrauenswürdigeSeiten.TesteToolBar(); },
                [](A& a, W&) { a.vertrauenswürdigeSeiten.TesteToolBar1(); }},
     .laden = {[](A& a, W&) { a.vertrauenswürdigeSeiten.LadeToolbar(); }},
     .zurücksetzen = {{{1, "daten\\toolbar.ini"}}},
     .listen = {{{L::ListView12,
                  nullptr,
                  &A::ListView12,
                  [](A& a) -> Grundliste& { return a.vertrauenswürdigeSeiten.basis; },
                  [](A& a) { a.vertrauenswürdigeSeiten.LadeToolbar(); },
                  "Toolbarlöschen1",
                  {"Toolbarlöschen"},
                  0,
                  " --> Eintrag aus der Liste löschen",
                  Toolbarlöschen11_Click}}},
     .orte = [](A&, W&) { return VertrauenswürdigeSeiten::Orte(); }},
    {.name = "shell open commands",
     .box = 30,
     .beschriftung = "Sofort melden wenn die Werte geändert werden.",
     .optionen = {{{31, "Automatisch löschen"}}},
     .kategorien = {K::HtaFile},
     .zyklus = {[](A& a, W&) { a.shellBefehle.TesteHTafile(); }},
     .danachPumpen = true},
    OrteZeile<&A::winlogon, &A::ListView14, L::ListView14, kWinlogonOrte>("Winlogon", 33, "Winlogon sofort melden.", 14,
                                                                          "winlogon"),
    OrteZeile<&A::appInit, &A::ListView15, L::ListView15, kAppInitOrte>("AppInit_DLLs", 34,
                                                                        "AppInit_DLLs sofort melden.", 15, "appinit"),
    OrteZeile<&A::imageFileExecution, &A::ListView16, L::ListView16, kImageFileExecutionOrte>(
        "Image File Execution Options", 35, "Image File Execution Options melden.", 16, "ifeo"),
    OrteZeile<&A::policiesRun, &A::ListView17, L::ListView17, kPoliciesRunOrte>(
        "policies Run", 36, "Policies\\Explorer\\Run sofort melden.", 17, "policiesrun"),
    OrteZeile<&A::activeSetup, &A::ListView18, L::ListView18, kActiveSetupOrte>(
        "Active Setup", 37, "Active Setup (StubPath) sofort melden.", 18, "activesetup"),
    OrteZeile<&A::bootSicherheit, &A::ListView19, L::ListView19, kBootSicherheitOrte>(
        "boot and security providers", 38, "Boot- und Lsa-Module sofort melden.", 19, "bootsicherheit"),
    OrteZeile<&A::winsock, &A::ListView20, L::ListView20, kWinsockOrte>(
        "Winsock providers", 39, "Winsock-Anbieter (LSP) sofort melden.", 20, "winsock"),
    OrteZeile<&A::shellErweiterungen, &A::ListView21, L::ListView21, kShellErweiterungenOrte>(
        "shell execute hooks and overlay icons", 40, "Shell-Hooks und Overlays sofort melden.", 21,
        "shellerweiterungen"),
    // Two folders, the system folder's with every folder below it; its box sits with the
    // further autostart places.
    {.name = "scheduled tasks",
     .box = 42,
     .beschriftung = "Geplante Aufgaben sofort melden.",
     .kategorien = {K::GeplanteAufgaben},
     .zyklus = {[](A& a, W&) { a.geplanteAufgaben.Teste(); }},
     .laden = {[](A& a, W&) { a.geplanteAufgaben.Laden(); }},
     .zurücksetzen = {{{23, kGeplanteAufgabenDatei}}},
     .erstaufnahme = GeplanteAufgaben::Erstaufnahme,
     .assistent = true,
     .listen = {{{L::ListView23,
                  nullptr,
                  &A::ListView23,
                  [](A& a) -> Grundliste& { return a.geplanteAufgaben.basis; },
                  [](A& a) { a.geplanteAufgaben.Laden(); },
                  "geplanteaufgaben",
                  {""},
                  0,
                  " --> Eintrag löschen",
                  [](A& a, ListenPanel& panel, int) { a.geplanteAufgaben.MarkierteLöschen(panel); }}}},
     .orte = [](A& a, W&) { return a.geplanteAufgaben.Orte(); }},
    OrteZeile<&A::ieToolbar, &A::ListView22, L::ListView22, kIEToolbarOrte>(
        "browser toolbars", 41, "IExplorer Toolbars sofort melden.", 22, "ietoolbar"),
    OrteZeile<&A::browsereinstellungen, &A::ListView24, L::ListView24, kBrowsereinstellungenOrte>(
        "browser window title and proxy", 43, "Fenstertitel und Proxy des IE sofort melden.", 24,
        "browsereinstellungen"),
    OrteZeile<&A::weitereSperren, &A::ListView25, L::ListView25, kWeitereSperrenOrte>(
        "further policy locks", 44, "Weitere Richtlinien-Sperren sofort melden.", 25, "weiteresperren"),
    OrteZeile<&A::dateitypen, &A::ListView26, L::ListView26, kDateitypenOrte>(
        "program file types", 45, "Dateitypen (.exe, .com ...) sofort melden.", 26, "dateitypen"),
    // Off until the user wants it: a machine's services change their programs with updates.
    OrteZeile<&A::dienstpfade, &A::ListView27, L::ListView27, kDienstpfadeOrte>(
        "service programs", kDienstpfadeBox, "Jeden neuen oder geänderten Dienst melden (jede Startart).", 27,
        "dienstpfade", false),
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

// A row's box and the boxes of its options lie past the panel's own and below the count,
// none is taken twice, and the last one is taken, so that the settings store no box that
// nothing uses.
constexpr bool BoxenEindeutig() {
    std::array<int, kBoxAnzahl> belegt{};
    bool gut = true;
    auto nehmen = [&](int box) {
        if (box < kEigeneBoxen || box >= kBoxAnzahl || belegt[static_cast<std::size_t>(box)]++ > 0) gut = false;
    };
    for (const WächterZeile& z : kWächter) {
        nehmen(z.box);
        for (const Option& o : z.optionen)
            if (o.box >= 0) nehmen(o.box);
    }
    return gut && belegt[kBoxAnzahl - 1] == 1;
}
static_assert(BoxenEindeutig(), "every box of the table below kBoxAnzahl, none twice, the last one taken");

// Every list of the panel but the deferred one, which is the panel's own, has its menu in
// exactly one row, bound to a list of its own, with its file, its loader and a handler; the
// view finds a list's menu by the list it is bound to.
constexpr bool ListenVollständig() {
    for (const WächterZeile& z : kWächter)
        for (const Listenmenü& m : z.listen) {
            if (!m.menü) continue;
            if (m.kasten == &AlarmDaten::List8) return false;
            for (const WächterZeile& z2 : kWächter)
                for (const Listenmenü& m2 : z2.listen)
                    if (m2.menü && &m2 != &m &&
                        ((m.kasten && m.kasten == m2.kasten) || (m.ansicht && m.ansicht == m2.ansicht)))
                        return false;
        }
    for (int l = 0; l < kAusnahmelistenAnzahl; ++l) {
        int zeilen = 0;
        for (const WächterZeile& z : kWächter)
            for (const Listenmenü& m : z.listen)
                if (m.menü && static_cast<int>(m.liste) == l) {
                    if (!m.schwanz || (m.kasten == nullptr) == (m.ansicht == nullptr)) return false;
                    if (!m.datei || !m.laden) return false;
#ifndef __SANITIZE_ADDRESS__
                    // The sanitizer build cannot compare the address of a function of another
                    // file in a constant expression; every other build checks it.
                    if (!m.wahl) return false;
#endif
                    ++zeilen;
                }
        if (zeilen != (static_cast<Ausnahmeliste>(l) == Ausnahmeliste::List8 ? 0 : 1)) return false;
    }
    return true;
}
static_assert(ListenVollständig(), "every list of the panel has one menu in one row");
}  // namespace

std::span<const WächterZeile> Wächtertabelle() {
    return kWächter;
}

Listensteuerelement SteuerelementVon(AlarmDaten& a, Ausnahmeliste liste) {
    for (const WächterZeile& z : kWächter)
        for (const Listenmenü& m : z.listen)
            if (m.menü && m.liste == liste)
                return {m.kasten ? &(a.*m.kasten) : nullptr, m.ansicht ? &(a.*m.ansicht) : nullptr};
    return {&a.List8, nullptr};
}

}  // namespace kes
