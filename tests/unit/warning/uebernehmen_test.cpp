// The accept action by category: which list and file change, what the log says.
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

class Annehmen : public WarnungsTest {
protected:
    std::string Datei(const std::string& name) { return fp.files.Content(ordner + "daten\\" + name); }
    void Geschlossen() {
        EXPECT_FALSE(prg.Form3Geladen());
        EXPECT_FALSE(prg.Beschäftigt);
        EXPECT_TRUE(fp.files.Exists(ordner + "Kestrella.dat")) << "raus saves the settings";
    }
};

TEST_F(Annehmen, AutostartRegistry_AddsTheRowRewritesTheFileAndQuotesTheLastRowPrinted) {
    prg.Alarm().ListView1.Add("HKEY_LOCAL_MACHINE\\Run\\zuletzt\\z.exe");
    Form3Fenster& f = Warnung(Kategorie::AutostartRegistry);
    ListItem& z = f.ListView4.Add("Autostart");
    z.SetSubItem(1, "HKEY_CURRENT_USER");
    z.SetSubItem(2, "Software\\Run");
    z.SetSubItem(3, "Tool");
    z.SetSubItem(4, "C:\\tool.exe");
    f.Text1[4].Text = "C:\\tool.exe";
    f.Image_Click(1);
    ASSERT_EQ(prg.Alarm().ListView1.Items.size(), 2u);
    EXPECT_EQ(prg.Alarm().ListView1.Items[1].Text, "HKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe");
    EXPECT_EQ(prg.Alarm().ListView1.Items[1].SmallIcon, 26) << "the picture of the loaded rows";
    EXPECT_EQ(Datei("AutostartREG.txt"),
              "HKEY_LOCAL_MACHINE\\Run\\zuletzt\\z.exe\r\nHKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe\r\n");
    EXPECT_NE(
        Log().find("Neuer Eintrag in der Registry Autostart.\r\nRegistry: "
                   "HKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe\r\nWert: C:\\tool.exe\r\n< Übernommen OK >"),
        std::string::npos);
    Geschlossen();
}

TEST_F(Annehmen, ListCategories_WriteTheirFiles) {
    Form3Fenster& f = Warnung(Kategorie::AutostartOrdner);
    f.ListView2.Add("a.lnk");
    f.ListView2.Add("C:\\Start\\a.lnk");
    f.Image_Click(1);
    EXPECT_EQ(Datei("Autostart.txt"), "a.lnk\r\n") << "the name, which the watcher compares";
    EXPECT_NE(Log().find("Neuer Eintrag im Autostart Ordner.\r\nDatei: C:\\Start\\a.lnk\r\n< Übernommen OK >"),
              std::string::npos);

    Form3Fenster& d = Warnung(Kategorie::DFÜ);
    d.Text1[0].Text = "Einwahl";
    d.Text1[1].Text = "0190123";
    d.Image_Click(1);
    EXPECT_EQ(Datei("0190.txt"),
              "Einwahl\x80"
              "0190123\r\n");

    Form3Fenster& fav = Warnung(Kategorie::Favorit2);
    fav.Label1[1].Caption = "C:\\Fav\\x.url";
    fav.Label1[2].Caption = "x.url";
    fav.Image_Click(1);
    EXPECT_EQ(Datei("favoriten.txt"), "x.url\r\n");
    EXPECT_NE(Log().find("Favorit: C:\\Fav\\x.url\r\n< Favorit hinzugefügt OK >"), std::string::npos);

    Form3Fenster& t = Warnung(Kategorie::ToolBar1);
    t.Text1[0].Text = "boese.example";
    t.Image_Click(1);
    EXPECT_EQ(Datei("V_seiten.txt"), "boese.example\r\n");
    EXPECT_EQ(prg.Alarm().ListView12.Items.back().SmallIcon, 1) << "the picture of the loaded rows";

    Form3Fenster& u = Warnung(Kategorie::URLSearchHooks);
    u.Text1[0].Text = "{CLSID}";
    u.Image_Click(1);
    EXPECT_EQ(Datei("URLSearchHook.txt"), "{CLSID}\r\n");
    Geschlossen();
}

TEST_F(Annehmen, IniCategories_TakeTheFirstFreeSectionWithSwappedFieldsForTaskScheduler) {
    fp.files.Put(ordner + "daten\\bho.ini", "[1]\r\nClisd={alt}\r\n");
    Form3Fenster& b = Warnung(Kategorie::BHO);
    b.Text1[0].Text = "{neu}";
    b.Text1[1].Text = "C:\\bho.dll";
    b.Text1[2].Text = "Helfer";
    b.Image_Click(1);
    EXPECT_EQ(fp.profiles.GetString("2", "clisd", "", ordner + "daten\\bho.ini"), "{neu}");
    EXPECT_EQ(fp.profiles.GetString("2", "Pfad", "", ordner + "daten\\bho.ini"), "C:\\bho.dll");

    Form3Fenster& t = Warnung(Kategorie::TaskScheduler);
    for (int i = 0; i < 4; ++i) t.Text1[i].Text = "t" + std::to_string(i);
    t.Image_Click(1);
    const std::string ts = ordner + "daten\\taskscheduler.ini";
    EXPECT_EQ(fp.profiles.GetString("1", "name", "", ts), "t1");
    EXPECT_EQ(fp.profiles.GetString("1", "wert", "", ts), "t0");

    Form3Fenster& s = Warnung(Kategorie::ShellService);
    for (int i = 0; i < 4; ++i) s.Text1[i].Text = "s" + std::to_string(i);
    s.Image_Click(1);
    EXPECT_EQ(fp.profiles.GetString("1", "name", "", ordner + "daten\\shellservice.ini"), "s0");
}

TEST_F(Annehmen, AllTwoHundredSectionsTaken_WritesSection201) {
    std::string voll;
    for (int i = 1; i <= 200; ++i) voll += "[" + std::to_string(i) + "]\r\nName=x\r\n";
    fp.files.Put(ordner + "daten\\shellservice.ini", voll);
    Form3Fenster& s = Warnung(Kategorie::ShellService);
    s.Text1[0].Text = "neu";
    s.Image_Click(1);
    EXPECT_EQ(fp.profiles.GetString("201", "name", "", ordner + "daten\\shellservice.ini"), "neu");
}

TEST_F(Annehmen, BoxTwoOff_ChangesListAndFileButWritesNoLog) {
    prg.Alarm().Box1[2].setValue(0);
    Form3Fenster& f = Warnung(Kategorie::AutostartOrdner);
    f.ListView2.Add("a");
    f.ListView2.Add("C:\\a");
    f.Image_Click(1);
    EXPECT_EQ(prg.Alarm().List3.Items.size(), 1u);
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

TEST_F(Annehmen, StartPage_StoresTheValueInItsSlot) {
    Form3Fenster& f = Warnung(Kategorie::StartPage);
    f.Text1[2].Text = "Start Page";
    f.Text1[3].Text = "http://neu/";
    f.Text1[5].Text = "4";
    f.Image_Click(1);
    EXPECT_EQ(prg.StartSeiten[4], "http://neu/");
    EXPECT_NE(Log().find("IExplorer Start Page wurde geändert."), std::string::npos);
}

TEST_F(Annehmen, UnwritableFile_ReportedByMostCategoriesPassedOverByTheRegistryRows) {
    fp.files.Put(ordner + "daten\\Autostart.txt", "alt\r\n", kAttrReadOnly);
    Form3Fenster& f = Warnung(Kategorie::AutostartOrdner);
    f.ListView2.Add("a");
    f.ListView2.Add("C:\\a");
    f.Image_Click(1);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Form3, Übernehmen) Fehler: 75");
    EXPECT_TRUE(prg.Form3Geladen());

    fp.files.Put(ordner + "daten\\AutostartREG.txt", "alt\r\n", kAttrReadOnly);
    prg.Form3Entladen();
    Form3Fenster& g = Warnung(Kategorie::AutostartRegistry);
    g.ListView4.Add("Autostart");
    g.Image_Click(1);
    EXPECT_EQ(fp.dialogs.meldungen.size(), 1u) << "no message for this file";
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Annehmen, LockedLog_GoesToTheErrorExitAfterTheListChanged) {
    fp.files.Put(ordner + "Kestrella.log", "alt\r\n");
    fp.files.Lock(ordner + "Kestrella.log");
    Form3Fenster& f = Warnung(Kategorie::AutostartOrdner);
    f.ListView2.Add("a");
    f.ListView2.Add("C:\\a");
    f.Image_Click(1);
    EXPECT_EQ(Datei("Autostart.txt"), "a\r\n") << "the action has happened before the log";
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Form3, Übernehmen) Fehler: 75");
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_F(Annehmen, StartPageIndex_RoundsHalvesToEven) {
    for (auto [text, slot] : {std::pair{"0.5", 0}, std::pair{"1.5", 2}, std::pair{"2.5", 2}}) {
        prg.StartSeiten = {};
        Form3Fenster& f = Warnung(Kategorie::StartPage);
        f.Text1[3].Text = "http://x/";
        f.Text1[5].Text = text;
        f.Image_Click(1);
        EXPECT_EQ(prg.StartSeiten[slot], "http://x/") << text;
    }
}

TEST_F(Annehmen, HostsFileGoneBeforeTheClick_EndsInTheErrorExit) {
    Form3Fenster& f = Warnung(Kategorie::HostsDatei);
    f.Image_Click(1);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Form3, Übernehmen) Fehler: 53");
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_F(Annehmen, StartPageIndexBeyondTheSlots_EndsWithTheErrorAndKeepsTheWindow) {
    Form3Fenster& f = Warnung(Kategorie::StartPage);
    f.Text1[5].Text = "32";
    f.Image_Click(1);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "(Form3, Übernehmen) Fehler: 9");
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
}

TEST_F(Annehmen, WindowsFileChanged_UpdatesOnlyAMatchingRow) {
    fp.files.Put("C:\\WINDOWS\\a.dll", "12345");
    prg.Alarm().ListView4.Add("C:\\WINDOWS\\a.dll").SetSubItem(1, "3");
    Form3Fenster& f = Warnung(Kategorie::WindowsDatei);
    f.ListView2.Add("a.dll");
    f.ListView2.Add("C:\\WINDOWS\\b.dll");
    f.Text1[3].Text = "3";
    f.Text1[4].Text = "1";
    f.Image_Click(1);
    EXPECT_TRUE(prg.Form3Geladen()) << "a row that does not match ends the action unchanged";
    f.ListView2.Items[1].Text = "C:\\WINDOWS\\a.dll";
    f.Image_Click(1);
    EXPECT_EQ(prg.Alarm().ListView4.Items[0].SubItem(1), "5");
    EXPECT_NE(Log().find("Datei wurde geändert.\r\nDatei: C:\\WINDOWS\\a.dll\r\n< OK >"), std::string::npos);
}

TEST_F(Annehmen, ProcessesAndServices_OpenTheirMenuAndStayOpen) {
    Form3Fenster& f = Warnung(Kategorie::Prozesse);
    f.ListView2.Add("x.exe");
    f.ListView2.Add("C:\\x.exe");
    f.ListView1.Add("Firma").SetSubItem(1, "Unbekannt");
    f.Image_Click(1);
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(f.Popup.Menü, "killprozess");
    EXPECT_EQ(f.killprozess1[0].Caption, "\"C:\\x.exe\" immer zulassen");
    EXPECT_FALSE(f.killprozess1[1].Enabled);
    EXPECT_EQ(f.Popup.Standard, 0);
}

TEST_F(Annehmen, KeyWithoutAcceptBranch_OnlyClosesTheWindow) {
    Warnung(Kategorie::OrdnerAllUser).Image_Click(1);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

}  // namespace
}  // namespace kes::test
