// The answers of a system folder warning. Besides accept and delete, "Ausnahmeliste" puts
// a created file on the exception list of the Windows folder for good, and "Na gut.."
// takes a deleted file out of the baseline, so it is no longer expected. A file of SysWOW64
// goes to and from that folder's baseline; any other to and from the Windows folder's.
#include "warning/systemordner_warnung.h"

#include <cstdlib>

#include "common/fehler.h"
#include "warning/form3.h"
#include "warning/loeschen.h"
#include "warning/uebernehmen.h"
#include "watchers/alarm_daten.h"

namespace kes {

namespace {
// A failure that is not passed over ends the action with its number; the window stays.
// Unlike the shared exit (fehlerausgang.h), a failure without a number is not caught here.
template <typename Tun>
void MitFehlerausgang(Form3Fenster& f, const char* routine, Tun&& tun) {
    try {
        tun();
    } catch (const Fehler& e) {
        f.K().P().dialogs.ShowMessage(std::string("(Form3, ") + routine + ") Fehler: " + std::to_string(e.Nummer()), "",
                                      kMbOk);
    }
}
}  // namespace

namespace übernehmen {
bool WindowsDatei(Form3Fenster& f) {
    const std::string pfad = f.Zeile2();
    ListView& basis = f.K().Alarm().windowsDateien.BasisVon(pfad);
    const std::string länge = std::to_string(DateiLänge(f, pfad));
    if (Feld(f, 3) == "1") {
        basis.Add(pfad).SetSubItem(1, länge);
        f.K().Log("Neue Datei wurde erstellt.", {"Datei: " + pfad}, kOk);
    }
    if (Feld(f, 3) == "3") {
        const long zeile = std::strtol(Feld(f, 4).c_str(), nullptr, 10);
        if (zeile < 1 || zeile > static_cast<long>(basis.Items.size()) || basis.Items[zeile - 1].Text != pfad)
            return false;  // a row that no longer matches ends the action unchanged
        basis.Items[zeile - 1].SetSubItem(1, länge);
        f.K().Log("Datei wurde geändert.", {"Datei: " + pfad}, "< OK >");
    }
    return true;
}
}  // namespace übernehmen

namespace entfernen {
void WindowsDatei(Form3Fenster& f) {
    const bool ok = DateiEntfernen(f, f.Zeile2());
    f.K().Log("Datei wurde erstellt oder geändert.", {"Datei: " + f.Zeile2()},
              ok ? "< Gelöscht OK >" : "< Gelöscht Nein >");
}
}  // namespace entfernen

namespace weitere {

void Ausnahmeliste(Form3Fenster& f) {
    MitFehlerausgang(f, "Ausnahmeliste", [&] {
        AlarmDaten& a = f.K().Alarm();
        a.List5.Items.push_back(f.Zeile2());
        a.windowsDateien.ausnahmen.Speichern();
        f.K().Log("Datei wurde erstellt.", {"Datei: " + f.Zeile2()}, "< Hinzugefügt in die Ausnahmeliste OK >");
        f.raus();
    });
}

void NaGut(Form3Fenster& f) {
    MitFehlerausgang(f, "Na gut", [&] {
        if (f.Text1[3].Text == "2") {
            ListView& basis = f.K().Alarm().windowsDateien.BasisVon(f.Zeile2());
            const long zeile = std::strtol(f.Text1[4].Text.c_str(), nullptr, 10);
            if (zeile < 1 || zeile > static_cast<long>(basis.Items.size()))
                throw Fehler(35600, "Index außerhalb des gültigen Bereichs");
            basis.Items.erase(basis.Items.begin() + (zeile - 1));
            f.K().Log("Datei wurde gelöscht oder geändert.", {"Datei: " + f.Zeile2()}, "< OK >");
        }
        f.raus();
    });
}

}  // namespace weitere

}  // namespace kes
