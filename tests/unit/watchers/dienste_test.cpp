// The service watcher: which services count, the fields of its warning, the crossed keys
// of dienste.ini, and the accept menu's two entries.
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kSvc = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\";
using V = Texte;

class DiensteTest : public WarnungsTest {
protected:
    void SetUp() override {
        WarnungsTest::SetUp();
        prg.Beschäftigt = false;
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Dienst(const std::string& name, std::uint32_t start, const std::string& imagePath) {
        fp.registry.SetDword(kSvc + name, "Start", start);
        fp.registry.SetString(kSvc + name, "ImagePath", imagePath);
    }
    void Firma(const std::string& pfad, const std::string& firma) {
        fp.files.Put(pfad, "MZ");
        fake::FakeVersion v;
        v.übersetzungen.push_back({0x0407, 0x04E4, {{"CompanyName", firma}}});
        fp.details.SetVersion(pfad, v);
    }
    void Teste() { alarm().dienste.TesteDienste(); }
    std::string Ini() { return ordner + "daten\\dienste.ini"; }
    std::string IniWert(const char* abschnitt, const char* name) {
        return fp.profiles.GetString(abschnitt, name, "", Ini());
    }
};

TEST_F(DiensteTest, NewAutomaticService_WarnsWithItsFieldsRowsAndRegistryRow) {
    Dienst("Neu", 2, "%SystemRoot%\\System32\\neu.exe -k");
    fp.registry.SetString(kSvc + "Neu", "DisplayName", "Neuer Dienst");
    fp.registry.SetString(kSvc + "Neu", "ObjectName", "LocalSystem");
    fp.registry.SetString(kSvc + "Neu", "Description", "Tut etwas.");
    prg.Soundflag = 1;
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(fp.sound.gespielt.size(), 1u);
    Form3Fenster& f = prg.Form3();
    const std::string pfad = "C:\\WINDOWS\\system32\\neu.exe -k";
    EXPECT_EQ(Felder(f, 5), (V{"Neu", "Neuer Dienst", "LocalSystem", pfad, "2"}));
    EXPECT_EQ(f.Label1[0].Caption, "Neuer Dienst wurde gefunden.(Automatischer Start)");
    EXPECT_EQ(TexteVon(f.ListView2), (V{"neu.exe -k", pfad, "Neuer Dienst ---->> Tut etwas."}));
    EXPECT_EQ(Spalten(f.ListView4.Items.at(0), 4),
              (V{"Dienst", "HKEY_LOCAL_MACHINE", "System\\CurrentControlSet\\Services\\Neu", "Neu", pfad}));
    EXPECT_FALSE(f.Picture3[4].Visible);
    EXPECT_TRUE(f.Image[9].Visible);
    EXPECT_EQ(f.Label3[7].Caption, "Service-Dienste");
}

TEST_F(DiensteTest, OnlyAutomaticStartWithImagePathCounts_AndAChangeToAutomaticIsSeen) {
    Dienst("Manuell", 3, "C:\\m.exe");
    Dienst("Treiber", 1, "C:\\t.sys");
    fp.registry.SetDword(kSvc + "OhneImagePath", "Start", 2);
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Dienste) << "set at every call, found or not";
    fp.registry.SetDword(kSvc + "Manuell", "Start", 2);
    Teste();
    EXPECT_EQ(Gewarnt(prg), "Manuell");
}

TEST_F(DiensteTest, KnownByNameWithCase_MakerWithoutCase) {
    Dienst("Bekannt", 2, "C:\\b.exe");
    alarm().ListView11.Add("bekannt");
    Teste();
    EXPECT_TRUE(prg.Form3Geladen()) << "another case is a new service";
    Zu(prg);
    alarm().ListView11.Add("Bekannt");
    Dienst("Vertraut", 2, "C:\\Vertraut\\v.exe");
    Firma("c:\\vertraut\\v.exe", "Microsoft Corporation");
    alarm().List10.Items = {"MICROSOFT corporation"};
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
    Dienst("OhneVersion", 2, "C:\\fehlt.exe");
    Teste();
    EXPECT_TRUE(prg.Form3Geladen());
    Zu(prg);
    alarm().List10.Items.push_back("unbekannt");
    Teste();
    EXPECT_FALSE(prg.Form3Geladen()) << "\"Unbekannt\" trusts every file without a version block";
}

TEST_F(DiensteTest, DeferredPath_SilencesEveryServiceOfItsHostButNotTheNext) {
    Dienst("A1", 2, "C:\\WINDOWS\\system32\\svchost.exe -k netsvcs");
    Dienst("A2", 2, "C:\\WINDOWS\\system32\\svchost.exe -k netsvcs");
    Dienst("B", 2, "C:\\b.exe");
    alarm().List8.Items.push_back("c:\\windows\\system32\\svchost.exe -k netsvcs");
    Teste();
    EXPECT_EQ(Gewarnt(prg), "B");
    prg.Form3().Image_Click(6);
    prg.Aufräumen();
    EXPECT_EQ(alarm().List8.Items.back(), "c:\\b.exe") << "deferred by the path";
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(DiensteTest, MoreThan3000Services_TheWalkGivesUp) {
    for (int i = 0; i < 3001; ++i) fp.registry.MakeKey(kSvc + "D" + std::to_string(i));
    Dienst("Neu", 2, "C:\\n.exe");
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(DiensteTest, Baseline_CrossesTheKeysAndReadsThroughGapsTo300) {
    fp.files.Put("C:\\WINDOWS\\system32\\x.exe", "MZ");
    fp.files.Put(Ini(),
                 "[2]\r\nDienst=Zwei\r\nObjectName=Anzeigename\r\nDisplayName=LocalSystem\r\n"
                 "ImagePath=%SystemRoot%\\System32\\X.exe\r\n"
                 "[3]\r\nObjectName=ohne Dienst\r\n[300]\r\nDienst=Letzter\r\n[301]\r\nDienst=Zuviel\r\n");
    alarm().dienste.LadeDienste();
    ASSERT_EQ(alarm().ListView11.Items.size(), 2u);
    const ListItem& z = alarm().ListView11.Items[0];
    EXPECT_EQ((V{z.Text, z.SubItem(1), z.SubItem(2), z.SubItem(3), z.SubItem(4), z.SubItem(14)}),
              (V{"Zwei", "Anzeigename", "LocalSystem", "C:\\WINDOWS\\system32\\x.exe", "Unbekannt", "2"}));
    EXPECT_EQ(alarm().ListView11.Columns.at(1), "DisplayName");
    EXPECT_EQ(alarm().ListView11.Columns.at(11), "Orginal Name");
    EXPECT_EQ(alarm().ww[19].Caption, "Ausnahmen:   [Einträge: 2]");
}

TEST_F(DiensteTest, Makers_KeepTheirEmptyLines) {
    fp.files.Put(ordner + "daten\\dienstefirmen.txt", "Eins\r\n\r\nZwei\r\n");
    alarm().dienste.LadeDiensteHersteller();
    EXPECT_EQ(alarm().List10.Items, (V{"Eins", "", "Zwei"}));
    fp.files.Delete(ordner + "daten\\dienstefirmen.txt");
    alarm().dienste.LadeDiensteHersteller();
    EXPECT_TRUE(alarm().List10.Items.empty());
}

TEST_F(DiensteTest, MenuService_WritesTheFirstFreeSectionCrossedAndIsKnownAfterwards) {
    fp.files.Put(Ini(), "[1]\r\nDienst=Alt\r\n[2]\r\nObjectName=ohne Dienst\r\n");
    Dienst("Neu", 2, "C:\\n.exe");
    fp.registry.SetString(kSvc + "Neu", "DisplayName", "Anzeige");
    fp.registry.SetString(kSvc + "Neu", "ObjectName", "Konto");
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    Form3Fenster& f = prg.Form3();
    f.Image_Click(1);
    EXPECT_EQ(f.Popup.Menü, "dienst");
    EXPECT_EQ(f.dienst1[1].Caption, "Dienst: \"Neu\" immer zulassen");
    EXPECT_EQ(f.dienst1[0].Caption, "Hersteller: \"Unbekannt\" immer zulassen");
    f.dienst1_Click(1);
    EXPECT_EQ(
        (V{IniWert("2", "Dienst"), IniWert("2", "ObjectName"), IniWert("2", "DisplayName"), IniWert("2", "ImagePath")}),
        (V{"Neu", "Anzeige", "Konto", "c:\\n.exe"}));
    EXPECT_EQ(alarm().ListView11.Items.size(), 2u);
    EXPECT_NE(Log().find("Neuer Dienst wurde erstellt.\r\nName: Neu\r\nDatei: c:\\n.exe\r\n< Übernommen OK >"),
              std::string::npos);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    prg.Aufräumen();
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(DiensteTest, MenuService_WithAll200Taken_WritesOverSection200) {
    std::string voll;
    for (int i = 1; i <= 200; ++i) voll += "[" + std::to_string(i) + "]\r\nDienst=d" + std::to_string(i) + "\r\n";
    fp.files.Put(Ini(), voll);
    Form3Fenster& f = Warnung(Kategorie::Dienste);
    f.Text1[0].Text = "Neu";
    f.dienst1_Click(1);
    EXPECT_EQ((V{IniWert("200", "Dienst"), IniWert("201", "Dienst")}), (V{"Neu", ""}));
}

TEST_F(DiensteTest, MenuMaker_RewritesTheMakerFileWithAllEntries) {
    fp.files.Put(ordner + "daten\\dienstefirmen.txt", "Alt GmbH\r\n");
    alarm().dienste.LadeDiensteHersteller();
    Dienst("Neu", 2, "C:\\n.exe");
    Firma("c:\\n.exe", "Neu AG");
    Teste();
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().dienst1_Click(0);
    EXPECT_EQ(fp.files.Content(ordner + "daten\\dienstefirmen.txt"), "Alt GmbH\r\nNeu AG\r\n");
    EXPECT_NE(Log().find("< Übernommen OK >"), std::string::npos);
    EXPECT_FALSE(fp.files.Exists(Ini()));
    prg.Aufräumen();
    Teste();
    EXPECT_FALSE(prg.Form3Geladen());
}

}  // namespace
}  // namespace kes::test
