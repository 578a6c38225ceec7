// The watcher table: one row for each watcher the control panel can switch on, in the order
// in which a tick of Timer1 runs them. Beyond its own files, a row is all the program knows
// of a watcher: its option box, the keys its warnings carry, its passes in the cycle, its
// loaders, the files the reset deletes, what the first-run assistant does for it, and the
// menus of the panel's lists that show its baselines. The cycle, the panel's load handler,
// the reset, the assistant, the panel's list menus and the benchmark all walk this table;
// none of them names a watcher.
#pragma once

#include <array>
#include <span>

#include "common/kategorie.h"
#include "common/werte.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/listenmenue.h"

namespace kes {

class AlarmDaten;
class WächterKontext;

// A pass of the cycle, a loader: the watcher reached through the window that owns it.
using Wächterroutine = void (*)(AlarmDaten& a, Prozesswerte& w);
// The baseline the assistant takes from the machine as it stands; Alarm is not loaded yet.
using Erstaufnahme = void (*)(WächterKontext& k);

// An option box of the panel with its caption.
struct Option {
    int box = -1;
    const char* beschriftung = nullptr;
};

// A file the reset deletes, with its place in the order in which the reset deletes; the
// program's own files have places among them.
struct Rücksetzdatei {
    int rang = 0;
    const char* datei = nullptr;  // below the program folder
};

struct WächterZeile {
    const char* name = nullptr;     // what it watches, for the benchmark's rows
    int box = -1;                   // the option box of Alarm that switches it on
    const char* beschriftung = "";  // its caption on the panel
    // The boxes of its own options, which it asks itself.
    std::array<Option, 3> optionen{};
    // The keys its warnings carry, and the ones its passes set to tell them apart.
    std::array<Kategorie, 3> kategorien{};
    // Its passes, each run only while the busy flag is false and the box is 1, both asked
    // anew before every pass.
    std::array<Wächterroutine, 2> zyklus{};
    // Window messages run after the row, whether it ran or not.
    bool danachPumpen = false;
    // Its loaders, run by the panel's load handler in table order.
    std::array<Wächterroutine, 3> laden{};
    // Runs when the user clicks its box, in place of saving the settings.
    Wächterroutine beimKlick = nullptr;
    std::array<Rücksetzdatei, 2> zurücksetzen{};
    // "Alle Werte des Systems übernehmen" takes this baseline and switches the box on.
    Erstaufnahme erstaufnahme = nullptr;
    bool assistent = false;
    // The panel's lists that show its baselines and exceptions, with their menus.
    std::array<Listenmenü, 2> listen{};
    // The places it reads, whose change sources tell that it must walk again (its passes
    // see Unverändert) and bring the next tick at once; without them it walks at every tick
    // and waits for the stage.
    Änderungsorte (*orte)(AlarmDaten& a, Prozesswerte& w) = nullptr;
};

std::span<const WächterZeile> Wächtertabelle();

// The control of a panel list: its list box or its list view, the other null. The deferred
// list is the panel's own and in no row.
struct Listensteuerelement {
    ListBox* kasten = nullptr;
    ListView* ansicht = nullptr;
};
Listensteuerelement SteuerelementVon(AlarmDaten& a, Ausnahmeliste liste);

}  // namespace kes
