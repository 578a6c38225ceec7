// The scheduled tasks watcher: what counts as new and what its warning shows, the first
// baseline taken without a word, the baseline read back as written, the delete.
#include <functional>

#include "assistant/form2.h"
#include "core/einstellungen.h"
#include "platform/journal.h"
#include "warn_lesen.h"

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

Schritt Lege(const std::string& pfad, const std::string& inhalt) {
    return [=](fake::FakeFiles& f) { f.Put(pfad, inhalt); };
}
Schritt Ordner(const std::string& pfad) {
    return [=](fake::FakeFiles& f) { f.MakeDirs(pfad); };
}
const Schritt kNichts = [](fake::FakeFiles&) {};

TEST(GeplanteAufgaben, WhatWarnsAndWhatTheWarningShows) {
    const std::string kT = kNeu + "\\T", kTief = kNeu + "\\Microsoft\\Windows";
    const struct {
        const char* fall;
        Schritt vorher, danach;  // the tasks as the baseline is taken, and what changes after it
        std::string name;        // the warning's "Name:" row; empty: no warning
        std::string pfad = "";
    } regeln[] = {
        {"new task", Ordner(kNeu), Lege(kNeu + "\\Neu", Xml("C:\\x.exe", "/a")), kNeu + "\\Neu", "C:\\x.exe /a"},
        // Made one by one: the fake's MakeDirs names its folders in lower case.
        {"task in a folder below",
         [&](auto& f) {
             f.MakeDirs(kNeu);
             f.MakeDirectory(kNeu + "\\Microsoft");
             f.MakeDirectory(kTief);
         },
         [&](auto& f) {
             f.MakeDirectory(kTief + "\\Defrag");
             f.Put(kTief + "\\Defrag\\Tief", Xml("C:\\x.exe"));
         },
         kTief + "\\Defrag\\Tief", "C:\\x.exe"},
        {"changed command", Lege(kT, Xml("C:\\x.exe", "/a")), Lege(kT, Xml("C:\\x.exe", "/a /boese")), kT,
         "C:\\x.exe /a /boese"},
        {"unchanged task", Lege(kT, Xml("C:\\x.exe", "/a")), kNichts, ""},
        {"a touch that leaves the command", Lege(kT, Xml("C:\\x.exe", "/a")),
         Lege(kT, Xml("C:\\x.exe", "/a") + std::string(2, '\0')), ""},
        {"task gone", Lege(kT, Xml("C:\\x.exe")), [&](auto& f) { f.Delete(kT); }, ""},
        {"new .job", Ordner(kAlt), Lege(kAlt + "\\Neu.JOB", Job("C:\\x.exe", "/s")), kAlt + "\\Neu.JOB",
         "C:\\x.exe /s"},
        {"another file in the old folder", Ordner(kAlt), Lege(kAlt + "\\SA.DAT", Job("C:\\x.exe", "/s")), ""},
        {"a folder below the old folder", Ordner(kAlt), Lege(kAlt + "\\Unter\\x.job", Job("C:\\x.exe", "/s")), ""},
        {"locked task", kNichts,
         [&](auto& f) {
             f.Put(kNeu + "\\Zu", Xml("C:\\x.exe"));
             f.Lock(kNeu + "\\Zu");
         },
         kNeu + "\\Zu", ""},
        {"a task file far too big", kNichts,
         [&](auto& f) {
             f.Put(kNeu + "\\Gross", Xml("C:\\x.exe"));
             f.PretendLength(kNeu + "\\Gross", 2 << 20);
         },
         kNeu + "\\Gross", ""},
        {"garbage", kNichts, Lege(kNeu + "\\Kaputt", "\x01\x02<Exec"), kNeu + "\\Kaputt", ""},
        {"Tasks folders made after the first pass", kNichts, Lege(kNeu + "\\Neu", Xml("C:\\x.exe")), kNeu + "\\Neu",
         "C:\\x.exe"},
        {"no Tasks folders at all", kNichts, kNichts, ""},
    };
    for (const auto& r : regeln) {
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
        EXPECT_EQ(l.prg.Kategorieschlüssel, Kategorie::GeplanteAufgaben);
        EXPECT_EQ(Kopf(l.prg.Form3()), (Texte{"Eine geplante Aufgabe ist neu oder ihr Befehl wurde geändert.",
                                              "Name: " + r.name, "Pfad: " + r.pfad}));
    }
}

TEST(GeplanteAufgaben, FileGoneWhileTheWalkPumps_IsPassedOver) {
    Lauf l;
    l.a().geplanteAufgaben.Teste();
    for (const char* n : {"\\A", "\\B"}) l.fp.files.Put(kNeu + n, Xml("C:\\x.exe"));
    // The first pump comes between the folders, the second after the listing, before A is read.
    l.fp.timers.beimPumpen.push_back(
        [&] { l.fp.timers.beimPumpen.push_back([&] { ASSERT_EQ(l.fp.files.Delete(kNeu + "\\A"), 0); }); });
    l.a().geplanteAufgaben.Teste();
    EXPECT_EQ(Gewarnt(l.prg), kNeu + "\\B");
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
    EXPECT_EQ(Gewarnt(l.prg), kNeu + "\\U");
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
    Properties_Load(l.prg);
    l.prg.Form2().Command2_Click(0);  // "Alle Werte des Systems übernehmen"
    GeplanteAufgaben& w = l.a().geplanteAufgaben;
    w.Laden();
    const Texte zeilen = TexteVon(w.liste);
    EXPECT_EQ(zeilen, (Texte{kAlt + "\\Alt #1.job|C:\\Windows\\ä.exe |",
                             kNeu + "\\Größe & Co; 100% [1]|\"C:\\Pro gramme\\ä.exe\" /c a | b & \"c\"",
                             kNeu + "\\Leer|", kNeu + "\\Zeilen|C:\\x.exe /a  /b"}));
    w.Teste();
    EXPECT_FALSE(l.prg.Form3Geladen()) << "every task known from the file";
    w.basis.Speichern();
    w.Laden();
    EXPECT_EQ(TexteVon(w.liste), zeilen) << "written again, read again";
}

TEST(GeplanteAufgaben, DeleteTakesTheTaskFileAlone_AfterItsBackup) {
    Lauf l;
    l.prg.AnzeigeLöschen = true;  // no question window
    l.fp.files.Put(kNeu + "\\Bleibt", Xml("C:\\gut.exe"));
    l.a().geplanteAufgaben.Teste();
    l.fp.files.Put(kNeu + "\\Neu", Xml("C:\\boese.exe"));
    l.a().geplanteAufgaben.Teste();
    ASSERT_EQ(Gewarnt(l.prg), kNeu + "\\Neu");
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
