// The process watcher: its two files, the compare by path, maker and this run's list, the
// deferred first process, a process whose path cannot be read yet, and what the warning
// shows of the process it found.
#include "panel/alarm.h"
#include "programm_test_basis.h"
#include "warning/form3.h"

namespace kes::test {
namespace {

using V = std::vector<std::string>;

class NeueProzesse : public ProgrammTest {
protected:
    const std::string baseline = ordner + "daten\\prozesse.txt";
    const std::string firmen = ordner + "daten\\Firma.txt";

    void SetUp() override { Pfade(); }

    fake::FakeProzess& Prozess(const std::string& name, std::uint32_t pid, const std::string& pfad) {
        fake::FakeProzess p;
        p.name = name;
        p.pid = pid;
        p.pfad = pfad;
        fp.processes.prozesse.push_back(p);
        return fp.processes.prozesse.back();
    }
    // A program file on disk with its maker in the version block.
    void Programmdatei(const std::string& pfad, const std::string& firma) {
        fp.files.Put(pfad, "MZ");
        fake::FakeVersion v;
        v.übersetzungen.push_back({});
        v.übersetzungen[0].texte["CompanyName"] = firma;
        fp.details.SetVersion(pfad, v);
    }
    Prozesse& W() { return prg.Alarm().prozesse; }
    void Testen() { W().TesteProzesse(); }
    // The process named in the open warning; "" when none is open.
    std::string Gewarnt() {
        if (!prg.Form3Geladen()) return "";
        const auto& zeilen = prg.Form3().ListView2.Items;
        return zeilen.empty() ? "?" : zeilen[0].Text;
    }
    V Pfade6() {
        V t;
        for (const auto& z : W().ListView6.Items) t.push_back(z.Text + "|" + z.SubItem(1));
        return t;
    }
};

TEST_F(NeueProzesse, Baseline_ReadFieldByField_NameBeforeTheFirstHash) {
    fp.files.Put(baseline,
                 "notepad.exe#C:\\WINDOWS\\SYSTEM32\\NOTEPAD.EXE\r\n"
                 "\"quoted.exe#C:\\Q.EXE\"\r\n"
                 "hash.exe#C:\\A#B\\HASH.EXE\r\n"
                 "komma.exe#C:\\X,Y\\KOMMA.EXE\r\n"
                 "\r\n"
                 "danach.exe#C:\\DANACH.EXE\r\n");
    W().LadeProzesse();
    EXPECT_EQ(Pfade6(), (V{"notepad.exe|C:\\WINDOWS\\SYSTEM32\\NOTEPAD.EXE", "quoted.exe|C:\\Q.EXE",
                           "hash.exe|C:\\A#B\\HASH.EXE", "komma.exe|C:\\X", "komma.exe|Y\\KOMMA.EXE"}))
        << "a comma breaks a path, the empty line ends the reading";

    fp.files.Delete(baseline);
    W().LadeProzesse();
    EXPECT_TRUE(W().ListView6.Items.empty()) << "no file: an empty list";
}

TEST_F(NeueProzesse, Makers_OneALineUpToTheFirstEmpty) {
    fp.files.Put(firmen, "Microsoft Corporation\r\nHalvenik\r\n\r\nSpäter\r\n");
    W().LadeProzessFirmen();
    EXPECT_EQ(W().List1.Items, (V{"Microsoft Corporation", "Halvenik"}));
    fp.files.Delete(firmen);
    W().LadeProzessFirmen();
    EXPECT_TRUE(W().List1.Items.empty());
}

TEST_F(NeueProzesse, SamePathTwice_BothKnown_ACopyElsewhere_Warns) {
    fp.files.Put(baseline, "tool.exe#C:\\Programme\\Tool\\tool.exe\r\n");
    Prozess("tool.exe", 100, "C:\\Programme\\Tool\\tool.exe");
    Prozess("tool.exe", 101, "C:\\Programme\\Tool\\tool.exe");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "a program started twice is known twice";

    Prozess("tool.exe", 102, "C:\\Temp\\tool.exe");
    Testen();
    EXPECT_EQ(Gewarnt(), "tool.exe") << "only the path counts, not the name";
    EXPECT_EQ(prg.Form3().Zeile2(), "C:\\TEMP\\TOOL.EXE");
}

TEST_F(NeueProzesse, PathCase_DoesNotCount_AndAllowedForThisRun_ByNameWithoutCase) {
    fp.files.Put(baseline, "notepad.exe#C:\\Windows\\Notepad.exe\r\n");
    Prozess("notepad.exe", 100, "C:\\WINDOWS\\NOTEPAD.EXE");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    Prozess("Einmal.EXE", 101, "C:\\Temp\\einmal.exe");
    W().List2.Items = {"einmal.exe"};
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
}

TEST_F(NeueProzesse, SystemNames_ComparedWithCase) {
    fp.files.Put(baseline, "x.exe#C:\\X.EXE\r\n");
    Prozess("[System Process]", 0, "");
    Prozess("System", 4, "");
    Prozess("System Idle Process", 5, "");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "the system's own entries are passed over";

    Prozess("system", 6, "C:\\Temp\\system");
    Testen();
    EXPECT_EQ(Gewarnt(), "system") << "\"system\" in lower case is an ordinary process";
}

TEST_F(NeueProzesse, TrustedMaker_MatchesWithoutCase_OnAnyLineOfTheList) {
    Programmdatei("C:\\Programme\\Neu\\neu.exe", "MICROSOFT CORPORATION");
    fp.files.Put(firmen, "Microsoft Corporation\r\nAndere Firma\r\n");
    Prozess("neu.exe", 100, "C:\\Programme\\Neu\\neu.exe");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());

    Programmdatei("C:\\Programme\\Neu\\neu.exe", "Andere Firma");
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "a maker further down the list";
}

// The maker of a running program is read at its first look and kept while the process runs;
// another process under the same id is read anew.
TEST_F(NeueProzesse, MakerOfARunningProcess_ReadOnce_AgainForAnotherProcessUnderItsId) {
    Programmdatei("C:\\Prog\\a.exe", "Vertraut GmbH");
    W().List1.Items = {"vertraut gmbh"};
    Prozess("a.exe", 100, "C:\\Prog\\a.exe");
    Testen();
    Testen();
    EXPECT_EQ(fp.details.versionsLesungen, 1);
    Programmdatei("C:\\Prog\\a.exe", "Fremd AG");  // written while the same process runs
    Testen();
    EXPECT_EQ(Gewarnt(), "") << "the texts of the image it runs";
    fp.processes.prozesse[0].erstellt += 1;
    Testen();
    EXPECT_EQ(Gewarnt(), "a.exe") << "another process under the id: its file's maker is not trusted";
}

TEST_F(NeueProzesse, VersionBlockThatOverflows_EndsThePassAtEveryLook) {
    fp.files.Put("C:\\Prog\\x.exe", "MZ");
    fake::FakeVersion v;
    v.übersetzungen = {{0x8407, 0x04E4, {{"CompanyName", "X"}}}};
    fp.details.SetVersion("C:\\Prog\\x.exe", v);
    Prozess("x.exe", 100, "C:\\Prog\\x.exe");
    Prozess("neu.exe", 101, "C:\\Temp\\neu.exe");
    for (int look = 1; look <= 2; ++look) {
        Testen();
        EXPECT_EQ(Gewarnt(), "") << "look " << look;
    }
}

TEST_F(NeueProzesse, PathMissing_FoundInSystemWbemOrWindowsFolder) {
    fp.files.Put("C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe", "MZ");
    fp.files.Put(baseline, "wmiprvse.exe#C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe\r\n");
    Prozess("wmiprvse.exe", 100, "").öffnenVerweigert = true;
    Testen();
    EXPECT_FALSE(prg.Form3Geladen());
    EXPECT_EQ(prg.Prozesstabelle().Prozesse.at(0).Path, "C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe")
        << "the table keeps the path found, for the actions";
}

// One process, cycle by cycle: 'L' there without a readable path, 'P' there with its known
// path, 'X' there with a path of a new folder, 'N' another process under the same id
// without a path, '-' ended.
struct OhnePfadFall {
    const char* fall;
    const char* name;
    const char* verlauf;
    int gemeldetImZyklus;  // 0: never
};

class ProzessOhnePfad : public NeueProzesse, public ::testing::WithParamInterface<OhnePfadFall> {};

TEST_P(ProzessOhnePfad, ReportedOnlyWhenStillThereWithoutPathAtTheFourthLookInARow) {
    const OhnePfadFall& f = GetParam();
    const std::string bekannt = "C:\\Programme\\Spaet\\spaet.exe";
    fp.files.Put(baseline, "spaet.exe#" + bekannt + "\r\n");
    int gemeldet = 0;
    char zuletzt = 0;
    for (int zyklus = 1; f.verlauf[zyklus - 1] != '\0' && gemeldet == 0; ++zyklus) {
        zuletzt = f.verlauf[zyklus - 1];
        fp.processes.prozesse.clear();
        if (zuletzt != '-') {
            const std::string pfad = zuletzt == 'P' ? bekannt : zuletzt == 'X' ? "C:\\Temp\\spaet.exe" : "";
            Prozess(f.name, 300, pfad).erstellt = zuletzt == 'N' ? 2 : 1;
        }
        Testen();
        if (prg.Form3Geladen()) gemeldet = zyklus;
    }
    EXPECT_EQ(gemeldet, f.gemeldetImZyklus);
    if (gemeldet != 0 && zuletzt != 'X') {
        EXPECT_EQ(prg.Form3().Zeile2(), "") << "reported with its empty path";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Verläufe, ProzessOhnePfad,
    ::testing::Values(OhnePfadFall{"PathAtTheSecondLook", "spaet.exe", "LPPPPP", 0},
                      OhnePfadFall{"PathNeverReadable", "spaet.exe", "LLLLLL", 4},
                      OhnePfadFall{"EndedAfterThreeLooks", "spaet.exe", "LLL---", 0},
                      OhnePfadFall{"PathOnceRead_KeptWhileTheSameProcessRuns", "spaet.exe", "LLPLLLL", 0},
                      OhnePfadFall{"AnotherProcessUnderTheSameId_CountsAnew", "spaet.exe", "LLNNNN", 6},
                      OhnePfadFall{"PathOfANewFolderAtTheSecondLook", "spaet.exe", "LX", 2},
                      OhnePfadFall{"EmptyName", "", "LLLLLL", 0}),
    [](const ::testing::TestParamInfo<OhnePfadFall>& i) { return std::string(i.param.fall); });

TEST_F(NeueProzesse, ProcessWithoutPath_DoesNotHideANewOneBehindIt) {
    Prozess("spaet.exe", 300, "");
    Prozess("neu.exe", 301, "C:\\Temp\\neu.exe");
    Testen();
    EXPECT_EQ(Gewarnt(), "neu.exe");
}

TEST_F(NeueProzesse, DeferredFirstProcess_HidesTheRestOfThePass) {
    Prozess("erster.exe", 100, "C:\\Temp\\erster.exe");
    Prozess("zweiter.exe", 101, "C:\\Temp\\zweiter.exe");
    prg.Alarm().List8.Items = {"erster.exe"};
    Testen();
    EXPECT_FALSE(prg.Form3Geladen()) << "the deferred name ends the pass";

    fp.processes.prozesse.erase(fp.processes.prozesse.begin());
    Testen();
    EXPECT_EQ(Gewarnt(), "zweiter.exe") << "once it has ended, the next one is seen";
}

TEST_F(NeueProzesse, Warning_SoundFirst_DetailsWithIdAndThreads_AndTheModules) {
    prg.Soundflag = 1;
    prg.Alarm().Timer1.SetEnabled(true);
    Programmdatei("C:\\Temp\\neu.exe", "Unbekannte Firma");
    fake::FakeProzess& p = Prozess("neu.exe", 1234, "C:\\Temp\\neu.exe");
    p.threads = 7;
    p.module = {{"erster.dll", "C:\\Temp\\erster.dll"}, {"kernel32.dll", "C:\\WINDOWS\\system32\\kernel32.dll"}};
    bool beschäftigtBeimTon = true;
    fp.sound.beimSpielen = [&](const std::string&) { beschäftigtBeimTon = prg.Beschäftigt; };
    Testen();
    EXPECT_FALSE(beschäftigtBeimTon) << "the sound comes before the busy flag";

    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_TRUE(prg.Beschäftigt);
    EXPECT_FALSE(prg.Alarm().Timer1.Enabled());
    EXPECT_EQ(fp.sound.gespielt, V{"ALARM"});
    EXPECT_EQ(prg.Kategorieschlüssel, Kategorie::Prozesse);
    Form3Fenster& f = prg.Form3();
    EXPECT_EQ(f.Label1[0].Caption, "Neuer Prozess im Speicher gefunden!");
    ASSERT_EQ(f.ListView2.Items.size(), 2u);
    EXPECT_EQ((V{f.ListView2.Items[0].Text, f.ListView2.Items[1].Text}), (V{"neu.exe", "C:\\TEMP\\NEU.EXE"}));
    EXPECT_EQ((std::vector<int>{f.ListView2.Items[0].SmallIcon, f.ListView2.Items[1].SmallIcon}),
              (std::vector<int>{4, 5}));
    ASSERT_EQ(f.ListView1.Items.size(), 12u);
    // The maker, the process ID with its leading blank, the threads.
    EXPECT_EQ((V{f.ListView1.Items[0].SubItem(1), f.ListView1.Items[4].SubItem(3), f.ListView1.Items[5].SubItem(3)}),
              (V{"Unbekannte Firma", " 1234", "7"}));
    EXPECT_EQ(f.Modulscaption.Caption, " 1");
    ASSERT_EQ(f.ListView3.Items.size(), 1u) << "the first stored module is not shown";
    EXPECT_EQ((V{f.ListView3.Items[0].Text, f.ListView3.Items[0].SubItem(1)}),
              (V{"kernel32.dll", "C:\\WINDOWS\\SYSTEM32\\KERNEL32.DLL"}));
    EXPECT_TRUE(f.Picture3[4].Visible && f.Image[1].Visible && f.Image[2].Visible && f.Visible);
    EXPECT_FALSE(f.Picture3[3].Visible);
}

TEST_F(NeueProzesse, ProcessWithoutModules_ListsNone) {
    Prozess("leer.exe", 50, "C:\\Temp\\leer.exe").modulWalkVerweigert = true;
    Testen();
    ASSERT_TRUE(prg.Form3Geladen());
    EXPECT_EQ(prg.Form3().Modulscaption.Caption, "-1");
    EXPECT_TRUE(prg.Form3().ListView3.Items.empty());
}

TEST_F(NeueProzesse, Warning_LeavesTheProgramsTableFilledForTheActions) {
    Prozess("a.exe", 100, "C:\\A.EXE");
    Prozess("b.exe", 101, "C:\\B.EXE");
    fp.files.Put(baseline, "a.exe#C:\\A.EXE\r\n");
    Testen();
    ASSERT_EQ(Gewarnt(), "b.exe");
    EXPECT_EQ(prg.Prozesstabelle().Prozesse.size(), 2u) << "the table stays filled for the warning's actions";
    EXPECT_EQ(prg.Prozesstabelle().Prozesse[1].ProcessId, 101);
}

}  // namespace
}  // namespace kes::test
