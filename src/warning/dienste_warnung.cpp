// The answers of a service warning. "Übernehmen" opens a menu: trust the maker of its file
// from now on, or know this one service; either way the warning is settled and closes.
#include "warning/dienste_warnung.h"

#include <algorithm>

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "warning/antwort.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
const char* kDiensteFrage =
    "Das Ändern der Standardeinstellungen für Dienste führt möglicherweise dazu,\r\n"
    "dass Schlüsseldienste nicht mehr korrekt ausgeführt werden.\r\n"
    "Beim Ändern der Einstellungen für Starttyp und Anmelden als für Dienste, die für den automatischen Start "
    "konfiguriert sind,\r\n"
    "müssen Sie besonders sorgfältig vorgehen.\r\n"
    "Nur wenn sie sich sicher sind, das es ein Hijacker, Trojaner oder Viren sind. Sollten sie den Dienst löschen.";

// The first section of 1..200 whose "Dienst" is empty. With all taken the last one is
// written over: this writer, unlike those of the class lists, stops at 200.
int FreierDienstAbschnitt(const Grundliste& dienste) {
    return std::min(dienste.FreierAbschnitt("Dienst"), 200);
}
}  // namespace

namespace übernehmen {
bool Dienste(Form3Fenster& f) {
    f.dienst1[1].Caption = "Dienst: \"" + Feld(f, 0) + "\" immer zulassen";
    f.dienst1[0].Caption = "Hersteller: \"" +
                           (f.ListView1.Items.empty() ? std::string() : f.ListView1.Items[0].SubItem(1)) +
                           "\" immer zulassen";
    f.Popup = PopupWunsch{"dienst", 0, false, 0};
    return false;  // the window stays open for the menu
}
}  // namespace übernehmen

namespace entfernen {
void Dienste(Form3Fenster& f) {
    if (f.K().P().dialogs.ShowMessage(kDiensteFrage, "Kestrella Info!", kMbYesNo) != kIdYes) return;
    VorherSichern(f, {{kHkeyLocalMachine, "SYSTEM\\CurrentControlSet\\Services\\" + Feld(f, 0)}});
    RegDeleteStarten(f, "HKLM\\SYSTEM\\CurrentControlSet\\Services\\", Feld(f, 0));
    f.K().Log("Neuer Dienst wurde erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 3)}, "< Gelöscht OK >");
}
}  // namespace entfernen

namespace weitere {
void DiensteÖffnen(Form3Fenster& f) {
    ImmerOben(f, false);
    f.K().P().shell.RunCommand("mmc.exe " + f.K().W().Windowsordner + "\\system32\\services.msc", kSwShowNormal);
}
}  // namespace weitere

void Form3Fenster::dienst1_Click(int index) {
    Antwort antwort(*this, dienst1[static_cast<std::size_t>(index == 1)].Caption);
    try {
        AlarmDaten& a = k_.Alarm();
        if (index == 0) {
            a.List10.Items.push_back(ListView1.Items.empty() ? std::string() : ListView1.Items[0].SubItem(1));
            a.dienste.firmen.Speichern();
        } else if (index == 1) {
            const Grundliste& dienste = a.dienste.basis;
            const std::string abschnitt = std::to_string(FreierDienstAbschnitt(dienste));
            // The display name goes to "ObjectName" and the account to "DisplayName": the
            // file's keys are crossed, and its readers cross them back.
            dienste.Schreiben(abschnitt, "Dienst", Text1[0].Text);
            dienste.Schreiben(abschnitt, "ObjectName", Text1[1].Text);
            dienste.Schreiben(abschnitt, "DisplayName", Text1[2].Text);
            dienste.Schreiben(abschnitt, "ImagePath", Text1[3].Text);
            a.dienste.LadeDienste();
        }
        k_.Log("Neuer Dienst wurde erstellt.", {"Name: " + Text1[0].Text, "Datei: " + Text1[3].Text},
               "< Übernommen OK >");
        raus();
    } catch (const Fehler& f) {
        k_.P().dialogs.ShowMessage("(Form3, dienst1) Fehler: " + std::to_string(f.Nummer()), "", kMbOk);
    } catch (const std::exception&) {
        k_.P().dialogs.ShowMessage("(Form3, dienst1) Fehler: 5", "", kMbOk);
    }
}

}  // namespace kes
