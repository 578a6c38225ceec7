// The menu behind "Übernehmen" of a service warning: trust the maker of its file from now
// on, or know this one service. Either way the warning is settled and closes.
#include "common/fehler.h"
#include "platform/liste_schreiben.h"
#include "warning/form3.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// The first section of 1..200 whose "Dienst" is empty. With all taken the last one is
// written over: this writer, unlike those of the class lists, stops at 200.
int FreierDienstAbschnitt(Plattform& p, const std::string& datei) {
    for (int i = 1; i <= 200; ++i)
        if (p.profiles.GetString(std::to_string(i), "Dienst", "", datei, 255).empty()) return i;
    return 200;
}
}  // namespace

void Form3Fenster::dienst1_Click(int index) {
    try {
        Plattform& p = k_.P();
        AlarmDaten& a = k_.Alarm();
        if (index == 0) {
            a.List10.Items.push_back(ListView1.Items.empty() ? std::string() : ListView1.Items[0].SubItem(1));
            ListeSchreiben(p, k_.W().Programmordner, "daten\\dienstefirmen.txt", a.List10.Items);
        } else if (index == 1) {
            const std::string datei = k_.W().Programmordner + "daten\\dienste.ini";
            const std::string abschnitt = std::to_string(FreierDienstAbschnitt(p, datei));
            // The display name goes to "ObjectName" and the account to "DisplayName": the
            // file's keys are crossed, and its readers cross them back.
            p.profiles.WriteString(abschnitt, std::string("Dienst"), Text1[0].Text, datei);
            p.profiles.WriteString(abschnitt, std::string("ObjectName"), Text1[1].Text, datei);
            p.profiles.WriteString(abschnitt, std::string("DisplayName"), Text1[2].Text, datei);
            p.profiles.WriteString(abschnitt, std::string("ImagePath"), Text1[3].Text, datei);
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
