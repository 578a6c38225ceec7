// The first-run assistant on the fake platform: what each path writes, in which order, and
// where the program ends up after "Fertig".
#include "assistant/form2.h"

#include "core/einstellungen.h"
#include "core/start.h"
#include "platform/hive_ocx.h"
#include "programm_test_basis.h"
#include "watchers/dienste.h"
#include "watchers/startseite.h"

namespace kes::test {
namespace {

using fake::FakeProzess;
using V = std::vector<std::string>;

const std::string kRun = "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string kDienste = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\";

class Assistent : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        fp.files.Put(hostsPfad, "127.0.0.1 localhost\r\n");
        // No settings file: the first run.
        Properties_Load(prg);
    }
    Form2Fenster& f() { return prg.Form2(); }
    std::string Ini(const std::string& abschnitt, const std::string& key) {
        return fp.profiles.GetString(abschnitt, key, "", ordner + "daten\\dienste.ini");
    }
    void Dienst(const std::string& name, std::uint32_t start, const std::string& bild) {
        fp.registry.SetDword(kDienste + name, "Start", start);
        fp.registry.SetString(kDienste + name, "ImagePath", bild);
        fp.registry.SetString(kDienste + name, "DisplayName", "Anzeige " + name);
        fp.registry.SetString(kDienste + name, "ObjectName", "LocalSystem");
    }
};

TEST_F(Assistent, FirstRunShowsFirstPageWithVersionTitle) {
    ASSERT_TRUE(prg.Form2Geladen());
    EXPECT_TRUE(f().Visible);
    EXPECT_EQ(f().Caption, "Kestrella V2.2.0 AddOn Halvenik");
    EXPECT_TRUE(f().Frame1[1].Visible && !f().Frame1[2].Visible);
    EXPECT_EQ(f().Command2[1].Caption, "Ich möchte die Einstellung  selbst vornehmen!");
}

TEST_F(Assistent, TakeAll_WritesRunValueThenProcessesThenPagesThenServices) {
    std::vector<std::string> ablauf;
    FakeProzess tool;
    std::tie(tool.name, tool.pid, tool.pfad) = std::tuple("tool.exe", 1234, "C:\\Tools\\tool.exe");
    fp.processes.prozesse.push_back(tool);
    Dienst("Alpha", 2, "x.exe");
    // Every pump notes what stands by then; the service walk pumps once per service.
    std::function<void()> notieren = [&] {
        ablauf.push_back(std::string("pumpe") + (fp.registry.HasValue(kRun, "Halvenik-Kestrella") ? " run" : "") +
                         (fp.files.Exists(ordner + "daten\\prozesse.txt") ? " prozesse" : "") +
                         (prg.StartSeiten[1] == "http://start" ? " seiten" : ""));
        fp.timers.beimPumpen.push_back(notieren);
    };
    fp.timers.beimPumpen.push_back(notieren);
    fp.registry.SetString("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                          "http://start");
    f().Command2_Click(0);
    ASSERT_FALSE(ablauf.empty());
    EXPECT_EQ(ablauf.front().substr(0, 9), "pumpe run") << "the Run value comes first";
    EXPECT_EQ(ablauf.back(), "pumpe run prozesse seiten") << "the services come last";
    EXPECT_EQ(Ini("1", "Dienst"), "Alpha");
    EXPECT_NE(fp.files.Content(ordner + "daten\\prozesse.txt").find("tool.exe#"), std::string::npos);
    EXPECT_TRUE(f().AlleÜbernehmen() && f().Frame1[2].Visible);
    EXPECT_FALSE(f().Frame1[1].Visible);
    EXPECT_FALSE(fp.files.Exists(datPfad)) << "nothing is saved before Fertig";
}

TEST_F(Assistent, ClosedWithoutFertig_WritesNothing) {
    f().Command2_Click(1);
    prg.Form2Entladen();
    EXPECT_FALSE(fp.files.Exists(datPfad));
}

TEST_F(Assistent, TakeAll_KeepsAnExistingRunValue) {
    fp.registry.SetString(kRun, "Halvenik-Kestrella", "D:\\Alt\\Kestrella.exe /s");
    f().Command2_Click(0);
    HiveOCX hive(fp.plattform.registry);
    EXPECT_EQ(hive.ReadValue(1, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Halvenik-Kestrella"),
              "D:\\Alt\\Kestrella.exe /s");
}

TEST_F(Assistent, StartPages_NineteenSlotsByTableRow_DefaultValueOfRow18_EdgesStayEmpty) {
    const std::string main = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
    fp.registry.SetString(main, "Start Page", "eins");
    fp.registry.SetString(main, "Default_Page_URL", "neunzehn");
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Internet Explorer\\Search", "SearchAssistant",
                          "fünfzehn");
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix", "",
                          "http://");
    prg.StartSeiten[0] = prg.StartSeiten[20] = "";
    Holestartpage(prg);
    const auto& s = prg.StartSeiten;
    EXPECT_EQ((V{s[1], s[15], s[18], s[19]}), (V{"eins", "fünfzehn", "http://", "neunzehn"}));
    EXPECT_EQ((V{s[2], s[0], s[20]}), (V{"", "", ""})) << "an absent value leaves an empty slot";
}

TEST_F(Assistent, Services_OnlyAutomatic_NumberedWithoutGaps_DllFirst_KeysCrossed) {
    Dienst("Alpha", 2, "%SystemRoot%\\System32\\alpha.exe");
    Dienst("Beta", 3, "beta.exe");
    Dienst("Delta", 4, "delta.exe");
    Dienst("Gamma", 2, "%SystemRoot%\\System32\\svchost.exe -k netsvcs");
    fp.registry.SetString(kDienste + "Gamma\\Parameters", "ServiceDll", "%SystemRoot%\\System32\\GAMMA.dll");
    fp.registry.SetString(kDienste + "Ohne", "ImagePath", "ohne.exe");
    fp.registry.SetDword(kDienste + "Zeta", "Start", 2);  // nothing else to read
    fp.files.Put(ordner + "daten\\dienste.ini", "[7]\r\nDienst=Alt\r\n");
    holedienste(prg);
    EXPECT_EQ((V{Ini("1", "Dienst"), Ini("1", "ObjectName"), Ini("1", "DisplayName"), Ini("1", "ImagePath")}),
              (V{"Alpha", "Anzeige Alpha", "LocalSystem", "C:\\WINDOWS\\system32\\alpha.exe"}));
    EXPECT_EQ((V{Ini("2", "Dienst"), Ini("2", "ImagePath")}), (V{"Gamma", "C:\\WINDOWS\\system32\\gamma.dll"}));
    // What could not be read stays empty, the section is written; an old file goes first.
    EXPECT_EQ((V{Ini("3", "Dienst"), Ini("3", "ImagePath"), Ini("4", "Dienst"), Ini("7", "Dienst")}),
              (V{"Zeta", "", "", ""}));
}

TEST_F(Assistent, TakeAll_FertigNo_MonitoringOnInTray_StandardBoxesWithoutClicks_SettingsWritten) {
    f().Command2_Click(0);
    bool gefragtMitGrösse = false;
    fp.dialogs.beimZeigen = [&] { gefragtMitGrösse = prg.Hostsgrösse == 21; };
    fp.dialogs.antworten.push_back(kIdNo);
    f().Command3_Click();
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    const auto& m = fp.dialogs.meldungen[0];
    EXPECT_EQ(m.flags, kMbYesNo);
    EXPECT_EQ(V({m.titel, m.text}),
              V({"Info Kestrella!",
                 "\r\n" + std::string(33, '*') + " " + kHerstellerSeite + " " + std::string(32, '*') +
                     "\r\n\r\n"
                     "        Leider konnten nicht alle Werte und Einstellungen übernommen werden.\r\n"
                     "       Diese können sie manuell in den Einstellungen von Kestrella vornehmen.\r\n\r\n\r\n"
                     "              Wollen sie jetzt die Einstellungen vornehmen ?\r\n\r\n" +
                     std::string(81, '*') + "\r\n"}));
    EXPECT_TRUE(gefragtMitGrösse);
    AlarmFenster& a = prg.Alarm();
    for (int i = 0; i < kBoxAnzahl; ++i) {
        const bool an = i == 8 || i == 1 || i == 2 || i == 4 || i == 15 || i == 11 || i == 13 || i == 5 || i == 10 ||
                        i == 14 || i == 19 || i == 16 || i == 0 || (i >= 33 && i <= 45);
        EXPECT_EQ(a.Box1[i].value(), an ? 1 : 0) << "Box1(" << i << ")";
    }
    EXPECT_EQ(prg.Soundflag, 0) << "no click ran: silent until the next start";
    EXPECT_TRUE(a.ListView4.Items.empty()) << "the Windows folder baseline stays empty this run";
    EXPECT_TRUE(a.Timer1.Enabled());
    EXPECT_EQ(a.Timer1.Interval(), 5000);
    EXPECT_FALSE(a.Visible);
    EXPECT_TRUE(fp.tray.Shown());
    EXPECT_EQ(fp.tray.Last().szTip, "Kestrella ist aktiv");
    EXPECT_EQ(a.Label1[0].BackColor, 255);
    EXPECT_EQ(a.Label1[0].ForeColor, 16777215);
    EXPECT_FALSE(prg.Form2Geladen());
    const PropertyBag bag = GespeicherteEinstellungen();
    EXPECT_EQ(std::get<std::int16_t>(bag.ReadProperty("box8", std::int16_t{0})), 1);
    EXPECT_EQ(std::get<std::int32_t>(bag.ReadProperty("hostsgrösse", std::int32_t{0})), 21);
}

TEST_F(Assistent, TakeAll_FertigYes_PanelOpenAndMonitoringOff) {
    f().Command2_Click(0);
    fp.dialogs.antworten.push_back(kIdYes);
    f().Command3_Click();
    AlarmFenster& a = prg.Alarm();
    EXPECT_TRUE(a.Visible);
    EXPECT_FALSE(a.Timer1.Enabled());
    EXPECT_EQ(fp.tray.Last().szTip, "Kestrella ist deaktiviert");
    EXPECT_EQ(a.Box1[8].value(), 1);
    EXPECT_TRUE(fp.files.Exists(datPfad));
}

TEST_F(Assistent, ByHand_WritesOnlySettings_AllBoxesOff_PanelOpenWithoutQuestion) {
    f().Command2_Click(1);
    EXPECT_FALSE(f().AlleÜbernehmen());
    EXPECT_TRUE(f().Frame1[2].Visible);
    EXPECT_FALSE(fp.registry.HasValue(kRun, "Halvenik-Kestrella"));
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\prozesse.txt"));
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\dienste.ini"));
    f().Command3_Click();
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    AlarmFenster& a = prg.Alarm();
    EXPECT_TRUE(a.Visible);
    EXPECT_FALSE(a.Timer1.Enabled());
    EXPECT_EQ(a.AufAb1.Text(), "0") << "the field is filled at the next start";
    EXPECT_EQ(prg.Intervallstufe, 5);
    const PropertyBag bag = GespeicherteEinstellungen();
    for (int i = 1; i < kBoxAnzahl; ++i)
        EXPECT_EQ(std::get<std::int16_t>(bag.ReadProperty("box" + std::to_string(i), std::int16_t{0})), 0) << i;
    EXPECT_EQ(std::get<std::int32_t>(bag.ReadProperty("hostsgrösse", std::int32_t{0})), 21);
    EXPECT_FALSE(prg.Form2Geladen());
}

}  // namespace
}  // namespace kes::test
