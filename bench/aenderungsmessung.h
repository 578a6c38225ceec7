// What a change costs the cycle, and how long until it warns: a tick after a change against
// the raw listing of the changed place, and the delay from a change to its warning with the
// looks of the program's 250 ms timer on a clock of their own. For the cycle bench.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/programm.h"
#include "messreihe.h"

namespace kes::bench {

// What the measurements need of the bench: the program with every watcher on, a whole tick
// as its timer makes it, the acceptance of what a tick raised, and the raw listing of a row
// of the watcher table.
struct Zyklusbank {
    Programm& prg;
    int runden;
    std::function<void()> tick;
    std::function<void()> nachsehen;
    std::function<std::size_t(std::size_t zeile)> roh;
};

struct NachÄnderung {
    const char* name;
    Reihe tick, roh, hin, zurück;
    std::size_t zeilen = 0;  // the rows that name the place
    // Processor time: a tick after the change less an idle tick, and the raw listing.
    double tickCpu = 0, rohCpu = 0;
};

// A tick after the change and the tick after it is taken back (ändern(true), ändern(false)),
// in turns, against the raw listing of the place by every row that names it among its
// places: the enumeration the change makes necessary. The change must warn of nothing.
NachÄnderung TickNachÄnderung(Zyklusbank& b, const char* name, RegHandle root, const std::string& ort,
                              const std::function<void(bool)>& ändern);

struct Verzögerung {
    const char* name;
    Reihe ms;
    int ohne = 0;  // changes not warned of within 20 s
};

// From a change to its warning; each change comes at another moment between two looks.
// ändern(i, true) makes the i-th change, which must be new and warn; its warning is put off
// ("Später"), and ändern(i, false) takes it back, which warns of nothing.
Verzögerung BisZurWarnung(Zyklusbank& b, const char* name, const std::function<void(int, bool)>& ändern);

void Drucken(const std::vector<NachÄnderung>& änderungen, double leerMedian);
void Drucken(const std::vector<Verzögerung>& verzögerungen);

}  // namespace kes::bench
