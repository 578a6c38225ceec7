#include "fremdmessung.h"

#include <windows.h>
// The process-status declarations need <windows.h> first.
#include <psapi.h>

#include <vector>

namespace kes::bench {

FremderProzess::FremderProzess(const std::string& commandLine, const std::string& ordner) {
    STARTUPINFOA si{};
    si.cb = sizeof si;
    PROCESS_INFORMATION pi{};
    std::vector<char> zeile(commandLine.begin(), commandLine.end());
    zeile.push_back('\0');
    if (!::CreateProcessA(nullptr, zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, ordner.c_str(), &si, &pi)) return;
    ::CloseHandle(pi.hThread);
    prozess_ = pi.hProcess;
}

FremderProzess::~FremderProzess() {
    if (!prozess_) return;
    ::TerminateProcess(prozess_, 0);
    ::WaitForSingleObject(prozess_, 5000);
    ::CloseHandle(prozess_);
}

bool FremderProzess::Läuft() const {
    return prozess_ && ::WaitForSingleObject(prozess_, 0) == WAIT_TIMEOUT;
}

double FremderProzess::Prozessorzeit() const {
    FILETIME a, e, k, u;
    if (!prozess_ || !::GetProcessTimes(prozess_, &a, &e, &k, &u)) return 0;
    auto sek = [](const FILETIME& f) {
        return static_cast<double>((static_cast<unsigned long long>(f.dwHighDateTime) << 32) | f.dwLowDateTime) / 1e7;
    };
    return sek(k) + sek(u);
}

std::size_t FremderProzess::SpitzeArbeitsspeicher() const {
    PROCESS_MEMORY_COUNTERS pmc{};
    pmc.cb = sizeof pmc;
    if (!prozess_ || !::GetProcessMemoryInfo(prozess_, &pmc, sizeof pmc)) return 0;
    return pmc.PeakWorkingSetSize;
}

}  // namespace kes::bench
