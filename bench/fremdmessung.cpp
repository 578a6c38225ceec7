#include "fremdmessung.h"

#include <windows.h>
// The process-status declarations need <windows.h> first.
#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
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

namespace {
std::string Lesen(const std::string& pfad) {
    const HANDLE h = ::CreateFileA(pfad.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
    if (h == INVALID_HANDLE_VALUE) return "";
    char puffer[4096];
    DWORD n = 0;
    std::string s;
    while (::ReadFile(h, puffer, sizeof puffer, &n, nullptr) && n > 0) s.append(puffer, n);
    ::CloseHandle(h);
    return s;
}
}  // namespace

double LinuxProzessorzeit(const std::string& text) {
    // Other prefixes on the machine run programs and servers of the same names.
    char prefix[1024] = {};
    ::GetEnvironmentVariableA("WINEPREFIX", prefix, sizeof prefix);
    const std::string eigenes = std::string("WINEPREFIX=") + prefix + '\0';
    WIN32_FIND_DATAA fd;
    const HANDLE h = ::FindFirstFileA("Z:\\proc\\*", &fd);
    if (h == INVALID_HANDLE_VALUE) return 0;
    double sekunden = 0;
    do {
        if (!(fd.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || fd.cFileName[0] < '0' || fd.cFileName[0] > '9')
            continue;
        const std::string ordner = std::string("Z:\\proc\\") + fd.cFileName;
        std::string zeile = Lesen(ordner + "\\cmdline");
        for (char& c : zeile)
            if (c == '\0') c = ' ';
        if (zeile.find(text) == std::string::npos) continue;
        if (Lesen(ordner + "\\environ").find(eigenes) == std::string::npos) continue;
        // utime and stime are the 14th and 15th fields; the name in brackets may hold blanks.
        const std::string stat = Lesen(ordner + "\\stat");
        const auto klammer = stat.rfind(')');
        if (klammer == std::string::npos) continue;
        unsigned long long utime = 0, stime = 0;
        if (std::sscanf(stat.c_str() + klammer + 1, " %*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %llu %llu", &utime,
                        &stime) == 2)
            sekunden += static_cast<double>(utime + stime) / 100.0;
    } while (::FindNextFileA(h, &fd));
    ::FindClose(h);
    return sekunden;
}

}  // namespace kes::bench
