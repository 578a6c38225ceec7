// The ActiveX watcher: desktop.ini removed at every cycle, a compare that ignores case, no
// sound, and an accept that changes the list only.
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kDpf = "C:\\WINDOWS\\Downloaded Program Files";

class AktiveX : public WaechterTest {
protected:
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
    EXPECT_EQ(TexteVon(f.ListView2), (Texte{"flash.ocx", kDpf + "\\flash.ocx"}));
    EXPECT_FALSE(f.Picture3[3].Visible || f.Picture3[4].Visible);
    EXPECT_EQ(Felder(f, 6), Texte(6, ""));
}

TEST_F(AktiveX, DesktopIni_IsRemovedAtEveryCycleEvenHiddenAndReadOnly) {
    for (std::uint32_t attribute : {kAttrHidden | kAttrReadOnly | kAttrSystem, kAttrArchive}) {
        fp.files.Put(kDpf + "\\desktop.ini", "[.ShellClassInfo]", attribute);
        Teste();
        EXPECT_FALSE(fp.files.Exists(kDpf + "\\desktop.ini"));
        EXPECT_FALSE(prg.Form3Geladen());
    }
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
    EXPECT_EQ(alarm().List6.Items, Texte{kDpf + "\\a.ocx"});
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\Activex.txt"));
    EXPECT_NE(Log().find("Neue ActiveX wurde erstellt.\r\nDatei: " + kDpf + "\\a.ocx\r\n< Übernommen OK >"),
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
    EXPECT_EQ(alarm().List6.Items, Texte{"eins"});
}

}  // namespace
}  // namespace kes::test
