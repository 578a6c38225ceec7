// Main, the silent start, the instance rule, and the second stage that reads the settings:
// the order in which windows load and values arrive.
#include "core/start.h"
#include "assistant/form2.h"
#include "core/einstellungen.h"
#include "core/starten.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "watchers/waechter.h"

namespace kes::test {
namespace {

using Werte = std::initializer_list<std::pair<const char*, BagWert>>;

std::string Inhalt(Werte werte) {
    PropertyBag bag;
    for (const auto& [name, wert] : werte) bag.WriteProperty(name, wert);
    return bag.Contents();
}

class Start : public ProgrammTest {
protected:
    void Bag(Werte werte) { fp.files.Put(datPfad, Inhalt(werte)); }
};

TEST_F(Start, WithoutSettingsFile_MainFillsPathsAndTheRunHeader_TheAssistantOpensAndNothingElseRuns) {
    fp.system.exe = "C:\\Kestrella.exe";
    ASSERT_TRUE(Main(prg));
    EXPECT_EQ(prg.Programmordner, "C:\\") << "a drive root gets no second backslash";
    EXPECT_EQ(std::make_pair(prg.Windowsordner, prg.Systemordner),
              std::make_pair(std::string("C:\\WINDOWS"), std::string("C:\\WINDOWS\\system32")));
    EXPECT_EQ(prg.Logkopf, "\r\n========== 22.11.2026 ===== 14:05:09 ================\r\n");
    EXPECT_TRUE(prg.StartGeladen());
    EXPECT_EQ(fp.files.GetAttributes("C:\\daten"), kAttrDirectory) << "a lost data folder is made anew";
    ASSERT_TRUE(prg.Form2Geladen());
    EXPECT_EQ(std::make_tuple(prg.Form2().Visible, prg.Intervallstufe, prg.AlarmGeladen(),
                              fp.timers.Running(kTimerAlarm1)),
              std::make_tuple(true, 5, false, false));
}

// Beside another instance only a lower-case s anywhere starts, silently and after 3000 ms.
TEST_F(Start, SecondStart_EndsWithAMessageUnlessALowerCaseSStartsItSilentlyAfter3000ms) {
    for (const char* zeile : {"/S", "/s", "xsx"}) {
        SCOPED_TRACE(zeile);
        fake::FakePlattform eigene;
        eigene.system.vorherigeInstanz = true;
        eigene.system.kommandozeile = zeile;
        Programm p(eigene.plattform);
        if (std::string(zeile) == "/S") {
            EXPECT_FALSE(Main(p));
            ASSERT_EQ(eigene.dialogs.meldungen.size(), 1u);
            EXPECT_EQ(eigene.dialogs.meldungen[0].text, "Kestrella ist bereits aktiv!.");
            EXPECT_EQ(eigene.dialogs.meldungen[0].flags, kMbOk | kMbSystemModal);
            EXPECT_TRUE(p.Beenden);
            EXPECT_FALSE(p.Form2Geladen());
            continue;
        }
        ASSERT_TRUE(Main(p));
        EXPECT_TRUE(eigene.dialogs.meldungen.empty());
        eigene.timers.Advance(2999);
        EXPECT_FALSE(p.Form2Geladen());
        eigene.timers.Advance(1);
        EXPECT_TRUE(p.Form2Geladen());
        EXPECT_FALSE(eigene.timers.Running(kTimerStart2)) << "Timer2 fires once";
    }
}

TEST_F(Start, LaterRun_LoadsAlarmAtTheFirstBoxBeforeAnyBoxHasItsValue) {
    Bag({{"hostsgrösse", std::int32_t{734}},
         {"InternetStartPage3", std::string("http://start.example/")},
         {"Box15", std::int16_t{1}},
         {"Box19", std::int16_t{1}}});
    bool geprüft = false;
    fp.registry.beimÖffnen = [&](const std::string& pfad) {
        if (pfad != "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run" || geprüft) return;
        geprüft = true;
        // This is the load handler of Alarm asking for the Run value.
        EXPECT_EQ(prg.Hostsgrösse, 734) << "saved values are in memory before Alarm loads";
        EXPECT_EQ(prg.StartSeiten[3], "http://start.example/");
        EXPECT_EQ(prg.Alarm().Box1[15].value(), 0) << "boxes still have their design values";
        EXPECT_EQ(prg.Alarm().Box1[19].Caption, "") << "folder captions are set later in the handler";
    };
    ASSERT_TRUE(Main(prg));
    EXPECT_TRUE(geprüft);
    AlarmFenster& alarm = prg.Alarm();
    EXPECT_EQ(std::make_tuple(alarm.Caption, alarm.Box1[15].value(), alarm.Box1[19].Caption, alarm.Box1[20].Caption),
              std::make_tuple("Kestrella V2.2.0 AddOn Halvenik", 1, "C:\\WINDOWS", "C:\\WINDOWS\\system32"));
    EXPECT_EQ(std::make_tuple(fp.timers.Running(kTimerAlarm1), fp.timers.IntervalOf(kTimerAlarm1), prg.Beschäftigt,
                              prg.Start().fox1[2].Checked, prg.Start().fox1[2].Caption, prg.Form2Geladen()),
              std::make_tuple(true, 5000, false, true, "Überwachung ist aktiv", false));
}

TEST_F(Start, NoBoxKeys_AllBoxesOffButTimerAndTrayOn_TheAutostartBoxMirrorsTheRunValue) {
    fp.registry.SetString("HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella",
                          "C:\\Programme\\Kestrella\\Kestrella.exe /s");
    Einstellungen(PropertyBag());
    ASSERT_TRUE(Main(prg));
    EXPECT_EQ(prg.Alarm().Box1[0].value(), 1);
    EXPECT_TRUE(prg.Start().fox1[5].Checked);
    for (int i = 1; i < kBoxAnzahl; ++i) EXPECT_EQ(prg.Alarm().Box1[i].value(), 0) << "box " << i;
    EXPECT_TRUE(fp.timers.Running(kTimerAlarm1));
}

TEST_F(Start, StoredValues_SurviveARestartWithGreyAndStageIntact) {
    Bag({{"box7", std::int16_t{2}}, {"box1", std::int16_t{1}}, {"Aufab1", std::int16_t{12}},
         {"AnzeigeLöschen", true}});
    ASSERT_TRUE(Main(prg));
    EXPECT_EQ(std::make_tuple(prg.Alarm().Box1[7].value(), prg.Soundflag, prg.AnzeigeLöschen,
                              fp.timers.IntervalOf(kTimerAlarm1)),
              std::make_tuple(2, 1, true, 12000));

    // The start saved what it read; a second program reads the same.
    fake::FakePlattform zweite;
    zweite.files.Put(datPfad, fp.files.Content(datPfad));
    Programm p2(zweite.plattform);
    ASSERT_TRUE(Main(p2));
    EXPECT_EQ(std::make_tuple(p2.Alarm().Box1[7].value(), p2.Intervallstufe, p2.AnzeigeLöschen),
              std::make_tuple(2, 12, true));
}

// A settings file written before the further autostart places were watched has no key for
// their boxes: they stay off.
TEST_F(Start, SettingsWithoutTheLaterBoxes_LeaveThemOff) {
    PropertyBag bag;
    for (int i = 1; i <= 32; ++i) bag.WriteProperty("Box" + std::to_string(i), std::int16_t{1});
    Einstellungen(bag);
    ASSERT_TRUE(Main(prg));
    for (int i : {33, 34, 35, 36, 37, 38, 42}) EXPECT_EQ(prg.Alarm().Box1[i].value(), 0) << "Box" << i;
}

// The settings store each box from 1 to the highest one of the watcher table, in order, and
// read them all back; box 0 mirrors the Run value and is not stored.
TEST_F(Start, EveryBoxOfTheTable_IsStoredInOrderAndReadBack) {
    int höchste = kEigeneBoxen - 1;
    for (const WächterZeile& z : Wächtertabelle()) {
        höchste = std::max(höchste, z.box);
        for (const Option& o : z.optionen) höchste = std::max(höchste, o.box);
    }
    // Grey: stored like any value, but switches no watcher on.
    PropertyBag bag;
    std::vector<std::string> erwartet, boxen;
    for (int i = 1; i <= höchste; ++i) {
        erwartet.push_back("Box" + std::to_string(i));
        bag.WriteProperty(erwartet.back(), std::int16_t{2});
    }
    Einstellungen(bag);
    ASSERT_TRUE(Main(prg));
    const PropertyBag gespeichert = GespeicherteEinstellungen();  // held: the loop reads into it
    for (const PropertyBag::Eintrag& e : gespeichert.Einträge())
        if (e.name.starts_with("Box")) boxen.push_back(e.name);
    EXPECT_EQ(boxen, erwartet);

    fake::FakePlattform zweite;
    zweite.files.Put(datPfad, fp.files.Content(datPfad));
    Programm p2(zweite.plattform);
    ASSERT_TRUE(Main(p2));
    for (int i = 1; i <= höchste; ++i)
        EXPECT_EQ(p2.Alarm().Box1[static_cast<std::size_t>(i)].value(), 2) << "box " << i;
}

TEST_F(Start, StageMissingOrZero_BecomesFive) {
    Bag({{"Aufab1", std::int16_t{0}}});
    ASSERT_TRUE(Main(prg));
    EXPECT_EQ(prg.Intervallstufe, 5);
    EXPECT_EQ(fp.timers.IntervalOf(kTimerAlarm1), 5000);
    EXPECT_EQ(GespeicherteEinstellungen().Finde("Aufab1"), nullptr) << "the default 5 is left out and read back as 5";
}

// A file that cannot be read whole is reported, is no first run, and is not overwritten;
// a wrong type keeps the values read before it.
TEST_F(Start, DamagedLockedOrMistypedSettings_ReportTheNumberAndLeaveTheCycleOff) {
    const std::string gut = Inhalt({{"hostsgrösse", std::int32_t{99}}, {"Box4", std::int16_t{1}}});
    struct Fall {
        std::string inhalt;
        int nummer;
        bool gesperrt = false;
        std::int32_t hosts = -1;
    };
    const Fall fälle[] = {
        {"kein Eigenschaftenblock", 321},
        {gut.substr(0, gut.size() - 1), 62},
        {gut + "x", 321},
        {"", 62},
        {Inhalt({}), 75, true},
        {Inhalt({{"hostsgrösse", std::int32_t{55}}, {"Aufab1", std::string("schnell")}}), 13, false, 55},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.nummer);
        fake::FakePlattform eigene;
        eigene.files.Put(datPfad, fall.inhalt);
        if (fall.gesperrt) eigene.files.Lock(datPfad);
        Programm p(eigene.plattform);
        ASSERT_TRUE(Main(p));
        ASSERT_EQ(eigene.dialogs.meldungen.size(), 1u);
        EXPECT_EQ(eigene.dialogs.meldungen[0].text,
                  "(Modul Starten, Properties_Load) Fehler: " + std::to_string(fall.nummer));
        EXPECT_FALSE(eigene.timers.Running(kTimerAlarm1));
        EXPECT_FALSE(p.Form2Geladen()) << "a damaged file is no first run";
        EXPECT_EQ(eigene.files.Content(datPfad), fall.inhalt) << "nothing overwrites the damaged file";
        if (fall.hosts >= 0) {
            EXPECT_EQ(p.Hostsgrösse, fall.hosts) << "values read so far stay";
        }
    }
}

}  // namespace
}  // namespace kes::test
