// The first process baseline: when the assistant takes the machine as it stands, every
// running process goes into daten\prozesse.txt with the path it was found at.
#pragma once

namespace kes {

class Programm;

// Writes daten\prozesse.txt anew from the program's process table, refilled for it. The
// three pseudo processes of the system are left out; a process whose path stays unknown
// gets a line ending in "#".
void ErstemalAnzeigen(Programm& prg);

}  // namespace kes
