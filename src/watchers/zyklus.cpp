// The watch cycle: one tick of Timer1 of Alarm runs the passes of the watcher table from
// top to bottom. A pass runs only while the busy flag is false and its box is 1, both tested
// anew for each pass, so a watcher that raises a warning stops every pass after it.
#include "watchers/alarm_daten.h"
#include "watchers/waechter.h"

namespace kes {

void AlarmDaten::Durchlauf() {
    Prozesswerte& w = k_.W();
    if (w.Beschäftigt) return;
    const auto tabelle = Wächtertabelle();
    änderungen.TickBeginnt();
    for (std::size_t i = 0; i < tabelle.size(); ++i) {
        const WächterZeile& z = tabelle[i];
        w.Unverändert = z.orte && !Quellen(i, z);
        for (Wächterroutine pass : z.zyklus) {
            // The live value: a box changed during a pump takes effect at the next pass.
            if (!pass) continue;
            if (w.Beschäftigt || k_.Box(z.box) != 1) {
                // What this pass kept is older than the walk its row counts as done.
                if (z.orte) änderungen.Unvollständig(i);
                continue;
            }
            // A watcher catches its own errors; none may stop the passes after it.
            try {
                pass(*this, w);
            } catch (...) {
            }
        }
        w.Unverändert = false;
        if (z.danachPumpen) k_.Pumpen();
    }
    änderungen.TickEndet();
}

// Before a row's passes: its sources are armed while its box is on. True when the row
// must walk.
bool AlarmDaten::Quellen(std::size_t zeile, const WächterZeile& z) {
    Prozesswerte& w = k_.W();
    if (k_.Box(z.box) != 1) {
        änderungen.Entwaffnen(zeile);
        return true;
    }
    if (w.Beschäftigt) return true;
    try {
        return änderungen.MussLaufen(zeile, [&] { return z.orte(*this, w); });
    } catch (...) {
        // A place that cannot be named leaves the row walking as it did.
        return true;
    }
}

bool AlarmDaten::Gefeuert() {
    Prozesswerte& w = k_.W();
    const auto tabelle = Wächtertabelle();
    for (std::size_t i = 0; i < tabelle.size(); ++i) {
        const WächterZeile& z = tabelle[i];
        if (!z.orte || k_.Box(z.box) != 1) continue;
        try {
            änderungen.Vorbereiten(i, [&] { return z.orte(*this, w); });
        } catch (...) {
            // The row's first walk tries again.
        }
    }
    return änderungen.Gefeuert();
}

void AlarmDaten::Laden() {
    Prozesswerte& w = k_.W();
    for (const WächterZeile& z : Wächtertabelle())
        for (Wächterroutine lade : z.laden)
            if (lade) lade(*this, w);
}

}  // namespace kes
