#include "warning/autostart_ordner_warnung.h"

#include "platform/allefunktionen.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace übernehmen {
bool AutostartOrdner(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    // The list holds bare file names and the watcher compares by name: a path added here
    // would never match, and the same file would be warned of again at every cycle.
    a.List3.Items.push_back(DateiName(f.Zeile2()));
    a.autostartOrdner.basis.Speichern();
    f.K().Log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + f.Zeile2()}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void AutostartOrdner(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + f.Zeile2()},
              ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}
}  // namespace entfernen

}  // namespace kes
