// The first process baseline: one line per running process, with the path found for it.
#include "watchers/prozesse.h"

#include "programm_test_basis.h"

namespace kes::test {
namespace {

class ErsterLauf : public ProgrammTest {
protected:
    void SetUp() override { Pfade(); }
    void Prozess(const std::string& name, std::uint32_t pid, const std::string& pfad, bool verweigert = false) {
        fake::FakeProzess& p = fp.processes.prozesse.emplace_back();
        p.name = name;
        p.pid = pid;
        p.pfad = pfad;
        p.öffnenVerweigert = verweigert;
    }
    std::string Baseline() { return fp.files.Content(ordner + "daten\\prozesse.txt"); }
};

TEST_F(ErsterLauf, WritesEveryProcessButTheSystemsOwn_WithThePathsFound_NoneLeavesAnEmptyFile) {
    fp.files.Put(ordner + "daten\\prozesse.txt", "alt.exe#C:\\ALT.EXE\r\n");
    ErstemalAnzeigen(prg);
    EXPECT_TRUE(fp.files.Exists(ordner + "daten\\prozesse.txt"));
    EXPECT_EQ(Baseline(), "");

    fp.files.Put("C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe", "MZ");
    fp.files.Put("C:\\WINDOWS\\explorer.exe", "MZ");
    Prozess("[System Process]", 0, "");
    Prozess("System", 4, "", true);
    Prozess("notepad.exe", 100, "C:\\WINDOWS\\system32\\notepad.exe");
    Prozess("wmiprvse.exe", 101, "", true);
    Prozess("explorer.exe", 102, "", true);
    Prozess("unbekannt.exe", 103, "", true);
    Prozess("system", 104, "", true);

    ErstemalAnzeigen(prg);

    EXPECT_EQ(Baseline(),
              "notepad.exe#C:\\WINDOWS\\SYSTEM32\\NOTEPAD.EXE\r\n"
              "wmiprvse.exe#C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe\r\n"
              "explorer.exe#C:\\WINDOWS\\explorer.exe\r\n"
              "unbekannt.exe#\r\n"
              "system#\r\n");
    ASSERT_EQ(prg.Prozesstabelle().Prozesse.size(), 7u) << "the baseline is taken from the program's one table";
    EXPECT_EQ(prg.Prozesstabelle().Prozesse[3].Path, "C:\\WINDOWS\\system32\\wbem\\wmiprvse.exe");
    EXPECT_FALSE(prg.AlarmGeladen()) << "the assistant fills it before Alarm loads";
}

}  // namespace
}  // namespace kes::test
