// The program's one registry value of its own: its autostart entry under the Run key of
// HKEY_CURRENT_USER (hive code 1), holding the program folder and "Kestrella.exe /s".
#pragma once

namespace kes {

inline constexpr const char* kRunSchlüssel = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* kRunWert = "Halvenik-Kestrella";

}  // namespace kes
