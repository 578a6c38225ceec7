// The process calls the program makes: tool-help snapshots of the running processes and of
// one process's modules, the file name of a process's module, when a process was created,
// the system folder, the short form of a path, and ending a process. Handles are numbers; 0
// is "no handle" for all of them (a failed snapshot, a process that cannot be opened).
// Snapshots and processes come in owners that close them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/seam/seam_handle.h"

namespace kes {

using ProzessHandle = std::uintptr_t;
inline constexpr ProzessHandle kKeinHandle = 0;

class ProcessApi;
using ProzessEigner = SeamHandle<ProcessApi>;

inline constexpr std::uint32_t kSnapAll = 15;    // TH32CS_SNAPALL
inline constexpr std::uint32_t kSnapModule = 8;  // TH32CS_SNAPMODULE
inline constexpr std::uint32_t kSnapProcess = 2;  // TH32CS_SNAPPROCESS
inline constexpr std::uint32_t kProcessTerminate = 1;
inline constexpr std::uint32_t kProcessQueryRead = 1040;  // query information and read memory
inline constexpr std::uint32_t kProcessQueryInformation = 0x400;
inline constexpr std::uint32_t kProcessQueryLimited = 0x1000;  // not known before Vista

// The fields of PROCESSENTRY32 that the program reads. The names are the raw fixed-size
// fields: a name that fills the field has no NUL.
struct ProzessDaten {
    std::array<char, 260> szExeFile{};
    std::uint32_t th32ProcessID = 0;
    std::uint32_t th32ParentProcessID = 0;
    std::uint32_t cntThreads = 0;
};

// The fields of MODULEENTRY32 that the program reads.
struct ModulDaten {
    std::array<char, 256> szModule{};
    std::array<char, 260> szExePath{};
    std::uintptr_t hModule = 0;
};

class ProcessApi {
public:
    virtual ~ProcessApi() = default;

    // CreateToolhelp32Snapshot: kKeinHandle when the snapshot cannot be taken. For kSnapModule
    // the snapshot holds the modules of processId, the program file first.
    virtual ProzessEigner CreateSnapshot(std::uint32_t flags, std::uint32_t processId) = 0;
    // Process32First/Next, Module32First/Next: false at the end or on a bad snapshot, with
    // *out left unchanged then.
    virtual bool ProcessFirst(ProzessHandle snapshot, ProzessDaten* out) = 0;
    virtual bool ProcessNext(ProzessHandle snapshot, ProzessDaten* out) = 0;
    virtual bool ModuleFirst(ProzessHandle snapshot, ModulDaten* out) = 0;
    virtual bool ModuleNext(ProzessHandle snapshot, ModulDaten* out) = 0;

    // OpenProcess without inheritance: an empty owner when the process is gone or refuses.
    virtual ProzessEigner OpenProcess(std::uint32_t access, std::uint32_t processId) = 0;
    // GetModuleFileNameExA: the length copied into buf (at most size - 1, NUL-terminated),
    // 0 on failure. Module 0 is the program file.
    virtual std::uint32_t ModuleFileName(ProzessHandle process, std::uintptr_t module, char* buf,
                                         std::uint32_t size) = 0;
    // GetProcessTimes: when the process was created, in 100 ns steps since 1601; 0 when it
    // cannot be asked (no handle, or one without a query right).
    virtual std::uint64_t CreationTime(ProzessHandle process) = 0;
    // TerminateProcess: false when the process could not be ended.
    virtual bool TerminateProcess(ProzessHandle process, std::uint32_t exitCode) = 0;

    // GetSystemDirectoryA: the length written (no trailing "\"), or the size needed when
    // the buffer is too small.
    virtual std::uint32_t SystemDirectory(char* buf, std::uint32_t size) = 0;
    // GetShortPathNameA: the length written, the size needed when the buffer is too small,
    // 0 when the path does not exist.
    virtual std::uint32_t ShortPathName(const std::string& path, char* buf, std::uint32_t size) = 0;

protected:
    // CloseHandle, for snapshots and processes alike, called by their owners only.
    virtual void CloseHandle(ProzessHandle h) = 0;

private:
    friend ProzessEigner;
    long CloseOwned(ProzessHandle h) {
        CloseHandle(h);
        return 0;
    }
};

}  // namespace kes
