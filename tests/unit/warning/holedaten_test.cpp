// The detail panes of the warning window: the file table and attribute boxes that
// holedaten fills, and the clicks into the panes' lists with their menus.
#include <regex>

#include "platform/hive_ocx.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

constexpr long kGrau = 0xC0C0C0;

class Detailfenster : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    Form3Fenster& f() { return prg.Form3(); }
    using V = std::vector<std::string>;
    std::vector<int> LeuchtendeBoxen() {
        std::vector<int> an;
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(f().Check1[i].Enabled, f().Check1[i].Value == 1) << "box " << i;
            if (f().Check1[i].Value == 1) an.push_back(i);
        }
        return an;
    }
};

TEST_F(Detailfenster, MissingFile_UnbekanntInAGreyRowAndNoTimes) {
    std::string pfad = "C:\\WINDOWS\\system32\\weg.dll";
    holedaten(prg.p, prg.Form3(), pfad);
    const ListView& l = f().ListView1;
    ASSERT_EQ(l.Items.size(), 12u);
    EXPECT_EQ(l.Items[0].Text, "Hersteller:");
    EXPECT_EQ(l.Items[0].SubItem(2), "Erstellt:");
    EXPECT_EQ(l.Items[3].SubItem(2), " ");
    EXPECT_EQ(l.Items[11].Text, "SpecialBuild:");
    for (const ListItem& zeile : l.Items) EXPECT_EQ(zeile.SubItem(1), "Unbekannt") << zeile.Text;
    for (int i = 0; i < 3; ++i) EXPECT_EQ(l.Items[i].SubItem(3), "") << "no times for a file that is gone";
    EXPECT_EQ(l.Items[6].SubItem(3), "Unbekannt") << "the type of a file without version block";
    EXPECT_EQ(l.Items[7].SubItem(3), "") << "no size either";
    EXPECT_EQ(l.Items[0].ForeColors, (std::vector<long>{kGrau, kGrau, kGrau, kGrau}));
    // The platform answers a missing path with every attribute bit set, and each box
    // tests its bit alone.
    EXPECT_EQ(LeuchtendeBoxen(), (std::vector<int>{0, 1, 3, 4, 5, 6, 7}));
}

TEST_F(Detailfenster, HiddenSystemFile_LightsVerstecktSystemAndTemp_AndOnlyVerstecktBlinks) {
    std::string pfad = "C:\\WINDOWS\\system32\\geheim.dll";
    fp.files.Put(pfad, std::string(2048, 'x'), kAttrHidden | kAttrSystem | kAttrArchive);
    fp.details.SetVersion(pfad, {.dateiversion = {5, 1, 2600, 0},
                                 .dateityp = 2,
                                 .übersetzungen = {{.texte = {{"CompanyName", "Microsoft Corporation"},
                                                              {"ProductName", "Betriebssystem Microsoft® Windows®"},
                                                              {"FileVersion", "5.1.2600.0"}}}}});

    holedaten(prg.p, prg.Form3(), pfad);
    const ListView& l = f().ListView1;
    const V werte = {l.Items[0].SubItem(1), l.Items[1].SubItem(1), l.Items[4].SubItem(1), l.Items[5].SubItem(1)};
    EXPECT_EQ(werte, (V{"Microsoft Corporation", "Betriebssystem Microsoft® Windows®", "5.1.2600.0", "Unbekannt"}));
    EXPECT_EQ(l.Items[6].SubItem(3), "Dynamic Link Library (DLL)");
    EXPECT_EQ(l.Items[7].SubItem(3), "2,00 KB (2.048 Bytes)");
    const std::regex zeit(R"(\d\d\.\d\d\.\d{4}  \d\d:\d\d:\d\d)");
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(std::regex_match(l.Items[i].SubItem(3), zeit)) << l.Items[i].SubItem(3);
    EXPECT_EQ(std::vector<long>(l.Items[0].ForeColors.begin(), l.Items[0].ForeColors.begin() + 3),
              (std::vector<long>{0xFF0000, 255, 0xFF0000}))
        << "a known maker: no grey row";

    EXPECT_EQ(LeuchtendeBoxen(), (std::vector<int>{0, 3, 6, 7}));
    EXPECT_TRUE(f().Timer1.Enabled());
    fp.timers.Advance(500);
    EXPECT_FALSE(f().Check1[3].Visible);
    EXPECT_TRUE(f().Check1[6].Visible && f().Check1[7].Visible);
    fp.timers.Advance(500);
    EXPECT_TRUE(f().Check1[3].Visible);
}

TEST_F(Detailfenster, ReadOnlyFile_LightsReadOnlyAndDoesNotBlink) {
    std::string pfad = "C:\\Programme\\tool.exe";
    fp.files.Put(pfad, "MZ", kAttrReadOnly);
    holedaten(prg.p, prg.Form3(), pfad);
    EXPECT_EQ(LeuchtendeBoxen(), (std::vector<int>{5}));
    EXPECT_FALSE(f().Timer1.Enabled());
}

TEST_F(Detailfenster, ListView2_SecondRowOpensTheFolderMenu_FirstRowOnlyKeepsItsFolder) {
    Form3Fenster& w = f();
    w.ListView2_ItemClick(2);
    EXPECT_TRUE(w.Popup.Menü.empty()) << "an empty list does nothing";

    w.ListView2.Add("tool.exe");
    w.ListView2.Add("C:\\Programme\\Tool\\tool.exe");
    w.ListView2_ItemClick(1);
    EXPECT_TRUE(w.Popup.Menü.empty());
    w.ListView2_ItemClick(2);
    EXPECT_EQ(w.Popup.Menü, "Prozesse");
    EXPECT_EQ(w.Popup.VersatzY, -355);
    EXPECT_FALSE(w.Popup.AmZeiger);
    EXPECT_EQ(w.Prozesse1[0].Caption, "Ordner öffnen");

    w.Prozesse1_Click(0);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "explorer.exe C:\\Programme\\Tool\\");
    EXPECT_EQ(fp.shell.kommandos[0].show, 3);
    EXPECT_TRUE(prg.Form3Geladen()) << "the warning stays open";
}

TEST_F(Detailfenster, FolderThatExplorerWouldReadAsArguments_IsNotOpened) {
    Form3Fenster& w = f();
    w.ListView2.Add("x.exe");
    w.ListView2.Add("");
    for (const std::string pfad : {"C:\\Tool\\böse.exe,\\x.exe", "/root,C:\\x\\y.exe", "C:\\a\" b\\c.exe"}) {
        fp.dialogs.meldungen.clear();
        w.ListView2.Items[1].Text = pfad;
        w.ListView2_ItemClick(2);
        w.Prozesse1_Click(0);
        EXPECT_TRUE(fp.shell.kommandos.empty()) << fp.shell.kommandos.back().kommando;
        ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
        EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Achtung!");
    }
    w.ListView2.Items[1].Text = "C:\\Programme\\Mein Tool\\tool.exe";
    w.ListView2_ItemClick(2);
    w.Prozesse1_Click(0);
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "explorer.exe C:\\Programme\\Mein Tool\\") << "blanks pass as before";
}

TEST_F(Detailfenster, ListView3_ShowsTheModulesPathsAndDescription) {
    const std::string pfad = "C:\\WINDOWS\\system32\\Hilfsbibliothek.dll";
    fp.files.Put(pfad, "MZ");
    fp.details.SetVersion(pfad, {.übersetzungen = {{.texte = {{"FileDescription", "Hilfe für alles"}}}}});
    Form3Fenster& w = f();
    w.ListView3.Add("Hilfsbibliothek.dll").SetSubItem(1, pfad);
    w.ListView3_ItemClick(1);
    EXPECT_EQ(w.lblModName.Caption, "Hilfsbibliothek.dll");
    EXPECT_EQ(w.txtMdlLPath.Text, pfad);
    EXPECT_EQ(w.txtMdlSPath.Text, "C:\\WINDOWS\\system32\\HILFSB~1.DLL");
    EXPECT_EQ(w.txtMdlDesc.Text, "Hilfe für alles");
}

TEST_F(Detailfenster, ListView4_RowWithoutClassReference_GreysTheSecondEntry_FirstOpensRegedit) {
    Form3Fenster& w = f();
    ListItem& zeile = w.ListView4.Add("HKEY_LOCAL_MACHINE");
    zeile.SetSubItem(1, "HKEY_LOCAL_MACHINE");
    zeile.SetSubItem(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    zeile.SetSubItem(3, "Tool");
    w.Topmost = true;
    w.ListView4_ItemClick(1);
    EXPECT_EQ(w.regedit1[0].Caption, "\"Tool\" --> mit Regedit öffnen");
    EXPECT_FALSE(w.regedit1[1].Enabled);
    EXPECT_EQ(w.regedit1[1].Caption, "");
    EXPECT_EQ(w.Popup.Menü, "regedit");
    EXPECT_EQ(w.Popup.Standard, 0);

    w.regedit1_Click(0);
    EXPECT_FALSE(w.Topmost);
    EXPECT_EQ(
        HiveOCX(fp.registry).ReadValue(1, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit", "LastKey"),
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "regedit.exe");
    EXPECT_EQ(fp.shell.kommandos[0].show, kSwShowNormal);
}

TEST_F(Detailfenster, ListView4_RowWithClassReference_SecondEntryFollowsIt) {
    Form3Fenster& w = f();
    ListItem& zeile = w.ListView4.Add("BHO");
    zeile.SetSubItem(1, "HKEY_LOCAL_MACHINE");
    zeile.SetSubItem(2, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\{1}");
    zeile.SetSubItem(6, "HKEY_CLASSES_ROOT");
    zeile.SetSubItem(7, "CLSID\\{1}");
    w.ListView4_ItemClick(1);
    EXPECT_TRUE(w.regedit1[1].Enabled);
    EXPECT_EQ(w.regedit1[1].Caption, "Folge CLISD: \"HKEY_CLASSES_ROOT\\CLSID\\{1}\" --> mit Regedit öffnen");
    w.regedit1_Click(1);
    EXPECT_EQ(
        HiveOCX(fp.registry).ReadValue(1, "Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit", "LastKey"),
        "HKEY_CLASSES_ROOT\\CLSID\\{1}");
}

}  // namespace
}  // namespace kes::test
