#include "warning/vertrauenswuerdige_seiten_warnung.h"

#include "platform/hive_ocx.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
constexpr const char* kZoneMap = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
}  // namespace

namespace übernehmen {
bool ToolBar(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.ListView12.Add(Feld(f, 0)).SmallIcon = 1;
    a.vertrauenswürdigeSeiten.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {

void ToolBar(Form3Fenster& f) {
    // The command's /v also takes a value of the domain's name beside the keys.
    const std::string domains(kZoneMap, std::char_traits<char>::length(kZoneMap) - 1);
    VorherSichern(f, {{kHkeyLocalMachine, kZoneMap + Feld(f, 0)}}, {{kHkeyLocalMachine, domains, Feld(f, 0)}});
    RegDeleteStarten(f, "HKLM\\" + std::string(kZoneMap), Feld(f, 0), "/v/f");
    HiveOCX(f.K().P().registry).DeleteKeyTree(static_cast<std::int32_t>(0x80000002u), kZoneMap + Feld(f, 0));
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)},
              "< gelöscht OK >\"");
}

void ToolBar1(Form3Fenster& f) {
    VorherSichern(f, {{kHkeyCurrentUser, kZoneMap + Feld(f, 0)}});
    RegDeleteStarten(f, "HKCU\\" + std::string(kZoneMap), Feld(f, 0));
    HiveOCX(f.K().P().registry).DeleteKeyTree(static_cast<std::int32_t>(0x80000001u), kZoneMap + Feld(f, 0));
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)},
              "< gelöscht OK >\"");
}

}  // namespace entfernen

}  // namespace kes
