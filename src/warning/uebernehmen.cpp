// "Übernehmen": the accept action of the warning window. Each category makes what was
// warned of part of its baseline: the list of Alarm, then its file written anew, then the
// log entry, then raus.
#include "warning/uebernehmen.h"

#include <cmath>
#include <cstdlib>

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "warning/aktionen.h"
#include "warning/form3.h"
#include "warning/kategorien.h"
#include "watchers/alarm_daten.h"
#include "watchers/hosts.h"

namespace kes {

namespace übernehmen {

std::int64_t DateiLänge(Form3Fenster& f, const std::string& pfad) {
    const auto länge = f.K().P().files.Length(pfad);
    if (!länge) throw Fehler(53, "Datei nicht gefunden");
    return *länge;
}

const ListItem& ErsteRegistryzeile(const Form3Fenster& f) {
    static const ListItem leer;
    return f.ListView4.Items.empty() ? leer : f.ListView4.Items[0];
}

bool ToolBar(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.ListView12.Add(Feld(f, 0)).SmallIcon = 1;
    a.vertrauenswürdigeSeiten.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
              {"Registry: " + Feld(f, 1) + "\\" + Feld(f, 2) + "\\" + Feld(f, 3), "Wert: " + Feld(f, 0)}, kOk);
    return true;
}

bool Dienste(Form3Fenster& f) {
    f.dienst1[1].Caption = "Dienst: \"" + Feld(f, 0) + "\" immer zulassen";
    f.dienst1[0].Caption = "Hersteller: \"" +
                           (f.ListView1.Items.empty() ? std::string() : f.ListView1.Items[0].SubItem(1)) +
                           "\" immer zulassen";
    f.Popup = PopupWunsch{"dienst", 0, false, 0};
    return false;  // the window stays open for the menu
}

bool URLSearchHooks(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.List9.Items.push_back(Feld(f, 0));
    a.klassenlisten.urlSearchHooks.Speichern();
    f.K().Log("IExplorer URLSearchHooks geändert.", {"Name: " + Feld(f, 0), "Wert: " + Feld(f, 1)}, kOk);
    return true;
}

bool KlassenIni(Form3Fenster& f) {
    WarnKontext& k = f.K();
    const Kategorie kat = k.W().Kategorieschlüssel;
    AlarmDaten& a = k.Alarm();
    const Grundliste& datei = kat == Kategorie::BHO            ? a.klassenlisten.bho
                              : kat == Kategorie::ShellService ? a.klassenlisten.shellService
                                                               : a.klassenlisten.taskScheduler;
    auto schreiben = [&](const std::string& abschnitt, const char* schlüssel, const std::string& wert) {
        datei.Schreiben(abschnitt, schlüssel, wert);
    };
    if (kat == Kategorie::BHO) {
        const std::string s = std::to_string(datei.FreierAbschnitt("Clisd"));
        schreiben(s, "Pfad", Feld(f, 1));
        schreiben(s, "Clisd", Feld(f, 0));
        schreiben(s, "Name", Feld(f, 2));
        k.Log("Neuer BHO Eintrag erstellt.", {"Name: " + Feld(f, 0), "Datei: " + Feld(f, 1)}, kOk);
        a.klassenlisten.LadeBHO();
        return true;
    }
    // The two rows swap Text1(0) and Text1(1) on purpose: their watchers fill them so.
    const bool shell = kat == Kategorie::ShellService;
    const std::string s = std::to_string(datei.FreierAbschnitt("Name"));
    schreiben(s, "name", shell ? Feld(f, 0) : Feld(f, 1));
    schreiben(s, "wert", shell ? Feld(f, 1) : Feld(f, 0));
    schreiben(s, "clisd", Feld(f, 2));
    schreiben(s, "clisdwert", Feld(f, 3));
    const ListItem& z = ErsteRegistryzeile(f);
    k.Log(shell ? "Neuer ShellServiceObjectDelayLoad wurde erstellt."
                : "Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.",
          {"Name: " + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4)}, kOk);
    if (shell)
        a.klassenlisten.LadeShellService();
    else
        a.klassenlisten.LadeSharedTaskScheduler();
    return true;
}

bool ActiveX(Form3Fenster& f) {
    f.K().Alarm().List6.Items.push_back(f.Zeile2());
    f.K().Log("Neue ActiveX wurde erstellt.", {"Datei: " + f.Zeile2()}, kOk);
    return true;
}

bool WindowsDatei(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    const std::string pfad = f.Zeile2();
    const std::string länge = std::to_string(DateiLänge(f, pfad));
    if (Feld(f, 3) == "1") {
        a.ListView4.Add(pfad).SetSubItem(1, länge);
        f.K().Log("Neue Datei wurde erstellt.", {"Datei: " + pfad}, kOk);
    }
    if (Feld(f, 3) == "3") {
        const long zeile = std::strtol(Feld(f, 4).c_str(), nullptr, 10);
        if (zeile < 1 || zeile > static_cast<long>(a.ListView4.Items.size()) ||
            a.ListView4.Items[zeile - 1].Text != pfad)
            return false;  // a row that no longer matches ends the action unchanged
        a.ListView4.Items[zeile - 1].SetSubItem(1, länge);
        f.K().Log("Datei wurde geändert.", {"Datei: " + pfad}, "< OK >");
    }
    return true;
}

bool AutostartRegistry(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    const ListItem& z = ErsteRegistryzeile(f);
    a.ListView1.Add(z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4)).SmallIcon = 26;
    // The log quotes the last row printed, which need not be the new one.
    const std::string letzte = a.autostartRegistry.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("Neuer Eintrag in der Registry Autostart.", {"Registry: " + letzte, "Wert: " + Feld(f, 4)}, kOk);
    return true;
}

bool AutostartOrdner(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    // The list holds bare file names and the watcher compares by name: a path added here
    // would never match, and the same file would be warned of again at every cycle.
    a.List3.Items.push_back(DateiName(f.Zeile2()));
    a.autostartOrdner.basis.Speichern();
    f.K().Log("Neuer Eintrag im Autostart Ordner.", {"Datei: " + f.Zeile2()}, kOk);
    return true;
}

bool HostsDatei(Form3Fenster& f) {
    // No list and no log entry: raus stores the new size with the settings.
    f.K().W().Hostsgrösse = static_cast<std::int32_t>(DateiLänge(f, HostsPfad(f.K().W())));
    return true;
}

bool DFÜ(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.ListView2.Add(Feld(f, 0)).SetSubItem(1, Feld(f, 1));
    a.ListView2.Sortieren();  // the file is written in the order the list shows
    a.dfü.basis.Speichern(Schreibfehler::Übergehen);
    f.K().Log("DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + Feld(f, 0) + "   Nummer: " + Feld(f, 1)}, kOk);
    return true;
}

bool Favoriten(Form3Fenster& f) {
    AlarmDaten& a = f.K().Alarm();
    a.List4.Items.push_back(f.Label1[2].Caption);
    a.favoriten.basis.Speichern();
    f.K().Log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + f.Label1[1].Caption}, "< Favorit hinzugefügt OK >");
    return true;
}

bool Prozesse(Form3Fenster& f) {
    f.killprozess1[0].Caption = "\"" + f.Zeile2() + "\" immer zulassen";
    const std::string hersteller = f.ListView1.Items.empty() ? "" : f.ListView1.Items[0].SubItem(1);
    f.killprozess1[1].Caption = "Hersteller: \"" + hersteller + "\" immer zulassen.";
    f.killprozess1[1].Enabled = hersteller != "Unbekannt";
    f.Popup = PopupWunsch{"killprozess", f.killprozess1[1].Enabled ? 1 : 0, false, 0};
    return false;  // the window stays open for the menu
}

bool StartPage(Form3Fenster& f) {
    // Rounded as the runtime rounds to a 16-bit integer: halves to the even number.
    const double zahl = std::nearbyint(std::strtod(Feld(f, 5).c_str(), nullptr));
    if (zahl < -32768 || zahl > 32767) throw Fehler(6, "Überlauf");
    const int i = static_cast<int>(zahl);
    if (i < 0 || i >= 21) throw Fehler(kFehlerIndex, "Index außerhalb des gültigen Bereichs");
    f.K().W().StartSeiten[i] = Feld(f, 3);
    f.K().Log("IExplorer " + Feld(f, 2) + " wurde geändert.",
              {"Registry: " + Feld(f, 0) + "\\" + Feld(f, 1) + "\\" + Feld(f, 2), "Wert: " + Feld(f, 3)}, kOk);
    f.K().Alarm().startSeite.LadeStartPage();
    return true;
}

}  // namespace übernehmen

void Form3Fenster::Image1_Click() {
    // A failure outside the passed-over steps ends the action with its number; the
    // warning stays open.
    try {
        const Übernahme branch = Zeile(k_.W().Kategorieschlüssel).übernehmen;
        if (!branch || branch(*this)) raus();
    } catch (const Fehler& f) {
        k_.P().dialogs.ShowMessage("(Form3, Übernehmen) Fehler: " + std::to_string(f.Nummer()), "", kMbOk);
    } catch (const std::exception&) {
        k_.P().dialogs.ShowMessage("(Form3, Übernehmen) Fehler: 5", "", kMbOk);
    }
}

}  // namespace kes
