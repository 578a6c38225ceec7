// The answers of the warning window that belong to the process and start page watchers:
// "Kill Prozess", the accept menu of a new process, and "Original" for a start page.
#include <cmath>
#include <cstdlib>

#include "common/fehler.h"
#include "platform/hive_ocx.h"
#include "platform/prozesse1.h"
#include "warning/aktionen.h"
#include "warning/antwort.h"
#include "warning/fehlerausgang.h"
#include "warning/form3.h"
#include "watchers/alarm_daten.h"
#include "watchers/startseite.h"

namespace kes {

namespace {
// Val: blanks skipped, then a sign and the digits up to the first other character.
long long Zahlwert(const std::string& text) {
    return std::strtoll(text.c_str(), nullptr, 10);
}

// The numeric value of a text rounded to a 16-bit integer, halves to the even number.
int Index16(const std::string& text) {
    const double zahl = std::nearbyint(std::strtod(text.c_str(), nullptr));
    if (zahl < -32768 || zahl > 32767) throw Fehler(6, "Überlauf");
    return static_cast<int>(zahl);
}

std::string Zeile1(const Form3Fenster& f) {
    return f.ListView2.Items.empty() ? std::string() : f.ListView2.Items[0].Text;
}

const std::string kProzessTitel = "Neuer Prozess im Speicher gefunden.";
}  // namespace

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
            a.ListView6.Add(Zeile1(f)).SetSubItem(1, f.Zeile2());
            a.prozesse.basis.Speichern();
        } else if (index == 1) {
            a.List1.Items.push_back(f.ListView1.Items.empty() ? std::string() : f.ListView1.Items[0].SubItem(1));
            a.prozesse.firmen.Speichern();
        } else if (index == 2) {
            // This run only: nothing stores it.
            a.List2.Items.push_back(Zeile1(f));
        }
        f.K().Log(kProzessTitel, {"Prozess: " + f.Zeile2()}, "< ÜBERNAHME OK >");
        f.raus();
    });
}

void StartPageOriginal(Form3Fenster& f) {
    MitFehlerausgang(f, "Original", [&] {
        const int i = Index16(f.Text1[5].Text);
        if (i < 0 || i >= 21) throw Fehler(kFehlerIndex, "Index außerhalb des gültigen Bereichs");
        const std::string& gespeichert = f.K().W().StartSeiten[static_cast<std::size_t>(i)];
        const int hive = StartSeitenHive(f.Text1[0].Text);
        if (hive > 0) {
            Sicherung s = SicherungFür(f);
            s.Wert(HandleVonHive(hive), f.Text1[1].Text, f.Text1[2].Text);
            Sichern(f, s);
        }
        if (hive > 0) StartSeiteSchreiben(f.K().P(), hive, f.Text1[1].Text, f.Text1[2].Text, gespeichert);
        f.K().Log("IExplorer " + f.Text1[2].Text + " wurde geändert.",
                  {"Registry: " + f.Text1[0].Text + "\\" + f.Text1[1].Text + "\\" + f.Text1[2].Text,
                   "Wert: " + f.Text1[3].Text},
                  "< Zurückgesetzt OK > auf " + gespeichert);
        f.raus();
    });
}

}  // namespace weitere

}  // namespace kes
