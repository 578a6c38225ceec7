// The browser start page watcher: the nineteen rows and their saved texts, the exact
// compare, the warning for the first changed row, and the automatic restore with its log
// entries and balloons.
#include "platform/hive_ocx.h"
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kMainCu = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
const std::string kMainLm = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Internet Explorer\\Main";

class Startseiten : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.StartSeiten[1] = "http://start.example/";
        prg.StartSeiten[3] = "res://local";
        prg.StartSeiten[5] = "http://suche.example/";
        fp.registry.SetString(kMainCu, "Start Page", prg.StartSeiten[1]);
        fp.registry.SetString(kMainCu, "Local Page", prg.StartSeiten[3]);
        fp.registry.SetString(kMainLm, "Search Page", prg.StartSeiten[5]);
        prg.Alarm().Box1[2].setValue(1);
        prg.Alarm().Timer1.SetEnabled(true);
    }
    StartSeite& W() { return prg.Alarm().startSeite; }
    void Testen() { W().TesteStartPage(); }
    std::string Lesen(const std::string& key, const std::string& name) {
        const bool lm = key.rfind("HKEY_LOCAL_MACHINE\\", 0) == 0;
        return HiveOCX(fp.registry).ReadValue(lm ? 2 : 1, key.substr(key.find('\\') + 1), name);
    }
    // The bytes stored for a value: a NUL written as data stands before the terminating one.
    std::string Roh(const std::string& key, const std::string& name) {
        RegKey k;
        const RegHandle root = key.rfind("HKEY_LOCAL_MACHINE\\", 0) == 0 ? kHkeyLocalMachine : kHkeyCurrentUser;
        if (fp.registry.OpenKeyEx(root, key.substr(key.find('\\') + 1), kKeyRead, &k) != kErrorSuccess) return "?";
        std::uint32_t typ = 0, grösse = 64;
        std::string daten(64, 'x');
        fp.registry.QueryValueEx(k.Get(), name.c_str(), &typ, reinterpret_cast<std::uint8_t*>(daten.data()), &grösse);
        return daten.substr(0, grösse);
    }
    Texte Sprechblasen() {
        Texte t;
        for (const auto& a : fp.tray.aufrufe)
            if (!a.record.szInfoTitle.empty() && a.message == kNimAdd) t.push_back(a.record.szInfoTitle);
        return t;
    }
    std::string Log() { return fp.files.Content(ordner + "Kestrella.log"); }
};

TEST_F(Startseiten, Rows_NineteenInTheOrderOfTheSavedPages) {
    const ListView& l = W().ListView3;
    EXPECT_EQ(l.Columns, (Texte{"HKEY", "Subkey", "ValueKey", "Wert"}));
    ASSERT_EQ(l.Items.size(), 19u);
    EXPECT_EQ(Spalten(l.Items[0], 3),
              (Texte{"HKEY_CURRENT_USER", kMainCu.substr(18), "Start Page", prg.StartSeiten[1]}));
    EXPECT_EQ(Spalten(l.Items[4], 3),
              (Texte{"HKEY_LOCAL_MACHINE", kMainLm.substr(19), "Search Page", prg.StartSeiten[5]}));
    EXPECT_EQ(l.Items[15].SubItem(1), "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\SafeSites");
    EXPECT_FALSE(l.Items[15].SubItem(2).empty()) << "row 16 is named after the maker's search host";
    EXPECT_EQ(l.Items[17].SubItem(2), "") << "row 18 is the key's default value";
    EXPECT_EQ(l.Items[18].SubItem(2), "Default_Page_URL");
    for (const auto& z : l.Items) EXPECT_EQ(z.SmallIcon, 26);
}

TEST_F(Startseiten, UnchangedValues_EmptySavedTextWithTheValueAbsent_AndTheDefaultValue_RaiseNothing) {
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    // The default value, reached by the empty name as by the assistant's NUL.
    const std::string key = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix";
    fp.registry.SetString(key, "", "http://");
    prg.StartSeiten[18] = HiveOCX(fp.registry).ReadValue(2, key.substr(19), std::string(1, '\0'));
    EXPECT_EQ(prg.StartSeiten[18], "http://");
    W().LadeStartPage();
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "the text the assistant saved is the one the row reads";
}

TEST_F(Startseiten, CaseCounts_ADeferredRowHidesTheRowsAfterIt) {
    fp.registry.SetString(kMainCu, "Start Page", "HTTP://START.EXAMPLE/");
    Testen();
    EXPECT_EQ(Gewarnt(prg, 5), "1");
    Zu(prg);
    fp.registry.SetString(kMainCu, "Start Page", prg.StartSeiten[1]);
    fp.registry.SetString(kMainCu, "Local Page", "http://boese.example/");
    fp.registry.SetString(kMainLm, "Search Page", "http://andere.example/");
    prg.Alarm().List8.Items = {kMainCu + "\\Local Page"};
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Startseiten, TwoChangedRows_TheFirstWarns_TheSecondAfterTheAnswer) {
    prg.Soundflag = 1;
    fp.registry.SetString(kMainCu, "Local Page", "http://boese.example/");
    fp.registry.SetString(kMainLm, "Search Page", "http://andere.example/");
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(prg.Alarm().Timer1.Enabled());
    EXPECT_EQ(fp.sound.gespielt, Texte{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::StartPage);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(Kopf(f), (Texte{"Registrierungsschlüssel des IExplorers wurde geändert.", kMainCu + "\\Local Page",
                              "Neuer Wert : http://boese.example/        Original war: res://local"}));
    EXPECT_EQ(Felder(f, 6), (Texte{"HKEY_CURRENT_USER", "Software\\Microsoft\\Internet Explorer\\Main", "Local Page",
                                   "http://boese.example/", "res://local", "3"}));
    for (int pane : {1, 2, 3, 4}) EXPECT_FALSE(f.Picture3[pane].Visible) << pane;
    EXPECT_TRUE(f.Image[8].Visible);
    EXPECT_EQ(f.Label3[5].Caption, "Original");
    EXPECT_EQ(Lesen(kMainCu, "Local Page"), "http://boese.example/") << "nothing is put back without box 9";
    f.Image_Click(8);
    prg.Aufräumen();
    Testen();
    EXPECT_EQ(Gewarnt(prg, 5), "5");
}

TEST_F(Startseiten, AutomaticRestore_PutsBothRowsBackInOnePass_WithLogsAndBalloons) {
    prg.Soundflag = 1;
    prg.Alarm().Box1[9].setValue(1);
    prg.Alarm().Box1[7].setValue(1);
    fp.registry.SetString(kMainCu, "Local Page", "http://boese.example/");
    fp.registry.SetString(kMainLm, "Search Page", "http://andere.example/");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_FALSE(prg.Beschäftigt);
    EXPECT_TRUE(prg.Alarm().Timer1.Enabled()) << "an automatic restore does not stop the cycle";
    EXPECT_EQ(Lesen(kMainCu, "Local Page"), "res://local");
    EXPECT_EQ(Lesen(kMainLm, "Search Page"), "http://suche.example/");
    EXPECT_EQ(fp.sound.gespielt, (Texte{"AUTO", "AUTO"}));
    EXPECT_EQ(Sprechblasen(), (Texte{"IExplorer Local Page geändert!", "IExplorer Search Page geändert!"}));
    const TrayRecord& r = fp.tray.aufrufe.back().record;
    EXPECT_EQ(r.szInfo, "URL: http://andere.example/ wurde auf Original gesetzt: http://suche.example/");
    EXPECT_EQ(r.szTip, "IExplorer Startpage wurde geändert");
    const auto eintrag = [&](const std::string& name, const std::string& key, const std::string& wert,
                             const std::string& original) {
        return prg.Logkopf + "IExplorer " + name + " wurde geändert.\r\nRegistry: " + key + "\\" + name +
               "\r\nWert: " + wert + "\r\n< Zurückgesetzt auf " + original + " >\r\n";
    };
    EXPECT_EQ(Log(), "\r\n" + eintrag("Local Page", kMainCu, "http://boese.example/", "res://local") +
                         eintrag("Search Page", kMainLm, "http://andere.example/", "http://suche.example/"));
    Testen();
    EXPECT_EQ(fp.sound.gespielt.size(), 2u) << "the next pass finds both equal";
}

TEST_F(Startseiten, AutomaticRestore_OfAnEmptySavedText_WritesOneNul_WithoutBalloonOrLogWhenOff) {
    prg.Alarm().Box1[9].setValue(1);
    prg.Alarm().Box1[2].setValue(0);
    fp.registry.SetString(kMainCu, "Search Page", "http://boese.example/");
    Testen();
    EXPECT_TRUE(fp.registry.HasValue(kMainCu, "Search Page")) << "set, not removed";
    EXPECT_EQ(Roh(kMainCu, "Search Page"), std::string(2, '\0')) << "one NUL as data, and its end";
    EXPECT_TRUE(Sprechblasen().empty());
    EXPECT_EQ(Log(), "");
}

}  // namespace
}  // namespace kes::test
