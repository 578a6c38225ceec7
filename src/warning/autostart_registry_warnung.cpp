#include "warning/autostart_registry_warnung.h"

#include "warning/form3.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace übernehmen {
bool AutostartRegistry(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    const ListItem& z = ErsteRegistryzeile(f);
    a.ListView1.Add(z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4)).SmallIcon = 26;
    // The log quotes the last row printed, which need not be the new one.
    const std::string letzte = a.autostartRegistry.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("Neuer Eintrag in der Registry Autostart.", {"Registry: " + letzte, "Wert: " + Feld(f, 4)}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void AutostartRegistry(Form3Fenster& f) {
    const bool ok = f.RegistryLöschenValue(Feld(f, 1), Feld(f, 2), Feld(f, 3), Feld(f, 4));
    f.K().Log("Neuer Eintrag in der Registry Autostart.",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 4)},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}
}  // namespace entfernen

namespace später {
std::string Registryzeile(const Form3Fenster& f) {
    if (f.ListView4.Items.empty()) return "\\\\";
    const ListItem& z = f.ListView4.Items[0];
    return z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3);
}
}  // namespace später

}  // namespace kes
