// The ActiveX watcher: desktop.ini removed at every cycle, a compare that ignores case, no
// sound, and an accept that changes the list only.
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kDpf = "C:\\WINDOWS\\Downloaded Program Files";

class AktiveX : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Timer1.SetEnabled(true);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Teste() { alarm().activeX.Testeactivx(); }
};

TEST_F(AktiveX, NewFile_WarnsWithoutSoundWithNameAndPathAndNoTextFields) {
    fp.files.Put(kDpf + "\\flash.ocx", "MZ");
    prg.Soundflag = 1;
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_TRUE(fp.sound.gespielt.empty()) << "this watcher plays no sound";
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ActiveX);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Es wurde eine neue ActiveX gefunden.");
    ASSERT_EQ(f.ListView2.Items.size(), 2u);
    EXPECT_EQ(f.ListView2.Items[0].Text, "flash.ocx");
    EXPECT_EQ(f.ListView2.Items[1].Text, kDpf + "\\flash.ocx");
    EXPECT_FALSE(f.Picture3[3].Visible);
    EXPECT_FALSE(f.Picture3[4].Visible);
    for (const auto& t : f.Text1) EXPECT_EQ(t.Text, "");
}

TEST_F(AktiveX, DesktopIni_IsRemovedAtEveryCycleEvenHiddenAndReadOnly) {
    fp.files.Put(kDpf + "\\desktop.ini", "[.ShellClassInfo]", kAttrHidden | kAttrReadOnly | kAttrSystem);
    Teste();
    EXPECT_FALSE(fp.files.Exists(kDpf + "\\desktop.ini"));
    EXPECT_FALSE(prg.Form3Geladen());
    fp.files.Put(kDpf + "\\desktop.ini", "x");
    Teste();
    EXPECT_FALSE(fp.files.Exists(kDpf + "\\desktop.ini"));
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(AktiveX, KnownInAnotherCase_StaysSilent_DeferredOnesDoNotStopTheScan) {
    fp.files.Put(kDpf + "\\a.ocx", "MZ");
    fp.files.Put(kDpf + "\\b.inf", "x");
    fp.files.Put(kDpf + "\\c.ocx", "MZ");
    fp.files.Put(kDpf + "\\Unter\\d.ocx", "MZ");
    fp.files.Put(ordner + "daten\\Activex.txt", "C:\\windows\\DOWNLOADED PROGRAM FILES\\A.OCX\r\n");
    alarm().activeX.LadeActiveX();
    alarm().List8.Items.push_back(kDpf + "\\b.inf");
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Zeile2(), kDpf + "\\c.ocx");
    EXPECT_EQ(alarm().List7.Items.size(), 3u) << "subfolders are not looked at";
}

TEST_F(AktiveX, Accept_AddsToTheListForThisRunOnlyAndWritesNoFile) {
    fp.files.Put(kDpf + "\\a.ocx", "MZ");
    prg.Alarm().Box1[2].setValue(1);
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(1);
    EXPECT_EQ(alarm().List6.Items, std::vector<std::string>{kDpf + "\\a.ocx"});
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\Activex.txt"));
    EXPECT_NE(fp.files.Content(ordner + "Kestrella.log")
                  .find("Neue ActiveX wurde erstellt.\r\nDatei: " + kDpf + "\\a.ocx\r\n< Übernommen OK >"),
              std::string::npos);
    prg.Aufräumen();
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(AktiveX, Baseline_IsClearedAlwaysAndReadUpToAnEmptyLine) {
    alarm().List6.Items = {"alt"};
    alarm().activeX.LadeActiveX();
    EXPECT_TRUE(alarm().List6.Items.empty()) << "cleared without a file";
    fp.files.Put(ordner + "daten\\Activex.txt", "eins\r\n\r\nzwei\r\n");
    alarm().activeX.LadeActiveX();
    EXPECT_EQ(alarm().List6.Items, std::vector<std::string>{"eins"});
}

}  // namespace
}  // namespace kes::test
