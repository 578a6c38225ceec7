// The window Alarm: the control panel as data, and the owner of every watcher. Its option
// boxes Box1 are read live by the watch cycle; its lists are the baselines.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/fenster.h"
#include "core/steuerelemente.h"
#include "panel/aufab.h"
#include "panel/box.h"

namespace kes {

class Programm;

class AlarmFenster : public Fenster {
public:
    explicit AlarmFenster(Programm& prg);

    std::array<Box, 32> Box1;
    AufAb AufAb1;
    Timer Timer1;
    ListBox List8;  // the deferred list, in memory only
    // Baselines and exception lists.
    ListView ListView1;   // known autostart registry entries
    ListView ListView2;   // known dial-up entries: name, number
    ListView ListView4;   // files of the system folders: path, length
    ListView ListView12;  // known trusted sites
    ListBox List3;        // known autostart folder entries
    ListBox List4;        // known favourites
    ListBox List6;        // accepted ActiveX objects (this run only)
    ListBox List9;        // known URL search hooks
    ListView ListView33;  // the autostart registry rows of the current listing
    TextBox Text2;        // the log's master text
    std::array<Label, 4> Label2;
    std::array<Label, 10> Label1;       // the sidebar entries
    std::array<PictureBox, 20> Frame1;  // the pages

    // The log buttons of the page "Aktuelle Einstellungen": 0 "Log-löschen", 1 "Log-öffnen".
    void Command2_Click(int index);

    // The query-unload handler: every way out of the program. True when the close was
    // cancelled and the panel is shown instead.
    bool Form_QueryUnload(int grund);

    // Load handler and watch cycle.
    void Form_Load();
    void Timer1_Timer();
    void AufAb1_TextValue(std::int32_t& zahl);

    // True when the key stands in the deferred list, compared whole and with case.
    bool Später(const std::string& schlüssel) const;

    // Loaders, in the order the load handler calls them.
    void LadeProzessFirmen();
    void LadeProzesse();
    void LadeFavoriten();
    void LadeStartPage();
    void LadeDFÜ();
    void LadeAutostart();
    void LadeAutostartregistry();
    void LadeWindowsausnahme();
    void LadeWindows();
    void LadeWindowsSys32();
    void LadeBHO();
    void LadeActiveX();
    void LadeShellService();
    void LadeSharedTaskScheduler();
    void LadeURLSearchHook();
    void LadeDienste();
    void LadeDiensteHersteller();
    void LadeToolbar();

    // Watchers, in the order of the cycle.
    void TesteProzesse();
    void TesteFavoriten();
    void TesteStartPage();
    void TesteDFÜ();
    void TesteAutostartOrdner();
    void TesteAutostartHkeyUser();
    void TesteAutostartRegistry();
    void TesteOnline();
    void TesteHosts();
    void TesteWindowsGelöscht();
    void TesteWindowsErstellt();
    void TesteWindowsSystem32Gelöscht();
    void TesteWindowsSystem32Erstellt();
    void Testeactivx();
    void TesteBHO();
    void TesteShellService();
    void TesteSharedTaskScheduler();
    void TesteSonstiges();
    void TesteSonstiges1();
    void TesteSonstiges2();
    void TesteDienste();
    void TesteToolBar();
    void TesteToolBar1();
    void TesteHTafile();

    // The first row of ListView33 that is neither known nor deferred, or -1.
    int AutostartUnbekannt() const;
    // Raises the warning for that row; the user hives also search the system folders.
    void AutostartWarnen(int zeile, bool benutzerHives);

    // State of TesteOnline: this run has stopped the messenger service.
    bool NachrichtendienstGestoppt = false;

private:
    Programm& prg_;
};

// The version this release shows in the panel's caption.
inline constexpr int kVersionMajor = 2;
inline constexpr int kVersionMinor = 2;
inline constexpr int kVersionRevision = 0;

}  // namespace kes
