// The trusted sites: the baseline read as fields, the two hives with their captions, the
// case-sensitive compare, deferral, and the surplus last entry of the listing.
#include "core/starten.h"
#include "warn_lesen.h"

namespace kes::test {
namespace {

const std::string kDomains = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
const std::string kLm = "HKEY_LOCAL_MACHINE", kCu = "HKEY_CURRENT_USER";

struct Seiten : Lauf {
    Seiten() { a().Timer1.SetEnabled(true); }
    void Domain(const std::string& hive, const std::string& name) {
        fp.registry.SetDword(hive + "\\" + kDomains + "\\" + name, "http", 2);
    }
    void Laden(const std::string& inhalt) {
        fp.files.Put(prg.Programmordner + "daten\\V_seiten.txt", inhalt);
        a().vertrauenswürdigeSeiten.LadeToolbar();
    }
};

TEST(VertrauenswuerdigeSeiten, Baseline_IsReadAsFieldsUpToTheFirstEmptyOne_AMissingFileEmptiesTheList) {
    Seiten s;
    s.Laden("a.example\r\nb.example, \"c.example\"\r\n  d.example  \r\n\r\nnach.leer\r\n");
    EXPECT_EQ(TexteVon(s.a().ListView12), (Texte{"a.example", "b.example", "c.example", "d.example"}));
    EXPECT_EQ(s.a().ListView12.Columns, Texte{"Name"});
    s.Laden("x.example,,y.example\r\n");
    EXPECT_EQ(TexteVon(s.a().ListView12), Texte{"x.example"});
    s.fp.files.Delete(s.prg.Programmordner + "daten\\V_seiten.txt");
    s.a().vertrauenswürdigeSeiten.LadeToolbar();
    EXPECT_TRUE(s.a().ListView12.Items.empty());
}

TEST(VertrauenswuerdigeSeiten, WhichDomainWarns) {
    enum { M = 1, U = 2 };  // the machine's routine, the user's
    const struct {
        const char* fall;
        const char* basis;   // nullptr: no file
        const char* später;  // a deferred domain
        Texte lm, cu;        // the domains of the two hives
        int routinen;
        std::string gewarnt;
    } fälle[] = {
        {"the machine's routine reads only the machine", nullptr, "", {}, {"boese.example"}, M, "<keine>"},
        {"known, both hives", "bekannt.example\r\n", "", {"bekannt.example"}, {"bekannt.example"}, M | U, "<keine>"},
        {"known in another case", "Bekannt.example\r\n", "", {"bekannt.example"}, {}, M, "bekannt.example"},
        {"deferred, the scan goes on", nullptr, "a.example", {"a.example", "b.example"}, {}, M, "b.example"},
        // The listing ends with the failing call's entry, 2000 NULs that are no domain: the
        // loop's bound leaves that one out, not the last real domain before it.
        {"the last real domain", "a.example\r\n", "", {"a.example", "z.example"}, {}, M, "z.example"},
        {"the last real domain deferred", "a.example\r\n", "z.example", {"a.example", "z.example"}, {}, M, "<keine>"},
        {"a missing key", nullptr, "", {}, {}, U, "<keine>"},
        {"a semicolon cuts the domain", nullptr, "", {}, {"seite.example;alt"}, U, "seite.example"},
        {"a comma line", "eins.example,zwei.example\r\n", "", {}, {"eins.example", "zwei.example"}, U, "<keine>"},
    };
    for (const auto& fall : fälle) {
        SCOPED_TRACE(fall.fall);
        Seiten s;
        for (const auto& d : fall.lm) s.Domain(kLm, d);
        for (const auto& d : fall.cu) s.Domain(kCu, d);
        if (fall.basis) s.Laden(fall.basis);
        if (*fall.später) s.a().List8.Items = {fall.später};
        if (fall.routinen & M) s.a().vertrauenswürdigeSeiten.TesteToolBar();
        if (fall.routinen & U) s.a().vertrauenswürdigeSeiten.TesteToolBar1();
        EXPECT_EQ(Gewarnt(s.prg), fall.gewarnt);
    }
}

TEST(VertrauenswuerdigeSeiten, NewDomainOfTheMachine_RaisesTheSingularWarningWithItsRows) {
    Seiten s;
    s.prg.Soundflag = 1;
    s.Domain(kLm, "boese.example");
    s.a().vertrauenswürdigeSeiten.TesteToolBar();
    ASSERT_TRUE(s.prg.Form3Geladen());
    EXPECT_TRUE(s.prg.Beschäftigt);
    EXPECT_FALSE(s.fp.timers.Running(kTimerAlarm1));
    EXPECT_EQ(s.fp.sound.gespielt, Texte{"ALARM"});
    EXPECT_EQ(s.prg.Kategorieschlüssel, Kategorie::ToolBar);
    Form3Fenster& f = s.prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Eintrag in Vertrauenswürdige Seite [IExplorer Sicherheit]");
    EXPECT_EQ(Felder(f, 4), (Texte{"boese.example", kLm, kDomains, "boese.example"}));
    EXPECT_EQ(TexteVon(f.ListView2), Texte{"boese.example"});
    ASSERT_EQ(f.ListView4.Items.size(), 1u);
    EXPECT_EQ(Spalten(f.ListView4.Items[0], 4),
              (Texte{"boese.example", kLm, kDomains, "boese.example", "boese.example"}));
    EXPECT_FALSE(f.Picture3[1].Visible || f.Picture3[2].Visible || f.Picture3[4].Visible);
    EXPECT_TRUE(f.Picture3[0].Visible && f.Picture3[3].Visible);
    EXPECT_TRUE(f.Image[1].Visible && f.Image[3].Visible && f.Image[6].Visible);
}

TEST(VertrauenswuerdigeSeiten, NewDomainOfTheUser_RaisesThePluralWarning) {
    Seiten s;
    s.Domain(kCu, "boese.example");
    s.a().vertrauenswürdigeSeiten.TesteToolBar1();
    ASSERT_TRUE(s.prg.Form3Geladen());
    EXPECT_EQ(s.prg.Kategorieschlüssel, Kategorie::ToolBar1);
    EXPECT_EQ(s.prg.Form3().Label1[0].Caption, "Eintrag in Vertrauenswürdige Seiten [IExplorer Sicherheit]");
    EXPECT_EQ(s.prg.Form3().Text1[1].Text, kCu);
}

class SeitenImZyklus : public ProgrammTest {
protected:
    void SetUp() override {
        Einstellungen(PropertyBag{});
        ASSERT_TRUE(Main(prg));
        prg.Alarm().Box1[29].setValue(1);
    }
    void Domain(const std::string& hive, const std::string& name) {
        fp.registry.SetDword(hive + "\\" + kDomains + "\\" + name, "http", 2);
    }
    void Später() {
        prg.Form3().Image_Click(6);
        prg.Aufräumen();
    }
};

TEST_F(SeitenImZyklus, MachinesWarning_SkipsTheUsersRoutine_AndTheUsersCannotBeDeferred) {
    Domain(kLm, "m.example");
    Domain(kCu, "u.example");
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar);
    Später();
    EXPECT_EQ(prg.Alarm().List8.Items, Texte{"m.example"});
    fp.timers.Advance(5000);
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::ToolBar1);
    Später();
    EXPECT_EQ(prg.Alarm().List8.Items.size(), 1u) << "Später adds nothing for the user's hive";
    fp.timers.Advance(5000);
    EXPECT_TRUE(prg.Form3Geladen()) << "and the same warning comes again";
}

TEST_F(SeitenImZyklus, MoreThan3000Domains_AreNotWalkedWhileTheServicesKeyStands) {
    for (int i = 0; i < 3000; ++i) Domain(kLm, "d" + std::to_string(i) + ".example");
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
    Domain(kCu, "u.example");
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
