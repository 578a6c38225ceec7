#include "kdprozesse.h"
#include "kdfehler.h"

#include <windows.h>
// after windows.h, which they need
#include <psapi.h>
#include <tlhelp32.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace kdprozesse {

namespace {

using kd::Fehler;

std::string MitFehlernummer(const std::string& text) {
    return text + ": error " + std::to_string(GetLastError());
}

DWORD Pid(const char* text) {
    return static_cast<DWORD>(std::strtoul(text, nullptr, 0));
}

}  // namespace

int Liste() {
    HANDLE schnapp = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (schnapp == INVALID_HANDLE_VALUE) return Fehler(MitFehlernummer("no process snapshot"));
    PROCESSENTRY32 p{};
    p.dwSize = sizeof p;
    // File names hold no tab, line break or backslash: they need no escaping.
    for (BOOL gut = Process32First(schnapp, &p); gut; gut = Process32Next(schnapp, &p))
        std::printf("%lu\t%s\n", p.th32ProcessID, p.szExeFile);
    CloseHandle(schnapp);
    return 0;
}

int Beenden(const char* pid) {
    HANDLE prozess = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, Pid(pid));
    if (!prozess) return Fehler(MitFehlernummer("no process " + std::string(pid)));
    const bool beendet = TerminateProcess(prozess, 1) && WaitForSingleObject(prozess, 10000) == WAIT_OBJECT_0;
    CloseHandle(prozess);
    return beendet ? 0 : Fehler("process " + std::string(pid) + " did not end");
}

// The figures the system keeps for the process, the same as the task manager shows.
int Speicher(const char* pid) {
    HANDLE prozess = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, Pid(pid));
    if (!prozess) return Fehler(MitFehlernummer("no process " + std::string(pid)));
    PROCESS_MEMORY_COUNTERS_EX z{};
    z.cb = sizeof z;
    const bool gut = GetProcessMemoryInfo(prozess, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&z), sizeof z);
    if (!gut) Fehler(MitFehlernummer("GetProcessMemoryInfo failed"));
    CloseHandle(prozess);
    if (!gut) return 1;
    std::printf("%llu\t%llu\t%llu\n", static_cast<unsigned long long>(z.WorkingSetSize),
                static_cast<unsigned long long>(z.PeakWorkingSetSize), static_cast<unsigned long long>(z.PrivateUsage));
    return 0;
}

}  // namespace kdprozesse
