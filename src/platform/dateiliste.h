// The file list control File1 of the control panel: a folder and the names of the files
// in it as such a control lists them by default, that is every file of the folder but the
// hidden and the system ones, without folders, sorted by name without regard to case.
// The autostart folder and favourites watchers point it at their folders in turn.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

struct FileListBox {
    std::string Path;                // the folder last set
    std::vector<std::string> Items;  // the file names, without the folder
};

// The file names of a folder as File1 lists them; nullopt when the folder does not exist.
std::optional<std::vector<std::string>> DateienListen(Plattform& p, const std::string& ordner);

// File1.Path = ordner: false (the runtime's error "path not found") when the folder does
// not exist, and the control keeps its old path then. The names follow at Aktualisieren.
bool PfadSetzen(Plattform& p, FileListBox& liste, const std::string& ordner);

// File1.Refresh: lists the folder of the current path anew; a folder gone since leaves
// the list empty.
void Aktualisieren(Plattform& p, FileListBox& liste);

}  // namespace kes
