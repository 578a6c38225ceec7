// The answers of the warning window that belong to the process watcher: the accept menu
// of a new process and "Kill Prozess".
#include "warning/prozesse_warnung.h"

#include <cstdlib>

#include "platform/prozesse1.h"
#include "warning/antwort.h"
#include "warning/fehlerausgang.h"
#include "warning/form3.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// Val: blanks skipped, then a sign and the digits up to the first other character.
long long Zahlwert(const std::string& text) {
    return std::strtoll(text.c_str(), nullptr, 10);
}

const std::string kProzessTitel = "Neuer Prozess im Speicher gefunden.";
}  // namespace

namespace übernehmen {
bool Prozesse(Form3Fenster& f) {
    f.killprozess1[0].Caption = "\"" + f.Zeile2() + "\" immer zulassen";
    const std::string hersteller = f.ListView1.Items.empty() ? "" : f.ListView1.Items[0].SubItem(1);
    f.killprozess1[1].Caption = "Hersteller: \"" + hersteller + "\" immer zulassen.";
    f.killprozess1[1].Enabled = hersteller != "Unbekannt";
    f.Popup = PopupWunsch{"killprozess", f.killprozess1[1].Enabled ? 1 : 0, false, 0};
    return false;  // the window stays open for the menu
}
}  // namespace übernehmen

namespace später {
std::string Zeile1(const Form3Fenster& f) {
    return f.ListView2.Items.empty() ? std::string() : f.ListView2.Items[0].Text;
}
}  // namespace später

namespace weitere {

void ProzessTöten(Form3Fenster& f) {
    MitFehlerausgang(f, "Kill Prozess", [&] {
        const std::string id = f.ListView1.Items.size() >= 5 ? f.ListView1.Items[4].SubItem(3) : std::string();
        const bool beendet = ProzessBeenden(f.K().P(), static_cast<std::uint32_t>(Zahlwert(id)));
        // The baseline stays: the same program, started again, warns again.
        f.K().Log(kProzessTitel, {"Prozess: " + f.Zeile2()},
                  beendet ? "< Prozess beendet OK >" : "< Prozess beendet NEIN >");
        f.raus();
    });
}

void ProzessZulassen(Form3Fenster& f, int index) {
    MitFehlerausgang(f, "Übernehmen", [&] {
        AlarmDaten& a = f.K().Alarm();
        if (index == 0) {
            a.ListView6.Add(später::Zeile1(f)).SetSubItem(1, f.Zeile2());
            a.prozesse.basis.Speichern();
        } else if (index == 1) {
            a.List1.Items.push_back(f.ListView1.Items.empty() ? std::string() : f.ListView1.Items[0].SubItem(1));
            a.prozesse.firmen.Speichern();
        } else if (index == 2) {
            // This run only: nothing stores it.
            a.List2.Items.push_back(später::Zeile1(f));
        }
        f.K().Log(kProzessTitel, {"Prozess: " + f.Zeile2()}, "< ÜBERNAHME OK >");
        f.raus();
    });
}

}  // namespace weitere

void Form3Fenster::killprozess1_Click(int index) {
    Antwort antwort(*this, killprozess1[static_cast<std::size_t>(index < 0 || index > 2 ? 0 : index)].Caption);
    weitere::ProzessZulassen(*this, index);
}

}  // namespace kes
