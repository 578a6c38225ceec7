// The scheduled tasks watcher: what counts as new, what its warning shows, where it looks
// and where not, the first baseline taken without a word, the baseline's lines read back
// as written, and a delete that takes the one task file.
#include <functional>

#include "assistant/form2.h"
#include "core/einstellungen.h"
#include "panel/alarm.h"
#include "platform/journal.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kNeu = "C:\\WINDOWS\\system32\\Tasks";
const std::string kAlt = "C:\\WINDOWS\\Tasks";
using Schritt = std::function<void(fake::FakeFiles&)>;

// A task as Windows writes it: UTF-16 with its byte order mark.
std::string Xml(const std::string& befehl, const std::string& argumente = "") {
    const std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<Task><Settings><ExecutionTimeLimit>PT72H"
        "</ExecutionTimeLimit></Settings><Actions><Exec><Command>" +
        befehl + "</Command><Arguments>" + argumente + "</Arguments></Exec></Actions></Task>";
    std::string aus = "\xFF\xFE";
    for (char c : text) aus += std::string{c, '\0'};
    return aus;
}

// A .job file: the fixed section, the instance count, the application name and the
// parameters, each with its count of UTF-16 characters and the closing NUL.
std::string Job(const std::string& programm, const std::string& parameter) {
    std::string d(0x46, '\0');
    for (const std::string& s : {programm, parameter}) {
        d += std::string{static_cast<char>(s.size() + 1), '\0'};
        for (char c : s + '\0') d += std::string{c, '\0'};
    }
    return d;
}

struct Regel {
    const char* fall;
    Schritt vorher;    // the tasks as the baseline is taken
    Schritt danach;    // what changes after it
    std::string name;  // the warning's "Name:" row; empty: no warning
    std::string pfad = "";
};

const Regel kRegeln[] = {
    {"new task", [](auto& f) { f.MakeDirs(kNeu); }, [](auto& f) { f.Put(kNeu + "\\Neu", Xml("C:\\x.exe", "/a")); },
     "Name: " + kNeu + "\\Neu", "Pfad: C:\\x.exe /a"},
    // Made one by one: the fake's MakeDirs names its folders in lower case.
    {"task in a folder below",
     [](auto& f) {
         f.MakeDirs(kNeu);
         f.MakeDirectory(kNeu + "\\Microsoft");
         f.MakeDirectory(kNeu + "\\Microsoft\\Windows");
     },
     [](auto& f) {
         f.MakeDirectory(kNeu + "\\Microsoft\\Windows\\Defrag");
         f.Put(kNeu + "\\Microsoft\\Windows\\Defrag\\Tief", Xml("C:\\x.exe"));
     },
     "Name: " + kNeu + "\\Microsoft\\Windows\\Defrag\\Tief", "Pfad: C:\\x.exe"},
    {"changed command", [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe", "/a")); },
     [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe", "/a /boese")); }, "Name: " + kNeu + "\\T",
     "Pfad: C:\\x.exe /a /boese"},
    {"unchanged task", [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe", "/a")); }, [](auto&) {}, ""},
    {"a touch that leaves the command", [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe", "/a")); },
     [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe", "/a") + std::string(2, '\0')); }, ""},
    {"task gone", [](auto& f) { f.Put(kNeu + "\\T", Xml("C:\\x.exe")); }, [](auto& f) { f.Delete(kNeu + "\\T"); }, ""},
    {"new .job", [](auto& f) { f.MakeDirs(kAlt); }, [](auto& f) { f.Put(kAlt + "\\Neu.JOB", Job("C:\\x.exe", "/s")); },
     "Name: " + kAlt + "\\Neu.JOB", "Pfad: C:\\x.exe /s"},
    {"another file in the old folder", [](auto& f) { f.MakeDirs(kAlt); },
     [](auto& f) { f.Put(kAlt + "\\SA.DAT", Job("C:\\x.exe", "/s")); }, ""},
    {"a folder below the old folder", [](auto& f) { f.MakeDirs(kAlt); },
     [](auto& f) { f.Put(kAlt + "\\Unter\\x.job", Job("C:\\x.exe", "/s")); }, ""},
    {"locked task", [](auto&) {},
     [](auto& f) {
         f.Put(kNeu + "\\Zu", Xml("C:\\x.exe"));
         f.Lock(kNeu + "\\Zu");
     },
     "Name: " + kNeu + "\\Zu", "Pfad: "},
    {"a task file far too big", [](auto&) {},
     [](auto& f) {
         f.Put(kNeu + "\\Gross", Xml("C:\\x.exe"));
         f.PretendLength(kNeu + "\\Gross", 2 << 20);
     },
     "Name: " + kNeu + "\\Gross", "Pfad: "},
    {"garbage", [](auto&) {}, [](auto& f) { f.Put(kNeu + "\\Kaputt", "\x01\x02<Exec"); }, "Name: " + kNeu + "\\Kaputt",
     "Pfad: "},
    {"Tasks folders made after the first pass", [](auto&) {}, [](auto& f) { f.Put(kNeu + "\\Neu", Xml("C:\\x.exe")); },
     "Name: " + kNeu + "\\Neu", "Pfad: C:\\x.exe"},
    {"no Tasks folders at all", [](auto&) {}, [](auto&) {}, ""},
};

TEST(GeplanteAufgaben, WhatWarnsAndWhatTheWarningShows) {
    for (const Regel& r : kRegeln) {
        SCOPED_TRACE(r.fall);
        Lauf l;
        r.vorher(l.fp.files);
        l.a().geplanteAufgaben.Teste();
        ASSERT_FALSE(l.prg.Form3Geladen()) << "the first pass takes the tasks as they stand";
        r.danach(l.fp.files);
        l.a().geplanteAufgaben.Teste();
        EXPECT_EQ(l.fp.files.OpenFinds(), 0);
        ASSERT_EQ(l.prg.Form3Geladen(), !r.name.empty());
        if (r.name.empty()) continue;
        const Form3Fenster& f = l.prg.Form3();
        EXPECT_EQ(l.prg.Kategorieschlüssel, Kategorie::GeplanteAufgaben);
        EXPECT_EQ(f.Label1[0].Caption, "Eine geplante Aufgabe ist neu oder ihr Befehl wurde geändert.");
        EXPECT_EQ(f.Label1[1].Caption, r.name);
        EXPECT_EQ(f.Label1[2].Caption, r.pfad);
    }
}

TEST(GeplanteAufgaben, FileGoneWhileTheWalkPumps_IsPassedOver) {
    Lauf l;
    l.a().geplanteAufgaben.Teste();
    for (const char* n : {"\\A", "\\B"}) l.fp.files.Put(kNeu + n, Xml("C:\\x.exe"));
    // The first pump comes between the folders, the second after the listing, before A is
    // read.
    l.fp.timers.beimPumpen.push_back(
        [&] { l.fp.timers.beimPumpen.push_back([&] { ASSERT_EQ(l.fp.files.Delete(kNeu + "\\A"), 0); }); });
    l.a().geplanteAufgaben.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    EXPECT_EQ(l.prg.Form3().Text1[0].Text, kNeu + "\\B");
    EXPECT_EQ(l.fp.files.OpenFinds(), 0);
}

TEST(GeplanteAufgaben, DeferredTaskWhoseCommandChanges_StaysDeferred_AnotherStillWarns) {
    Lauf l;
    GeplanteAufgaben& w = l.a().geplanteAufgaben;
    w.Teste();
    l.fp.files.Put(kNeu + "\\T", Xml("C:\\a.exe"));
    w.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    l.prg.Form3().Image_Click(6);
    l.prg.Aufräumen();
    l.fp.files.Put(kNeu + "\\T", Xml("C:\\b.exe"));
    w.Teste();
    EXPECT_FALSE(l.prg.Form3Geladen());
    l.fp.files.Put(kNeu + "\\U", Xml("C:\\c.exe"));
    w.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    EXPECT_EQ(l.prg.Form3().Text1[0].Text, kNeu + "\\U");
}

TEST(GeplanteAufgaben, BoxSwitchedOnWithoutBaseline_TakesThePresentState_ThenWarns) {
    Lauf l;
    l.fp.files.Put(kNeu + "\\Alt", Xml("C:\\alt.exe", "-x"));
    l.a().Laden();  // no baseline file yet
    l.a().Box1[42].setValue(1);
    l.a().Durchlauf();
    EXPECT_FALSE(l.prg.Form3Geladen());
    EXPECT_EQ(l.fp.files.Content(l.prg.Programmordner + "daten\\GeplanteAufgaben.txt"),
              kNeu + "\\Alt|C:\\alt.exe -x\r\n");
    // Emptied on the panel, the baseline stays empty: whatever stands there now is new.
    l.a().ListView23.Items.clear();
    l.a().Durchlauf();
    EXPECT_TRUE(l.prg.Form3Geladen());
}

// Names and commands with what the line and the file could trip over: blanks, umlauts,
// "&", "%", quotes, a pipe in the command, a line end inside the command.
TEST(GeplanteAufgaben, TheAssistantTakesTheTasks_TheBaselineReadsBackAsWritten_AndKnowsEveryTask) {
    Lauf l;
    l.fp.files.Put(kNeu + "\\Größe & Co; 100% [1]", Xml("\"C:\\Pro gramme\\ä.exe\"", "/c a | b &amp; &quot;c&quot;"));
    l.fp.files.Put(kNeu + "\\Zeilen", Xml("C:\\x.exe", "/a&#13;&#10;/b"));
    l.fp.files.Put(kNeu + "\\Leer", Xml(""));
    l.fp.files.Put(kAlt + "\\Alt #1.job", Job("C:\\Windows\\ä.exe", "|"));
    // "Alle Werte des Systems übernehmen" of the first-run assistant.
    Properties_Load(l.prg);
    l.prg.Form2().Command2_Click(0);
    GeplanteAufgaben& w = l.a().geplanteAufgaben;
    w.Laden();
    std::vector<std::string> zeilen;
    for (const ListItem& z : w.liste.Items) zeilen.push_back(z.Text);
    EXPECT_EQ(zeilen,
              (std::vector<std::string>{kAlt + "\\Alt #1.job|C:\\Windows\\ä.exe |",
                                        kNeu + "\\Größe & Co; 100% [1]|\"C:\\Pro gramme\\ä.exe\" /c a | b & \"c\"",
                                        kNeu + "\\Leer|", kNeu + "\\Zeilen|C:\\x.exe /a  /b"}));
    w.Teste();
    EXPECT_FALSE(l.prg.Form3Geladen()) << "every task known from the file";
    w.basis.Speichern();
    w.Laden();
    std::vector<std::string> wieder;
    for (const ListItem& z : w.liste.Items) wieder.push_back(z.Text);
    EXPECT_EQ(wieder, zeilen) << "written again, read again";
}

TEST(GeplanteAufgaben, DeleteTakesTheTaskFileAlone_AfterItsBackup) {
    Lauf l;
    l.prg.AnzeigeLöschen = true;  // no question window
    const std::string inhalt = Xml("C:\\boese.exe");
    l.fp.files.Put(kNeu + "\\Bleibt", Xml("C:\\gut.exe"));
    l.a().geplanteAufgaben.Teste();
    l.fp.files.Put(kNeu + "\\Neu", inhalt);
    l.a().geplanteAufgaben.Teste();
    ASSERT_TRUE(l.prg.Form3Geladen());
    ASSERT_EQ(l.prg.Form3().Text1[0].Text, kNeu + "\\Neu");
    l.prg.Form3().Image_Click(3);
    EXPECT_FALSE(l.prg.Form3Geladen());
    EXPECT_FALSE(l.fp.files.Exists(kNeu + "\\Neu"));
    EXPECT_TRUE(l.fp.files.Exists(kNeu + "\\Bleibt"));
    const auto journal = Journal(l.fp.files, l.fp.system, l.prg.Programmordner).Lesen();
    ASSERT_FALSE(journal.einträge.empty());
    EXPECT_EQ(journal.einträge.back().ziel, kNeu + "\\Neu");
    EXPECT_FALSE(journal.einträge.back().sicherung.empty()) << "no backup";
}

}  // namespace
}  // namespace kes::test
