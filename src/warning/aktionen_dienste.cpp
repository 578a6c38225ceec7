// The menu behind "Übernehmen" of a service warning: trust the maker of its file from now
// on, or know this one service. Either way the warning is settled and closes.
#include <algorithm>

#include "common/fehler.h"

#include "warning/antwort.h"
#include "warning/form3.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// The first section of 1..200 whose "Dienst" is empty. With all taken the last one is
// written over: this writer, unlike those of the class lists, stops at 200.
int FreierDienstAbschnitt(const Grundliste& dienste) {
    return std::min(dienste.FreierAbschnitt("Dienst"), 200);
}
}  // namespace

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
