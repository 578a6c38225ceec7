#include "core/logdatei.h"

#include "common/eigene_orte.h"
#include "common/fehler.h"

#include "core/programm.h"
#include "platform/allefunktionen.h"
#include "platform/datei_ersetzen.h"

namespace kes {

std::string LogkopfBilden(const std::string& datum, const std::string& zeit) {
    return "\r\n========== " + datum + " ===== " + zeit + " ================\r\n";
}

void LogEintrag(Programm& prg, const std::string& titel, const std::vector<std::string>& zeilen,
                const std::string& ergebnis) {
    AlarmFenster& alarm = prg.Alarm();
    if (alarm.Box1[2].value() != 1) return;
    std::string eintrag = prg.Logkopf + titel + "\r\n";
    for (const auto& z : zeilen) eintrag += z + "\r\n";
    eintrag += ergebnis;
    alarm.Text2.Text = alarm.Text2.Text + "\r\n" + eintrag;
    // No handling of its own: a log that cannot be written goes to the caller's error exit.
    if (!DateiErsetzen(prg.p.files, prg.Programmordner + kLogdatei, alarm.Text2.Text + "\r\n"))
        throw Fehler(kFehlerDateizugriff, "Pfad/Datei-Zugriffsfehler");
}

void LogVorbereiten(Programm& prg) {
    AlarmFenster& alarm = prg.Alarm();
    const std::string pfad = prg.Programmordner + kLogdatei;
    if (alarm.Box1[3].value() == 1) {
        prg.p.files.Delete(pfad);
        return;
    }
    const auto inhalt = prg.p.files.ReadAll(pfad);
    if (!inhalt) return;
    for (const auto& zeile : ZeilenLesen(*inhalt)) alarm.Text2.Text += zeile + "\r\n";
}

}  // namespace kes
