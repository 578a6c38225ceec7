// The autostart registry watcher: what counts as known, deferred or new, how the program's
// path is worked out, and that every user hive is walked.
#include <functional>
#include <map>

#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

struct AutostartLauf : Lauf {
    AutostartLauf() { a().Timer1.SetEnabled(true); }
    AlarmFenster& alarm() { return a(); }
    void Kennen(const std::string& eintrag) { alarm().ListView1.Add(eintrag); }
    void Benutzerwert(const std::string& name, const std::string& daten) {
        fp.registry.SetString("HKEY_CURRENT_USER\\" + kRun, name, daten);
    }
    std::string Wert(int i) { return prg.Form3().Text1[i].Text; }
};
struct AutostartRegistry : ::testing::Test, AutostartLauf {};

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
    EXPECT_EQ(TexteVon(f.ListView2), (Texte{"tool.exe", "C:\\Tool\\tool.exe"}));
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    EXPECT_EQ(Spalten(f.ListView4.Items[0], 4),
              (Texte{"Autostart", "HKEY_CURRENT_USER", kRun, "Tool", "C:\\Tool\\tool.exe /min"}));
    EXPECT_EQ(Felder(f, 5),
              (Texte{"HKEY_CURRENT_USER\\" + kRun, "HKEY_CURRENT_USER", kRun, "Tool", "C:\\Tool\\tool.exe"}));
    EXPECT_FALSE(f.Picture3[4].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible);
    EXPECT_EQ(f.Label3[2].Caption, "Registry löschen");
}

// Which values warn, and with which fields; every case on a fresh program. The baseline
// never changes by a look.
TEST_F(AutostartRegistry, WhatWarns_AndThePathItShows) {
    enum Routine { Registry, HkeyUser };
    const auto fall = [](const char* name, Routine routine, const std::map<int, std::string>& felder,
                         const std::function<void(AutostartLauf&)>& vorher) {
        SCOPED_TRACE(name);
        AutostartLauf t;
        vorher(t);
        const std::size_t basis = t.alarm().ListView1.Items.size();
        if (routine == Registry) t.alarm().autostartRegistry.TesteAutostartRegistry();
        if (routine == HkeyUser) t.alarm().autostartRegistry.TesteAutostartHkeyUser();
        EXPECT_EQ(t.alarm().ListView1.Items.size(), basis);
        ASSERT_EQ(t.prg.Form3Geladen(), !felder.empty());
        for (const auto& [i, wert] : felder) EXPECT_EQ(t.Wert(i), wert) << "Text1(" << i << ")";
    };
    const std::string cu = "HKEY_CURRENT_USER\\" + kRun;
    fall("known in any case", Registry, {}, [&](auto& t) {
        t.Benutzerwert("Tool", "C:\\TOOL\\tool.exe");
        t.Kennen("hkey_current_user\\" + kRun + "\\tool\\c:\\tool\\TOOL.EXE");
    });
    fall("deferred, even when changed", Registry, {}, [&](auto& t) {
        t.Benutzerwert("Zweiter", "a.exe");
        t.alarm().List8.Items.push_back(cu + "\\Zweiter");
        t.Benutzerwert("Zweiter", "b.exe");
    });
    fall("a vanished value, its line stays", Registry, {}, [&](auto& t) {
        t.Benutzerwert("Bleibt", "b.exe");
        t.Kennen(cu + "\\Bleibt\\b.exe");
        t.Kennen(cu + "\\Weg\\w.exe");
    });
    fall("changed data counts as new", Registry, {{4, "neu.exe"}}, [&](auto& t) {
        t.Benutzerwert("Tool", "neu.exe");
        t.Kennen(cu + "\\Tool\\alt.exe");
    });
    fall("the machine's Windows NT run value", Registry, {{1, "HKEY_LOCAL_MACHINE"}, {3, "run"}}, [](auto& t) {
        t.fp.registry.SetString("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows", "run",
                                "x.exe");
    });
    // Up to two quotes come off each end, then a switch; a quote before the switch stays.
    for (const auto& [daten, pfad] : std::vector<std::pair<std::string, std::string>>{
             {"\"C:\\Program Files\\Tool\\tool.exe\" /min", "C:\\Program Files\\Tool\\tool.exe\""},
             {"\"C:\\Tool\\tool.exe\"", "C:\\Tool\\tool.exe"},
             {"\"\"C:\\Tool\\tool.exe\"\"", "C:\\Tool\\tool.exe"},
             {"\"\"\"C:\\Tool\\tool.exe\"\"\"", "\"C:\\Tool\\tool.exe\""}})
        fall(daten.c_str(), Registry, {{4, pfad}}, [&](auto& t) { t.Benutzerwert("Tool", daten); });
    const auto imWindowsordner = [](auto& t) {
        t.fp.files.Put("C:\\WINDOWS\\tool.exe", "MZ");
        t.Benutzerwert("Tool", "tool.exe /min");
    };
    fall("the user hives also search the Windows folder", HkeyUser,
         {{1, "HKEY_USERS"}, {2, std::string(fake::kBenutzerSid) + "\\" + kRun}, {4, "C:\\WINDOWS\\tool.exe"}},
         imWindowsordner);
    fall("the user and machine keys search no folder", Registry, {{4, "tool.exe"}}, imWindowsordner);
    fall("accepted as HKCU, still new below HKEY_USERS", HkeyUser, {{1, "HKEY_USERS"}}, [&](auto& t) {
        t.Benutzerwert("Tool", "t.exe");
        t.Kennen(cu + "\\Tool\\t.exe");
    });
    fall("the default hive", HkeyUser, {{2, ".DEFAULT\\" + kRun}},
         [](auto& t) { t.fp.registry.SetString("HKEY_USERS\\.DEFAULT\\" + kRun, "Vorlage", "v.exe"); });
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
    fp.files.Put(prg.Programmordner + "daten\\AutostartREG.txt", "eins\r\nzwei\r\n\r\ndrei\r\n");
    alarm().autostartRegistry.LadeAutostartregistry();
    ASSERT_EQ(alarm().ListView1.Items.size(), 2u);
    EXPECT_EQ(alarm().ListView1.Items[1].Text, "zwei");
    fp.files.Delete(prg.Programmordner + "daten\\AutostartREG.txt");
    alarm().autostartRegistry.LadeAutostartregistry();
    EXPECT_EQ(alarm().ListView1.Items.size(), 2u) << "without the file the list stays as it is";
}

}  // namespace
}  // namespace kes::test
