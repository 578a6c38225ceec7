// The settings file kestrella.dat beside the program: one property bag with the options,
// the interval stage, the saved hosts size and the saved start pages.
#pragma once

namespace kes {

class Programm;
class PropertyBag;

// Reads the file and runs the second stage of start-up; without the file, the assistant.
void Properties_Load(Programm& prg);
// Writes the current values; errors in the write are passed over.
void Properties_Save(Programm& prg);

}  // namespace kes
