// The window Alarm: the control panel as the user sees it, on top of its part as the owner
// of every watcher. Its load handler runs every loader in a fixed order; the tick of its
// Timer1 is one watch cycle.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/fenster.h"
#include "common/steuerelemente.h"
#include "panel/aufab.h"
#include "panel/panel_kontext.h"
#include "watchers/alarm_daten.h"

namespace kes {

class AlarmFenster : public Fenster, public AlarmDaten {
public:
    explicit AlarmFenster(PanelKontext& k);

    AufAb AufAb1;
    std::array<Label, 11> Label1;       // the sidebar entries
    std::array<PictureBox, 20> Frame1;  // the pages

    void Form_Load();
    void Timer1_Timer();
    void AufAb1_TextValue(std::int32_t& zahl);
    // The log buttons of the page "Aktuelle Einstellungen": 0 "Log-löschen", 1 "Log-öffnen".
    void Command2_Click(int index);

private:
    PanelKontext& k_;
};

// The version this release shows in the panel's caption.
inline constexpr int kVersionMajor = 2;
inline constexpr int kVersionMinor = 2;
inline constexpr int kVersionRevision = 0;

}  // namespace kes
