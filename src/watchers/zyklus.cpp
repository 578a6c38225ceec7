// The load handler of Alarm, which loads every baseline in a fixed order, and the tick of
// Timer1, one watch cycle over the fixed table of option boxes and watchers.
#include "core/einstellungen.h"
#include "core/programm.h"
#include "core/start.h"
#include "panel/alarm.h"
#include "platform/hive_ocx.h"
#include "platform/sysfolder.h"

namespace kes {

void AlarmFenster::Form_Load() {
    Caption = "Kestrella V" + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
              std::to_string(kVersionRevision) + " AddOn Halvenik";

    HiveOCX hive(prg_.p.registry);
    const bool autostart =
        hive.ValueExists(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella");
    Box1[0].setValue(autostart ? 1 : 0);
    prg_.Start().fox1[5].Checked = autostart;

    Label2[2].Caption = Sysfolder(prg_.p, kCsidlStartup);
    Label2[3].Caption = Sysfolder(prg_.p, kCsidlCommonStartup);

    LadeProzessFirmen();
    LadeProzesse();
    LadeFavoriten();
    LadeStartPage();
    LadeDFÜ();
    LadeAutostart();
    LadeAutostartregistry();

    Box1[19].Caption = prg_.Windowsordner;
    Box1[20].Caption = prg_.Systemordner;

    LadeWindowsausnahme();
    // Runs before the stored values arrive, so both tests fail at every start;
    // Properties_Load repeats them with the real values.
    if (Box1[19].value() == 1) LadeWindows();
    if (Box1[20].value() == 1) LadeWindowsSys32();

    LadeBHO();
    LadeActiveX();
    LadeShellService();
    LadeSharedTaskScheduler();
    LadeURLSearchHook();
    LadeDienste();
    LadeDiensteHersteller();
    LadeToolbar();
}

void AlarmFenster::Timer1_Timer() {
    if (prg_.Beschäftigt) return;
    auto an = [this](int box) { return !prg_.Beschäftigt && Box1[box].value() == 1; };

    if (an(4)) TesteProzesse();
    // One test of the busy flag for both passes: Favorit2 runs even after Favorit1 raised.
    if (an(5)) {
        prg_.Kategorie = "Favorit1";
        TesteFavoriten();
        prg_.Kategorie = "Favorit2";
        TesteFavoriten();
    }
    prg_.p.timers.PumpMessages();
    if (an(8)) TesteStartPage();
    if (an(10)) TesteDFÜ();
    if (an(11)) {
        prg_.Kategorie = "Ordnermeister";
        TesteAutostartOrdner();
    }
    if (an(11)) {
        prg_.Kategorie = "OrdnerAllUser";
        TesteAutostartOrdner();
    }
    if (an(13)) TesteAutostartHkeyUser();
    if (an(13)) TesteAutostartRegistry();
    if (an(14)) TesteOnline();
    if (an(15)) TesteHosts();
    if (an(19)) TesteWindowsGelöscht();
    if (an(19)) TesteWindowsErstellt();
    if (an(20)) TesteWindowsSystem32Gelöscht();
    if (an(20)) TesteWindowsSystem32Erstellt();
    if (an(22)) Testeactivx();  // 22 before 21, as the table has it
    if (an(21)) TesteBHO();
    if (an(23)) TesteShellService();
    if (an(24)) TesteSharedTaskScheduler();
    if (an(25)) TesteSonstiges();
    if (an(26)) TesteSonstiges1();
    if (an(27)) TesteSonstiges2();
    if (an(28)) TesteDienste();
    if (an(29)) TesteToolBar();
    if (an(29)) TesteToolBar1();
    if (an(30)) TesteHTafile();
    prg_.p.timers.PumpMessages();
}

void AlarmFenster::AufAb1_TextValue(std::int32_t& zahl) {
    // Errors in this handler are passed over.
    try {
        prg_.Intervallstufe = static_cast<std::int16_t>(zahl);
        Timer1.SetInterval(IntervallAusStufe(prg_.Intervallstufe));
        Properties_Save(prg_);
    } catch (...) {
    }
}

}  // namespace kes
