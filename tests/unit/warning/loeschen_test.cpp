// The delete action by category: the question window, the registry routine or command in
// its order, and the log's deliberate spellings.
#include "panel/alarm.h"
#include "warning/form1.h"
#include "warning/form3.h"
#include "warnung_test.h"

namespace kes::test {
namespace {

const std::string kRun = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kDomains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";

class LoeschAktion : public AntwortFenster {
protected:
    Form3Fenster& AutostartWarnung() {
        fp.registry.SetString(kRun, "Tool", "C:\\tool.exe");
        return Mit(
            Kategorie::AutostartRegistry,
            {"", "HKEY_CURRENT_USER", "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool", "C:\\tool.exe"});
    }
};

TEST_F(LoeschAktion, QuestionNo_KeepsTheWarningOpenAndLogsNothing) {
    AutostartWarnung().Image_Click(3);
    ASSERT_TRUE(prg.Form1Geladen());
    EXPECT_TRUE(prg.Form1().Visible);
    EXPECT_EQ(prg.Form1().Label1.Caption, "Sind sie sich sich das der Eintrag gelöscht werden soll ?");
    prg.Form1().Command1_Click(1);
    EXPECT_FALSE(prg.Form1Geladen());
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(fp.registry.HasValue(kRun, "Tool"));
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
    EXPECT_FALSE(fp.registry.HasValue(kRun, "Tool"));
}

TEST_F(LoeschAktion, AutostartRegistry_RemovesTheValueLogsAndLeavesTheBaseline) {
    prg.Alarm().ListView1.Add("bekannt");
    AutostartWarnung().Image_Click(3);
    prg.Form1().Command1_Click(0);
    EXPECT_FALSE(fp.registry.HasValue(kRun, "Tool"));
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(prg.Alarm().ListView1.Items.size(), 1u);
    EXPECT_TRUE(
        Geloggt("Neuer Eintrag in der Registry Autostart.\r\nRegistry: HKEY_CURRENT_USER\\Software\\Microsoft\\"
                "Windows\\CurrentVersion\\Run\\Tool\r\nWert: C:\\tool.exe\r\n< Gelöscht OK >"));
}

TEST_F(LoeschAktion, UnknownHiveName_DeletesNothing) {
    Form3Fenster& f = AutostartWarnung();
    f.Text1[1].Text = "hkey_current_user";
    prg.AnzeigeLöschen = true;
    f.Image_Click(3);
    EXPECT_TRUE(fp.registry.HasValue(kRun, "Tool")) << "root names compare exactly";
}

TEST_F(LoeschAktion, Files_LockedReportsThenLogsTheFailure_AReadOnlyFavouriteGoes) {
    prg.AnzeigeLöschen = true;
    fp.files.Put("C:\\Start\\a.lnk", "x");
    fp.files.Lock("C:\\Start\\a.lnk");
    MitDatei(Kategorie::AutostartOrdner, "a.lnk", "C:\\Start\\a.lnk").Image_Click(3);
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_TRUE(Geloggt("< Gelöscht NEIN >"));
    EXPECT_FALSE(prg.Form3Geladen());

    fp.files.Put("C:\\Fav\\x.url", "x", kAttrReadOnly);
    Form3Fenster& f = Warnung(Kategorie::Favorit1);
    f.Label1[1].Caption = "C:\\Fav\\";  // the folder, as the watcher fills it
    f.Label1[2].Caption = "x.url";
    f.Image_Click(3);
    EXPECT_FALSE(fp.files.Exists("C:\\Fav\\x.url"));
    EXPECT_TRUE(Geloggt("Favorit: C:\\Fav\\x.url\r\n< Favorit gelöscht OK >"));
}

TEST_F(LoeschAktion, ClassCategories_RunCommandAndRegistryRoutineInTheirOrder) {
    prg.AnzeigeLöschen = true;
    const std::string bho =
        "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
    const std::string hooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
    bool wertDaBeimBefehl = false;
    fp.registry.SetString(bho, "{B}", "");
    fp.shell.beimStarten = [&](const std::string&) { wertDaBeimBefehl = fp.registry.HasValue(bho, "{B}"); };
    Mit(Kategorie::BHO, {"{B}"}).Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCR\\CLSID\\{B} /f");
    EXPECT_EQ(fp.shell.kommandos.back().show, 2);
    EXPECT_TRUE(wertDaBeimBefehl) << "the command comes first for BHO";
    EXPECT_FALSE(fp.registry.HasValue(bho, "{B}"));

    fp.registry.SetString(hooks, "{U}", "");
    Mit(Kategorie::URLSearchHooks, {"{U}"}).Image_Click(3);
    EXPECT_FALSE(wertDaBeimBefehl) << "the value goes first for URLSearchHooks";
    EXPECT_TRUE(Geloggt("< gelöscht OK >"));

    Mit(Kategorie::ShellService, {"Dienst", "{S}"}).Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCR\\CLSID\\{S} /f");
    EXPECT_EQ(Log().find("ShellService"), std::string::npos);
    const std::size_t vorher = Log().size();
    Mit(Kategorie::ShellService, {"Dienst", "{S}"}).Image_Click(3);
    EXPECT_EQ(Log().size(), vorher) << "ShellService writes no log entry";
}

TEST_F(LoeschAktion, TrustedSites_UseTheirSwitchesAndTheStrayQuote) {
    prg.AnzeigeLöschen = true;
    fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kDomains + "boese.example\\www", "http", 2);
    Mit(Kategorie::ToolBar, {"boese.example"}).Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKLM\\" + kDomains + "boese.example /v/f");
    EXPECT_FALSE(fp.registry.HasKey("HKEY_LOCAL_MACHINE\\" + kDomains + "boese.example"));
    EXPECT_TRUE(Geloggt("< gelöscht OK >\""));
    Mit(Kategorie::ToolBar1, {"x.example"}).Image_Click(3);
    EXPECT_EQ(Befehle().back(), "REG DELETE HKCU\\" + kDomains + "x.example /f");
}

TEST_F(LoeschAktion, Services_AskEvenWithoutTheQuestionWindowAndNoSkipsTheCommand) {
    prg.AnzeigeLöschen = true;
    fp.dialogs.antworten = {kIdNo, kIdYes};
    Mit(Kategorie::Dienste, {"Boese"}).Image_Click(3);
    EXPECT_TRUE(fp.shell.kommandos.empty());
    EXPECT_FALSE(prg.Form3Geladen()) << "raus closes the window all the same";
    EXPECT_EQ(fp.dialogs.meldungen[0].titel, "Kestrella Info!");
    Mit(Kategorie::Dienste, {"Boese"}).Image_Click(3);
    EXPECT_EQ(Befehle(), std::vector<std::string>{"REG DELETE HKLM\\SYSTEM\\CurrentControlSet\\Services\\Boese /f"});
}

TEST_F(LoeschAktion, ServicesQuestion_ComesWhileTheDeleteQuestionIsStillOpen) {
    Mit(Kategorie::Dienste, {"Boese"}).Image_Click(3);
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
    Mit(Kategorie::DFÜ, {"Einwahl", "0190"}).Image_Click(3);
    EXPECT_EQ(fp.dialup.gelöscht, std::vector<std::string>{"Einwahl"});
    EXPECT_EQ(Meldungen(),
              std::vector<std::string>{"DFÜ-Verbindung konnte nicht gelöscht werden.\r\nEinwahl Nummer: 0190"});
    EXPECT_EQ(fp.dialogs.meldungen[0].flags, kMbOk | kMbSystemModal);
    EXPECT_TRUE(Geloggt("DFÜ: Einwahl   Nummer: 0190\r\n< Gelöscht NEIN >"));
}

}  // namespace
}  // namespace kes::test
