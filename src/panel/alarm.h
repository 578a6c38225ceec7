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
    TextBox Text2;  // the log's master text
    std::array<Label, 4> Label2;

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
