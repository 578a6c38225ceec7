#include "warning/geplante_aufgaben_warnung.h"

#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
AufgabenEintrag Eintrag(const Form3Fenster& f) {
    return {Feld(f, 0), Feld(f, 1)};
}

std::vector<std::string> Logzeilen(const AufgabenEintrag& e) {
    return {"Name: " + e.pfad, "Pfad: " + e.befehl};
}
}  // namespace

namespace übernehmen {
bool GeplanteAufgabe(Form3Fenster& f) {
    const AufgabenEintrag e = Eintrag(f);
    f.K().Alarm().geplanteAufgaben.Übernehmen(e.Zeile());
    f.K().Log(kGeplanteAufgabenÜberschrift, Logzeilen(e), kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void GeplanteAufgabe(Form3Fenster& f) {
    const AufgabenEintrag e = Eintrag(f);
    const bool ok = DateiEntfernen(f, e.pfad);
    f.K().Log(kGeplanteAufgabenÜberschrift, Logzeilen(e), ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}
}  // namespace entfernen

}  // namespace kes
