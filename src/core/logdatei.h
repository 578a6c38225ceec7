// The log: the text box Text2 of the control panel is the master, and Kestrella.log beside
// the program is rewritten whole from it at every entry.
#pragma once

#include <string>
#include <vector>

namespace kes {

class Programm;

// Writes one entry (header, title, label lines, result) if Box1(2) is on. A file that
// cannot be written throws Fehler 75 for the caller's error exit.
void LogEintrag(Programm& prg, const std::string& titel, const std::vector<std::string>& zeilen,
                const std::string& ergebnis);
// At the end of the second stage: delete the log (Box1(3)) or load it into Text2.
void LogVorbereiten(Programm& prg);
// Builds the run header, once per run, from the moment of the start.
std::string LogkopfBilden(const std::string& datum, const std::string& zeit);

}  // namespace kes
