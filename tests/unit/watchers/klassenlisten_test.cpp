// The four class-list watchers: each member's hive, key, listing, baseline column,
// deferred key, category key and the fields of its warning; the loaders' section ranges
// and gaps; and the way accepted entries come back through the files.
#include "common/fehler.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warn_lesen.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kBho = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
const std::string kSsodl = "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
const std::string kSts = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
const std::string kHooks = "Software\\Microsoft\\Internet Explorer\\URLSearchHooks";
const std::string kHklm = "HKEY_LOCAL_MACHINE\\";

class Klassen : public WaechterTest {
protected:
    Klassenlisten& kl() { return alarm().klassenlisten; }
    void Server(const std::string& clsid, const std::string& pfad) {
        fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", pfad);
    }
    void Bho(const std::string& clsid, const std::string& name) {
        fp.registry.SetString(kHklm + kBho + "\\" + clsid, "", name);
    }
    Form3Fenster& f() { return prg.Form3(); }
    std::string T(int i) { return prg.Form3().Text1[i].Text; }
    std::vector<std::string> Reihe() {
        const ListItem& z = prg.Form3().ListView4.Items.at(0);
        std::vector<std::string> r{z.Text};
        for (std::size_t s = 1; s <= 9; ++s) r.push_back(z.SubItem(s));
        return r;
    }
    void Schließen() {
        prg.Form3Entladen();
        prg.Aufräumen();
    }
    std::string Ini(const std::string& name) { return ordner + "daten\\" + name; }
};

using V = std::vector<std::string>;

TEST_F(Klassen, NewHelperObject_WarnsWithFriendlyNameExpandedServerAndClassRow) {
    fp.files.Put("C:\\WINDOWS\\system32\\hilfe.dll", "MZ");
    Bho("{B1}", "Hilfsobjekt");
    Server("{B1}", "%SystemRoot%\\System32\\Hilfe.dll");
    prg.Soundflag = 1;
    kl().TesteBHO();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_EQ(fp.sound.gespielt.size(), 1u);
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::BHO);
    EXPECT_EQ(f().Label1[0].Caption, "Neuer Eintrag [Browser Helper Objects]");
    const std::string e = "C:\\WINDOWS\\system32\\hilfe.dll";
    EXPECT_EQ((V{T(0), T(1), T(2), T(3)}), (V{"{B1}", e, "Hilfsobjekt", ""}));
    ASSERT_EQ(f().ListView2.Items.size(), 2u);
    EXPECT_EQ((V{f().ListView2.Items[0].Text, f().ListView2.Items[1].Text}), (V{"hilfe.dll", e}));
    EXPECT_EQ(Reihe(), (V{"BHO", "HKEY_LOCAL_MACHINE", kBho, "{B1}", "Hilfsobjekt", "{B1}", "HKEY_CLASSES_ROOT",
                          "CLSID\\{B1}", "InprocServer32", e}));
    EXPECT_FALSE(f().Picture3[4].Visible);
    EXPECT_TRUE(f().Image[1].Visible && f().Image[3].Visible);
}

TEST_F(Klassen, NewShellServiceObject_ReadsTheClassFromTheDataAndKeepsTheRawServerInTheRow) {
    fp.registry.SetString(kHklm + kSsodl, "Brenner", "{S1}");
    Server("{S1}", "%SystemRoot%\\system32\\brenn.dll");
    prg.Kategorieschlüssel = Kategorie::HostsDatei;
    alarm().List8.Items.push_back("{S1}");  // the class is no deferred key here
    kl().TesteShellService();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ShellService);
    EXPECT_EQ(f().Label1[0].Caption, "Neuer Autostarteintrag [ShellServiceObjectDelayLoad]");
    const std::string e = "C:\\WINDOWS\\system32\\brenn.dll";
    EXPECT_EQ((V{T(0), T(1), T(2), T(3)}), (V{"Brenner", "{S1}", "{S1}", e}));
    EXPECT_EQ(Reihe(), (V{"Brenner", "HKEY_LOCAL_MACHINE", kSsodl, "Brenner", "{S1}", "{S1}", "HKEY_CLASSES_ROOT",
                          "CLSID\\{S1}", "InprocServer32", "%SystemRoot%\\system32\\brenn.dll"}));
    EXPECT_EQ(f().ListView2.Items.at(1).Text, e);
}

TEST_F(Klassen, NewTaskScheduler_ShowsTheDescriptionAndIsDeferredByIt) {
    fp.registry.SetString(kHklm + kSts, "{T1}", "Browseable Shell Extensions");
    Server("{T1}", "C:\\WINDOWS\\system32\\browse.dll");
    alarm().List8.Items.push_back("Browseable Shell Extensions");
    kl().TesteSharedTaskScheduler();
    EXPECT_FALSE(prg.Form3Geladen()) << "deferred by the description";

    alarm().List8.Items = {"{T1}"};
    kl().TesteSharedTaskScheduler();
    ASSERT_TRUE(prg.Form3Geladen()) << "the class is no deferred key";
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::TaskScheduler);
    EXPECT_EQ(f().Label1[0].Caption, "Neuer Autostarteintrag [SharedTaskScheduler]");
    const std::string d = "Browseable Shell Extensions", e = "c:\\windows\\system32\\browse.dll";
    EXPECT_EQ((V{T(0), T(1), T(2), T(3)}), (V{"{T1}", d, d, e}));
    EXPECT_EQ(Reihe(), (V{d, "HKEY_LOCAL_MACHINE", kSts, "{T1}", d, "{T1}", "HKEY_CLASSES_ROOT", "CLSID\\{T1}",
                          "InprocServer32", "C:\\WINDOWS\\system32\\browse.dll"}));
}

TEST_F(Klassen, NewSearchHookOfTheUser_WarnsWithoutDataAndWithTheExpandedServer) {
    fp.registry.SetString("HKEY_CURRENT_USER\\" + kHooks, "{U1}", "");
    Server("{U1}", "C:\\Suche\\Haken.dll");
    kl().TesteSonstiges2();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::URLSearchHooks);
    EXPECT_EQ(f().Label1[0].Caption, "Registry Eintrag geändert [IExplorer URLSearchHooks]");
    const std::string e = "c:\\suche\\haken.dll";
    EXPECT_EQ((V{T(0), T(1), T(2), T(3)}), (V{"{U1}", e, "", ""}));
    EXPECT_EQ(Reihe(), (V{"URLSearchHooks", "HKEY_CURRENT_USER", kHooks, "{U1}", "", e, "HKEY_CLASSES_ROOT",
                          "CLSID\\{U1}", "InprocServer32", e}));
}

TEST_F(Klassen, HelperObjectSetsItsKeyBeforeAskingTheDeferredList_TheOthersOnlyWhenTheyWarn) {
    Bho("{B1}", "x");
    Server("{B1}", "C:\\b.dll");
    fp.registry.SetString(kHklm + kSsodl, "Dienst", "{S1}");
    Server("{S1}", "C:\\s.dll");
    alarm().List8.Items = {"{B1}", "Dienst"};
    prg.Kategorieschlüssel = Kategorie::Keine;
    kl().TesteShellService();
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Keine);
    kl().TesteBHO();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::BHO);
}

TEST_F(Klassen, ClassWithoutServer_PassesSilently_AndDeferredOnes_DoNotStopTheScan) {
    Bho("{A0}", "ohne Server");
    Bho("{A1}", "aufgeschoben");
    Server("{A1}", "C:\\a1.dll");
    Bho("{A2}", "neu");
    Server("{A2}", "C:\\a2.dll");
    alarm().List8.Items = {"{A1}"};
    kl().TesteBHO();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(T(0), "{A2}");
    Schließen();

    fp.registry.SetString("HKEY_CURRENT_USER\\" + kHooks, "{U0}", "");
    kl().TesteSonstiges2();
    EXPECT_FALSE(prg.Form3Geladen()) << "a hook whose class has no server";
}

TEST_F(Klassen, EachMember_SearchesItsOwnBaselineColumnWholeAndWithCase) {
    Bho("{B1}", "x");
    Server("{B1}", "C:\\b.dll");
    alarm().ListView8.Add("{B1}");  // the path column does not protect
    kl().TesteBHO();
    EXPECT_TRUE(prg.Form3Geladen());
    Schließen();
    alarm().ListView8.Items[0].SetSubItem(1, "{b1}");
    kl().TesteBHO();
    EXPECT_TRUE(prg.Form3Geladen()) << "another case is a new entry";
    Schließen();
    alarm().ListView8.Items[0].SetSubItem(1, "{B1}");
    kl().TesteBHO();
    EXPECT_FALSE(prg.Form3Geladen());

    fp.registry.SetString(kHklm + kSsodl, "Name", "{S1}");
    Server("{S1}", "C:\\s.dll");
    alarm().ListView9.Add("x").SetSubItem(1, "Name");
    kl().TesteShellService();
    EXPECT_TRUE(prg.Form3Geladen()) << "the shell service objects are known by the item text";
    Schließen();
    alarm().ListView9.Add("Name");
    kl().TesteShellService();
    EXPECT_FALSE(prg.Form3Geladen());

    fp.registry.SetString(kHklm + kSts, "{T1}", "Text");
    Server("{T1}", "C:\\t.dll");
    alarm().ListView10.Add("{T1}");
    kl().TesteSharedTaskScheduler();
    EXPECT_TRUE(prg.Form3Geladen()) << "the schedulers are known by the first sub-item";
    Schließen();
    alarm().ListView10.Items[0].SetSubItem(1, "{T1}");
    kl().TesteSharedTaskScheduler();
    EXPECT_FALSE(prg.Form3Geladen());

    fp.registry.SetString("HKEY_CURRENT_USER\\" + kHooks, "{U1}", "");
    Server("{U1}", "C:\\u.dll");
    alarm().List9.Items = {"{u1}", "{U1}"};
    kl().TesteSonstiges2();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Klassen, NameWithSemicolon_IsComparedAndShownUpToIt) {
    fp.registry.SetString(kHklm + kSts, "{T1};alt", "Text");
    Server("{T1}", "C:\\t.dll");
    alarm().ListView10.Add("x").SetSubItem(1, "{T1};alt");
    kl().TesteSharedTaskScheduler();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(T(0), "{T1}");
}

TEST_F(Klassen, ListingError_OnlyTheHelperObjectsSayIt) {
    fp.registry.beimÖffnen = [](const std::string&) { throw Fehler(7, "Nicht genügend Speicher"); };
    kl().TesteShellService();
    kl().TesteSharedTaskScheduler();
    kl().TesteSonstiges2();
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
    kl().TesteBHO();
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].text, "Fehler beim lesen [Browser Helper Objects] FehlerNr: 7");
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Klassen, HelperObjectBaseline_IsReadThroughGapsUpToSection300) {
    fp.files.Put("C:\\WINDOWS\\system32\\eins.dll", "MZ");
    fp.files.Put(Ini("bho.ini"),
                 "[1]\r\nPfad=%SystemRoot%\\System32\\EINS.dll\r\nClisd={1}\r\nName=Eins\r\n"
                 "[2]\r\nClisd={ohne Pfad}\r\n"
                 "[300]\r\nPfad=C:\\x.dll\r\nClisd={300}\r\n"
                 "[301]\r\nPfad=C:\\y.dll\r\nClisd={301}\r\n");
    kl().LadeBHO();
    ASSERT_EQ(alarm().ListView8.Items.size(), 2u);
    const ListItem& z = alarm().ListView8.Items[0];
    EXPECT_EQ(z.Text, "C:\\WINDOWS\\system32\\eins.dll");
    EXPECT_EQ((V{z.SubItem(1), z.SubItem(2), z.SubItem(3), z.SubItem(5), z.SubItem(12)}),
              (V{"{1}", "Eins", "", "Unbekannt", "1"}));
    EXPECT_EQ(alarm().ListView8.Items[1].SubItem(12), "300");
    EXPECT_EQ(alarm().ww[14].Caption, "Ausnahmen:   [Einträge: 2]");
    EXPECT_EQ(alarm().ListView8.Columns.at(3), "CLISD");

    Bho("{ohne Pfad}", "x");
    Server("{ohne Pfad}", "C:\\o.dll");
    kl().TesteBHO();
    EXPECT_TRUE(prg.Form3Geladen()) << "a section without Pfad is not loaded and protects nothing";
}

TEST_F(Klassen, ShellServiceBaseline_StopsAtSection50WithLowerCaseKeysRead) {
    fp.files.Put(Ini("shellservice.ini"),
                 "[3]\r\nname=Drei\r\nwert={3}\r\nclisd={3}\r\nclisdwert=%SystemRoot%\\drei.dll\r\n"
                 "[4]\r\nWert={ohne Name}\r\n"
                 "[50]\r\nName=Fuenfzig\r\n"
                 "[51]\r\nName=Einundfuenfzig\r\n");
    alarm().ww[14].Caption = "unberührt";
    kl().LadeShellService();
    ASSERT_EQ(alarm().ListView9.Items.size(), 2u);
    const ListItem& z = alarm().ListView9.Items[0];
    EXPECT_EQ((V{z.Text, z.SubItem(1), z.SubItem(2), z.SubItem(3), z.SubItem(12)}),
              (V{"Drei", "{3}", "{3}", "C:\\WINDOWS\\drei.dll", "3"}));
    EXPECT_EQ(alarm().ListView9.Items[1].Text, "Fuenfzig");
    EXPECT_EQ(alarm().ww[14].Caption, "unberührt") << "no count for these lists";
}

TEST_F(Klassen, FiftiethSectionTaken_TheAcceptedEntryLandsIn51AndWarnsAgain) {
    std::string voll;
    for (int i = 1; i <= 50; ++i) voll += "[" + std::to_string(i) + "]\r\nName=n" + std::to_string(i) + "\r\n";
    fp.files.Put(Ini("taskscheduler.ini"), voll);
    kl().LadeSharedTaskScheduler();
    fp.registry.SetString(kHklm + kSts, "{T1}", "Neu");
    Server("{T1}", "C:\\t.dll");
    prg.Alarm().Box1[2].setValue(1);
    kl().TesteSharedTaskScheduler();
    ASSERT_TRUE(prg.Form3Geladen());
    f().Image_Click(1);
    EXPECT_EQ(fp.profiles.GetString("51", "Wert", "", Ini("taskscheduler.ini")), "{T1}");
    EXPECT_EQ(alarm().ListView10.Items.size(), 50u);
    prg.Aufräumen();
    kl().TesteSharedTaskScheduler();
    EXPECT_TRUE(prg.Form3Geladen()) << "section 51 is on disk but never loaded";
}

TEST_F(Klassen, AcceptedEntriesOfEveryMember_AreKnownAtTheNextCycle) {
    Bho("{B1}", "Hilfe");
    Server("{B1}", "C:\\b.dll");
    fp.registry.SetString(kHklm + kSsodl, "Brenner", "{S1}");
    Server("{S1}", "C:\\s.dll");
    fp.registry.SetString(kHklm + kSts, "{T1}", "Planer");
    Server("{T1}", "C:\\t.dll");
    fp.registry.SetString("HKEY_CURRENT_USER\\" + kHooks, "{U1}", "");
    Server("{U1}", "C:\\u.dll");
    fp.files.Put(Ini("bho.ini"), "[1]\r\nPfad=C:\\alt.dll\r\nClisd={eins}\r\n[2]\r\nClisd={alt}\r\n");
    for (auto teste : {&Klassenlisten::TesteBHO, &Klassenlisten::TesteShellService,
                       &Klassenlisten::TesteSharedTaskScheduler, &Klassenlisten::TesteSonstiges2}) {
        (kl().*teste)();
        ASSERT_TRUE(prg.Form3Geladen());
        f().Image_Click(1);
        ASSERT_FALSE(prg.Form3Geladen());
        prg.Aufräumen();
        (kl().*teste)();
        EXPECT_FALSE(prg.Form3Geladen());
    }
    EXPECT_EQ(fp.profiles.GetString("3", "Clisd", "", Ini("bho.ini")), "{B1}") << "section 2 is taken by its Clisd";
    EXPECT_EQ((V{fp.profiles.GetString("1", "Name", "", Ini("taskscheduler.ini")),
                 fp.profiles.GetString("1", "Clisdwert", "", Ini("taskscheduler.ini"))}),
              (V{"Planer", "c:\\t.dll"}));
    EXPECT_EQ(fp.files.Content(Ini("URLSearchHook.txt")), "{U1}\r\n");
}

TEST_F(Klassen, SearchHookBaseline_StopsAtAnEmptyLineAndStaysWithoutItsFile) {
    fp.files.Put(Ini("URLSearchHook.txt"), "{1}\r\n{2}\r\n\r\n{3}\r\n");
    kl().LadeURLSearchHook();
    EXPECT_EQ(alarm().List9.Items, (V{"{1}", "{2}"}));
    fp.files.Delete(Ini("URLSearchHook.txt"));
    kl().LadeURLSearchHook();
    EXPECT_EQ(alarm().List9.Items.size(), 2u) << "not even cleared";
}

TEST_F(Klassen, EmptyKeys_RaiseNothingEvenWhereTheClassesKeyHasADefaultValue) {
    fp.registry.MakeKey(kHklm + kBho);
    fp.registry.MakeKey(kHklm + kSsodl);
    fp.registry.SetString("HKEY_CURRENT_USER\\" + kHooks, "{U1}", "");
    alarm().List9.Items = {"{U1}"};
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID", "", "classmoniker");
    kl().TesteBHO();
    kl().TesteShellService();
    kl().TesteSharedTaskScheduler();
    kl().TesteSonstiges2();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_TRUE(fp.dialogs.meldungen.empty());
}

}  // namespace
}  // namespace kes::test
