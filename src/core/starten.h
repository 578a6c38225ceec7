// The way into the program: process-wide paths, the log header, the hidden window Start,
// the single-instance rule, and the first or delayed call of the second stage.
#pragma once

namespace kes {

class Programm;

// Returns false when the process must end at once (another instance runs).
bool Main(Programm& prg);

}  // namespace kes
