// The answers of a dial-up warning. "Mehr Infos" is a menu with the entry's edit dialog and
// the folder of network connections; the warning stays open in both cases.
#include "warning/dfue_warnung.h"

#include "platform/allefunktionen.h"
#include "platform/dfue.h"
#include "warning/form3.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace übernehmen {
bool DFÜ(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.ListView2.Add(Feld(f, 0)).SetSubItem(1, Feld(f, 1));
    a.ListView2.Sortieren();  // the file is written in the order the list shows
    a.dfü.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + Feld(f, 0) + "   Nummer: " + Feld(f, 1)}, kOk);
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void DFÜ(Form3Fenster& f) {
    const bool ok = f.K().P().dialup.DeleteEntry(Feld(f, 0)) == 0;
    if (!ok)
        f.K().P().dialogs.ShowMessage(
            "DFÜ-Verbindung konnte nicht gelöscht werden.\r\n" + Feld(f, 0) + " Nummer: " + Feld(f, 1), "Achtung!",
            kMbOk | kMbSystemModal);
    f.K().Log("DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + Feld(f, 0) + "   Nummer: " + Feld(f, 1)},
              ok ? "< Gelöscht OK >" : "< Gelöscht NEIN >");
}
}  // namespace entfernen

namespace weitere {
void DFÜMenü(Form3Fenster& f) {
    f.Popup = PopupWunsch{"dfü", 1, false, 0};
}
}  // namespace weitere

void Form3Fenster::dfü1_Click(int index) {
    // Whatever opens must come to the front.
    ImmerOben(*this, false);
    Plattform& p = k_.P();
    if (index == 0) {
        // Over the warning, which stays open.
        DFUBearbeiten(p, Text1[0].Text, hWnd);
    } else if (index == 1) {
        p.shell.RunCommand(std::string("rundll32.exe shell32.dll,") + "Control_RunDLL ncpa.cpl", kSwShowNormal);
    }
}

}  // namespace kes
