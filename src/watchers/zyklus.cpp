// The watch cycle: one tick of Timer1 of Alarm runs the passes of the watcher table from
// top to bottom. A pass runs only while the busy flag is false and its box is 1, both tested
// anew for each pass, so a watcher that raises a warning stops every pass after it.
#include "watchers/alarm_daten.h"
#include "watchers/waechter.h"

namespace kes {

void AlarmDaten::Durchlauf() {
    Prozesswerte& w = k_.W();
    if (w.Beschäftigt) return;
    for (const WächterZeile& z : Wächtertabelle()) {
        for (Wächterroutine pass : z.zyklus) {
            // The live value: a box changed during a pump takes effect at the next pass.
            if (!pass || w.Beschäftigt || k_.Box(z.box) != 1) continue;
            // A watcher catches its own errors; none may stop the passes after it.
            try {
                pass(*this, w);
            } catch (...) {
            }
        }
        if (z.danachPumpen) k_.Pumpen();
    }
}

void AlarmDaten::Laden() {
    Prozesswerte& w = k_.W();
    for (const WächterZeile& z : Wächtertabelle())
        for (Wächterroutine lade : z.laden)
            if (lade) lade(*this, w);
}

}  // namespace kes
