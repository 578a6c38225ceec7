#include <memory>

#include "fake_plattform.h"
#include "umgebung.h"

namespace kes::vertrag {

namespace {
constexpr const char* kPeOrdner = "C:\\Programme\\Vertrag";
// The suite runs under Wine in a 64-bit prefix: the fake is the same kind of machine.
constexpr fake::Maschine kMaschine = fake::Maschine::Bit64;

// The same version data as the resources of the test DLLs of the Windows build.
void PeDateienAnlegen(fake::FakePlattform& p) {
    fake::FakeVersion deutsch;
    deutsch.dateiversion = {5, 1, 40000, 2};
    deutsch.dateityp = 2;
    deutsch.übersetzungen = {
        {0x0407,
         0x04E4,
         {{"CompanyName", "Kestrella Pruefstand GmbH"},
          {"FileDescription", "Vertragsdatei"},
          {"FileVersion", "5.1.40000.2"},
          {"InternalName", "deutsch"},
          {"LegalCopyright", "(C) Kestrella"},
          {"OriginalFilename", "deutsch.dll"},
          {"ProductName", "Kestrella Vertrag"},
          {"ProductVersion", "2.2"},
          {"Comments", "   "}}},
        {0x0409,
         0x04B0,
         {{"CompanyName", "Kestrella Test Rig Ltd"}, {"LegalTrademarks", "TM"}, {"PrivateBuild", "english only"}}},
    };
    fake::FakeVersion hoch;
    hoch.dateiversion = {1, 0, 0, 0};
    hoch.dateityp = 2;
    hoch.übersetzungen = {{0x0407, 65001, {{"CompanyName", "Hoch"}}}};

    const std::string ordner = kPeOrdner;
    p.files.Put(ordner + "\\deutsch.dll", std::string(4096, 'M'));
    p.details.SetVersion(ordner + "\\deutsch.dll", deutsch);
    p.files.Put(ordner + "\\hoch.dll", std::string(4096, 'M'));
    p.details.SetVersion(ordner + "\\hoch.dll", hoch);
}

// A small XP machine's processes, with the path forms the system reports for them.
void ProzesseAnlegen(fake::FakePlattform& p) {
    auto prozess = [&](const char* name, std::uint32_t pid, const char* pfad) -> fake::FakeProzess& {
        fake::FakeProzess neu;
        neu.name = name;
        neu.pid = pid;
        neu.pfad = pfad;
        p.processes.prozesse.push_back(neu);
        return p.processes.prozesse.back();
    };
    prozess("[System Process]", 0, "");
    prozess("System", 4, "").öffnenVerweigert = true;
    prozess("smss.exe", 368, "\\SystemRoot\\System32\\smss.exe").module = {{"ntdll.dll", ""}};
    prozess("csrss.exe", 416, "\\??\\C:\\WINDOWS\\system32\\csrss.exe");
    prozess("explorer.exe", 1500, "C:\\WINDOWS\\Explorer.EXE").module = {
        {"ntdll.dll", "C:\\WINDOWS\\system32\\ntdll.dll"}, {"kernel32.dll", "C:\\WINDOWS\\system32\\kernel32.dll"}};
}

class FakeUmgebung : public Umgebung {
public:
    RegistryApi& Registry() override { return p_->registry; }
    FileApi& Files() override { return p_->files; }
    std::string Ordner() override { return "C:\\vertrag"; }
    void Sperren(const std::string& pfad) override { p_->files.Lock(pfad, true); }
    void Freigeben(const std::string& pfad) override { p_->files.Lock(pfad, false); }
    void Neu() override {
        p_ = std::make_unique<fake::FakePlattform>(kMaschine);
        p_->files.MakeDirs(Ordner());
        PeDateienAnlegen(*p_);
        ProzesseAnlegen(*p_);
    }
    Plattform& Alles() override { return p_->plattform; }
    std::string PeDatei(const std::string& name) override { return std::string(kPeOrdner) + "\\" + name; }

private:
    std::unique_ptr<fake::FakePlattform> p_ = std::make_unique<fake::FakePlattform>(kMaschine);
};
}  // namespace

Umgebung& DieUmgebung() {
    static FakeUmgebung u;
    return u;
}

}  // namespace kes::vertrag
