// The watch cycle: which rows run, that the busy flag and the live box values are tested
// again for every row, and how the stage sets the interval.
#include "core/einstellungen.h"
#include "core/start.h"
#include "core/starten.h"
#include "programm_test_basis.h"

namespace kes::test {
namespace {

const std::string kHosts = "C:\\WINDOWS\\system32\\drivers\\etc\\hosts";
const std::string kDat = "C:\\Programme\\Kestrella\\kestrella.dat";

struct ZyklusLauf {
    fake::FakePlattform fp;
    Programm prg{fp.plattform};
    ZyklusLauf() {
        PropertyBag bag;
        bag.WriteProperty("hostsgrösse", std::int32_t{3});
        fp.files.Put(kDat, bag.Contents());
        fp.files.Put(kHosts, "abc");
        EXPECT_TRUE(Main(prg));
        EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Box(int i, std::int16_t v) { alarm().Box1[i].setValue(v); }
    void HostsÄndern() { fp.files.Put(kHosts, "abcd"); }
};
struct Zyklus : ::testing::Test, ZyklusLauf {};

// One tick after each setup: the pumps run, whether a warning came, the commands started.
TEST_F(Zyklus, WhatOneTickRuns) {
    enum Pumpe { Nichts, BoxAn, Beschäftigt };  // what the first pump does
    const struct {
        const char* fall;
        std::vector<std::pair<int, std::int16_t>> boxen;
        bool hosts;
        int verbindungen;
        Pumpe pumpe;
        bool beschäftigt;
        int pumpen;
        bool warnung;
        std::size_t kommandos;
    } fälle[] = {
        {"all boxes off: the tick only pumps", {}, true, 1, Nichts, false, 2, false, 0},
        {"a grey box runs no watcher", {{15, 2}}, true, 0, Nichts, false, 2, false, 0},
        {"a box switched on in the first pump counts in the same tick", {}, true, 0, BoxAn, false, 2, true, 0},
        // The last pump row has no box and still runs.
        {"the busy flag set in the pump stops the rows after it", {{14, 1}}, false, 1, Beschäftigt, false, 2, false, 0},
        {"busy at the start: the tick does nothing", {{14, 1}}, false, 1, Nichts, true, 0, false, 0},
        {"the online row runs before the hosts row raises", {{14, 1}, {15, 1}}, true, 1, Nichts, false, 2, true, 1},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.fall);
        ZyklusLauf z;
        for (const auto& [box, wert] : fall.boxen) z.Box(box, wert);
        if (fall.hosts) z.HostsÄndern();
        z.fp.dialup.verbindungen = fall.verbindungen;
        if (fall.pumpe == BoxAn) z.fp.timers.beimPumpen.push_back([&z] { z.Box(15, 1); });
        if (fall.pumpe == Beschäftigt) z.fp.timers.beimPumpen.push_back([&z] { z.prg.Beschäftigt = true; });
        z.prg.Beschäftigt = fall.beschäftigt;
        z.fp.timers.Advance(5000);
        EXPECT_EQ(z.fp.timers.pumpen, fall.pumpen);
        EXPECT_EQ(z.prg.Form3Geladen(), fall.warnung);
        EXPECT_EQ(z.fp.shell.kommandos.size(), fall.kommandos);
    }
}

TEST_F(Zyklus, SofortOff_TickComesEveryStageSecondsAndFindsTheChange) {
    prg.Sofort = false;
    Box(15, 1);
    fp.timers.Advance(5000);
    EXPECT_FALSE(prg.Form3Geladen());
    HostsÄndern();
    fp.timers.Advance(4999);
    EXPECT_FALSE(prg.Form3Geladen());
    fp.timers.Advance(1);
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
}

TEST_F(Zyklus, EndConfirmedDuringThePump_RunsNoFurtherWatcher) {
    Box(15, 1);
    HostsÄndern();
    fp.dialogs.antworten = {kIdYes};
    fp.timers.beimPumpen.push_back([&] { prg.Start().fox1_Click(6); });
    fp.timers.Advance(5000);
    EXPECT_TRUE(prg.Beenden);
    EXPECT_FALSE(prg.Form3Geladen()) << "no warning after the user chose to end";
    EXPECT_TRUE(fp.sound.gespielt.empty());
}

TEST_F(Zyklus, UserHivesComeBeforeTheUserKeyAndBothBeforeTheHostsRow) {
    Box(13, 1);
    Box(15, 1);
    HostsÄndern();
    fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool", "t.exe");
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::AutostartRegistry);
    EXPECT_EQ(prg.Form3().Text1[1].Text, "HKEY_USERS") << "row 8 walks HKEY_USERS before row 9 reads HKCU";
}

TEST_F(Zyklus, StartPageWarning_StopsEveryWatcherRowAfterIt) {
    Box(8, 1);
    fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                          "http://boese.example/");
    // Every later row has something to do: the online row would start a command, the hosts
    // row and the folder rows would store their own category key.
    for (int b = 10; b <= 30; ++b) Box(b, 1);
    fp.dialup.verbindungen = 1;
    HostsÄndern();
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::StartPage);
    EXPECT_TRUE(fp.shell.kommandos.empty());
}

TEST_F(Zyklus, ClosingTheWarning_RestartsTheCycleAWholeIntervalLater) {
    Box(15, 1);
    HostsÄndern();
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    fp.timers.Advance(20000);
    EXPECT_EQ(fp.timers.pumpen, 2) << "no tick while the warning is open";
    prg.Form3Entladen();
    prg.Aufräumen();
    EXPECT_FALSE(prg.Beschäftigt);
    fp.timers.Advance(4999);
    EXPECT_FALSE(prg.Form3Geladen());
    fp.timers.Advance(1);
    EXPECT_TRUE(prg.Form3Geladen()) << "the same difference raises the same warning";
}

TEST_F(Zyklus, Stage_SetsTheIntervalInSixteenBitsAndSavesAtOnce) {
    struct Fall {
        const char* text;
        int intervall;
        std::int16_t stufe;
    };
    for (const Fall& f : {Fall{"1", 1000, 1}, Fall{"30", 30000, 30}, Fall{"45", 30000, 30}, Fall{"0", 0, 0}}) {
        alarm().AufAb1.SetText(f.text);
        EXPECT_EQ(prg.Intervallstufe, f.stufe) << f.text;
        EXPECT_EQ(fp.timers.IntervalOf(kTimerAlarm1), f.intervall) << f.text;
        EXPECT_EQ(std::get<std::int16_t>(
                      PropertyBag::AusInhalt(fp.files.Content(kDat)).ReadProperty("Aufab1", std::int16_t{5})),
                  f.stufe)
            << f.text;
    }
    EXPECT_TRUE(alarm().Timer1.Enabled()) << "stage 0 leaves the timer on and silent";
    EXPECT_EQ(IntervallAusStufe(33), -32536) << "the product wraps above 32";
}

// The walks let window messages run; a tick that falls due meanwhile must not start a second
// cycle inside the first, or a nested watcher would raise its own warning into the window
// the outer one is filling.
TEST_F(Zyklus, TickFallingDueInsideTheCyclesOwnPumps_DoesNotStartASecondCycle) {
    alarm().AufAb1.SetText("1");
    Box(13, 1);
    Box(15, 1);
    prg.Soundflag = 1;
    HostsÄndern();
    fp.registry.MakeKey("HKEY_USERS\\.DEFAULT\\Software");
    fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool", "t.exe");
    fp.timers.msProPumpe = 400;
    fp.timers.Advance(1000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(fp.sound.gespielt.size(), 1u) << "one warning, one sound";
    const Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Neuer Eintrag in der Registry Autostart-Funktion gefunden.");
    EXPECT_EQ(f.Label3[2].Caption, "Registry löschen") << "the buttons belong to the warning shown";
    EXPECT_FALSE(f.Image[8].Visible) << "no hosts buttons in an autostart warning";
}

}  // namespace
}  // namespace kes::test
