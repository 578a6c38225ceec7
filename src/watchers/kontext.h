// What a watcher may touch besides its own lists: the platform, the process-wide values,
// the live option boxes, the deferred list, and the program's ways to warn, to show a
// balloon and to log. The program above implements it; a watcher never reaches a window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "common/kategorie.h"
#include "common/werte.h"
#include "platform/prozesse1.h"
#include "platform/seam/plattform.h"

namespace kes {

struct Warnung;

// When a warning plays its sound: after the busy flag (most watchers), before it (the
// process watcher), or not at all (the ActiveX watcher).
enum class Ton { Nachher, Vorher, Keiner };

class WächterKontext {
public:
    virtual ~WächterKontext() = default;

    virtual Plattform& P() = 0;
    virtual Prozesswerte& W() = 0;
    // The live value of Box1(index): the cycle reads the boxes, never a snapshot of them.
    virtual std::int16_t Box(int index) = 0;
    // True when the key stands in the deferred list, compared whole and with case.
    virtual bool Später(const std::string& schlüssel) = 0;
    // Raises a warning: busy flag, Timer1 of Alarm off, the sound, the category key stored
    // before the window loads, the record filled, the window shown and centred. The window
    // shows even when filling fails halfway: the busy flag is set by then, and a warning
    // that never shows would stop the watch for the rest of the run.
    virtual void Warnen(Kategorie kategorie, const std::function<void(Warnung&)>& füllen, Ton ton = Ton::Nachher) = 0;
    // The balloon of the tray icon, with the caller's tip left on the icon; without an icon
    // name the icon stays empty until monitoring is switched next.
    virtual void Sprechblase(const std::string& titel, const std::string& text, const std::string& tip,
                             const std::string& icon = "") = 0;
    // One log entry (header, title, lines, result) if Box1(2) is on. A log that cannot be
    // written throws Fehler 75 for the caller's error exit.
    virtual void Log(const std::string& titel, const std::vector<std::string>& zeilen, const std::string& ergebnis) = 0;
    // The one process table of the run: the process watcher fills it at each pass, the kill
    // action reads what it found, and the first process baseline is taken from it. It is
    // not a part of Alarm, since the assistant fills it before Alarm may load.
    virtual Prozesse1& Prozesstabelle() = 0;
    // Lets pending window messages run.
    void Pumpen() { P().timers.PumpMessages(); }
};

}  // namespace kes
