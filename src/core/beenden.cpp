// The one way out of the program, the query-unload handler of Alarm: a session that ends
// goes without a question, every other close asks, and a reset deletes the stored state and
// starts the program anew, which brings the assistant back.
#include <algorithm>
#include <vector>

#include "common/eigene_orte.h"
#include "core/programm.h"
#include "core/start.h"
#include "platform/allefunktionen.h"
#include "warning/form3.h"
#include "watchers/waechter.h"

namespace kes {

namespace {
// The files a reset deletes, in this order: the watchers' with the program's own among
// them. "daten\kestrella.log" never exists: the log beside the program survives a reset,
// as intended.
std::vector<Rücksetzdatei> Rücksetzdateien() {
    std::vector<Rücksetzdatei> dateien = {{11, "daten\\kestrella.log"}, {12, kEinstellungsdatei}};
    for (const WächterZeile& z : Wächtertabelle())
        for (const Rücksetzdatei& d : z.zurücksetzen)
            if (d.datei) dateien.push_back(d);
    std::sort(dateien.begin(), dateien.end(), [](const auto& a, const auto& b) { return a.rang < b.rang; });
    return dateien;
}

// Icon away, windows unloaded, and the cycle stopped, so that a tick under way behind the
// question runs no further watcher before the process ends.
void Schluss(Programm& prg) {
    prg.p.tray.Notify(kNimDelete, prg.Tray);
    prg.Form3Entladen();
    prg.Form1Entladen();
    prg.Beschäftigt = true;
    prg.Alarm().Timer1.SetEnabled(false);
    prg.Beenden = true;
}
}  // namespace

bool Alarm_Form_QueryUnload(Programm& prg_, int grund) {
    prg_.p.timers.PumpMessages();
    if (grund == kEntladenSitzungsende || grund == kEntladenTaskmanager) {
        Schluss(prg_);
        return false;
    }
    if (!prg_.Zurücksetzen) {
        if (prg_.p.dialogs.ShowMessage("Wollen sie die Überwachung beenden?", "Kestrella-Info!", kMbYesNo) == kIdYes) {
            Schluss(prg_);
            prg_.p.timers.PumpMessages();
            return false;
        }
        prg_.Alarm().Show();
        return true;
    }
    // Once asked for, the reset stays wanted: every later close asks this question again.
    if (prg_.p.dialogs.ShowMessage(
            "Wollen sie alle Einstellungen und Werte zurücksetzen ?\r\nDer Kestrella wird dann neugestartet.",
            "Achtung!!", kMbYesNo) != kIdYes) {
        prg_.Alarm().Show();
        return true;
    }
    for (const Rücksetzdatei& datei : Rücksetzdateien()) {
        const std::string pfad = prg_.Programmordner + datei.datei;
        if (!DateiVorhanden(prg_.p, pfad)) continue;
        const long fehler = prg_.p.files.Delete(pfad);
        if (fehler != 0) {
            // The reset stops at the first file that will not go, and says which.
            prg_.p.dialogs.ShowMessage(
                "Datei :" + pfad + "\r\nkonnte nicht gelöscht werden.\r\nFehler Nr: " + std::to_string(fehler), "",
                kMbOk);
            prg_.Alarm().Show();
            return true;
        }
    }
    prg_.p.tray.Notify(kNimDelete, prg_.Tray);
    prg_.p.timers.PumpMessages();
    Schluss(prg_);
    // Quoted: a program folder with blanks ("C:\Program Files\...") would otherwise split
    // the command line at its first blank, and the program would not come back.
    prg_.p.shell.RunCommand("\"" + prg_.Programmordner + "kestrella.exe\" /s", 2);
    prg_.p.timers.PumpMessages();
    return false;
}

void Programm::AlarmEntladen(int grund) {
    Alarm_Form_QueryUnload(*this, grund);
}

}  // namespace kes
