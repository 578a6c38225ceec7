// What a running program costs, seen from outside the way a task manager sees it: the
// processor time of the process (GetProcessTimes) over a span, as a share of one core,
// and its peak working set (GetProcessMemoryInfo).
#pragma once

#include <cstddef>
#include <string>

namespace kes::bench {

class FremderProzess {
public:
    // Starts commandLine in folder; Läuft() tells whether that worked.
    FremderProzess(const std::string& commandLine, const std::string& ordner);
    ~FremderProzess();  // ends the process
    FremderProzess(const FremderProzess&) = delete;
    FremderProzess& operator=(const FremderProzess&) = delete;

    bool Läuft() const;
    // User plus kernel time so far, in seconds.
    double Prozessorzeit() const;
    std::size_t SpitzeArbeitsspeicher() const;

private:
    void* prozess_ = nullptr;
};

// Processor time, in seconds, of the Linux processes whose command line holds text, as
// /proc tells it through drive Z:. Under Wine, GetProcessTimes of another process answers
// 0, and the registry and file calls are served by the wineserver, whose time is its own.
double LinuxProzessorzeit(const std::string& text);

}  // namespace kes::bench
