// Text helpers for ANSI (Windows-1252) bytes: case folding as the system does it for the
// program's compares, and number formatting with the user's separators.
#pragma once

#include <string>

namespace kes {

// LCase/UCase of the ANSI code page: ASCII letters and the accented letters of Windows-1252.
std::string Klein(std::string s);
std::string Gross(std::string s);
bool GleichOhneFall(const std::string& a, const std::string& b);

// Format(zahl, "#,##0"), Format(zahl, "0.00") and the like: ganzzahl groups thousands,
// nachkomma gives fixed decimals (rounded half away from zero).
std::string FormatGruppiert(double zahl, char tausender);
std::string FormatFest(double zahl, int nachkomma, char dezimal);

}  // namespace kes
