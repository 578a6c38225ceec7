// "Übernehmen": the accept action of the warning window. Each category makes what was
// warned of part of its baseline: the list of Alarm, then its file written anew, then the
// log entry, then raus.
#include <cmath>
#include <cstdlib>

#include "core/fehler.h"
#include "core/logdatei.h"
#include "core/programm.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "warning/form3.h"
#include "warning/liste_schreiben.h"

namespace kes {

namespace {
const std::string kOk = "< Übernommen OK >";

std::vector<std::string> Texte(const ListBox& l) {
    return l.Items;
}
std::vector<std::string> Texte(const ListView& l) {
    std::vector<std::string> t;
    for (const auto& z : l.Items) t.push_back(z.Text);
    return t;
}

// FileLen: a file that has gone in the meantime ends the action in its error exit.
std::int64_t DateiLänge(Programm& prg, const std::string& pfad) {
    const auto länge = prg.p.files.Length(pfad);
    if (!länge) throw Fehler(53, "Datei nicht gefunden");
    return *länge;
}

// The first free section of 1..200 by its test key; 201 when all are taken.
int FreierAbschnitt(Programm& prg, const std::string& datei, const std::string& prüfSchlüssel) {
    int i = 1;
    for (; i <= 200; ++i)
        if (prg.p.profiles.GetString(std::to_string(i), prüfSchlüssel, "", datei, 255).empty()) break;
    return i;
}
}  // namespace

void Form3Fenster::Übernehmen() {
    AlarmFenster& alarm = prg_.Alarm();
    const std::string& k = prg_.Kategorie;
    auto text = [this](int i) -> const std::string& { return Text1[i].Text; };
    auto zeile2 = [this]() -> std::string { return ListView2.Items.size() >= 2 ? ListView2.Items[1].Text : ""; };

    if (k == "ToolBar" || k == "ToolBar1") {
        alarm.ListView12.Add(text(0));
        ListeSchreiben(prg_, "daten\\V_seiten.txt", Texte(alarm.ListView12), Schreibfehler::Übergehen);
        LogEintrag(prg_, "Eintrag in der Registry Vertrauenswürdige Seiten (IExplorer).",
                   {"Registry: " + text(1) + "\\" + text(2) + "\\" + text(3), "Wert: " + text(0)}, kOk);
    } else if (k == "Dienste") {
        dienst1[1].Caption = "Dienst: \"" + text(0) + "\" immer zulassen";
        dienst1[0].Caption = "Hersteller: \"" +
                             (ListView1.Items.empty() ? std::string() : ListView1.Items[0].SubItem(1)) +
                             "\" immer zulassen";
        Popup = PopupWunsch{"dienst", 0, false, 0};
        return;  // the window stays open for the menu
    } else if (k == "URLSearchHooks") {
        alarm.List9.Items.push_back(text(0));
        ListeSchreiben(prg_, "daten\\URLSearchHook.txt", Texte(alarm.List9));
        LogEintrag(prg_, "IExplorer URLSearchHooks geändert.", {"Name: " + text(0), "Wert: " + text(1)}, kOk);
    } else if (k == "TaskScheduler" || k == "ShellService" || k == "BHO") {
        const std::string datei = prg_.Programmordner + (k == "BHO"            ? "daten\\bho.ini"
                                                         : k == "ShellService" ? "daten\\shellservice.ini"
                                                                               : "daten\\taskscheduler.ini");
        auto schreiben = [&](const std::string& abschnitt, const char* schlüssel, const std::string& wert) {
            prg_.p.profiles.WriteString(abschnitt, std::string(schlüssel), wert, datei);
        };
        if (k == "BHO") {
            const std::string a = std::to_string(FreierAbschnitt(prg_, datei, "Clisd"));
            schreiben(a, "Pfad", text(1));
            schreiben(a, "Clisd", text(0));
            schreiben(a, "Name", text(2));
            LogEintrag(prg_, "Neuer BHO Eintrag erstellt.", {"Name: " + text(0), "Datei: " + text(1)}, kOk);
            alarm.LadeBHO();
        } else {
            // The two rows swap Text1(0) and Text1(1) on purpose: their watchers fill them so.
            const bool shell = k == "ShellService";
            const std::string a = std::to_string(FreierAbschnitt(prg_, datei, "Name"));
            schreiben(a, "name", shell ? text(0) : text(1));
            schreiben(a, "wert", shell ? text(1) : text(0));
            schreiben(a, "clisd", text(2));
            schreiben(a, "clisdwert", text(3));
            const ListItem leer;
            const ListItem& z = ListView4.Items.empty() ? leer : ListView4.Items[0];
            LogEintrag(prg_,
                       shell ? "Neuer ShellServiceObjectDelayLoad wurde erstellt."
                             : "Neuer SharedTaskScheduler-Autostarteintrag wurde erstellt.",
                       {"Name: " + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4)}, kOk);
            if (shell)
                alarm.LadeShellService();
            else
                alarm.LadeSharedTaskScheduler();
        }
    } else if (k == "ActiveX") {
        alarm.List6.Items.push_back(zeile2());
        LogEintrag(prg_, "Neue ActiveX wurde erstellt.", {"Datei: " + zeile2()}, kOk);
    } else if (k == "WindowsDatei") {
        const std::string pfad = zeile2();
        const std::string länge = std::to_string(DateiLänge(prg_, pfad));
        if (text(3) == "1") {
            alarm.ListView4.Add(pfad).SetSubItem(1, länge);
            LogEintrag(prg_, "Neue Datei wurde erstellt.", {"Datei: " + pfad}, kOk);
        }
        if (text(3) == "3") {
            const long zeile = std::strtol(text(4).c_str(), nullptr, 10);
            if (zeile >= 1 && zeile <= static_cast<long>(alarm.ListView4.Items.size()) &&
                alarm.ListView4.Items[zeile - 1].Text == pfad) {
                alarm.ListView4.Items[zeile - 1].SetSubItem(1, länge);
                LogEintrag(prg_, "Datei wurde geändert.", {"Datei: " + pfad}, "< OK >");
            } else {
                return;  // a row that no longer matches ends the action unchanged
            }
        }
    } else if (k == "AutostartRegistry") {
        const ListItem leer;
        const ListItem& z = ListView4.Items.empty() ? leer : ListView4.Items[0];
        alarm.ListView1.Add(z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3) + "\\" + z.SubItem(4));
        // The log quotes the last row printed, which need not be the new one.
        const std::string letzte =
            ListeSchreiben(prg_, "daten\\AutostartREG.txt", Texte(alarm.ListView1), Schreibfehler::Übergehen);
        LogEintrag(prg_, "Neuer Eintrag in der Registry Autostart.", {"Registry: " + letzte, "Wert: " + text(4)}, kOk);
    } else if (k == "AutostartOrdner") {
        alarm.List3.Items.push_back(zeile2());
        ListeSchreiben(prg_, "daten\\Autostart.txt", Texte(alarm.List3));
        LogEintrag(prg_, "Neuer Eintrag im Autostart Ordner.", {"Datei: " + zeile2()}, kOk);
    } else if (k == "HostsDatei") {
        // No list and no log entry: raus stores the new size with the settings.
        prg_.Hostsgrösse = static_cast<std::int32_t>(DateiLänge(prg_, prg_.Systemordner + "\\drivers\\etc\\hosts"));
    } else if (k == "DFÜ") {
        alarm.ListView2.Add(text(0)).SetSubItem(1, text(1));
        std::vector<std::string> zeilen;
        for (const auto& z : alarm.ListView2.Items) zeilen.push_back(z.Text + "€" + z.SubItem(1));
        ListeSchreiben(prg_, "daten\\0190.txt", zeilen, Schreibfehler::Übergehen);
        LogEintrag(prg_, "DFÜ-Verbindung wurde erstellt. ", {"DFÜ: " + text(0) + "   Nummer: " + text(1)}, kOk);
    } else if (k == "Favorit1" || k == "Favorit2" || k == "Favoriten") {
        alarm.List4.Items.push_back(Label1[2].Caption);
        ListeSchreiben(prg_, "daten\\favoriten.txt", Texte(alarm.List4));
        LogEintrag(prg_, "Neuer IExplorer Favorit gefunden.", {"Favorit: " + Label1[1].Caption},
                   "< Favorit hinzugefügt OK >");
    } else if (k == "Prozesse") {
        killprozess1[0].Caption = "\"" + zeile2() + "\" immer zulassen";
        const std::string hersteller = ListView1.Items.empty() ? "" : ListView1.Items[0].SubItem(1);
        killprozess1[1].Caption = "Hersteller: \"" + hersteller + "\" immer zulassen.";
        killprozess1[1].Enabled = hersteller != "Unbekannt";
        Popup = PopupWunsch{"killprozess", killprozess1[1].Enabled ? 1 : 0, false, 0};
        return;  // the window stays open for the menu
    } else if (k == "StartPage") {
        // Rounded as the runtime rounds to a 16-bit integer: halves to the even number.
        const double zahl = std::nearbyint(std::strtod(text(5).c_str(), nullptr));
        if (zahl < -32768 || zahl > 32767) throw Fehler(6, "Überlauf");
        const int i = static_cast<int>(zahl);
        if (i < 0 || i >= 21) throw Fehler(kFehlerIndex, "Index außerhalb des gültigen Bereichs");
        prg_.StartSeiten[i] = text(3);
        LogEintrag(prg_, "IExplorer " + text(2) + " wurde geändert.",
                   {"Registry: " + text(0) + "\\" + text(1) + "\\" + text(2), "Wert: " + text(3)}, kOk);
        alarm.LadeStartPage();
    }
    raus();
}

void Form3Fenster::Image1_Click() {
    // A failure outside the passed-over steps ends the action with its number; the
    // warning stays open.
    try {
        Übernehmen();
    } catch (const Fehler& f) {
        prg_.p.dialogs.ShowMessage("(Form3, Übernehmen) Fehler: " + std::to_string(f.Nummer()), "", kMbOk);
    } catch (const std::exception&) {
        prg_.p.dialogs.ShowMessage("(Form3, Übernehmen) Fehler: 5", "", kMbOk);
    }
}

}  // namespace kes
