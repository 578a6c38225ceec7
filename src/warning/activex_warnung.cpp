#include "warning/activex_warnung.h"

#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace übernehmen {
bool ActiveX(Form3Fenster& f) {
    f.K().Alarm().List6.Items.push_back(f.Zeile2());
    f.K().Log("Neue ActiveX wurde erstellt.", {"Datei: " + f.Zeile2()}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void ActiveX(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Neue ActiveX wurde erstellt.", {"Datei: " + f.Zeile2()}, ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}
}  // namespace entfernen

}  // namespace kes
