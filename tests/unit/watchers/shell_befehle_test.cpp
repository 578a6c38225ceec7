// The shell open commands: the ten keys in their order, repair or warning, one key per
// cycle, deferred keys, and the expected texts of the page.
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

using V = std::vector<std::string>;
const std::string kHkcr = "HKEY_CLASSES_ROOT";
const std::string kHklm = "HKEY_LOCAL_MACHINE";
const std::string kStandard = "\"%1\" %*";
const std::string kHta = "mshta.exe \"%1\" %*";
const std::string kExe = kHkcr + "\\exefile\\shell\\open\\command";
const std::string kHtaKey = kHkcr + "\\htafile\\Shell\\Open\\Command";

// The ten keys as the watcher tests them, with the hive it names.
const V kReihe = {kExe,
                  kHkcr + "\\comfile\\shell\\open\\command",
                  kHkcr + "\\batfile\\shell\\open\\command",
                  kHkcr + "\\piffile\\shell\\open\\command",
                  kHklm + "\\Software\\CLASSES\\exefile\\shell\\open\\command",
                  kHklm + "\\Software\\CLASSES\\batfile\\shell\\open\\command",
                  kHklm + "\\Software\\CLASSES\\comfile\\shell\\open\\command",
                  kHklm + "\\Software\\CLASSES\\piffile\\shell\\open\\command",
                  kHtaKey,
                  kHklm + "\\Software\\CLASSES\\htafile\\Shell\\Open\\Command"};

class ShellBefehle : public ProgrammTest {
public:
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
    std::string Warnschlüssel() { return prg.Form3().Text1[3].Text; }
};

TEST_F(ShellBefehle, DesignTexts_AndASoundMachineIsQuiet) {
    EXPECT_EQ((V{alarm().Text5[0].Text, alarm().Text5[1].Text, alarm().Text5[2].Text}),
              (V{kStandard, kStandard, kHta}));
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
    EXPECT_EQ(fp.sound.gespielt, V{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::HtaFile);
    Form3Fenster& f = prg.Form3();
    const std::string key = "comfile\\shell\\open\\command";
    EXPECT_EQ((V{f.Label1[0].Caption, f.Label1[1].Caption, f.Label1[2].Caption}),
              (V{"Registryschlüssel wurde geändert.", kHkcr + "\\" + key,
                 "Alter Wert: " + kStandard + "      Neuer Wert: boese.exe \"%1\" %*"}));
    EXPECT_FALSE(f.ListView2.Visible);
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    const ListItem& z = f.ListView4.Items[0];
    EXPECT_EQ((V{z.Text, z.SubItem(1), z.SubItem(2), z.SubItem(3), z.SubItem(4)}),
              (V{"Autostart", kHkcr, key, "(Standart)", kStandard}));
    EXPECT_FALSE(f.Picture3[1].Visible || f.Picture3[2].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Picture3[3].Visible);
    EXPECT_EQ((V{f.Text1[0].Text, f.Text1[1].Text, f.Text1[2].Text, f.Text1[3].Text}),
              (V{kHkcr, key, kStandard, kHkcr + "\\" + key}));
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
    for (const char* klasse : {"exefile", "comfile", "batfile", "piffile", "htafile"}) Setzen(klasse, "");
    V gesehen;
    for (std::size_t i = 0; i < kReihe.size(); ++i) {
        Testen();
        ASSERT_TRUE(prg.Form3Geladen()) << "after " << i << " keys";
        gesehen.push_back(Warnschlüssel());
        prg.Form3().Image_Click(6);
        prg.Aufräumen();
    }
    EXPECT_EQ(gesehen, kReihe);
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "all ten deferred";
}

// Which key warns, and the expected text it shows; no key: no warning.
struct Fall {
    const char* fall;
    void (*ändern)(ShellBefehle&);
    std::string schlüssel, erwartet;
};

class Abweichung : public ShellBefehle, public ::testing::WithParamInterface<Fall> {};

TEST_P(Abweichung, TheFirstKeyThatDiffersWarns) {
    GetParam().ändern(*this);
    Testen();
    ASSERT_EQ(prg.Form3Geladen(), !GetParam().schlüssel.empty());
    if (GetParam().schlüssel.empty()) return;
    EXPECT_EQ(Warnschlüssel(), GetParam().schlüssel);
    EXPECT_EQ(prg.Form3().Text1[2].Text, GetParam().erwartet);
}

const Fall kFälle[] = {
    {"HtaKeyComparedWithText5Of2", [](ShellBefehle& t) { t.Setzen("htafile", kStandard); }, kHtaKey, kHta},
    {"OneBlankMore", [](ShellBefehle& t) { t.Setzen("exefile", "\"%1\"  %*"); }, kExe, kStandard},
    {"OtherCase", [](ShellBefehle& t) { t.Setzen("htafile", "MSHTA.EXE \"%1\" %*"); }, kHtaKey, kHta},
    {"DeferredKey_DoesNotStopTheKeysBehindIt",
     [](ShellBefehle& t) {
         t.Setzen("exefile", "a.exe");
         t.Setzen("piffile", "b.exe");
         t.alarm().List8.Items.push_back(kExe);
     },
     kHkcr + "\\piffile\\shell\\open\\command", kStandard},
    // Text5(0) is renewed before the first compare; Text5(1) is what it is renewed from.
    {"EditOfText5Of0_DoesNotCount", [](ShellBefehle& t) { t.alarm().Text5[0].Text = "anders"; }, "", ""},
    {"EditOfText5Of1_Counts", [](ShellBefehle& t) { t.alarm().Text5[1].Text = "\"%1\""; }, kExe, "\"%1\""},
};

INSTANTIATE_TEST_SUITE_P(Fälle, Abweichung, ::testing::ValuesIn(kFälle),
                         [](const auto& i) { return std::string(i.param.fall); });

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
    EXPECT_EQ(fp.sound.gespielt, V{"AUTO"});
    EXPECT_EQ(Lesen("batfile"), kStandard);
    EXPECT_EQ(Lesen("htafile"), "auch.exe") << "the keys behind the repair wait for the next cycle";
    const TrayRecord& r = fp.tray.Last();
    EXPECT_EQ((V{r.szInfoTitle, r.szInfo, r.szTip, r.icon}),
              (V{"Geändert: " + kHkcr + "\\batfile\\shell\\open\\command",
                 "Alter Wert: " + kStandard + "      Neuer Wert: boese.exe", "IExplorer Favorit", "BLINKTRAY"}));

    Testen();
    EXPECT_EQ(Lesen("htafile"), kHta);
    EXPECT_EQ(fp.tray.Last().szInfoTitle, "Geändert: " + kHtaKey);
}

TEST_F(ShellBefehleReparatur, WithoutBalloonBox_IsSilentButForTheSound_AndMutedNotEvenThat) {
    Setzen("exefile", "x.exe");
    Testen();
    EXPECT_EQ(Lesen("exefile"), kStandard);
    EXPECT_TRUE(fp.tray.aufrufe.empty());
    EXPECT_EQ(fp.sound.gespielt, V{"AUTO"});

    prg.Soundflag = 0;
    Setzen("exefile", "x.exe");
    Testen();
    EXPECT_EQ(Lesen("exefile"), kStandard);
    EXPECT_EQ(fp.sound.gespielt.size(), 1u);
}

TEST_F(ShellBefehleReparatur, MissingClass_IsRepairedByCreatingTheValue) {
    for (const char* k : {"\\shell\\open\\command", "\\shell\\open", "\\shell", ""})
        fp.registry.DeleteKey(kHkeyLocalMachine, std::string("Software\\Classes\\piffile") + k, kAnsichtNativ);
    ASSERT_FALSE(fp.registry.HasKey(kHklm + "\\Software\\Classes\\piffile"));
    Testen();
    EXPECT_EQ(Lesen("piffile"), kStandard);
    Testen();
    EXPECT_EQ(fp.sound.gespielt.size(), 1u) << "the class written under HKEY_CLASSES_ROOT is the machine's too";
}

TEST_F(ShellBefehleReparatur, DeferredKey_IsNeitherRepairedNorStopsTheRest) {
    Setzen("exefile", "a.exe");
    Setzen("comfile", "b.exe");
    alarm().List8.Items.push_back(kExe);
    Testen();
    EXPECT_EQ(Lesen("exefile"), "a.exe");
    EXPECT_EQ(Lesen("comfile"), kStandard);
}

}  // namespace
}  // namespace kes::test
