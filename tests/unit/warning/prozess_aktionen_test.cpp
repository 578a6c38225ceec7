// The answers to a process warning (the accept menu's three entries, "Kill Prozess") and
// "Original" of a start page warning.
#include "platform/hive_ocx.h"
#include "warnung_test.h"

namespace kes::test {
namespace {

const std::string kPfad = "C:\\TEMP\\NEU.EXE";
const std::string kLogTitel = "Neuer Prozess im Speicher gefunden.\r\nProzess: " + kPfad + "\r\n";

class Prozesswarnung : public AntwortFenster {
protected:
    // The warning as the process watcher leaves it: name and path, the details with the
    // maker and the process ID with its leading blank.
    Form3Fenster& Offen(const std::string& hersteller = "Neue Firma", const std::string& id = " 4711") {
        Form3Fenster& f = MitDatei(Kategorie::Prozesse, "neu.exe", kPfad);
        for (int i = 0; i < 12; ++i) f.ListView1.Add("");
        f.ListView1.Items[0].SetSubItem(1, hersteller);
        f.ListView1.Items[4].SetSubItem(3, id);
        return f;
    }
    fake::FakeProzess& Läuft(std::uint32_t pid) {
        fake::FakeProzess& p = fp.processes.prozesse.emplace_back();
        p.name = "neu.exe";
        p.pid = pid;
        p.pfad = kPfad;
        return p;
    }
};

TEST_F(Prozesswarnung, Accept_OpensTheMenuWithTheMakerAsDefault_OrWithoutAnUnknownMaker) {
    Form3Fenster& f = Offen();
    f.Image_Click(1);
    EXPECT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(f.Popup.Menü, "killprozess");
    EXPECT_EQ(f.Popup.Standard, 1);
    EXPECT_EQ(f.killprozess1[0].Caption, "\"" + kPfad + "\" immer zulassen");
    EXPECT_EQ(f.killprozess1[1].Caption, "Hersteller: \"Neue Firma\" immer zulassen.");
    prg.Form3Entladen();
    prg.Aufräumen();

    Form3Fenster& g = Offen("Unbekannt");
    g.Image_Click(1);
    EXPECT_FALSE(g.killprozess1[1].Enabled);
    EXPECT_EQ(g.Popup.Standard, 0);
}

TEST_F(Prozesswarnung, AlwaysAllowTheProcess_AddsTheRowAndRewritesTheBaselineLineByLine) {
    fp.files.Put(ordner + "daten\\prozesse.txt", "alt.exe#C:\\ALT.EXE\r\n");
    prg.Alarm().prozesse.LadeProzesse();
    Offen().killprozess1_Click(0);

    EXPECT_EQ(Datei("prozesse.txt"), "alt.exe#C:\\ALT.EXE\r\nneu.exe#" + kPfad + "\r\n");
    ASSERT_EQ(prg.Alarm().ListView6.Items.size(), 2u);
    EXPECT_EQ(prg.Alarm().ListView6.Items[1].SubItem(1), kPfad);
    EXPECT_TRUE(Geloggt(kLogTitel + "< ÜBERNAHME OK >")) << Log();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);

    Läuft(4711);
    prg.Alarm().prozesse.TesteProzesse();
    EXPECT_FALSE(prg.Form3Geladen()) << "the process is known from now on";
}

TEST_F(Prozesswarnung, AlwaysAllowTheMaker_AddsItAndRewritesFirmaTxt) {
    fp.files.Put(ordner + "daten\\Firma.txt", "Microsoft Corporation\r\n");
    prg.Alarm().prozesse.LadeProzessFirmen();
    Offen().killprozess1_Click(1);

    EXPECT_EQ(Datei("Firma.txt"), "Microsoft Corporation\r\nNeue Firma\r\n");
    EXPECT_EQ(prg.Alarm().List1.Items.back(), "Neue Firma");
    EXPECT_TRUE(Geloggt(kLogTitel + "< ÜBERNAHME OK >"));
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Prozesswarnung, OnlyOnce_AllowsTheNameForThisRunWithoutAFile) {
    Offen().killprozess1_Click(2);

    EXPECT_EQ(prg.Alarm().List2.Items, std::vector<std::string>{"neu.exe"});
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\prozesse.txt"));
    EXPECT_FALSE(fp.files.Exists(ordner + "daten\\Firma.txt"));
    EXPECT_TRUE(Geloggt(kLogTitel + "< ÜBERNAHME OK >"));
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Prozesswarnung, AllowWhenTheFileCannotBeWritten_ReportsAndKeepsTheWarning) {
    fp.files.MakeDirs(ordner + "daten\\prozesse.txt");  // a folder in the file's place
    Offen().killprozess1_Click(0);
    EXPECT_EQ(Meldungen(), std::vector<std::string>{"(Form3, Übernehmen) Fehler: 75"});
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_F(Prozesswarnung, Kill_EndsTheProcessByTheIdOfTheDetails_AndLogs) {
    Läuft(4711);
    Offen().Image_Click(2);

    EXPECT_EQ(fp.processes.beendet, std::vector<std::uint32_t>{4711});
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    EXPECT_TRUE(Geloggt(kLogTitel + "< Prozess beendet OK >")) << Log();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Alarm().ListView6.Items.empty()) << "the baseline is not touched";
}

TEST_F(Prozesswarnung, KillRefused_OffersTheTaskManager_LogsNein_AndCloses) {
    Läuft(4711).beendenVerweigert = true;
    fp.dialogs.antworten = {kIdYes};
    Offen().Image_Click(2);

    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_NE(fp.dialogs.meldungen[0].text.find("Task-Manager (Prozeese)"), std::string::npos);
    EXPECT_EQ(fp.dialogs.meldungen[0].flags, 4100);
    EXPECT_EQ(Befehle(), std::vector<std::string>{"taskmgr.exe cpl,,2"});
    EXPECT_TRUE(Geloggt(kLogTitel + "< Prozess beendet NEIN >"));
    EXPECT_FALSE(prg.Form3Geladen());
}

class StartseiteOriginal : public AntwortFenster {
protected:
    const std::string key = "Software\\Microsoft\\Internet Explorer\\Main";
    Form3Fenster& Offen(const std::string& index) {
        fp.registry.SetString("HKEY_CURRENT_USER\\" + key, "Start Page", "http://boese.example/");
        return Mit(Kategorie::StartPage, {"HKEY_CURRENT_USER", key, "Start Page", "http://boese.example/", "", index});
    }
};

TEST_F(StartseiteOriginal, PutsTheSavedTextBack_AndLogs) {
    prg.StartSeiten[1] = "http://start.example/";
    Offen("1").Image_Click(8);

    EXPECT_EQ(HiveOCX(fp.registry).ReadValue(1, key, "Start Page"), "http://start.example/");
    EXPECT_TRUE(
        Geloggt("IExplorer Start Page wurde geändert.\r\nRegistry: HKEY_CURRENT_USER\\" + key +
                "\\Start Page\r\nWert: http://boese.example/\r\n< Zurückgesetzt OK > auf http://start.example/"))
        << Log();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(StartseiteOriginal, EmptySavedText_WritesOneNulCharacter) {
    Offen("1").Image_Click(8);

    RegKey k;
    ASSERT_EQ(fp.registry.OpenKeyEx(kHkeyCurrentUser, key, kKeyRead, &k), kErrorSuccess);
    std::uint32_t grösse = 0;
    fp.registry.QueryValueEx(k.Get(), "Start Page", nullptr, nullptr, &grösse);
    EXPECT_EQ(grösse, 2u) << "one NUL as data, and its end";
}

TEST_F(StartseiteOriginal, IndexBeyondTheSavedPages_EndsInTheErrorExit) {
    Offen("32").Image_Click(8);

    EXPECT_EQ(Meldungen(), std::vector<std::string>{"(Form3, Original) Fehler: 9"});
    EXPECT_EQ(HiveOCX(fp.registry).ReadValue(1, key, "Start Page"), "http://boese.example/");
    EXPECT_EQ(Log(), "");
    EXPECT_TRUE(prg.Form3Geladen());
}

}  // namespace
}  // namespace kes::test
