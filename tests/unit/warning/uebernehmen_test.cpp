// The accept action by category: which list and file change, what the log says.
#include "panel/alarm.h"
#include "warning/form3.h"
#include "warnung_test.h"

namespace kes::test {
namespace {

class Annehmen : public AntwortFenster {
protected:
    void Geschlossen() {
        EXPECT_FALSE(prg.Form3Geladen());
        EXPECT_FALSE(prg.Beschäftigt);
        EXPECT_TRUE(fp.files.Exists(ordner + "Kestrella.dat")) << "raus saves the settings";
    }
    // The error exit: its one message, and the window stays with the cycle stopped.
    void Fehlerausgang(const std::string& meldung) {
        EXPECT_EQ(Meldungen(), std::vector<std::string>{meldung});
        EXPECT_TRUE(prg.Form3Geladen());
        EXPECT_TRUE(prg.Beschäftigt);
        prg.Form3Entladen();
        prg.Beschäftigt = true;
        fp.dialogs.meldungen.clear();
    }
    std::string Ini(const std::string& datei, const char* abschnitt, const char* name) {
        return fp.profiles.GetString(abschnitt, name, "", ordner + "daten\\" + datei);
    }
};

TEST_F(Annehmen, AutostartRegistry_AddsTheRowRewritesTheFileAndQuotesTheLastRowPrinted) {
    prg.Alarm().ListView1.Add("HKEY_LOCAL_MACHINE\\Run\\zuletzt\\z.exe");
    Form3Fenster& f = Mit(Kategorie::AutostartRegistry, {"", "", "", "", "C:\\tool.exe"});
    ListItem& z = f.ListView4.Add("Autostart");
    for (const auto& [i, text] :
         {std::pair{1, "HKEY_CURRENT_USER"}, {2, "Software\\Run"}, {3, "Tool"}, {4, "C:\\tool.exe"}})
        z.SetSubItem(i, text);
    f.Image_Click(1);
    ASSERT_EQ(prg.Alarm().ListView1.Items.size(), 2u);
    EXPECT_EQ(prg.Alarm().ListView1.Items[1].Text, "HKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe");
    EXPECT_EQ(prg.Alarm().ListView1.Items[1].SmallIcon, 26) << "the picture of the loaded rows";
    EXPECT_EQ(Datei("AutostartREG.txt"),
              "HKEY_LOCAL_MACHINE\\Run\\zuletzt\\z.exe\r\nHKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe\r\n");
    EXPECT_TRUE(
        Geloggt("Neuer Eintrag in der Registry Autostart.\r\nRegistry: "
                "HKEY_CURRENT_USER\\Software\\Run\\Tool\\C:\\tool.exe\r\nWert: C:\\tool.exe\r\n< Übernommen OK >"));
    Geschlossen();
}

TEST_F(Annehmen, ListCategories_WriteTheirFiles) {
    MitDatei(Kategorie::AutostartOrdner, "a.lnk", "C:\\Start\\a.lnk").Image_Click(1);
    EXPECT_EQ(Datei("Autostart.txt"), "a.lnk\r\n") << "the name, which the watcher compares";
    EXPECT_TRUE(Geloggt("Neuer Eintrag im Autostart Ordner.\r\nDatei: C:\\Start\\a.lnk\r\n< Übernommen OK >"));

    Mit(Kategorie::DFÜ, {"Einwahl", "0190123"}).Image_Click(1);
    EXPECT_EQ(Datei("0190.txt"), std::string("Einwahl\x80") + "0190123\r\n");

    Form3Fenster& fav = Warnung(Kategorie::Favorit2);
    fav.Label1[1].Caption = "C:\\Fav\\x.url";
    fav.Label1[2].Caption = "x.url";
    fav.Image_Click(1);
    EXPECT_EQ(Datei("favoriten.txt"), "x.url\r\n");
    EXPECT_TRUE(Geloggt("Favorit: C:\\Fav\\x.url\r\n< Favorit hinzugefügt OK >"));

    Mit(Kategorie::ToolBar1, {"boese.example"}).Image_Click(1);
    EXPECT_EQ(Datei("V_seiten.txt"), "boese.example\r\n");
    EXPECT_EQ(prg.Alarm().ListView12.Items.back().SmallIcon, 1) << "the picture of the loaded rows";

    Mit(Kategorie::URLSearchHooks, {"{CLSID}"}).Image_Click(1);
    EXPECT_EQ(Datei("URLSearchHook.txt"), "{CLSID}\r\n");
    Geschlossen();
}

TEST_F(Annehmen, IniCategories_TakeTheFirstFreeSectionWithSwappedFieldsForTaskScheduler) {
    fp.files.Put(ordner + "daten\\bho.ini", "[1]\r\nClisd={alt}\r\n");
    Mit(Kategorie::BHO, {"{neu}", "C:\\bho.dll", "Helfer"}).Image_Click(1);
    EXPECT_EQ(Ini("bho.ini", "2", "clisd"), "{neu}");
    EXPECT_EQ(Ini("bho.ini", "2", "Pfad"), "C:\\bho.dll");

    Mit(Kategorie::TaskScheduler, {"t0", "t1", "t2", "t3"}).Image_Click(1);
    EXPECT_EQ(Ini("taskscheduler.ini", "1", "name"), "t1");
    EXPECT_EQ(Ini("taskscheduler.ini", "1", "wert"), "t0");

    Mit(Kategorie::ShellService, {"s0", "s1", "s2", "s3"}).Image_Click(1);
    EXPECT_EQ(Ini("shellservice.ini", "1", "name"), "s0");
}

TEST_F(Annehmen, AllTwoHundredSectionsTaken_WritesSection201) {
    std::string voll;
    for (int i = 1; i <= 200; ++i) voll += "[" + std::to_string(i) + "]\r\nName=x\r\n";
    fp.files.Put(ordner + "daten\\shellservice.ini", voll);
    Mit(Kategorie::ShellService, {"neu"}).Image_Click(1);
    EXPECT_EQ(Ini("shellservice.ini", "201", "name"), "neu");
}

TEST_F(Annehmen, BoxTwoOff_ChangesListAndFileButWritesNoLog) {
    prg.Alarm().Box1[2].setValue(0);
    MitDatei(Kategorie::AutostartOrdner, "a", "C:\\a").Image_Click(1);
    EXPECT_EQ(prg.Alarm().List3.Items.size(), 1u);
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

TEST_F(Annehmen, StartPage_StoresTheValueInItsSlot_RoundingHalvesToEven) {
    Mit(Kategorie::StartPage, {"", "", "Start Page", "http://neu/", "", "4"}).Image_Click(1);
    EXPECT_EQ(prg.StartSeiten[4], "http://neu/");
    EXPECT_TRUE(Geloggt("IExplorer Start Page wurde geändert."));
    for (auto [text, slot] : {std::pair{"0.5", 0}, std::pair{"1.5", 2}, std::pair{"2.5", 2}}) {
        prg.StartSeiten = {};
        Mit(Kategorie::StartPage, {"", "", "", "http://x/", "", text}).Image_Click(1);
        EXPECT_EQ(prg.StartSeiten[slot], "http://x/") << text;
    }
}

TEST_F(Annehmen, ErrorExits_ReportOnceAndKeepTheWindow) {
    Warnung(Kategorie::HostsDatei).Image_Click(1);  // the hosts file gone before the click
    Fehlerausgang("(Form3, Übernehmen) Fehler: 53");
    Mit(Kategorie::StartPage, {"", "", "", "", "", "32"}).Image_Click(1);  // beyond the slots
    Fehlerausgang("(Form3, Übernehmen) Fehler: 9");
    fp.files.Put(ordner + "daten\\Autostart.txt", "alt\r\n", kAttrReadOnly);
    MitDatei(Kategorie::AutostartOrdner, "a", "C:\\a").Image_Click(1);
    Fehlerausgang("(Form3, Übernehmen) Fehler: 75");

    // The registry rows pass over a file they cannot write.
    fp.files.Put(ordner + "daten\\AutostartREG.txt", "alt\r\n", kAttrReadOnly);
    Warnung(Kategorie::AutostartRegistry).ListView4.Add("Autostart");
    prg.Form3().Image_Click(1);
    EXPECT_TRUE(Meldungen().empty()) << "no message for this file";
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Annehmen, LockedLog_GoesToTheErrorExitAfterTheListChanged) {
    fp.files.Put(ordner + "Kestrella.log", "alt\r\n");
    fp.files.Lock(ordner + "Kestrella.log");
    MitDatei(Kategorie::AutostartOrdner, "a", "C:\\a").Image_Click(1);
    EXPECT_EQ(Datei("Autostart.txt"), "a\r\n") << "the action has happened before the log";
    Fehlerausgang("(Form3, Übernehmen) Fehler: 75");
}

TEST_F(Annehmen, WindowsFileChanged_UpdatesOnlyAMatchingRow) {
    fp.files.Put("C:\\WINDOWS\\a.dll", "12345");
    prg.Alarm().ListView4.Add("C:\\WINDOWS\\a.dll").SetSubItem(1, "3");
    Form3Fenster& f = MitDatei(Kategorie::WindowsDatei, "a.dll", "C:\\WINDOWS\\b.dll");
    f.Text1[3].Text = "3";
    f.Text1[4].Text = "1";
    f.Image_Click(1);
    EXPECT_TRUE(prg.Form3Geladen()) << "a row that does not match ends the action unchanged";
    f.ListView2.Items[1].Text = "C:\\WINDOWS\\a.dll";
    f.Image_Click(1);
    EXPECT_EQ(prg.Alarm().ListView4.Items[0].SubItem(1), "5");
    EXPECT_TRUE(Geloggt("Datei wurde geändert.\r\nDatei: C:\\WINDOWS\\a.dll\r\n< OK >"));
}

TEST_F(Annehmen, KeyWithoutAcceptBranch_OnlyClosesTheWindow) {
    Warnung(Kategorie::OrdnerAllUser).Image_Click(1);
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

}  // namespace
}  // namespace kes::test
