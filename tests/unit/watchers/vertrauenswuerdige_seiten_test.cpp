// The trusted sites: the baseline read as fields, the two hives with their captions, the
// case-sensitive compare, deferral, and the surplus last entry of the listing.
#include "core/starten.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

const std::string kDomains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";

class Seiten : public ProgrammTest {
protected:
    void SetUp() override {
        Pfade();
        prg.Alarm().Timer1.SetEnabled(true);
    }
    AlarmFenster& alarm() { return prg.Alarm(); }
    void Domain(const std::string& hive, const std::string& name) {
        fp.registry.SetDword(hive + "\\" + kDomains + "\\" + name, "http", 2);
    }
    void Laden(const std::string& inhalt) {
        fp.files.Put(ordner + "daten\\V_seiten.txt", inhalt);
        alarm().vertrauenswürdigeSeiten.LadeToolbar();
    }
    std::vector<std::string> Liste() {
        std::vector<std::string> t;
        for (const auto& z : alarm().ListView12.Items) t.push_back(z.Text);
        return t;
    }
    std::string Gewarnt() { return prg.Form3Geladen() ? prg.Form3().Text1[0].Text : "<keine>"; }
    void Schliessen() {
        prg.Form3Entladen();
        prg.Aufräumen();
    }
};

TEST_F(Seiten, Baseline_IsReadAsFieldsUpToTheFirstEmptyOne) {
    Laden("a.example\r\nb.example, \"c.example\"\r\n  d.example  \r\n\r\nnach.leer\r\n");
    EXPECT_EQ(Liste(), (std::vector<std::string>{"a.example", "b.example", "c.example", "d.example"}));
    EXPECT_EQ(alarm().ListView12.Columns, std::vector<std::string>{"Name"});

    Laden("x.example,,y.example\r\n");
    EXPECT_EQ(Liste(), std::vector<std::string>{"x.example"});
}

TEST_F(Seiten, MissingFile_EmptiesTheList) {
    Laden("a.example\r\n");
    fp.files.Delete(ordner + "daten\\V_seiten.txt");
    alarm().vertrauenswürdigeSeiten.LadeToolbar();
    EXPECT_TRUE(Liste().empty());
}

TEST_F(Seiten, NewDomainOfTheMachine_RaisesTheSingularWarningWithItsRows) {
    prg.Soundflag = 1;
    Domain("HKEY_LOCAL_MACHINE", "boese.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(fp.sound.gespielt, std::vector<std::string>{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Eintrag in Vertrauenswürdige Seite [IExplorer Sicherheit]");
    EXPECT_EQ(f.Text1[0].Text, "boese.example");
    EXPECT_EQ(f.Text1[1].Text, "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(f.Text1[2].Text, kDomains);
    EXPECT_EQ(f.Text1[3].Text, "boese.example");
    ASSERT_EQ(f.ListView2.Items.size(), 1u);
    EXPECT_EQ(f.ListView2.Items[0].Text, "boese.example");
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    const ListItem& z = f.ListView4.Items[0];
    EXPECT_EQ(z.Text, "boese.example");
    EXPECT_EQ(z.SubItem(1), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(z.SubItem(2), kDomains);
    EXPECT_EQ(z.SubItem(3), "boese.example");
    EXPECT_EQ(z.SubItem(4), "boese.example");
    EXPECT_FALSE(f.Picture3[1].Visible || f.Picture3[2].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Picture3[0].Visible && f.Picture3[3].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible && f.Image[6].Visible);
}

TEST_F(Seiten, NewDomainOfTheUser_RaisesThePluralWarning) {
    Domain("HKEY_CURRENT_USER", "boese.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    EXPECT_FALSE(prg.Form3Geladen()) << "the machine's routine reads only the machine";
    alarm().vertrauenswürdigeSeiten.TesteToolBar1();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar1);
    EXPECT_EQ(prg.Form3().Label1[0].Caption, "Eintrag in Vertrauenswürdige Seiten [IExplorer Sicherheit]");
    EXPECT_EQ(prg.Form3().Text1[1].Text, "HKEY_CURRENT_USER");
}

TEST_F(Seiten, KnownFromEitherHive_IsKnownForBoth_ButOnlyInTheSameCase) {
    Laden("bekannt.example\r\n");
    Domain("HKEY_LOCAL_MACHINE", "bekannt.example");
    Domain("HKEY_CURRENT_USER", "bekannt.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    alarm().vertrauenswürdigeSeiten.TesteToolBar1();
    EXPECT_FALSE(prg.Form3Geladen());

    Laden("Bekannt.example\r\n");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    EXPECT_EQ(Gewarnt(), "bekannt.example");
}

TEST_F(Seiten, DeferredDomain_DoesNotStopTheScan) {
    Domain("HKEY_LOCAL_MACHINE", "a.example");
    Domain("HKEY_LOCAL_MACHINE", "b.example");
    alarm().List8.Items.push_back("a.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    EXPECT_EQ(Gewarnt(), "b.example");
}

TEST_F(Seiten, LastRealDomain_IsLookedAt_OnlyTheListingsSurplusEntryIsLeftOut) {
    // The listing ends with the failing call's entry, 2000 NULs that are no domain: the
    // loop's bound leaves that one out, not the last real domain before it.
    Domain("HKEY_LOCAL_MACHINE", "a.example");
    Domain("HKEY_LOCAL_MACHINE", "z.example");
    Laden("a.example\r\n");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    EXPECT_EQ(Gewarnt(), "z.example");
    Schliessen();
    alarm().List8.Items.push_back("z.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(Seiten, DomainWithSemicolon_IsCutThere_AndAMissingKeyRaisesNothing) {
    alarm().vertrauenswürdigeSeiten.TesteToolBar1();
    EXPECT_FALSE(prg.Form3Geladen());
    Domain("HKEY_CURRENT_USER", "seite.example;alt");
    alarm().vertrauenswürdigeSeiten.TesteToolBar1();
    EXPECT_EQ(Gewarnt(), "seite.example");
}

TEST_F(Seiten, CommaLineOfTheBaseline_MakesBothDomainsKnown) {
    Laden("eins.example,zwei.example\r\n");
    Domain("HKEY_CURRENT_USER", "eins.example");
    Domain("HKEY_CURRENT_USER", "zwei.example");
    alarm().vertrauenswürdigeSeiten.TesteToolBar1();
    EXPECT_FALSE(prg.Form3Geladen());
}

class SeitenImZyklus : public ProgrammTest {
protected:
    void SetUp() override {
        Einstellungen(PropertyBag{});
        ASSERT_TRUE(Main(prg));
        prg.Alarm().Box1[29].setValue(1);
    }
};

TEST_F(SeitenImZyklus, MachinesWarning_SkipsTheUsersRoutine_AndTheUsersCannotBeDeferred) {
    fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kDomains + "\\m.example", "http", 2);
    fp.registry.SetDword("HKEY_CURRENT_USER\\" + kDomains + "\\u.example", "http", 2);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar);
    prg.Form3().Image_Click(6);
    prg.Aufräumen();
    EXPECT_EQ(prg.Alarm().List8.Items, std::vector<std::string>{"m.example"});

    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar1);
    prg.Form3().Image_Click(6);
    prg.Aufräumen();
    EXPECT_EQ(prg.Alarm().List8.Items.size(), 1u) << "Später adds nothing for the user's hive";
    fp.timers.Advance(5000);
    EXPECT_TRUE(prg.Form3Geladen()) << "and the same warning comes again";
}

TEST_F(SeitenImZyklus, MoreThan3000Domains_AreNotWalkedWhileTheServicesKeyStands) {
    for (int i = 0; i < 3000; ++i)
        fp.registry.SetDword("HKEY_LOCAL_MACHINE\\" + kDomains + "\\d" + std::to_string(i) + ".example", "http", 2);
    prg.Alarm().Box1[28].setValue(1);
    fp.timers.Advance(5000);
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Dienste);
    EXPECT_FALSE(prg.Form3Geladen()) << "the services watcher ran just before";

    // The key outlives the services watcher's own row.
    prg.Alarm().Box1[28].setValue(0);
    fp.timers.Advance(5000);
    EXPECT_FALSE(prg.Form3Geladen()) << "no other watcher set its key since";

    // The hosts watcher stores its key at every run, before the trusted sites.
    prg.Alarm().Box1[15].setValue(1);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar);
}

TEST_F(SeitenImZyklus, AcceptedDomain_IsWrittenAndStaysQuietAfterAReload) {
    fp.registry.SetDword("HKEY_CURRENT_USER\\" + kDomains + "\\u.example", "http", 2);
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    prg.Form3().Image_Click(1);
    prg.Aufräumen();
    EXPECT_EQ(fp.files.Content(ordner + "daten\\V_seiten.txt"), "u.example\r\n");
    prg.Alarm().vertrauenswürdigeSeiten.LadeToolbar();
    fp.timers.Advance(5000);
    EXPECT_FALSE(prg.Form3Geladen());
}

}  // namespace
}  // namespace kes::test
