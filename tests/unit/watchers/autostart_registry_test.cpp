// The autostart registry watcher: what counts as known, deferred or new, how the program's
// path is worked out, and that every user hive is walked.
#include "core/starten.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class AutostartRegistry : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Timer1.SetEnabled(true);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Kennen(const std::string& eintrag) { alarm().ListView1.Add(eintrag); }
    void Benutzerwert(const std::string& name, const std::string& daten) {
        fp.registry.SetString("HKEY_CURRENT_USER\\" + kRun, name, daten);
    }
    std::string Wert(int i) { return prg.Form3().Text1[i].Text; }
};

TEST_F(AutostartRegistry, NewValue_RaisesTheWarningWithRowPathAndFields) {
    fp.files.Put("C:\\Tool\\tool.exe", "MZ");
    Benutzerwert("Tool", "C:\\Tool\\tool.exe /min");
    prg.Soundflag = 1;
    alarm().autostartRegistry.TesteAutostartRegistry();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(fp.sound.gespielt.size(), 1u);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Neuer Eintrag in der Registry Autostart-Funktion gefunden.");
    ASSERT_EQ(f.ListView2.Items.size(), 2u);
    EXPECT_EQ(f.ListView2.Items[0].Text, "tool.exe");
    EXPECT_EQ(f.ListView2.Items[1].Text, "C:\\Tool\\tool.exe");
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    const ListItem& z = f.ListView4.Items[0];
    EXPECT_EQ(z.Text, "Autostart");
    EXPECT_EQ(z.SubItem(1), "HKEY_CURRENT_USER");
    EXPECT_EQ(z.SubItem(2), kRun);
    EXPECT_EQ(z.SubItem(3), "Tool");
    EXPECT_EQ(z.SubItem(4), "C:\\Tool\\tool.exe /min");
    EXPECT_EQ(Wert(0), "HKEY_CURRENT_USER\\" + kRun);
    EXPECT_EQ(Wert(1), "HKEY_CURRENT_USER");
    EXPECT_EQ(Wert(3), "Tool");
    EXPECT_EQ(Wert(4), "C:\\Tool\\tool.exe");
    EXPECT_FALSE(f.Picture3[4].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible);
    EXPECT_EQ(f.Label3[2].Caption, "Registry löschen");
}

TEST_F(AutostartRegistry, KnownInAnyCase_OrDeferredEvenWhenChanged_StaysSilent) {
    Benutzerwert("Tool", "C:\\TOOL\\tool.exe");
    Kennen("hkey_current_user\\" + kRun + "\\tool\\c:\\tool\\TOOL.EXE");
    alarm().autostartRegistry.TesteAutostartRegistry();
    EXPECT_FALSE(prg.Form3Geladen());

    Benutzerwert("Zweiter", "a.exe");
    alarm().List8.Items.push_back("HKEY_CURRENT_USER\\" + kRun + "\\Zweiter");
    Benutzerwert("Zweiter", "b.exe");
    alarm().autostartRegistry.TesteAutostartRegistry();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(AutostartRegistry, VanishedValue_RaisesNothing_AndItsLineStays) {
    Benutzerwert("Bleibt", "b.exe");
    Kennen("HKEY_CURRENT_USER\\" + kRun + "\\Bleibt\\b.exe");
    Kennen("HKEY_CURRENT_USER\\" + kRun + "\\Weg\\w.exe");
    alarm().autostartRegistry.TesteAutostartRegistry();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(alarm().ListView1.Items.size(), 2u);
}

TEST_F(AutostartRegistry, ChangedData_CountsAsNew) {
    Benutzerwert("Tool", "neu.exe");
    Kennen("HKEY_CURRENT_USER\\" + kRun + "\\Tool\\alt.exe");
    alarm().autostartRegistry.TesteAutostartRegistry();
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_F(AutostartRegistry, WindowsNtRunValueOfTheMachine_IsWatchedToo) {
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows", "run",
                          "x.exe");
    alarm().autostartRegistry.TesteAutostartRegistry();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Wert(1), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(Wert(3), "run");
}

// Up to two quotes come off each end, then a switch; a quote before the switch stays.
TEST_F(AutostartRegistry, QuotesOffTheEnds_AtMostTwoEach_TheClosingOneBeforeASwitchStays) {
    const struct {
        const char* daten;
        const char* pfad;
    } fälle[] = {
        {"\"C:\\Program Files\\Tool\\tool.exe\" /min", "C:\\Program Files\\Tool\\tool.exe\""},
        {"\"C:\\Tool\\tool.exe\"", "C:\\Tool\\tool.exe"},
        {"\"\"C:\\Tool\\tool.exe\"\"", "C:\\Tool\\tool.exe"},
        {"\"\"\"C:\\Tool\\tool.exe\"\"\"", "\"C:\\Tool\\tool.exe\""},
    };
    for (const auto& fall : fälle) {
        Benutzerwert("Tool", fall.daten);
        alarm().autostartRegistry.TesteAutostartRegistry();
        ASSERT_TRUE(prg.Form3Geladen()) << fall.daten;
        EXPECT_EQ(Wert(4), fall.pfad) << fall.daten;
        prg.Form3Entladen();
        prg.Aufräumen();
    }
}

TEST_F(AutostartRegistry, UserHives_AlsoSearchTheWindowsFolder) {
    fp.files.Put("C:\\WINDOWS\\tool.exe", "MZ");
    Benutzerwert("Tool", "tool.exe /min");
    alarm().autostartRegistry.TesteAutostartHkeyUser();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Wert(1), "HKEY_USERS");
    EXPECT_EQ(Wert(2), std::string(fake::kBenutzerSid) + "\\" + kRun);
    EXPECT_EQ(Wert(4), "C:\\WINDOWS\\tool.exe");
    prg.Form3Entladen();
    prg.Aufräumen();

    alarm().autostartRegistry.TesteAutostartRegistry();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Wert(4), "tool.exe") << "the user and machine keys search no folder";
}

TEST_F(AutostartRegistry, CurrentUsersValueAcceptedAsHkcu_IsStillNewBelowHkeyUsers) {
    Benutzerwert("Tool", "t.exe");
    Kennen("HKEY_CURRENT_USER\\" + kRun + "\\Tool\\t.exe");
    alarm().autostartRegistry.TesteAutostartHkeyUser();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Wert(1), "HKEY_USERS");
}

TEST_F(AutostartRegistry, DefaultHive_IsWalkedAsWell) {
    fp.registry.SetString("HKEY_USERS\\.DEFAULT\\" + kRun, "Vorlage", "v.exe");
    alarm().autostartRegistry.TesteAutostartHkeyUser();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Wert(2), ".DEFAULT\\" + kRun);
}

TEST_F(AutostartRegistry, FileWhoseVersionBlockOverflows_StillGetsItsWarningShown) {
    fp.files.Put("C:\\boese.exe", "MZ");
    fake::FakeVersion v;
    v.übersetzungen.push_back({0x0407, 0xFDE9, {{"CompanyName", "x"}}});
    fp.details.SetVersion("C:\\boese.exe", v);
    Benutzerwert("Boese", "C:\\boese.exe");
    alarm().autostartRegistry.TesteAutostartRegistry();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Form3().Visible) << "a raised warning that never shows would stop the watch for good";
}

TEST_F(AutostartRegistry, Baseline_IsReadUpToTheFirstEmptyLine) {
    fp.files.Put(ordner + "daten\\AutostartREG.txt", "eins\r\nzwei\r\n\r\ndrei\r\n");
    alarm().autostartRegistry.LadeAutostartregistry();
    ASSERT_EQ(alarm().ListView1.Items.size(), 2u);
    EXPECT_EQ(alarm().ListView1.Items[1].Text, "zwei");
    fp.files.Delete(ordner + "daten\\AutostartREG.txt");
    alarm().autostartRegistry.LadeAutostartregistry();
    EXPECT_EQ(alarm().ListView1.Items.size(), 2u) << "without the file the list stays as it is";
}

}  // namespace
}  // namespace kes::test
