// What the control panel reaches besides its own controls and the watchers: the settings,
// the tray host's switch and menu, and the way out of the program. The program above
// implements it.
#pragma once

#include "watchers/kontext.h"

namespace kes {

class PanelKontext : public virtual WächterKontext {
public:
    // Properties_Save.
    virtual void EinstellungenSpeichern() = 0;
    // The check of the tray menu's entry "Autostart", a mirror of the Run value.
    virtual void AutostartHaken(bool an) = 0;
    // Monitoring on: tray icon, cycle on, the panel hidden.
    virtual void Aktiviert() = 0;
    // Unloads the panel, which is the way out of the program (the reset flag says how).
    virtual void AlarmSchliessen() = 0;
};

}  // namespace kes
