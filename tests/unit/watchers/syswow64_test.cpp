// SysWOW64 watched like the system folder, with a baseline of its own: one warning per new
// or deleted file naming the real folder, the answers that act on its own baseline and not
// the Windows folder's, and nothing at all on a Windows without the folder.
#include "core/starten.h"
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kWin = "C:\\WINDOWS\\";
const std::string kSys = "C:\\WINDOWS\\system32\\";
const std::string kWow = "C:\\WINDOWS\\SysWOW64\\";

class SysWow64 : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        fp.system.wow64 = "C:\\WINDOWS\\SysWOW64";
        prg.SysWow64ordner = fp.system.wow64;
        for (const char* n : {"a.exe", "b.exe"}) fp.files.Put(kWin + n, "MZ");
        for (const char* n : {"k.dll", "l.dll"}) fp.files.Put(kSys + n, "MZ");
        for (const char* n : {"w1.dll", "w2.dll", "w3.dll"}) fp.files.Put(kWow + n, "MZ");
        for (int box : {2, 16, 17, 19, 20, 32}) alarm().Box1[box].setValue(1);
        alarm().Timer1.SetEnabled(true);
        alarm().Laden();
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    std::string T(int i) { return prg.Form3().Text1[i].Text; }
    // Closes the warning with "Später", so the next cycle shows whether another one comes.
    void Später() {
        prg.Form3().Image_Click(6);
        prg.Aufräumen();
    }
};

TEST_F(SysWow64, Baseline_OfItsOwn_TheOtherTwoUntouched) {
    ASSERT_EQ(alarm().ListView13.Items.size(), 3u);
    EXPECT_EQ(Spalten(alarm().ListView13.Items[0], 1), (Texte{kWow + "w1.dll", "2"}));
    EXPECT_EQ(alarm().ListView4.Items.size(), 2u);
    EXPECT_EQ(alarm().ListView7.Items.size(), 2u);
}

TEST_F(SysWow64, CreatedOrDeletedFile_ExactlyOneWarningNamingTheFolder) {
    struct Fall {
        const char* was;
        std::function<void(fake::FakeFiles&)> ändern;
        std::string pfad, kopf, modus, nummer;
    };
    const Fall fälle[] = {
        {"created", [](fake::FakeFiles& f) { f.Put(kWow + "neu.dll", "MZMZ"); }, kWow + "neu.dll",
         "Datei wurde erstellt!", "1", "1"},
        {"deleted", [](fake::FakeFiles& f) { f.Delete(kWow + "w2.dll"); }, kWow + "w2.dll",
         "Datei wurde gelöscht oder Verschoben!", "2", "2"},
    };
    for (const Fall& fall : fälle) {
        SCOPED_TRACE(fall.was);
        fall.ändern(fp.files);
        alarm().Durchlauf();
        ASSERT_TRUE(prg.Form3Geladen());
        EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::WindowsDatei);
        EXPECT_EQ(prg.Form3().Label1[0].Caption, fall.kopf);
        EXPECT_EQ(prg.Form3().Zeile2(), fall.pfad);
        EXPECT_EQ((Texte{T(0), T(1), T(3), T(4)}), (Texte{fall.pfad, "3", fall.modus, fall.nummer}))
            << "the path, SysWOW64's baseline count, the mode, the number";
        Später();
        alarm().Durchlauf();
        EXPECT_FALSE(prg.Form3Geladen()) << "a second warning for the same change";
        alarm().List8.Items.clear();
        fp.files.Put(kWow + "w2.dll", "MZ");
        fp.files.Delete(kWow + "neu.dll");
    }
}

TEST_F(SysWow64, SystemFolderFile_StillReportedFromItsOwnFolder) {
    fp.files.Put(kSys + "neu.dll", "MZ");
    fp.files.Put(kWow + "neu.dll", "MZ");
    alarm().Durchlauf();
    EXPECT_EQ(Gewarnt(prg), kSys + "neu.dll") << "the system folder's row runs first";
    Später();
    alarm().Durchlauf();
    EXPECT_EQ(Gewarnt(prg), kWow + "neu.dll");
}

TEST_F(SysWow64, SystemFolderFileAccepted_GoesIntoTheWindowsFoldersBaselineNotIntoItsOwn) {
    fp.files.Put(kSys + "neu.dll", "MZ");
    alarm().Durchlauf();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(1);
    EXPECT_EQ(alarm().ListView4.Items.size(), 3u);
    EXPECT_EQ(alarm().ListView13.Items.size(), 3u);
}

TEST_F(SysWow64, Accept_GoesIntoItsBaseline_AndSilences) {
    fp.files.Put(kWow + "neu.dll", "MZMZ");
    alarm().Durchlauf();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(1);
    EXPECT_FALSE(prg.Form3Geladen());
    ASSERT_EQ(alarm().ListView13.Items.size(), 4u);
    EXPECT_EQ(Spalten(alarm().ListView13.Items[3], 1), (Texte{kWow + "neu.dll", "4"}));
    EXPECT_EQ(alarm().ListView4.Items.size(), 2u) << "the Windows folder's baseline gets nothing";
    EXPECT_NE(
        fp.files.Content(ordner + "Kestrella.log").find("Neue Datei wurde erstellt.\r\nDatei: " + kWow + "neu.dll"),
        std::string::npos);
    alarm().Durchlauf();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(SysWow64, NaGut_TakesTheDeletedFileOutOfItsBaseline_NotTheWindowsFolders) {
    fp.files.Delete(kWow + "w1.dll");
    alarm().Durchlauf();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(T(4), "1");
    prg.Form3().Image_Click(5);
    EXPECT_FALSE(prg.Form3Geladen());
    ASSERT_EQ(alarm().ListView13.Items.size(), 2u);
    EXPECT_EQ(alarm().ListView13.Items[0].Text, kWow + "w2.dll");
    EXPECT_EQ(alarm().ListView4.Items.size(), 2u);
    alarm().Durchlauf();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(SysWow64, BoxOff_FolderNotLookedAt_TheExceptionListDoesNotApply_AsForTheSystemFolder) {
    alarm().Box1[32].setValue(0);
    fp.files.Put(kWow + "neu.dll", "MZ");
    alarm().Durchlauf();
    EXPECT_FALSE(prg.Form3Geladen());
    alarm().Box1[32].setValue(1);
    alarm().List5.Items = {kWow + "neu.dll"};
    alarm().Durchlauf();
    EXPECT_EQ(Gewarnt(prg), kWow + "neu.dll");
}

TEST_F(SysWow64, WindowsWithoutTheFolder_NeverWalksIt_NorWarns) {
    // Files lie where the folder would be, but the system names none: a 32-bit Windows.
    prg.SysWow64ordner.clear();
    alarm().ListView13.Items.clear();
    alarm().Laden();
    alarm().Box1[32].KlickVomBenutzer();  // off and on again: the click's loader runs twice
    alarm().Box1[32].KlickVomBenutzer();
    ASSERT_EQ(alarm().Box1[32].value(), 1);
    EXPECT_TRUE(alarm().ListView13.Items.empty());
    fp.files.Delete(kWow + "w1.dll");
    fp.files.Put(kWow + "neu.dll", "MZ");
    alarm().Durchlauf();
    EXPECT_FALSE(prg.Form3Geladen());
    // The snapshot is still the system folder's, which the row before walked last.
    ASSERT_EQ(alarm().ListView5.Items.size(), 2u);
    for (const ListItem& z : alarm().ListView5.Items) EXPECT_EQ(z.Text.rfind(kSys, 0), 0u) << z.Text;
}

TEST_F(SysWow64, Main_TakesTheFolderFromTheSystem_SettingsTurnTheBoxOn) {
    struct Fall {
        std::string wow64;
        std::size_t zeilen;
    };
    for (const Fall& fall : {Fall{"C:\\WINDOWS\\SysWOW64", 3}, Fall{"", 0}}) {
        SCOPED_TRACE(fall.wow64);
        fake::FakePlattform p;
        p.system.wow64 = fall.wow64;
        for (const char* n : {"w1.dll", "w2.dll", "w3.dll"}) p.files.Put(kWow + n, "MZ");
        PropertyBag bag;
        bag.WriteProperty("Box32", std::int16_t{1});
        p.files.Put(datPfad, bag.Contents());
        Programm lauf{p.plattform};
        ASSERT_TRUE(Main(lauf));
        EXPECT_EQ(lauf.SysWow64ordner, fall.wow64);
        EXPECT_EQ(lauf.Alarm().Box1[32].value(), 1);
        EXPECT_EQ(lauf.Alarm().Box1[32].Caption, fall.wow64);
        EXPECT_EQ(lauf.Alarm().ListView13.Items.size(), fall.zeilen);
    }
}

}  // namespace
}  // namespace kes::test
