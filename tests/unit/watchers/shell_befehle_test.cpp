// The shell open commands: the ten keys in their order, repair or warning, one key per
// cycle, deferred keys, and the expected texts of the page.
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kHkcr = "HKEY_CLASSES_ROOT";
const std::string kHklm = "HKEY_LOCAL_MACHINE";
const std::string kStandard = "\"%1\" %*";
const std::string kHta = "mshta.exe \"%1\" %*";

// The ten keys as the watcher tests them, with the hive it names.
const std::vector<std::pair<std::string, std::string>> kReihe = {
    {kHkcr, "exefile\\shell\\open\\command"},
    {kHkcr, "comfile\\shell\\open\\command"},
    {kHkcr, "batfile\\shell\\open\\command"},
    {kHkcr, "piffile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\exefile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\batfile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\comfile\\shell\\open\\command"},
    {kHklm, "Software\\CLASSES\\piffile\\shell\\open\\command"},
    {kHkcr, "htafile\\Shell\\Open\\Command"},
    {kHklm, "Software\\CLASSES\\htafile\\Shell\\Open\\Command"},
};

class ShellBefehle : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Timer1.SetEnabled(true);
        // A sound machine: both views of the classes hold the expected texts. The fake, like
        // Windows, shows HKLM\Software\Classes as HKEY_CLASSES_ROOT.
        for (const char* klasse : {"exefile", "comfile", "batfile", "piffile"}) Setzen(klasse, kStandard);
        Setzen("htafile", kHta);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Setzen(const std::string& klasse, const std::string& befehl) {
        fp.registry.SetString(kHklm + "\\Software\\Classes\\" + klasse + "\\shell\\open\\command", "", befehl);
    }
    std::string Lesen(const std::string& klasse) {
        RegKey k;
        fp.registry.OpenKeyEx(kHkeyClassesRoot, klasse + "\\shell\\open\\command", kKeyAllAccess, &k);
        char puffer[256]{};
        std::uint32_t typ = 0, länge = sizeof puffer;
        const long r = fp.registry.QueryValueEx(k.Get(), "", &typ, reinterpret_cast<std::uint8_t*>(puffer), &länge);
        return r == kErrorSuccess ? std::string(puffer) : "<fehlt>";
    }
    void Testen() { alarm().shellBefehle.TesteHTafile(); }
    void Schliessen() {
        prg.Form3Entladen();
        prg.Aufräumen();
    }
    std::string Warnschlüssel() { return prg.Form3().Text1[3].Text; }
    // Every open command gone: each of the ten keys reads empty.
    void AllesLeer() {
        for (const char* klasse : {"exefile", "comfile", "batfile", "piffile", "htafile"})
            fp.registry.SetString(kHklm + "\\Software\\Classes\\" + klasse + "\\shell\\open\\command", "", "");
    }
};

TEST_F(ShellBefehle, DesignTexts_AndASoundMachineIsQuiet) {
    EXPECT_EQ(alarm().Text5[0].Text, kStandard);
    EXPECT_EQ(alarm().Text5[1].Text, kStandard);
    EXPECT_EQ(alarm().Text5[2].Text, kHta);
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_EQ(alarm().Text5[0].Text, kHta) << "the last expected text tested stays in Text5(0)";
}

TEST_F(ShellBefehle, ChangedCommand_RaisesTheWarningWithRowFieldsAndOriginal) {
    prg.Soundflag = 1;
    Setzen("comfile", "boese.exe \"%1\" %*");
    Testen();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(fp.sound.gespielt, std::vector<std::string>{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::HtaFile);
    Form3Fenster& f = prg.Form3();
    const std::string key = "comfile\\shell\\open\\command";
    EXPECT_EQ(f.Label1[0].Caption, "Registryschlüssel wurde geändert.");
    EXPECT_EQ(f.Label1[1].Caption, kHkcr + "\\" + key);
    EXPECT_EQ(f.Label1[2].Caption, "Alter Wert: " + kStandard + "      Neuer Wert: boese.exe \"%1\" %*");
    EXPECT_FALSE(f.ListView2.Visible);
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    const ListItem& z = f.ListView4.Items[0];
    EXPECT_EQ(z.Text, "Autostart");
    EXPECT_EQ(z.SubItem(1), kHkcr);
    EXPECT_EQ(z.SubItem(2), key);
    EXPECT_EQ(z.SubItem(3), "(Standart)");
    EXPECT_EQ(z.SubItem(4), kStandard);
    EXPECT_FALSE(f.Picture3[1].Visible || f.Picture3[2].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Picture3[3].Visible);
    EXPECT_EQ(f.Text1[0].Text, kHkcr);
    EXPECT_EQ(f.Text1[1].Text, key);
    EXPECT_EQ(f.Text1[2].Text, kStandard);
    EXPECT_EQ(f.Text1[3].Text, kHkcr + "\\" + key);
    EXPECT_EQ(f.picProcIcon.Bild, 4);
    EXPECT_TRUE(f.Image[8].Visible && f.Image[6].Visible);
    EXPECT_FALSE(f.Image[1].Visible || f.Image[3].Visible);
    EXPECT_EQ(f.Label3[5].Caption, "Original");
    EXPECT_EQ(f.Image[8].ToolTipText, "Original Wert setzen");
    EXPECT_EQ(Lesen("comfile"), "boese.exe \"%1\" %*") << "a warning changes nothing";
}

TEST_F(ShellBefehle, TenKeys_ComeInTheirOrderComBeforeBatAndBatBeforeCom) {
    // Every command emptied: each key differs. Each deferral lets the next key come up, so
    // the warnings walk the whole table.
    AllesLeer();
    std::vector<std::string> gesehen;
    for (std::size_t i = 0; i < kReihe.size(); ++i) {
        Testen();
        ASSERT_TRUE(prg.Form3Geladen()) << "after " << i << " keys";
        gesehen.push_back(Warnschlüssel());
        prg.Form3().Image_Click(6);
        prg.Aufräumen();
    }
    std::vector<std::string> erwartet;
    for (const auto& [hive, key] : kReihe) erwartet.push_back(hive + "\\" + key);
    EXPECT_EQ(gesehen, erwartet);
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "all ten deferred";
}

TEST_F(ShellBefehle, HtaKeys_AreComparedWithText5Of2) {
    Setzen("htafile", kStandard);
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Warnschlüssel(), kHkcr + "\\htafile\\Shell\\Open\\Command");
    EXPECT_EQ(prg.Form3().Text1[2].Text, kHta);
}

TEST_F(ShellBefehle, DifferenceInOneBlankOrInCase_IsADifference) {
    Setzen("exefile", "\"%1\"  %*");
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Warnschlüssel(), kHkcr + "\\exefile\\shell\\open\\command");
    Schliessen();

    Setzen("exefile", kStandard);
    Setzen("htafile", "MSHTA.EXE \"%1\" %*");
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Warnschlüssel(), kHkcr + "\\htafile\\Shell\\Open\\Command");
}

TEST_F(ShellBefehle, DeferredKey_DoesNotStopTheKeysBehindIt) {
    Setzen("exefile", "a.exe");
    Setzen("piffile", "b.exe");
    alarm().List8.Items.push_back(kHkcr + "\\exefile\\shell\\open\\command");
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Warnschlüssel(), kHkcr + "\\piffile\\shell\\open\\command");
}

TEST_F(ShellBefehle, EditOfText5Of1_CountsAtTheNextCycle_EditOfText5Of0_DoesNot) {
    alarm().Text5[0].Text = "anders";
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "Text5(0) is renewed before the first compare";

    alarm().Text5[1].Text = "\"%1\"";
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(Warnschlüssel(), kHkcr + "\\exefile\\shell\\open\\command");
    EXPECT_EQ(prg.Form3().Text1[2].Text, "\"%1\"");
}

class ShellBefehleReparatur : public ShellBefehle {
protected:
    void SetUp() override {
        ShellBefehle::SetUp();
        alarm().Box1[31].setValue(1);
        prg.Soundflag = 1;
    }
};

TEST_F(ShellBefehleReparatur, ChangedCommand_IsWrittenBackWithSoundAndBalloon_OneKeyPerCycle) {
    alarm().Box1[7].setValue(1);
    Setzen("batfile", "boese.exe");
    Setzen("htafile", "auch.exe");
    Testen();

    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt) << "a repair does not stop the cycle";
    EXPECT_EQ(fp.sound.gespielt, std::vector<std::string>{"AUTO"});
    EXPECT_EQ(Lesen("batfile"), kStandard);
    EXPECT_EQ(Lesen("htafile"), "auch.exe") << "the keys behind the repair wait for the next cycle";
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ(r.szInfoTitle, "Geändert: " + kHkcr + "\\batfile\\shell\\open\\command");
    EXPECT_EQ(r.szInfo, "Alter Wert: " + kStandard + "      Neuer Wert: boese.exe");
    EXPECT_EQ(r.szTip, "IExplorer Favorit");
    EXPECT_EQ(r.icon, "BLINKTRAY");

    Testen();
    EXPECT_EQ(Lesen("htafile"), kHta);
    EXPECT_EQ(fp.tray.Last().szInfoTitle, "Geändert: " + kHkcr + "\\htafile\\Shell\\Open\\Command");
}

TEST_F(ShellBefehleReparatur, WithoutBalloonBox_IsSilentButForTheSound_AndMutedNotEvenThat) {
    Setzen("exefile", "x.exe");
    Testen();
    EXPECT_EQ(Lesen("exefile"), kStandard);
    EXPECT_TRUE(fp.tray.aufrufe.empty());
    EXPECT_EQ(fp.sound.gespielt, std::vector<std::string>{"AUTO"});

    prg.Soundflag = 0;
    Setzen("exefile", "x.exe");
    Testen();
    EXPECT_EQ(Lesen("exefile"), kStandard);
    EXPECT_EQ(fp.sound.gespielt.size(), 1u);
}

TEST_F(ShellBefehleReparatur, MissingClass_IsRepairedByCreatingTheValue) {
    fp.registry.DeleteKey(kHkeyLocalMachine, "Software\\Classes\\piffile\\shell\\open\\command", kAnsichtNativ);
    fp.registry.DeleteKey(kHkeyLocalMachine, "Software\\Classes\\piffile\\shell\\open", kAnsichtNativ);
    fp.registry.DeleteKey(kHkeyLocalMachine, "Software\\Classes\\piffile\\shell", kAnsichtNativ);
    fp.registry.DeleteKey(kHkeyLocalMachine, "Software\\Classes\\piffile", kAnsichtNativ);
    ASSERT_FALSE(fp.registry.HasKey(kHklm + "\\Software\\Classes\\piffile"));
    Testen();
    EXPECT_EQ(Lesen("piffile"), kStandard);
    Testen();
    EXPECT_EQ(fp.sound.gespielt.size(), 1u) << "the class written under HKEY_CLASSES_ROOT is the machine's too";
}

TEST_F(ShellBefehleReparatur, DeferredKey_IsNeitherRepairedNorStopsTheRest) {
    Setzen("exefile", "a.exe");
    Setzen("comfile", "b.exe");
    alarm().List8.Items.push_back(kHkcr + "\\exefile\\shell\\open\\command");
    Testen();
    EXPECT_EQ(Lesen("exefile"), "a.exe");
    EXPECT_EQ(Lesen("comfile"), kStandard);
}

}  // namespace
}  // namespace kes::test
