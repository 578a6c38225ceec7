// The delete action by category: the question window, the registry routine or command in
// its order, and the log's deliberate spellings.
#include "panel/alarm.h"
#include "platform/hive_ocx.h"
#include "programm_test_basis.h"
#include "warning/form1.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

class LoeschAktion : public WarnungsTest {
protected:
    std::vector<std::string> Befehle() {
        std::vector<std::string> b;
        for (const auto& k : fp.shell.kommandos) b.push_back(k.kommando);
        return b;
    }
    Form3Fenster& AutostartWarnung() {
        fp.registry.SetString(run, "Tool", "C:\\tool.exe");
        Form3Fenster& f = Warnung(Kategorie::AutostartRegistry);
        f.Text1[1].Text = "HKEY_CURRENT_USER";
        f.Text1[2].Text = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
        f.Text1[3].Text = "Tool";
        f.Text1[4].Text = "C:\\tool.exe";
        return f;
    }
    const std::string run = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
};

TEST_F(LoeschAktion, QuestionNo_KeepsTheWarningOpenAndLogsNothing) {
    Form3Fenster& f = AutostartWarnung();
    f.Image_Click(3);
    ASSERT_TRUE(prg.Form1Geladen());
    EXPECT_TRUE(prg.Form1().Visible);
    EXPECT_EQ(prg.Form1().Label1.Caption, "Sind sie sich sich das der Eintrag gelöscht werden soll ?");
    prg.Form1().Command1_Click(1);
    EXPECT_FALSE(prg.Form1Geladen());
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(fp.registry.HasValue(run, "Tool"));
    EXPECT_FALSE(fp.files.Exists(ordner + "Kestrella.log"));
}

TEST_F(LoeschAktion, CheckBoxAlone_SetsTheFlagAndTheNextDeleteAsksNoMore) {
    Form3Fenster& f = AutostartWarnung();
    f.Image_Click(3);
    prg.Form1().Check1.Value = 1;
    prg.Form1().Check1_Click();
    prg.Form1().Command1_Click(1);
    EXPECT_TRUE(prg.AnzeigeLöschen);
    f.Image_Click(3);
    EXPECT_FALSE(prg.Form1Geladen());
    EXPECT_FALSE(fp.registry.HasValue(run, "Tool"));
}

TEST_F(LoeschAktion, AutostartRegistry_RemovesTheValueLogsAndLeavesTheBaseline) {
    prg.Alarm().ListView1.Add("bekannt");
    Form3Fenster& f = AutostartWarnung();
    f.Image_Click(3);
    prg.Form1().Command1_Click(0);
    EXPECT_FALSE(fp.registry.HasValue(run, "Tool"));
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(prg.Alarm().ListView1.Items.size(), 1u);
    EXPECT_NE(
        Log().find("Neuer Eintrag in der Registry Autostart.\r\nRegistry: HKEY_CURRENT_USER\\Software\\Microsoft\\"
                   "Windows\\CurrentVersion\\Run\\Tool\r\nWert: C:\\tool.exe\r\n< Gelöscht OK >"),
        std::string::npos);
}

TEST_F(LoeschAktion, UnknownHiveName_DeletesNothing) {
    Form3Fenster& f = AutostartWarnung();
    f.Text1[1].Text = "hkey_current_user";
    prg.AnzeigeLöschen = true;
    f.Image_Click(3);
    EXPECT_TRUE(fp.registry.HasValue(run, "Tool")) << "root names compare exactly";
}

TEST_F(LoeschAktion, LockedFile_ReportsThenLogsTheFailureAndCloses) {
    fp.files.Put("C:\\Start\\a.lnk", "x");
    fp.files.Lock("C:\\Start\\a.lnk");
    Form3Fenster& f = Warnung(Kategorie::AutostartOrdner);
    f.ListView2.Add("a.lnk");
    f.ListView2.Add("C:\\Start\\a.lnk");
    prg.AnzeigeLöschen = true;
    f.Image_Click(3);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_NE(Log().find("< Gelöscht NEIN >"), std::string::npos);
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(LoeschAktion, ReadOnlyFavourite_IsDeletedWithItsOwnResultLine) {
    fp.files.Put("C:\\Fav\\x.url", "x", kAttrReadOnly);
    Form3Fenster& f = Warnung(Kategorie::Favorit1);
    f.Label1[1].Caption = "C:\\Fav\\";  // the folder, as the watcher fills it
    f.Label1[2].Caption = "x.url";
    prg.AnzeigeLöschen = true;
    f.Image_Click(3);
    EXPECT_FALSE(fp.files.Exists("C:\\Fav\\x.url"));
    EXPECT_NE(Log().find("Favorit: C:\\Fav\\x.url\r\n< Favorit gelöscht OK >"), std::string::npos);
}

TEST_F(LoeschAktion, ClassCategories_RunCommandAndRegistryRoutineInTheirOrder) {
    prg.AnzeigeLöschen = true;
    const std::string bho =
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
    bool wertDaBeimBefehl = false;
    fp.registry.SetString(bho, "{B}", "");
    fp.shell.beimStarten = [&](const std::string&) { wertDaBeimBefehl = fp.registry.HasValue(bho, "{B}"); };
    Form3Fenster& b = Warnung(Kategorie::BHO);
    b.Text1[0].Text = "{B}";
    b.Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCR\\CLSID\\{B} /f");
    EXPECT_EQ(fp.shell.kommandos.back().show, 2);
    EXPECT_TRUE(wertDaBeimBefehl) << "the command comes first for BHO";
    EXPECT_FALSE(fp.registry.HasValue(bho, "{B}"));

    const std::string hooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
    fp.registry.SetString(hooks, "{U}", "");
    Form3Fenster& u = Warnung(Kategorie::URLSearchHooks);
    u.Text1[0].Text = "{U}";
    u.Image_Click(3);
    EXPECT_FALSE(wertDaBeimBefehl) << "the value goes first for URLSearchHooks";
    EXPECT_NE(Log().find("< gelöscht OK >"), std::string::npos);

    auto shellService = [&] {
        Form3Fenster& s = Warnung(Kategorie::ShellService);
        s.Text1[0].Text = "Dienst";
        s.Text1[1].Text = "{S}";
        s.Image_Click(3);
    };
    shellService();
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCR\\CLSID\\{S} /f");
    EXPECT_EQ(Log().find("ShellService"), std::string::npos);
    const std::size_t vorher = Log().size();
    shellService();
    EXPECT_EQ(Log().size(), vorher) << "ShellService writes no log entry";
}

TEST_F(LoeschAktion, TrustedSites_UseTheirSwitchesAndTheStrayQuote) {
    prg.AnzeigeLöschen = true;
    const std::string domains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
    fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + domains + "boese.example\\www", "http", 2);
    Form3Fenster& f = Warnung(Kategorie::ToolBar);
    f.Text1[0].Text = "boese.example";
    f.Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKLM\\" + domains + "boese.example /v/f");
    EXPECT_FALSE(fp.registry.HasKey("HKEY_LOCAL_MACHINE\\" + domains + "boese.example"));
    EXPECT_NE(Log().find("< gelöscht OK >\""), std::string::npos);

    Form3Fenster& g = Warnung(Kategorie::ToolBar1);
    g.Text1[0].Text = "x.example";
    g.Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCU\\" + domains + "x.example /f");
}

TEST_F(LoeschAktion, Services_AskEvenWithoutTheQuestionWindowAndNoSkipsTheCommand) {
    prg.AnzeigeLöschen = true;
    fp.dialogs.antworten = {kIdNo, kIdYes};
    Form3Fenster& f = Warnung(Kategorie::Dienste);
    f.Text1[0].Text = "Boese";
    f.Image_Click(3);
    EXPECT_TRUE(fp.shell.kommandos.empty());
    EXPECT_FALSE(prg.Form3Geladen()) << "raus closes the window all the same";
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Kestrella Info!");
    Form3Fenster& g = Warnung(Kategorie::Dienste);
    g.Text1[0].Text = "Boese";
    g.Image_Click(3);
    EXPECT_EQ(Befehle(), std::vector<std::string>{"REG DELETE HKLM\\SYSTEM\\CurrentControlSet\\Services\\Boese /f"});
}

TEST_F(LoeschAktion, ServicesQuestion_ComesWhileTheDeleteQuestionIsStillOpen) {
    Form3Fenster& f = Warnung(Kategorie::Dienste);
    f.Text1[0].Text = "Boese";
    f.Image_Click(3);
    bool fensterDa = false;
    fp.dialogs.beimZeigen = [&] { fensterDa = prg.Form1Geladen(); };
    fp.dialogs.antworten = {kIdNo};
    prg.Form1().Command1_Click(0);
    EXPECT_TRUE(fensterDa) << "the services question comes on top of Form1";
    EXPECT_FALSE(prg.Form1Geladen());
    EXPECT_FALSE(prg.Form3Geladen()) << "Nein to the question still closes the warning";
    EXPECT_TRUE(fp.shell.kommandos.empty());
}

TEST_F(LoeschAktion, DialUpFailure_IsReportedThenLogged) {
    prg.AnzeigeLöschen = true;
    fp.dialup.löschFehler = 623;
    Form3Fenster& f = Warnung(Kategorie::DFÜ);
    f.Text1[0].Text = "Einwahl";
    f.Text1[1].Text = "0190";
    f.Image_Click(3);
    EXPECT_EQ(fp.dialup.gelöscht, std::vector<std::string>{"Einwahl"});
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "DFÜ-Verbindung konnte nicht gelöscht werden.\r\nEinwahl Nummer: 0190");
    EXPECT_EQ(fp.dialogs.meldungen[0].flags, kMbOk | kMbSystemModal);
    EXPECT_NE(Log().find("DFÜ: Einwahl   Nummer: 0190\r\n< Gelöscht NEIN >"), std::string::npos);
}

}  // namespace
}  // namespace kes::test
