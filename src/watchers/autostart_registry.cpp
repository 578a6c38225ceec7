// The registry values that start programs: the Run keys of the user, of the machine and of
// every user hive below HKEY_USERS. A value that is neither in the baseline (with its data)
// nor deferred (without them) raises a warning; a value that goes raises nothing.
#include "core/programm.h"
#include "panel/alarm.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/icoholen.h"
#include "platform/registry.h"
#include "platform/text.h"
#include "warning/form3.h"

namespace kes {

namespace {
constexpr const char* kWindowsNT = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";
constexpr const char* kOrte[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServices",
    "Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
};

std::string Trimmen(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

// The program's path from a value's data: quotes off the ends, switches cut off, and for
// the user hives a search in the Windows and system folders.
std::string ProgrammPfad(Programm& prg, std::string s, bool ordnerSuchen) {
    for (int i = 0; i < 2; ++i)
        if (!s.empty() && s.back() == '"') s.pop_back();
    for (int i = 0; i < 2; ++i)
        if (!s.empty() && s.front() == '"') s.erase(0, 1);
    if (!DateiVorhanden(prg.p, s) && s.find('/') != std::string::npos) s = Trimmen(s.substr(0, s.find('/')));
    if (ordnerSuchen) {
        for (const std::string& ordner : {prg.Windowsordner, prg.Systemordner}) {
            if (DateiVorhanden(prg.p, s)) break;
            if (DateiVorhanden(prg.p, ordner + "\\" + s)) s = ordner + "\\" + s;
        }
    }
    return s;
}
}  // namespace

void AlarmFenster::LadeAutostartregistry() {
    const auto inhalt = prg_.p.files.ReadAll(prg_.Programmordner + "daten\\AutostartREG.txt");
    if (!inhalt) return;  // no file: the list stays as it is
    ListView1.Items.clear();
    for (const auto& zeile : ZeilenLesen(*inhalt)) {
        if (zeile.empty()) break;  // the first empty line ends the list
        ListView1.Add(zeile);
    }
}

int AlarmFenster::AutostartUnbekannt() const {
    for (std::size_t i = 0; i < ListView33.Items.size(); ++i) {
        const ListItem& z = ListView33.Items[i];
        const std::string vergleich = Klein(z.Text + "\\" + z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3));
        bool bekannt = false;
        for (const auto& b : ListView1.Items)
            if (Klein(b.Text) == vergleich) {
                bekannt = true;
                break;
            }
        // The deferred key has no data in it: a deferred value that changes stays deferred.
        if (!bekannt && !Später(z.Text + "\\" + z.SubItem(1) + "\\" + z.SubItem(2))) return static_cast<int>(i);
    }
    return -1;
}

void AlarmFenster::TesteAutostartRegistry() {
    try {
        ListView33.Items.clear();
        prg_.Kategorie = "AutostartRegistry";
        HiveOCX hive(prg_.p.registry);
        for (int code : {1, 2}) {
            if (!hive.ValueExists(code, kWindowsNT, "run")) continue;
            ListItem& z = ListView33.Add(RootName(HandleVonHive(code)));
            z.SetSubItem(1, kWindowsNT);
            z.SetSubItem(2, "run");
            z.SetSubItem(3, hive.ReadValue(code, kWindowsNT, "run"));
        }
        Registry reg(prg_.p, prg_.Kategorie, &ListView33);
        for (RegHandle root : {kHkeyCurrentUser, kHkeyLocalMachine})
            for (const char* ort : kOrte) reg.GetValueList(root, ort);
        const int zeile = AutostartUnbekannt();
        if (zeile >= 0) AutostartWarnen(zeile, false);
    } catch (...) {
        // A failed read ends the routine without a word and without a warning.
    }
}

void AlarmFenster::TesteAutostartHkeyUser() {
    try {
        prg_.Kategorie = "AutostartRegistry";
        const auto liste = ListSubkeys(prg_.p, kHkeyUsers, "");
        if (liste.empty() || liste.front().empty()) return;
        std::vector<std::string> benutzer;
        for (const auto& name : liste) {
            benutzer.push_back(name);
            prg_.p.timers.PumpMessages();
        }
        HiveOCX hive(prg_.p.registry);
        Registry reg(prg_.p, prg_.Kategorie, &ListView33);
        for (const auto& u : benutzer) {
            ListView33.Items.clear();
            for (const char* ort : kOrte) {
                const std::string pfad = u + "\\" + ort;
                if (!hive.KeyExists(3, pfad)) continue;
                reg.GetValueList(kHkeyUsers, pfad);
                const int zeile = AutostartUnbekannt();
                if (zeile >= 0) {
                    AutostartWarnen(zeile, true);
                    return;
                }
            }
        }
    } catch (...) {
    }
}

void AlarmFenster::AutostartWarnen(int zeile, bool benutzerHives) {
    prg_.Beschäftigt = true;
    Timer1.SetEnabled(false);
    if (prg_.Soundflag == 1) SoundSpielen(prg_.p, "ALARM");
    if (!benutzerHives) prg_.Kategorie = "AutostartRegistry";
    const ListItem z = ListView33.Items.at(static_cast<std::size_t>(zeile));

    Form3Fenster& f = prg_.Form3();
    f.Label1[0].Caption = "Neuer Eintrag in der Registry Autostart-Funktion gefunden.";
    std::string pfad = ProgrammPfad(prg_, z.SubItem(3), benutzerHives);
    f.ListView2.Add(DateiName(pfad));
    f.ListView2.Add(pfad);
    ListItem& reihe = f.ListView4.Add("Autostart");
    for (std::size_t s = 1; s <= 4; ++s) reihe.SetSubItem(s, s == 1 ? z.Text : z.SubItem(s - 1));
    f.Picture3[4].Visible = false;
    f.Text1[0].Text = z.Text + "\\" + z.SubItem(1);
    f.Text1[1].Text = z.Text;
    f.Text1[2].Text = z.SubItem(1);
    f.Text1[3].Text = z.SubItem(2);
    f.Text1[4].Text = pfad;
    f.Text1[5].Text = z.SubItem(4);
    // The warning is raised by now: whatever the file's details do, the window must show,
    // or the busy flag would stop the watch for the rest of the run.
    try {
        holedaten(prg_, pfad);
        IcoHolen(prg_.p, pfad, f.picProcIcon);
    } catch (...) {
    }
    f.Show();
    FensterMitte(prg_.p, f);
}

}  // namespace kes
