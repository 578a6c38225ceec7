// What the first-run assistant reaches besides the watcher context: the control panel
// (touching it loads it with all its loaders), the monitoring switch of the tray host, the settings, and its own
// unloading. The program implements it.
#pragma once

#include <cstdint>

#include "watchers/kontext.h"

namespace kes {

class AlarmDaten;

class AssistentKontext : public virtual WächterKontext {
public:
    // Touching the panel loads it.
    virtual AlarmDaten& Alarm() = 0;
    virtual void Aktiviert() = 0;
    virtual void NichtAktiviert() = 0;
    // Properties_Save.
    virtual void EinstellungenSpeichern() = 0;
    // Shows the panel, which opens on page 0: its sidebar entry "Option" is painted as chosen.
    virtual void AlarmZeigen() = 0;
    virtual void OptionMarkieren() = 0;
    // The interval field of page 0 shows the stage (setting its text runs its handler).
    virtual void StufeZeigen(std::int16_t stufe) = 0;
    virtual void Form2Entladen() = 0;
};

}  // namespace kes
