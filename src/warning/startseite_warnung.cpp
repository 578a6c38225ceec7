// The answers of a start page warning: the new value taken as the saved one, or the saved
// one written back ("Original").
#include "warning/startseite_warnung.h"

#include <cmath>
#include <cstdlib>

#include "common/fehler.h"
#include "platform/hive_ocx.h"
#include "warning/antwort.h"
#include "warning/fehlerausgang.h"
#include "warning/form3.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"
#include "watchers/startseite.h"

namespace kes {

namespace {
// The numeric value of a text rounded to a 16-bit integer, halves to the even number.
int Index16(const std::string& text) {
    const double zahl = std::nearbyint(std::strtod(text.c_str(), nullptr));
    if (zahl < -32768 || zahl > 32767) throw Fehler(6, "Überlauf");
    return static_cast<int>(zahl);
}
}  // namespace

namespace übernehmen {
bool StartPage(Form3Fenster& f) {
    const int i = Index16(Feld(f, 5));
    if (i < 0 || i >= static_cast<int>(f.K().W().StartSeiten.size())) throw Fehler(kFehlerIndex, "Index außerhalb des gültigen Bereichs");
    f.K().W().StartSeiten[i] = Feld(f, 3);
    f.K().Log("IExplorer " + Feld(f, 2) + " wurde geändert.",
              {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 1) + "\\" + Feld(f, 2), "Wert: " + Feld(f, 3)}, kOk);
    f.K().Alarm().startSeite.LadeStartPage();
    return true;
}
}  // namespace übernehmen

namespace weitere {
void StartPageOriginal(Form3Fenster& f) {
    MitFehlerausgang(f, "Original", [&] {
        const int i = Index16(f.Text1[5].Text);
        if (i < 0 || i >= static_cast<int>(f.K().W().StartSeiten.size())) throw Fehler(kFehlerIndex, "Index außerhalb des gültigen Bereichs");
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
