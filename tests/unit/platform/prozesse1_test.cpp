// The process table from a scripted snapshot: names, modules and their count, paths as
// the system reports them, and ending a process.
#include "platform/prozesse1.h"

#include <gtest/gtest.h>

#include <functional>

#include "fake_plattform.h"

namespace kes::test {
namespace {

using fake::FakeProzess;
using Namen = std::vector<std::string>;

class ProzessTabelle : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    Prozesse1 tabelle{fp.plattform};

    void SetUp() override { fp.files.Put("C:\\WINDOWS\\system32\\smss.exe", "MZ"); }

    FakeProzess& Prozess(const std::string& name, std::uint32_t pid, const std::string& pfad) {
        FakeProzess& p = fp.processes.prozesse.emplace_back();
        p.name = name;
        p.pid = pid;
        p.eltern = 4;
        p.threads = 3;
        p.pfad = pfad;
        return p;
    }
    std::string Pfad(const std::string& gemeldet) {
        const std::uint32_t pid = 7000 + static_cast<std::uint32_t>(fp.processes.prozesse.size());
        Prozess("x.exe", pid, gemeldet);
        return tabelle.ProzessPfad(pid, 0, "x.exe");
    }
};

TEST_F(ProzessTabelle, Snapshot_FillsTheTableInSnapshotOrder_ASecondFillCutsItToTheNewSnapshot) {
    Prozess("[System Process]", 0, "").threads = 1;
    Prozess("notepad.exe", 1200, "C:\\WINDOWS\\system32\\notepad.exe").threads = 2;
    Prozess("tot.exe", 1300, "C:\\tot.exe").threads = 0;
    Prozess(std::string(260, 'n'), 10, "");  // a name filling the whole field is kept whole
    tabelle.ProzesseHolen();

    ASSERT_EQ(tabelle.Prozesse.size(), 4u);
    EXPECT_EQ(tabelle.ProzessAnzahl, 3);
    const ProcessRecord& np = tabelle.Prozesse[1];
    EXPECT_EQ(std::make_tuple(np.Name, np.ProcessId, np.ParentId, np.Alive, np.ThreadCount, np.Path),
              std::make_tuple("notepad.exe", 1200, 4, true, 2, "C:\\WINDOWS\\SYSTEM32\\NOTEPAD.EXE"));
    EXPECT_FALSE(tabelle.Prozesse[2].Alive) << "no threads, no life";
    EXPECT_EQ(tabelle.Prozesse[0].ModuleCount, 0) << "process 0 is not walked";
    EXPECT_EQ(tabelle.Prozesse[3].Name, std::string(260, 'n'));
    EXPECT_EQ(fp.processes.OffeneHandles(), 0);
    EXPECT_GT(fp.timers.pumpen, 0) << "the walk lets window messages run";

    fp.processes.prozesse.resize(1);
    tabelle.ProzesseHolen();
    ASSERT_EQ(tabelle.Prozesse.size(), 1u);
    EXPECT_EQ(tabelle.ProzessAnzahl, 0);
}

TEST_F(ProzessTabelle, Modules_FirstIsPassedOver_TheCountIsOneBelowTheStored_OneProcessAlwaysWalked) {
    auto& p = Prozess("explorer.exe", 1500, "C:\\WINDOWS\\Explorer.EXE");
    p.module = {{"ntdll.dll", "C:\\WINDOWS\\system32\\ntdll.dll"},
                {"kernel32.dll", "C:\\WINDOWS\\system32\\kernel32.dll"},
                {"shell32.dll", "C:\\WINDOWS\\system32\\shell32.dll"}};
    tabelle.ProzesseHolen();
    const ProcessRecord& r = tabelle.Prozesse[0];
    EXPECT_EQ(r.ModuleNames, (Namen{"ntdll.dll", "kernel32.dll", "shell32.dll"}));
    EXPECT_EQ(r.ModulePaths[1], "C:\\WINDOWS\\SYSTEM32\\KERNEL32.DLL");
    EXPECT_EQ(r.ModuleCount, 2);
    EXPECT_EQ(tabelle.ModulZähler, 3) << "four modules seen, less one";
    EXPECT_EQ(fp.processes.öffnungen, 1) << "one handle for the program's path and every module's";
    EXPECT_EQ(fp.processes.OffeneHandles(), 0);

    // The modules of one process are always walked: it shows what it has loaded since.
    p.module.push_back({"spaet.dll", "C:\\spaet.dll"});
    Namen namen, pfade;
    std::int32_t anzahl = 0;
    tabelle.ModuleHolen(1500, namen, pfade, anzahl);
    EXPECT_EQ(namen, (Namen{"ntdll.dll", "kernel32.dll", "shell32.dll", "spaet.dll"}));
}

// A second fill takes the modules and path of a process from the first while the id
// still belongs to that process; anything it cannot be sure of is walked again.
struct ZweiteFüllung {
    const char* fall;
    std::function<void(FakeProzess&)> vorher, zwischen;
    bool gelaufen;                        // the second fill walked the modules
    std::string pfad = "C:\\PROG\\A.EXE";  // after the second fill
};

class ProzessWiederholt : public ProzessTabelle, public ::testing::WithParamInterface<ZweiteFüllung> {};

TEST_P(ProzessWiederholt, SecondFill_WalksOnlyWhatItCannotTakeFromTheFirst) {
    const ZweiteFüllung& f = GetParam();
    FakeProzess& p = Prozess("a.exe", 10, "C:\\Prog\\a.exe");
    p.module = {{"ntdll.dll", "C:\\ntdll.dll"}, {"x.dll", "C:\\x.dll"}};
    if (f.vorher) f.vorher(p);
    tabelle.ProzesseHolen();
    p.module.push_back({"spaet.dll", "C:\\spaet.dll"});  // loaded since
    if (f.zwischen) f.zwischen(p);
    const int snaps = fp.processes.snapshots;
    tabelle.ProzesseHolen();
    const ProcessRecord& r = tabelle.Prozesse.at(0);
    EXPECT_EQ(r.ModuleNames, f.gelaufen ? (Namen{"ntdll.dll", "x.dll", "spaet.dll"}) : (Namen{"ntdll.dll", "x.dll"}));
    EXPECT_EQ(r.Path, f.pfad);
    EXPECT_EQ(fp.processes.snapshots - snaps, f.gelaufen ? 3 : 2) << "two process snapshots, and the module walk";
    EXPECT_EQ(fp.processes.OffeneHandles(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Fälle, ProzessWiederholt,
    ::testing::Values(
        ZweiteFüllung{"SameProcess_KeptFromTheFirst", {}, {}, false},
        ZweiteFüllung{"AnotherProcessUnderTheSameId", {}, [](FakeProzess& p) { p.erstellt += 1; }, true},
        ZweiteFüllung{"SameIdAndTime_AnotherName", {}, [](FakeProzess& p) { p.name = "b.exe"; }, true},
        ZweiteFüllung{"PathUnreadableAtFirst_WalkedAgain", [](FakeProzess& p) { p.pfad = ""; },
                      [](FakeProzess& p) { p.pfad = "C:\\Prog\\a.exe"; }, true},
        ZweiteFüllung{"RefusesToBeOpened_WalkedEachTime", [](FakeProzess& p) { p.öffnenVerweigert = true; }, {}, true,
                      ""}),
    [](const ::testing::TestParamInfo<ZweiteFüllung>& i) { return std::string(i.param.fall); });

TEST_F(ProzessTabelle, ProcessThatRefusesToOpen_KeepsItsModulesWithoutPaths_FailedWalksCountMinusOne) {
    auto& p = Prozess("smss.exe", 40, "\\SystemRoot\\System32\\smss.exe");
    p.module = {{"ntdll.dll", "C:\\WINDOWS\\system32\\ntdll.dll"}, {"k.dll", "C:\\k.dll"}};
    p.öffnenVerweigert = true;
    Prozess("geschuetzt.exe", 20, "C:\\g.exe").modulWalkVerweigert = true;
    Prozess("allein.exe", 21, "C:\\allein.exe");  // the program file only
    tabelle.ProzesseHolen();
    const ProcessRecord& r = tabelle.Prozesse[0];
    EXPECT_EQ(r.ModuleNames, (Namen{"ntdll.dll", "k.dll"}));
    EXPECT_EQ(r.ModulePaths, (Namen{"", ""})) << "neither is in the system folder";
    EXPECT_EQ(r.Path, "C:\\WINDOWS\\system32\\smss.exe") << "found in the system folder instead";
    for (std::size_t i : {1u, 2u}) {
        EXPECT_EQ(tabelle.Prozesse[i].ModuleCount, -1) << i;
        EXPECT_TRUE(tabelle.Prozesse[i].ModuleNames.empty()) << i;
    }
}

TEST_F(ProzessTabelle, ProzessPfad_NormalisesTheReportedForms_ARefusingProcessFallsBackToTheSystemFolder_ShortPaths) {
    EXPECT_EQ(Pfad("\\SystemRoot\\System32\\smss.exe"), "C:\\WINDOWS\\system32\\SMSS.EXE");
    EXPECT_EQ(Pfad("\\??\\C:\\WINDOWS\\system32\\csrss.exe"), "C:\\WINDOWS\\SYSTEM32\\CSRSS.EXE");
    EXPECT_EQ(Pfad("  c:\\programme\\tool.exe  "), "C:\\PROGRAMME\\TOOL.EXE");
    EXPECT_EQ(Pfad("ohne laufwerk.exe"), "OHNE LAUFWERK.EXE") << "no drive, nothing to cut";

    Prozess("smss.exe", 30, "").öffnenVerweigert = true;
    Prozess("fremd.exe", 31, "").öffnenVerweigert = true;
    EXPECT_EQ(tabelle.ProzessPfad(30, 0, "smss.exe"), "C:\\WINDOWS\\system32\\smss.exe");
    EXPECT_EQ(tabelle.ProzessPfad(31, 0, "fremd.exe"), "");
    EXPECT_EQ(fp.processes.OffeneHandles(), 0);

    fp.files.Put("C:\\Programme\\Kestrella\\Kestrella.exe", "MZ");
    EXPECT_EQ(KurzerPfad(fp.plattform, "C:\\Programme\\Kestrella\\Kestrella.exe"),
              "C:\\PROGRA~1\\KESTRE~1\\KESTRE~1.EXE");
    EXPECT_EQ(KurzerPfad(fp.plattform, "C:\\fehlt.exe"), "");
    EXPECT_EQ(SystemVerzeichnis(fp.plattform), "C:\\WINDOWS\\system32");
}

TEST_F(ProzessTabelle, ProzessBeenden_EndedIsTrueWithoutQuestion_RefusedAsksAndOpensTheTaskManagerOnYes) {
    Prozess("weg.exe", 40, "C:\\weg.exe");
    EXPECT_TRUE(ProzessBeenden(fp.plattform, 40));
    EXPECT_EQ(fp.processes.beendet, (std::vector<std::uint32_t>{40}));
    EXPECT_TRUE(fp.dialogs.meldungen.empty());

    Prozess("zaeh.exe", 41, "C:\\zaeh.exe").beendenVerweigert = true;
    fp.dialogs.antworten = {kIdYes, kIdNo};
    EXPECT_FALSE(ProzessBeenden(fp.plattform, 41));
    ASSERT_EQ(fp.dialogs.meldungen.size(), 1u);
    EXPECT_EQ(fp.dialogs.meldungen[0].flags, 4100);
    EXPECT_EQ(fp.dialogs.meldungen[0].text,
              "Diese Anwendung kann nicht geschlossen werden. Sie wird vielleicht gerade geschlossen, oder "
              "bearbeitet einen langwierigen Auftrag!\r\nSie können per Task-Manager (Prozeese) die "
              "Prozessstruktur beenden(Rechte Maustaste)?");
    ASSERT_EQ(fp.shell.kommandos.size(), 1u);
    EXPECT_EQ(fp.shell.kommandos[0].kommando, "taskmgr.exe cpl,,2");
    EXPECT_EQ(fp.shell.kommandos[0].show, kSwShowNormal);

    EXPECT_FALSE(ProzessBeenden(fp.plattform, 999)) << "a process that is gone";
    EXPECT_EQ(fp.shell.kommandos.size(), 1u) << "No opens nothing";
}

}  // namespace
}  // namespace kes::test
