// The module AlleDateien: the folder walk that the folder watchers build their lists from,
// the expansion of paths as the registry writes them, and the auto-size of report columns.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

// One file found by the walk.
struct DateiEintrag {
    std::string Ordner;          // the folder with its closing "\"
    std::string Kurzname;        // the 8.3 name; the long name when the file system gives none
    std::string Name;            // the long name
    std::uint64_t Erstellt = 0;  // FILETIME, UTC, as the walk gives it
    std::uint64_t Zugriff = 0;
    std::uint64_t Geschrieben = 0;
    std::uint32_t Grösse = 0;      // the low 32 bits of the length only
    std::uint32_t GrösseHoch = 0;  // the high 32 bits, which Grösse leaves out
    std::uint32_t Attribute = 0;
};

// Appends a record for every file of the folder that matches the filter, and, with
// recurse, of every folder below it, depth first in the order of the file system. A
// folder that cannot be opened adds nothing; the caller starts from an empty array.
void DateienSuchen(Plattform& p, const std::string& ordner, bool recurse, const std::string& filter,
                   std::vector<DateiEintrag>& records);

// Lowers the caller's text in place, then puts the Windows folder (in its own case) for a
// leading "%systemroot%", "\systemroot" or "%windir%". Other variables stay as they are.
std::string PfadErweitern(std::string& pfad, const std::string& windowsordner);

// The window side of a report list, which the Win32 view of a list provides: its view
// mode, its column count, and the message that sets a column's width.
class ListenFenster {
public:
    virtual ~ListenFenster() = default;
    virtual int View() const = 0;  // 3: report
    virtual int ColumnCount() const = 0;
    virtual long SendMessage(unsigned message, std::intptr_t wParam, std::intptr_t lParam) = 0;
};

inline constexpr unsigned kLvmSetColumnWidth = 4126;
inline constexpr int kBreiteNachInhalt = -2;  // as wide as header and content ask for

// Sets the width of the 1-based column, only in report view and for a column that exists.
void SpalteAnpassen(ListenFenster& liste, int spalte, int breite);
// Every column.
void SpaltenAnpassen(ListenFenster& liste, int breite);

}  // namespace kes
