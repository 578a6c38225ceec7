// A scripted process list with the tool-help manners: a snapshot is a copy taken at its
// moment, the program file is the first module of its process, process 0 and processes
// that refuse cannot be opened, and a process that refuses its module walk gives no
// module snapshot. Short paths come from the fake file system.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "fake_files.h"
#include "platform/seam/process_api.h"

namespace kes::fake {

struct FakeModul {
    std::string name;  // szModule
    std::string pfad;  // what GetModuleFileNameExA gives for it
};

struct FakeProzess {
    std::string name;  // szExeFile; 260 characters or more leave the field without NUL
    std::uint32_t pid = 0;
    std::uint32_t eltern = 0;
    std::uint32_t threads = 1;
    std::string pfad;                             // GetModuleFileNameExA of the program file; "" fails
    std::uint64_t erstellt = 133170048000000000;  // the creation time (2023); another process under
                                                  // the same id has another
    std::vector<FakeModul> module;                // after the program file
    bool modulWalkVerweigert = false;
    bool öffnenVerweigert = false;
    bool beendenVerweigert = false;
};

// The 8.3 form of one long name as the file system would make it; empty when the name is
// of 8.3 form already (as cAlternateFileName is).
std::string KurzForm(const std::string& name);

class FakeProcesses : public ProcessApi {
public:
    explicit FakeProcesses(FakeFiles& files) : files_(files) {}

    std::vector<FakeProzess> prozesse;
    std::string systemordner = "C:\\WINDOWS\\system32";
    std::vector<std::uint32_t> beendet;
    int snapshots = 0;
    int öffnungen = 0;  // OpenProcess calls that gave a handle

    ProzessEigner CreateSnapshot(std::uint32_t flags, std::uint32_t processId) override;
    bool ProcessFirst(ProzessHandle snapshot, ProzessDaten* out) override;
    bool ProcessNext(ProzessHandle snapshot, ProzessDaten* out) override;
    bool ModuleFirst(ProzessHandle snapshot, ModulDaten* out) override;
    bool ModuleNext(ProzessHandle snapshot, ModulDaten* out) override;
    ProzessEigner OpenProcess(std::uint32_t access, std::uint32_t processId) override;
    std::uint32_t ModuleFileName(ProzessHandle process, std::uintptr_t module, char* buf, std::uint32_t size) override;
    std::uint64_t CreationTime(ProzessHandle process) override;
    bool TerminateProcess(ProzessHandle process, std::uint32_t exitCode) override;
    std::uint32_t SystemDirectory(char* buf, std::uint32_t size) override;
    std::uint32_t ShortPathName(const std::string& path, char* buf, std::uint32_t size) override;

    int OffeneHandles() const { return static_cast<int>(snaps_.size() + offen_.size()); }
    // The module handle the fake gives the k-th module after the program file.
    static std::uintptr_t ModulHandle(std::size_t k) { return 0x10000 * (k + 2); }

protected:
    void CloseHandle(ProzessHandle h) override;

private:
    struct Schnapp {
        bool prozesse = false;
        std::vector<FakeProzess> liste;  // a process snapshot
        std::vector<FakeModul> module;   // a module snapshot, program file first
        std::size_t pos = 0;
    };
    struct Offen {
        std::uint32_t pid;
        std::uint32_t recht;
    };
    const FakeProzess* Finde(std::uint32_t pid) const;

    FakeFiles& files_;
    std::map<ProzessHandle, Schnapp> snaps_;
    std::map<ProzessHandle, Offen> offen_;
    ProzessHandle nächster_ = 0x100;
};

}  // namespace kes::fake
