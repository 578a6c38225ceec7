// The rows that keep their last walk: no walk while their places stay quiet, a walk (and a
// tick at once) after every change, a walk at every tick where a place cannot be armed, and
// the safety walk after a lost notification. A change the sources do not hear is the test's
// way to see whether a tick walked: only a walk finds it.
#include <functional>

#include "core/starten.h"
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"
#include "watchers/aenderungsquellen.h"

namespace kes::test {
namespace {

constexpr const char* kRun = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kWinlogon = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon";
constexpr const char* kIfeo =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options";
constexpr const char* kDomains = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
constexpr const char* kIeMain = "Software\\Microsoft\\Internet Explorer\\Main";
constexpr const char* kDienste = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services";
constexpr const char* kAufgaben = "C:\\WINDOWS\\system32\\Tasks\\Microsoft\\Windows";
constexpr const char* kFavoriten = "C:\\Dokumente und Einstellungen\\Benutzer\\Favoriten";

constexpr const char* kBho =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects";
constexpr const char* kSsodl =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad";
constexpr const char* kSts =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler";
constexpr const char* kHooks = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks";

// A new class with a server file, each call another.
std::string Klasse(fake::FakePlattform& fp) {
    static int n = 0;
    const std::string clsid = "{K" + std::to_string(++n) + "}";
    fp.registry.SetString("HKEY_CLASSES_ROOT\\CLSID\\" + clsid + "\\InprocServer32", "", "C:\\k.dll");
    return clsid;
}

struct Zeile {
    const char* name;
    int box;
    std::function<void(fake::FakePlattform&)> ändern;  // a change the row warns of
};

const Zeile kZeilen[] = {
    {"Hosts", 15, [](auto& fp) { fp.files.Put("C:\\WINDOWS\\system32\\drivers\\etc\\hosts", "abcd"); }},
    {"AutostartRegistry", 13, [](auto& fp) { fp.registry.SetString(kRun, "Tool", "C:\\tool.exe"); }},
    {"AutostartRegistry_AUserHive", 13,
     [](auto& fp) {
         fp.registry.SetString("HKEY_USERS\\S-1-5-21-7\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Tool",
                               "C:\\tool.exe");
     }},
    {"WindowsFolder", 19, [](auto& fp) { fp.files.Put("C:\\WINDOWS\\neu.exe", "MZ"); }},
    {"SystemFolder", 20, [](auto& fp) { fp.files.Put("C:\\WINDOWS\\system32\\neu.dll", "MZ"); }},
    {"SysWow64Folder", 32, [](auto& fp) { fp.files.Put("C:\\WINDOWS\\SysWOW64\\neu.dll", "MZ"); }},
    {"StartPages", 8,
     [](auto& fp) {
         fp.registry.SetString(std::string("HKEY_CURRENT_USER\\") + kIeMain, "Start Page", "http://neu.example/");
     }},
    {"Winlogon", 33, [](auto& fp) { fp.registry.SetString(kWinlogon, "Shell", "evil.exe"); }},
    {"ImageFileExecutionOptions_ANewSubkey", 35,
     [](auto& fp) { fp.registry.SetString(std::string(kIfeo) + "\\notepad.exe", "Debugger", "d.exe"); }},
    // A key made again is no change: each call makes another.
    {"TrustedSites", 29,
     [](auto& fp) {
         static int n = 0;
         fp.registry.MakeKey(std::string("HKEY_CURRENT_USER\\") + kDomains + "\\neu" + std::to_string(++n) + ".de");
     }},
    {"ScheduledTasks_TheOldFolder", 42,
     [](auto& fp) { fp.files.Put("C:\\WINDOWS\\Tasks\\neu.job", std::string(0x4A, '\0')); }},
    // Two folders below the watched one.
    {"ScheduledTasks_AFolderBelow", 42,
     [](auto& fp) {
         static int n = 0;
         fp.files.Put(std::string(kAufgaben) + "\\Neu" + std::to_string(++n), "<Task/>");
     }},
    {"Favourites", 5, [](auto& fp) { fp.files.Put(std::string(kFavoriten) + "\\Neu.url", "[x]"); }},
    {"Favourites_TheLinksFolder", 5,
     [](auto& fp) { fp.files.Put(std::string(kFavoriten) + "\\Links\\Neu.url", "[x]"); }},
    // A class with its server, named by a subkey or a value of the shape's key.
    {"HelperObjects", 21, [](auto& fp) { fp.registry.MakeKey(std::string(kBho) + "\\" + Klasse(fp)); }},
    {"ShellServiceObjects", 23, [](auto& fp) { fp.registry.SetString(kSsodl, "Neu", Klasse(fp)); }},
    {"SharedTaskSchedulers", 24, [](auto& fp) { fp.registry.SetString(kSts, Klasse(fp), "Planer"); }},
    {"UrlSearchHooks", 27, [](auto& fp) { fp.registry.SetString(kHooks, Klasse(fp), ""); }},
    // Below a key of its own: the services' key is watched with everything under it.
    {"Services", 28,
     [](auto& fp) {
         fp.registry.SetString(std::string(kDienste) + "\\Neu", "ImagePath", "C:\\neu.exe");
         fp.registry.SetDword(std::string(kDienste) + "\\Neu", "Start", 2);
     }},
    // A value of a subkey: the imprint of the key must reach it.
    {"ServicePrograms", 46,
     [](auto& fp) { fp.registry.SetString(std::string(kDienste) + "\\Alt", "ImagePath", "C:\\neu.exe"); }},
};

class Quellen : public ProgrammTest, public ::testing::WithParamInterface<Zeile> {
protected:
    void SetUp() override {
        PropertyBag bag;
        bag.WriteProperty("hostsgrösse", std::int32_t{3});
        Einstellungen(bag);
        fp.system.wow64 = "C:\\WINDOWS\\SysWOW64";
        fp.files.Put(hostsPfad, "abc");
        for (const char* d : {"C:\\WINDOWS\\a.exe", "C:\\WINDOWS\\system32\\a.dll", "C:\\WINDOWS\\SysWOW64\\a.dll"})
            fp.files.Put(d, "MZ");
        fp.registry.MakeKey(kRun);
        fp.registry.SetString(kWinlogon, "Shell", "Explorer.exe");
        fp.registry.MakeKey(kIfeo);
        for (const char* k : {kBho, kSsodl, kSts, kHooks}) fp.registry.MakeKey(k);
        for (const char* hive : {"HKEY_LOCAL_MACHINE\\", "HKEY_CURRENT_USER\\"})
            for (const char* key : {kIeMain, "Software\\Microsoft\\Internet Explorer\\Search"})
                fp.registry.MakeKey(std::string(hive) + key);
        for (const char* hive : {"HKEY_LOCAL_MACHINE\\", "HKEY_CURRENT_USER\\"})
            fp.registry.MakeKey(std::string(hive) + kDomains);
        fp.registry.SetDword(std::string(kDienste) + "\\Alt", "Start", 3);
        fp.files.MakeDirs(kAufgaben);
        fp.files.MakeDirs("C:\\WINDOWS\\Tasks");
        fp.files.MakeDirs(std::string(kFavoriten) + "\\Links");
        fp.registry.MakeKey("HKEY_USERS\\S-1-5-21-7\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
        ASSERT_TRUE(Main(prg));
        AlarmFenster& a = prg.Alarm();
        a.Box1[GetParam().box].setValue(1);
        a.Box1[16].setValue(1);
        a.windowsDateien.LadeWindows();
        a.windowsDateien.LadeWindowsSys32();
        a.windowsDateien.LadeWindowsSysWow64();
        fp.timers.Advance(5000);  // arms the row and takes its first walk
        ASSERT_FALSE(prg.Form3Geladen());
    }
    // The change made while every notification is lost.
    void Ungehört() {
        GetParam().ändern(fp);
        fp.changes.Verlieren();
    }
};

TEST_P(Quellen, QuietPlaces_NoWalk_ThenEveryChangeWalksAtOnce) {
    Ungehört();
    fp.timers.Advance(5000);
    EXPECT_FALSE(prg.Form3Geladen()) << "the tick took the last walk";
    GetParam().ändern(fp);  // the same again, heard this time
    fp.timers.Advance(kSofortMs);
    EXPECT_TRUE(prg.Form3Geladen()) << "the change brought a tick at once, and it walked";
}

TEST_P(Quellen, LostNotification_FoundByTheSafetyWalk) {
    Ungehört();
    fp.timers.Advance(kSicherheitsLaufMs - 5000);
    EXPECT_FALSE(prg.Form3Geladen());
    fp.timers.Advance(5000);
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_P(Quellen, PlaceThatCannotBeArmed_WalksAtEveryTick) {
    prg.Alarm().Box1[GetParam().box].setValue(0);
    fp.timers.Advance(5000);  // the box off disarms the row
    prg.Alarm().Box1[GetParam().box].setValue(1);
    fp.changes.verweigert = 5;
    fp.timers.Advance(5000);
    GetParam().ändern(fp);
    fp.timers.Advance(kSofortMs);
    EXPECT_FALSE(prg.Form3Geladen()) << "nothing to fire: the stage's tick finds it";
    fp.timers.Advance(5000 - kSofortMs);
    EXPECT_TRUE(prg.Form3Geladen());
}

TEST_P(Quellen, SofortOff_ChangeWaitsForTheStage) {
    prg.Sofort = false;
    GetParam().ändern(fp);
    fp.timers.Advance(4999);
    EXPECT_FALSE(prg.Form3Geladen());
    fp.timers.Advance(1);
    EXPECT_TRUE(prg.Form3Geladen());
}

// The toolbars' row reads the classes its values name, outside its keys: no source tells of
// a class's server changed, and no imprint may spare its safety walk, which finds it.
TEST_F(ProgrammTest, AClassServerOfAToolbarChanged_FoundByTheSafetyWalk) {
    const std::string server = "HKEY_CLASSES_ROOT\\CLSID\\{TB}\\InprocServer32";
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Internet Explorer\\Toolbar", "{TB}", "");
    fp.registry.SetString(server, "", "C:\\tb.dll");
    Einstellungen(PropertyBag());  // settings saved: no first start
    ASSERT_TRUE(Main(prg));
    prg.Alarm().Box1[41].setValue(1);
    fp.timers.Advance(5000);  // the first walk takes the toolbar as it is
    ASSERT_FALSE(prg.Form3Geladen());
    fp.registry.SetString(server, "", "C:\\neu.dll");
    fp.timers.Advance(kSicherheitsLaufMs);
    EXPECT_TRUE(prg.Form3Geladen());
}

// A new Run value of the user at stage 5, its warning open: seen first below HKEY_USERS, by
// the first pass of the autostart row, so the second pass did not run.
class RunWarnung : public ::testing::Test {
protected:
    Lauf l;
    void SetUp() override {
        PropertyBag bag;
        bag.WriteProperty("Aufab1", std::int16_t{5});
        l.fp.files.Put(l.prg.Programmordner + "kestrella.dat", bag.Contents());
        l.fp.registry.MakeKey(kRun);
        ASSERT_TRUE(Main(l.prg));
        l.a().Box1[13].setValue(1);
        l.fp.timers.Advance(5000);
        ASSERT_FALSE(l.prg.Form3Geladen());
        l.fp.registry.SetString(kRun, "Tool", "C:\\tool.exe");
        l.fp.timers.Advance(kSofortMs);
        ASSERT_TRUE(l.prg.Form3Geladen());
        ASSERT_EQ(l.prg.Form3().ListView4.Items.at(0).SubItem(1), "HKEY_USERS");
    }
};

// Once accepted, the second pass must walk, not take its older listing, and find the value
// below HKEY_CURRENT_USER.
TEST_F(RunWarnung, WarningOfTheFirstPass_SecondPassWalksAtTheNextTick) {
    l.prg.Form3().Image_Click(1);  // "Übernehmen"
    l.prg.Aufräumen();
    ASSERT_FALSE(l.prg.Form3Geladen());
    l.fp.timers.Advance(5000);
    ASSERT_TRUE(l.prg.Form3Geladen()) << "the value below HKEY_CURRENT_USER is found";
    EXPECT_EQ(l.prg.Form3().ListView4.Items.at(0).SubItem(1), "HKEY_CURRENT_USER");
}

// A warning closed without an answer that silences it comes back at the next tick of the
// stage, not at once: the rows it stopped short wait for the stage like the rest.
TEST_F(RunWarnung, WarningClosedUnanswered_ComesBackAtTheStagesTick) {
    l.prg.Form3Entladen();
    l.prg.Aufräumen();
    l.fp.timers.Advance(5000 - 2 * kSofortMs);
    EXPECT_FALSE(l.prg.Form3Geladen()) << "back before the stage's tick";
    l.fp.timers.Advance(2 * kSofortMs);
    EXPECT_TRUE(l.prg.Form3Geladen());
}

// Two rows, one on the user's Run key and one on RunOnce, with the sources alone.
class QuellenBlick : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    const std::string run = "Software\\Microsoft\\Windows\\CurrentVersion\\Run", once = run + "Once",
                      dienste = run + "Services";
    Änderungsquellen q{fp.plattform, 3};
    void SetUp() override {
        for (const std::string& k : {run, once, dienste}) fp.registry.MakeKey("HKEY_CURRENT_USER\\" + k);
    }
    static std::function<Änderungsorte()> orte(const std::string& k) {
        return [k] { return Änderungsorte{{kHkeyCurrentUser, k, false}}; };
    }
};

// Between ticks the sources are looked at all at once, and each is asked on its own only
// now and then: a key deleted under its source shows to that ask alone.
TEST_F(QuellenBlick, LooksAtAllAtOnce_AsksEachOnlyEveryFewLooks_ADeletedKeyStillFires) {
    q.Vorbereiten(0, orte(run));
    q.Vorbereiten(1, orte(once));
    for (int i = 1; i < kBlickeJeFrage; ++i) EXPECT_FALSE(q.Gefeuert());
    EXPECT_EQ(fp.changes.Asked(), 0);
    EXPECT_EQ(fp.changes.Looked(), kBlickeJeFrage - 1) << "one look for both rows' sources";
    EXPECT_FALSE(q.Gefeuert());
    EXPECT_EQ(fp.changes.Asked(), 2) << "each source asked once";

    fp.registry.SetString("HKEY_CURRENT_USER\\" + once, "Tool", "C:\\tool.exe");
    EXPECT_TRUE(q.Gefeuert());
    EXPECT_TRUE(q.Gefeuert()) << "a look takes nothing back until the row walks";
    EXPECT_TRUE(q.MussLaufen(1, orte(once)));
    for (int i = 0; i < kBlickeJeFrage; ++i) EXPECT_FALSE(q.Gefeuert()) << "the row walked";

    ASSERT_EQ(fp.registry.DeleteKey(kHkeyCurrentUser, run, 0), kErrorSuccess);
    int blicke = 0;
    while (blicke < 2 * kBlickeJeFrage && !q.Gefeuert()) ++blicke;
    EXPECT_LT(blicke, kBlickeJeFrage) << "the deleted key fires at the next ask of each source";
}

// At a tick a quiet row costs one look; its sources are asked on their own only when the
// last ask is kFrageMs old, and that ask still finds a key deleted under its source.
TEST_F(QuellenBlick, TickLooksOnce_AsksOnlyWhenDue_ADeletedKeyWalksThen) {
    ASSERT_TRUE(q.MussLaufen(0, orte(run))) << "the first walk";
    fp.timers.Advance(kFrageMs - 1000);
    EXPECT_FALSE(q.MussLaufen(0, orte(run)));
    EXPECT_EQ((std::pair{fp.changes.Looked(), fp.changes.Asked()}), (std::pair{1, 0}));
    ASSERT_EQ(fp.registry.DeleteKey(kHkeyCurrentUser, run, 0), kErrorSuccess);
    fp.timers.Advance(1000);
    EXPECT_TRUE(q.MussLaufen(0, orte(run))) << "the ask is due and sees the deleted key";
}

// A tick's first look over all rows finds the rows whose places changed, looking on behind
// each it found; every such row walks, no other, and no row looks on its own.
TEST_F(QuellenBlick, TickLooksOverAllRows_EveryRowThatChangedWalks_NoRowLooksOnItsOwn) {
    const auto tick = [&] {
        const int vorher = fp.changes.Looked();
        q.TickBeginnt();
        const std::vector<bool> läuft{q.MussLaufen(0, orte(run)), q.MussLaufen(1, orte(once)),
                                      q.MussLaufen(2, orte(dienste))};
        q.TickEndet();
        return std::pair{läuft, fp.changes.Looked() - vorher};
    };
    const auto ändern = [&](const std::string& k) { fp.registry.SetString("HKEY_CURRENT_USER\\" + k, "Tool", "x"); };
    using B = std::vector<bool>;
    ASSERT_EQ(tick().first, (B{true, true, true})) << "the first walks";
    fp.timers.Advance(1000);
    EXPECT_EQ(tick(), (std::pair{B{false, false, false}, 1}));
    ändern(once);
    EXPECT_EQ(tick(), (std::pair{B{false, true, false}, 2})) << "one look finds it, one behind it";
    ändern(run);
    ändern(dienste);
    EXPECT_EQ(tick(), (std::pair{B{true, false, true}, 2}));
}

// Due for its safety walk, a row whose keys keep the imprint taken as its last walk began is
// spared it; a change whose notification was lost walks it, below a subkey as far as its
// depth reaches, or where its place was missing. A row with a folder, or with a key that
// declares no depth, walks as before.
TEST_F(QuellenBlick, SafetyWalk_SparedWhileTheKeysKeepTheirImprint_ALostChangeWalks) {
    fp.files.MakeDirs("C:\\T");
    const std::function<Änderungsorte()> zeilen[] = {
        [&] {
            return Änderungsorte{{kHkeyCurrentUser, run, true, 1}};
        },
        [&] {
            return Änderungsorte{{kHkeyCurrentUser, once, false, 0}, {0, "C:\\T"}};
        },
        [&] {
            return Änderungsorte{{kHkeyCurrentUser, dienste, false}};
        },
        [&] {
            return Änderungsorte{{kHkeyCurrentUser, once + "\\Fehlt", false, 0}};
        },
    };
    Änderungsquellen quellen{fp.plattform, std::size(zeilen)};
    using B = std::vector<bool>;
    const auto sicherheitslauf = [&] {
        fp.timers.Advance(kSicherheitsLaufMs);
        B läuft;
        for (std::size_t i = 0; i < std::size(zeilen); ++i) läuft.push_back(quellen.MussLaufen(i, zeilen[i]));
        return läuft;
    };
    const auto ungehört = [&](const std::string& k) {
        fp.registry.SetString("HKEY_CURRENT_USER\\" + k, "Tool", "x");
        fp.changes.Verlieren();
    };
    ASSERT_EQ(sicherheitslauf(), (B{true, true, true, true})) << "the first walks";
    EXPECT_EQ(sicherheitslauf(), (B{false, true, true, false}));
    ungehört(run + "\\Kind");
    EXPECT_EQ(sicherheitslauf(), (B{true, true, true, false})) << "a value of a subkey";
    EXPECT_EQ(sicherheitslauf(), (B{false, true, true, false})) << "its walk took the new imprint";
    ungehört(once + "\\Fehlt");
    EXPECT_EQ(sicherheitslauf(), (B{false, true, true, true})) << "the missing key came";
    EXPECT_EQ(sicherheitslauf(), (B{false, true, true, false}));
}

// A folder with everything under it: each folder of the subtree is a source of its own,
// and a folder made after the row's walk is armed at its next walk, when its parent has
// fired for it.
TEST(OrdnerQuellen, EveryFolderOfTheSubtreeFires_ANewOneFromTheNextWalkOn) {
    fake::FakePlattform fp;
    fp.files.MakeDirs("C:\\T\\a\\b");
    fp.files.MakeDirs("C:\\Flach\\a");
    const auto orte = [] { return Änderungsorte{{0, "C:\\T", true}, {0, "C:\\Flach", false}}; };
    Änderungsquellen q(fp.plattform, 1);
    ASSERT_TRUE(q.MussLaufen(0, orte)) << "the first walk";
    const struct {
        const char* schritt;
        const char* datei;  // nullptr: a folder is made
        const char* ordner;
        bool läuft;
    } schritte[] = {
        {"nothing changed", nullptr, nullptr, false},
        {"a file two folders down", "C:\\T\\a\\b\\x.xml", nullptr, true},
        {"a file in a folder below the flat place", "C:\\Flach\\a\\x.xml", nullptr, false},
        {"a new folder", nullptr, "C:\\T\\neu", true},
        {"a file in the new folder", "C:\\T\\neu\\y.xml", nullptr, true},
    };
    for (const auto& s : schritte) {
        if (s.datei) fp.files.Put(s.datei, "<Task/>");
        if (s.ordner) fp.files.MakeDirs(s.ordner);
        EXPECT_EQ(q.MussLaufen(0, orte), s.läuft) << s.schritt;
    }
    EXPECT_EQ(fp.changes.OpenSources(), 5) << "T, a, b, neu and the flat place";
    EXPECT_EQ(fp.files.OpenFinds(), 0);
}

INSTANTIATE_TEST_SUITE_P(Wächter, Quellen, ::testing::ValuesIn(kZeilen),
                         [](const auto& i) { return std::string(i.param.name); });

}  // namespace
}  // namespace kes::test
