#include "warning/favoriten_warnung.h"

#include "warning/form3.h"
#include "warning/loeschen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace übernehmen {
bool Favoriten(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.List4.Items.push_back(f.Label1[2].Caption);
    a.favoriten.basis.Speichern();
    f.K().Log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + f.Label1[1].Caption}, "< Favorit hinzugefügt OK >");
    return true;
}
}  // namespace übernehmen

namespace entfernen {
// The file of the warning, not its folder: a folder never goes by a file delete, and the
// favourite would stay and warn again.
void Favoriten(Form3Fenster& f) {
    const std::string pfad = FavoritenPfad(f);
    const bool ok = DateiEntfernen(f, pfad);
    f.K().Log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + pfad},
              ok ? "< Favorit gelöscht OK >" : "< Favorit gelöscht NEIN >");
}
}  // namespace entfernen

std::string FavoritenPfad(const Form3Fenster& f) {
    const std::string& ordner = f.Label1[1].Caption;
    return (ordner.empty() || ordner.back() == '\\' ? ordner : ordner + "\\") + f.Label1[2].Caption;
}

}  // namespace kes
