// The module Prozesse1: the table of running processes with their loaded modules and
// paths, taken from tool-help snapshots, and the end of a process. The process watcher,
// the first-run baseline and the kill action of the warning work on its table.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

struct ProcessRecord {
    std::string Name;  // the snapshot's file name
    std::string Path;  // worked out by ProzessPfad; may be empty
    std::int32_t ProcessId = 0;
    std::int32_t ParentId = 0;
    bool Alive = false;
    std::int32_t ThreadCount = 0;
    std::vector<std::string> ModuleNames;
    std::vector<std::string> ModulePaths;
    // One below the number of stored modules: readers go from 1 to ModuleCount, so the
    // first stored module is never shown, and -1 means no modules.
    std::int32_t ModuleCount = 0;
    // When the process was created, as the table's fill asked it; 0 when it could not be
    // asked. With the id it tells one process from a later one under the same id.
    std::uint64_t Erstellt = 0;
};

// The three entries of the system's own that no baseline holds: "[System Process]",
// "System" and "System Idle Process", compared with case.
bool IstSystemProzess(const std::string& name);
// A path the table could not work out, looked for where the system keeps its programs: the
// system folder, its "wbem" folder, then the Windows folder (the special folders 37 and 36).
// A path that is there already stays.
void PfadSuchen(Plattform& p, ProcessRecord& r);

// The system folder as GetSystemDirectoryA gives it.
std::string SystemVerzeichnis(Plattform& p);
// The short form of a path (GetShortPathNameA, 260 characters); empty when it is missing.
std::string KurzerPfad(Plattform& p, const std::string& pfad);
// Ends the process. When the system refuses, asks whether to open the task manager's
// process page, and opens it on yes. True only when the process was ended.
bool ProzessBeenden(Plattform& p, std::uint32_t processId);

class Prozesse1 {
public:
    explicit Prozesse1(Plattform& p) : p_(p) {}

    std::vector<ProcessRecord> Prozesse;  // the process table
    std::int32_t ProzessAnzahl = -1;      // the last index of the table
    std::int32_t ModulZähler = 0;         // modules seen since it was last set to 0

    // Sets ProzessAnzahl to the last index of a fresh snapshot.
    void ProzesseZaehlen();
    // Fills the table from a second snapshot; entries beyond the new count are cut, the
    // others overwritten field by field. A process seen by the last fill under the same id
    // and creation time keeps the modules and path that fill found, without a walk: a
    // module it loaded since is seen by ModuleHolen, which always walks.
    void ProzesseHolen();
    // The modules of one process, the program file passed over. count ends one below the
    // number stored: -1 for a process with only its program file or a failed walk, and 0
    // for process 0, which is not walked.
    void ModuleHolen(std::uint32_t processId, std::vector<std::string>& names, std::vector<std::string>& paths,
                     std::int32_t& count);
    // The module's file in upper case, "\SystemRoot\System32" put as the system folder and
    // any prefix before the drive dropped; when the process cannot be asked, the system
    // folder's file of that name if there is one.
    std::string ProzessPfad(std::uint32_t processId, std::uintptr_t module, const std::string& name);

private:
    // The two above on a process already opened for query and read (kKeinHandle when it
    // refused): the table opens each process once for all its modules.
    // The snapshot is closed on return; pumpen counts the rounds whose window messages the
    // caller lets run once the process is closed too.
    void ModuleHolen(std::uint32_t processId, ProzessHandle prozess, std::vector<std::string>& names,
                     std::vector<std::string>& paths, std::int32_t& count, int& pumpen);
    std::string Pfad(ProzessHandle prozess, std::uintptr_t module, const std::string& name);
    void Nachholen(int pumpen);

    // What the last fill walked of each process it could ask for its creation time.
    struct Gesehen {
        std::uint64_t erstellt = 0;
        ProcessRecord daten;
        std::int32_t module = 0;  // what the walk added to ModulZähler
    };
    // Fills r's modules and path from the last fill; false when r must be walked.
    bool Wiederholen(ProcessRecord& r, std::uint64_t erstellt);
    std::map<std::int32_t, Gesehen> gesehen_;

    Plattform& p_;
};

}  // namespace kes
