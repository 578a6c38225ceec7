// The system folder watchers: the count test first, the first new file that hides the
// others, deleted files reported upward from the end of the baseline, the exception list
// of the Windows folder alone, and the two answers "Ausnahmeliste" and "Na gut..".
#include "panel/alarm.h"
#include "platform/alledateien.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kWin = "C:\\WINDOWS\\";
const std::string kSys = "C:\\WINDOWS\\system32\\";
using V = std::vector<std::string>;

class Systemordner : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        for (const char* n : {"a.exe", "b.exe", "c.exe", "d.exe"}) fp.files.Put(kWin + n, "MZ");
        for (const char* n : {"k.dll", "l.dll"}) fp.files.Put(kSys + n, "MZ");
        alarm().Box1[2].setValue(1);
        alarm().Box1[16].setValue(1);
        alarm().Box1[17].setValue(1);
        alarm().Timer1.SetEnabled(true);
        w().LadeWindows();
        w().LadeWindowsSys32();
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    WindowsDateien& w() { return alarm().windowsDateien; }
    // The two routines of the Windows folder as the cycle calls them.
    void Windows() {
        if (!prg.Beschäftigt) w().TesteWindowsGelöscht();
        if (!prg.Beschäftigt) w().TesteWindowsErstellt();
    }
    void System32() {
        if (!prg.Beschäftigt) w().TesteWindowsSystem32Gelöscht();
        if (!prg.Beschäftigt) w().TesteWindowsSystem32Erstellt();
    }
    std::string T(int i) { return prg.Form3().Text1[i].Text; }
    // The file the open warning names; "" when none is open.
    std::string Gewarnt() { return prg.Form3Geladen() ? T(0) : ""; }
    // The path, the baseline's count, the new files' count and the two positions.
    V Felder() { return {T(0), T(1), T(2), T(3), T(4)}; }
    std::string Log() { return fp.files.Content(ordner + "Kestrella.log"); }
};

TEST_F(Systemordner, Baseline_PathsWithLengths_InWalkOrder) {
    ASSERT_EQ(alarm().ListView4.Items.size(), 4u);
    EXPECT_EQ((V{alarm().ListView4.Items[0].Text, alarm().ListView4.Items[0].SubItem(1)}), (V{kWin + "a.exe", "2"}));
    ASSERT_EQ(alarm().ListView7.Items.size(), 2u);
    EXPECT_EQ(alarm().ListView7.Items[1].Text, kSys + "l.dll");
}

TEST_F(Systemordner, Lengths_ReadThroughTheFileOnlyWhenItsEntryChanged) {
    const auto längen = [&] {
        V l;
        for (const ListItem& z : alarm().ListView4.Items) l.push_back(z.SubItem(1));
        return l;
    };
    const int anfang = fp.files.längenLesungen;
    w().LadeWindows();
    EXPECT_EQ(fp.files.längenLesungen, anfang) << "a folder as it was opens no file";
    fp.files.Put(kWin + "b.exe", "MZ und mehr");
    fp.files.PretendLength(kWin + "c.exe", 5368709122);  // 5 GiB + 2: only the high word changed
    fp.files.Put(kWin + "e.exe", "MZMZ");
    fp.files.Lock(kWin + "e.exe");
    w().LadeWindows();
    EXPECT_EQ(längen(), (V{"2", "11", "5368709122", "2", ""}));
    EXPECT_EQ(fp.files.längenLesungen, anfang + 3) << "the two changed files and the new one";
    fp.files.Lock(kWin + "e.exe", false);
    w().LadeWindows();
    EXPECT_EQ(längen().back(), "4") << "a file not measured is tried again";
}

TEST_F(Systemordner, EachWalk_ShowsTheFolderAsItIsNow_AndEachSearch_TheBaselineAsItIsNow) {
    // The first row of the snapshot was a measured file; it is now one that cannot be measured.
    Windows();
    fp.files.Delete(kWin + "a.exe");
    fp.files.Put(kWin + "a0.exe", "MZ");
    fp.files.Lock(kWin + "a0.exe");
    Windows();
    ASSERT_EQ(alarm().ListView5.Items.size(), 4u);
    EXPECT_EQ((V{alarm().ListView5.Items[0].Text, alarm().ListView5.Items[0].SubItem(1)}), (V{kWin + "a0.exe", ""}));
    System32();
    EXPECT_EQ(alarm().ListView5.Items.size(), 2u) << "the system folder's walk after the Windows folder's";

    fp.files.Put(kWin + "e.exe", "MZ");
    Windows();
    ASSERT_EQ(Gewarnt(), kWin + "a0.exe");
    prg.Form3().Image_Click(6);
    prg.Aufräumen();
    alarm().List8.Items.clear();
    // The baseline keeps its size and names other files: the search follows it.
    alarm().ListView4.Items[0].Text = kWin + "a0.exe";
    alarm().ListView4.Items[3].Text = kWin + "e.exe";
    Windows();
    EXPECT_EQ(Gewarnt(), kWin + "d.exe");
}

TEST_F(Systemordner, CreatedFile_WarnsWithItsButtonsAndFields) {
    fp.files.Put(kWin + "neu.exe", "MZMZ");
    prg.Soundflag = 1;
    Windows();
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::WindowsDatei);
    EXPECT_EQ(f.Label1[0].Caption, "Datei wurde erstellt!");
    EXPECT_EQ(Felder(), (V{kWin + "neu.exe", "4", "1", "1", "1"}));
    ASSERT_EQ(f.ListView2.Items.size(), 2u);
    EXPECT_EQ(f.ListView2.Items[0].Text, "neu.exe");
    EXPECT_EQ(f.Zeile2(), kWin + "neu.exe");
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible && f.Image[4].Visible);
    EXPECT_FALSE(f.Image[5].Visible || f.Image[2].Visible || f.Image[8].Visible || f.Image[9].Visible);
    EXPECT_TRUE(f.Image[6].Visible && f.Image[7].Visible);
    EXPECT_EQ(f.Label3[2].Caption, "Datei löschen");
    EXPECT_FALSE(f.Picture3[3].Visible || f.Picture3[4].Visible);
    EXPECT_EQ(f.ListView1.Items.size(), 12u);
    EXPECT_EQ(fp.sound.gespielt, V{"ALARM"});
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
}

TEST_F(Systemordner, DeletedFile_WarnsWithItsRowAndTheTwoAnswers) {
    fp.files.Delete(kWin + "c.exe");
    Windows();
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Datei wurde gelöscht oder Verschoben!");
    EXPECT_EQ(Felder(), (V{kWin + "c.exe", "4", "3", "2", "3"}));
    EXPECT_TRUE(f.Image[4].Visible && f.Image[5].Visible && f.Label3[3].Visible && f.Label3[4].Visible);
    EXPECT_FALSE(f.Image[1].Visible || f.Image[3].Visible);
}

TEST_F(Systemordner, FolderTheWalkCannotOpen_EveryBaselineFileCountsAsMissing) {
    prg.Windowsordner = "C:\\GESPERRT";  // the walk finds nothing there it may list
    Windows();
    ASSERT_EQ(Gewarnt(), kWin + "d.exe") << "the last row of the baseline first";
    EXPECT_EQ((V{T(2), T(4)}), (V{"0", "4"}));
    prg.Form3().Image_Click(6);
    prg.Aufräumen();
    Windows();
    EXPECT_EQ(Gewarnt(), kWin + "c.exe");
}

TEST_F(Systemordner, EqualCounts_NothingIsSearched) {
    fp.files.Delete(kWin + "b.exe");
    fp.files.Put(kWin + "neu.exe", "MZ");
    Windows();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(alarm().ListView5.Items.size(), 4u) << "the snapshot is there all the same";
}

TEST_F(Systemordner, SecondNewFile_HiddenByTheFirst_EvenWhenTheFirstIsDeferredOrExcepted) {
    fp.files.Put(kWin + "x1.exe", "MZ");
    fp.files.Put(kWin + "x2.exe", "MZ");
    Windows();
    ASSERT_EQ(Gewarnt(), kWin + "x1.exe");
    EXPECT_EQ(T(2), "2");
    prg.Form3().Image_Click(6);  // Später

    Windows();
    EXPECT_FALSE(prg.Form3Geladen()) << "x2 waits behind the deferred x1";
    alarm().List8.Items.clear();
    alarm().List5.Items = {kWin + "x1.exe"};
    Windows();
    EXPECT_FALSE(prg.Form3Geladen()) << "x2 waits behind the excepted x1";
    EXPECT_TRUE(w().Ausnahmedatei);
}

TEST_F(Systemordner, DeferredDeletedFile_SkippedAndTheNextUpwardReportedInTheSameCall) {
    fp.files.Delete(kWin + "b.exe");
    fp.files.Delete(kWin + "d.exe");
    alarm().List8.Items.push_back(kWin + "d.exe");
    Windows();
    ASSERT_EQ(Gewarnt(), kWin + "b.exe");
    EXPECT_EQ(T(4), "2");
}

TEST_F(Systemordner, ExceptedDeletedFile_StopsTheScanAtEveryCycle) {
    fp.files.Delete(kWin + "b.exe");
    fp.files.Delete(kWin + "d.exe");
    alarm().List5.Items = {kWin + "d.exe"};
    for (int zyklus = 0; zyklus < 2; ++zyklus) {
        Windows();
        EXPECT_FALSE(prg.Form3Geladen()) << "b.exe, lower in the baseline, is never reached";
        EXPECT_TRUE(w().Ausnahmedatei);
    }
}

TEST_F(Systemordner, Box17Off_DeletionSilent_SnapshotStillRefreshedForTheCreatedTest_Box16OffCreationSilent) {
    alarm().Box1[17].setValue(0);
    fp.files.Delete(kWin + "a.exe");
    Windows();
    EXPECT_FALSE(prg.Form3Geladen());
    fp.files.Put(kWin + "a.exe", "MZ");
    fp.files.Put(kWin + "neu.exe", "MZ");
    alarm().Box1[16].setValue(0);
    Windows();
    EXPECT_FALSE(prg.Form3Geladen()) << "box 16 off: the created file is silent";
    alarm().Box1[16].setValue(1);
    Windows();
    ASSERT_EQ(Gewarnt(), kWin + "neu.exe");
}

TEST_F(Systemordner, SystemFolderFileOnTheExceptionList_ReportedAllTheSame) {
    alarm().List5.Items = {kSys + "neu.dll"};
    fp.files.Put(kSys + "neu.dll", "MZ");
    System32();
    ASSERT_EQ(Gewarnt(), kSys + "neu.dll");
    EXPECT_FALSE(w().Ausnahmedatei) << "the system folder's routines leave the flag alone";
}

TEST_F(Systemordner, ChangedSize_NeverReported_WhateverBox18Says) {
    alarm().Box1[18].setValue(1);
    fp.files.Put(kWin + "a.exe", "MZ und viel mehr");
    fp.files.Put(kSys + "k.dll", "");
    Windows();
    System32();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Systemordner, Cycle_OnlyTheFolderWhoseBoxIsOn) {
    fp.files.Put(kWin + "neu.exe", "MZ");
    alarm().Box1[20].setValue(1);
    alarm().Durchlauf();
    EXPECT_FALSE(prg.Form3Geladen()) << "box 19 off: the Windows folder is not looked at";
    fp.files.Put(kSys + "neu.dll", "MZ");
    alarm().Durchlauf();
    ASSERT_EQ(Gewarnt(), kSys + "neu.dll");
}

TEST_F(Systemordner, ExceptionFile_ReadUntilTheFirstEmptyLine_MissingLeavesTheList) {
    alarm().List5.Items = {"alt"};
    w().LadeWindowsausnahme();
    EXPECT_EQ(alarm().List5.Items, V{"alt"});
    fp.files.Put(ordner + "daten\\windows.txt", kWin + "a.exe\r\n\r\n" + kWin + "b.exe\r\n");
    w().LadeWindowsausnahme();
    EXPECT_EQ(alarm().List5.Items, V{kWin + "a.exe"});
}

TEST_F(Systemordner, FillAndSearch_YieldAtEveryStep) {
    for (int i = 0; i < 1000; ++i) fp.files.Put(kSys + "f" + std::to_string(1000 + i) + ".dll", "MZ");
    // The folder walk's own yields, which are not this watcher's.
    const auto walk = [&] {
        const int vorher = fp.timers.pumpen;
        std::vector<DateiEintrag> dateien;
        DateienSuchen(fp.plattform, prg.Systemordner, false, "*.*", dateien);
        return fp.timers.pumpen - vorher;
    };
    int vorher = fp.timers.pumpen;
    w().LadeWindowsSys32();
    int gepumpt = fp.timers.pumpen - vorher;
    EXPECT_EQ(gepumpt, walk() + 1002) << "one per row filled";

    fp.files.Delete(kSys + "f1000.dll");  // the first row: the search goes through all of them
    vorher = fp.timers.pumpen;
    w().TesteWindowsSystem32Gelöscht();
    ASSERT_TRUE(prg.Form3Geladen());
    gepumpt = fp.timers.pumpen - vorher;
    EXPECT_EQ(gepumpt, walk() + 1001 + 1002) << "one per row filled and per row searched";
}

TEST_F(Systemordner, Ausnahmeliste_AddsThePathWritesTheFileLogsAndCloses) {
    alarm().List5.Items = {kWin + "alt.exe"};
    fp.files.Put(kWin + "neu.exe", "MZ");
    Windows();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(4);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_EQ(alarm().List5.Items, (V{kWin + "alt.exe", kWin + "neu.exe"}));
    EXPECT_EQ(fp.files.Content(ordner + "daten\\windows.txt"), kWin + "alt.exe\r\n" + kWin + "neu.exe\r\n");
    EXPECT_NE(
        Log().find("Datei wurde erstellt.\r\nDatei: " + kWin + "neu.exe\r\n< Hinzugefügt in die Ausnahmeliste OK >"),
        std::string::npos);
    Windows();
    EXPECT_FALSE(prg.Form3Geladen()) << "excepted from now on";
}

TEST_F(Systemordner, Ausnahmeliste_FileCannotBeWritten_ErrorExitKeepsTheWindow) {
    fp.files.Put(ordner + "daten\\windows.txt", "");
    fp.files.Lock(ordner + "daten\\windows.txt");
    fp.files.Put(kWin + "neu.exe", "MZ");
    Windows();
    prg.Form3().Image_Click(4);
    EXPECT_TRUE(prg.Form3Geladen());
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Form3, Ausnahmeliste) Fehler: 75");
}

TEST_F(Systemordner, NaGut_TakesTheDeletedFileOutOfTheBaseline) {
    fp.files.Delete(kWin + "b.exe");
    Windows();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(5);
    EXPECT_FALSE(prg.Form3Geladen());
    ASSERT_EQ(alarm().ListView4.Items.size(), 3u);
    EXPECT_EQ(alarm().ListView4.Items[1].Text, kWin + "c.exe");
    EXPECT_NE(Log().find("Datei wurde gelöscht oder geändert.\r\nDatei: " + kWin + "b.exe\r\n< OK >"),
              std::string::npos);
    Windows();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Systemordner, NaGut_OnACreatedFile_OnlyCloses) {
    fp.files.Put(kWin + "neu.exe", "MZ");
    Windows();
    prg.Form3().Image_Click(5);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(alarm().ListView4.Items.size(), 4u);
    EXPECT_EQ(Log().find("< OK >"), std::string::npos);
}

}  // namespace
}  // namespace kes::test
