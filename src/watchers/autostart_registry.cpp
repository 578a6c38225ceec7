#include "watchers/autostart_registry.h"

#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/hive_ocx.h"
#include "platform/icoholen.h"
#include "platform/registry.h"
#include "watchers/alarm_daten.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

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
std::string ProgrammPfad(Plattform& p, const Prozesswerte& w, std::string s, bool ordnerSuchen) {
    for (int i = 0; i < 2; ++i)
        if (!s.empty() && s.back() == '"') s.pop_back();
    for (int i = 0; i < 2; ++i)
        if (!s.empty() && s.front() == '"') s.erase(0, 1);
    if (!DateiVorhanden(p, s) && s.find('/') != std::string::npos) s = Trimmen(s.substr(0, s.find('/')));
    if (ordnerSuchen) {
        for (const std::string& ordner : {w.Windowsordner, w.Systemordner}) {
            if (DateiVorhanden(p, s)) break;
            if (DateiVorhanden(p, ordner + "\\" + s)) s = ordner + "\\" + s;
        }
    }
    return s;
}
}  // namespace

void AutostartRegistry::LadeAutostartregistry() {
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;  // no file: the list stays as it is
    ListView1.Items.clear();
    for (const auto& zeile : ZeilenBisLeer(*inhalt)) ListView1.Add(zeile).SmallIcon = 26;
}

void AutostartRegistry::Auflisten(RegHandle root, const std::string& key) {
    HiveOCX hive(k_.P().registry);
    Registry(k_.P()).GetValueList(root, key, [&](const WertDaten& wert) {
        std::string pfad = key, name = wert.Name;
        ListItem& zeile = ListView33.Add(RootName(root));
        zeile.SetSubItem(1, key);
        zeile.SetSubItem(2, wert.Name);
        zeile.SetSubItem(3, wert.Daten);
        zeile.SetSubItem(4, hive.ReadValueText(HiveVonHandle(root), pfad, name));
    });
}

namespace {
// The baseline as the row starts: the walks yield, and a change meanwhile counts from the
// next row on.
BekannteTexte Stand(const ListView& ListView1) {
    return BekannteTexte(ListView1.Items, [](const ListItem& b) { return Klein(b.Text); });
}
}  // namespace

int AutostartRegistry::Unbekannt(const BekannteTexte& liste) {
    for (std::size_t i = 0; i < ListView33.Items.size(); ++i) {
        const ListItem& z = ListView33.Items[i];
        const std::string vergleich = Klein(z.Text + "\\" + z.SubItem(1) + "\\" + z.SubItem(2) + "\\" + z.SubItem(3));
        const bool bekannt = liste.Enthält(vergleich);
        // The deferred key has no data in it: a deferred value that changes stays deferred.
        if (!bekannt && !k_.Später(z.Text + "\\" + z.SubItem(1) + "\\" + z.SubItem(2))) return static_cast<int>(i);
    }
    return -1;
}

Änderungsorte AutostartRegistry::Orte() {
    Plattform& p = k_.P();
    Änderungsorte orte;
    auto schlüssel = [&](RegHandle root, const std::string& pfad) { orte.push_back({root, pfad, false}); };
    schlüssel(kHkeyCurrentUser, kWindowsNT);
    for (const std::string& pfad : BeideAnsichten(p, kHkeyLocalMachine, kWindowsNT)) schlüssel(kHkeyLocalMachine, pfad);
    for (const char* ort : kOrte) {
        schlüssel(kHkeyCurrentUser, ort);
        for (const std::string& pfad : BeideAnsichten(p, kHkeyLocalMachine, ort)) schlüssel(kHkeyLocalMachine, pfad);
    }
    // A hive that comes or goes, and the keys of each one there now.
    schlüssel(kHkeyUsers, "");
    for (const std::string& u : ListSubkeys(p, kHkeyUsers, ""))
        if (!u.empty())
            for (const char* ort : kOrte) schlüssel(kHkeyUsers, u + "\\" + ort);
    return orte;
}

void AutostartRegistry::TesteAutostartRegistry() {
    try {
        const BekannteTexte bekannt = Stand(ListView1);
        k_.W().Kategorieschlüssel = Kategorie::AutostartRegistry;
        if (k_.W().Unverändert && zeilen_) {
            ListView33.Items = *zeilen_;
            const int zeile = Unbekannt(bekannt);
            if (zeile >= 0) Warnen(zeile, false);
            return;
        }
        zeilen_.reset();
        ListView33.Items.clear();
        HiveOCX hive(k_.P().registry);
        // The user's places are one in both views; the machine's are listed in each.
        for (int code : {1, 2}) {
            const RegHandle root = HandleVonHive(code);
            for (const std::string& pfad :
                 code == 1 ? std::vector<std::string>{kWindowsNT} : BeideAnsichten(k_.P(), root, kWindowsNT)) {
                if (!hive.ValueExists(code, pfad, "run")) continue;
                ListItem& z = ListView33.Add(RootName(root));
                z.SetSubItem(1, pfad);
                z.SetSubItem(2, "run");
                z.SetSubItem(3, hive.ReadValue(code, pfad, "run"));
            }
        }
        for (const char* ort : kOrte) Auflisten(kHkeyCurrentUser, ort);
        for (const char* ort : kOrte)
            for (const std::string& pfad : BeideAnsichten(k_.P(), kHkeyLocalMachine, ort))
                Auflisten(kHkeyLocalMachine, pfad);
        zeilen_ = ListView33.Items;
        const int zeile = Unbekannt(bekannt);
        if (zeile >= 0) Warnen(zeile, false);
    } catch (...) {
        // A failed read ends the routine without a word and without a warning.
    }
}

void AutostartRegistry::TesteAutostartHkeyUser() {
    try {
        k_.W().Kategorieschlüssel = Kategorie::AutostartRegistry;
        const BekannteTexte bekannt = Stand(ListView1);
        if (k_.W().Unverändert && benutzerZeilen_) {
            // Without the pumps of the listing, one compare of each hive's rows finds the
            // row the compare after each key would have found.
            for (const std::vector<ListItem>& zeilen : *benutzerZeilen_) {
                ListView33.Items = zeilen;
                const int zeile = Unbekannt(bekannt);
                if (zeile >= 0) return Warnen(zeile, true);
            }
            return;
        }
        benutzerZeilen_.reset();  // a walk cut short by a warning or an error keeps nothing
        std::vector<std::vector<ListItem>> gelistet;
        const auto liste = ListSubkeys(k_.P(), kHkeyUsers, "");
        if (liste.empty() || liste.front().empty()) {
            benutzerZeilen_.emplace();
            return;
        }
        std::vector<std::string> benutzer;
        for (const auto& name : liste) {
            benutzer.push_back(name);
            k_.Pumpen();
        }
        HiveOCX hive(k_.P().registry);
        for (const auto& u : benutzer) {
            ListView33.Items.clear();
            for (const char* ort : kOrte) {
                const std::string pfad = u + "\\" + ort;
                if (!hive.KeyExists(3, pfad)) continue;
                Auflisten(kHkeyUsers, pfad);
                const int zeile = Unbekannt(bekannt);
                if (zeile >= 0) {
                    Warnen(zeile, true);
                    return;
                }
            }
            gelistet.push_back(ListView33.Items);
        }
        benutzerZeilen_ = std::move(gelistet);
    } catch (...) {
    }
}

void AutostartRegistry::Warnen(int zeile, bool benutzerHives) {
    const ListItem z = ListView33.Items.at(static_cast<std::size_t>(zeile));
    Plattform& p = k_.P();
    k_.Warnen(Kategorie::AutostartRegistry, [&](Warnung& f) {
        f.Label1[0].Caption = "Neuer Eintrag in der Registry Autostart-Funktion gefunden.";
        std::string pfad = ProgrammPfad(p, k_.W(), z.SubItem(3), benutzerHives);
        f.ListView2.Add(DateiName(pfad)).SmallIcon = 4;
        f.ListView2.Add(pfad).SmallIcon = 5;
        ListItem& reihe = f.ListView4.Add("Autostart");
        for (std::size_t s = 1; s <= 4; ++s) reihe.SetSubItem(s, s == 1 ? z.Text : z.SubItem(s - 1));
        f.Picture3[4].Visible = false;
        f.Text1[0].Text = z.Text + "\\" + z.SubItem(1);
        f.Text1[1].Text = z.Text;
        f.Text1[2].Text = z.SubItem(1);
        f.Text1[3].Text = z.SubItem(2);
        f.Text1[4].Text = pfad;
        f.Text1[5].Text = z.SubItem(4);
        holedaten(p, f, pfad);
        IcoHolen(p, pfad, f.picProcIcon);
    });
}

void löscheRegistry1_Click(AlarmDaten& a, ListenPanel& panel, int) {
    Gemeldet(panel, "löscheRegistry1_Click", [&] {
        MarkierteEntfernen(a.ListView1);
        a.autostartRegistry.basis.Speichern();
    });
}

}  // namespace kes
