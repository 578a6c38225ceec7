// The program's own places besides the data folder, each named once: its one registry value,
// the autostart entry under the Run key of HKEY_CURRENT_USER (hive code 1), which holds the
// program folder and "Kestrella.exe /s"; and its settings file and log beside the program.
#pragma once

namespace kes {

inline constexpr const char* kRunSchlüssel = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* kRunWert = "Halvenik-Kestrella";

// Below the program folder, spelt as they are written.
inline constexpr const char* kEinstellungsdatei = "Kestrella.dat";
inline constexpr const char* kLogdatei = "Kestrella.log";

}  // namespace kes
