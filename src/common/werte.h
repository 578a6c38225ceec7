// The process-wide values: written in one place (Main, the settings, the watchers and
// actions that own them) and read everywhere. One instance lives as long as the program.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/kategorie.h"
#include "platform/seam/tray_api.h"

namespace kes {

struct Prozesswerte {
    std::string Programmordner;  // always ends in "\"
    std::string Windowsordner;   // no trailing "\"
    std::string Systemordner;    // no trailing "\"
    std::string SysWow64ordner;  // no trailing "\"; empty on a 32-bit Windows
    std::string Logkopf;
    std::int16_t Intervallstufe = 0;
    std::int16_t Soundflag = 0;
    bool Beschäftigt = false;                         // the busy flag: true stops the watch cycle
    Kategorie Kategorieschlüssel = Kategorie::Keine;  // the current category key
    std::int32_t Hostsgrösse = 0;
    std::array<std::string, 32> StartSeiten;
    bool AnzeigeLöschen = false;
    // A change source that fired brings the next tick of the cycle at once.
    bool Sofort = true;
    // Set by the cycle while a row runs whose places have not changed since its last walk:
    // its passes may take what that walk found instead of walking again.
    bool Unverändert = false;
    bool Zurücksetzen = false;
    // The tray record, reused for every call of the notification area.
    TrayRecord Tray;
};

}  // namespace kes
