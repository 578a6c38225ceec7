#include "watchers/vertrauenswuerdige_seiten.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "platform/registry.h"
#include "watchers/alarm_daten.h"
#include "watchers/bekannte_texte.h"
#include "watchers/warnung.h"

namespace kes {

struct VertrauenswürdigeSeiten::Hive {
    RegHandle root;
    Kategorie kategorie;
    const char* name;
    const char* überschrift;
};

namespace {}  // namespace

VertrauenswürdigeSeiten::VertrauenswürdigeSeiten(WächterKontext& k, ListView& ListView12)
    : ListView12(ListView12), basis(k, "daten\\V_seiten.txt", ListView12), k_(k) {
    ListView12.Columns = {"Name"};
}

void VertrauenswürdigeSeiten::LadeToolbar() {
    // Emptied first, whether the file is there or not.
    ListView12.Items.clear();
    if (basis.Vorhanden()) {
        const auto inhalt = basis.Lesen();
        for (const auto& feld : FelderLesen(inhalt.value_or(""))) {
            if (feld.empty()) break;  // the first empty field ends the list
            ListView12.Add(feld).SmallIcon = 1;
        }
    }
    // The view fits the column to its content.
}

Änderungsorte VertrauenswürdigeSeiten::Orte() {
    return {{kHkeyLocalMachine, kZoneMapDomains, true}, {kHkeyCurrentUser, kZoneMapDomains, true}};
}

void VertrauenswürdigeSeiten::TesteToolBar() {
    // The singular is the program's own.
    static const Hive h{kHkeyLocalMachine, Kategorie::ToolBar, "HKEY_LOCAL_MACHINE",
                        "Eintrag in Vertrauenswürdige Seite [IExplorer Sicherheit]"};
    Testen(h);
}

void VertrauenswürdigeSeiten::TesteToolBar1() {
    static const Hive h{kHkeyCurrentUser, Kategorie::ToolBar1, "HKEY_CURRENT_USER",
                        "Eintrag in Vertrauenswürdige Seiten [IExplorer Sicherheit]"};
    Testen(h);
}

void VertrauenswürdigeSeiten::Testen(const Hive& h) {
    std::string domain;
    bool neu = false;
    try {
        // The baseline as the row starts, compared with case, though the registry has none:
        // the walk yields, and a change meanwhile counts from the next row on.
        const BekannteTexte liste(ListView12.Items, [](const ListItem& z) { return z.Text; });
        std::optional<Stand>& stand = stände_[h.root == kHkeyLocalMachine ? 0 : 1];
        const Kategorie kategorie = k_.W().Kategorieschlüssel;
        if (!k_.W().Unverändert || !stand || stand->kategorie != kategorie) {
            stand.reset();
            stand = Stand{kategorie, Registry(k_.P()).GetSubkeys(h.root, kZoneMapDomains, k_.W().Kategorieschlüssel)};
        }
        const std::vector<std::string> schlüssel = stand->schlüssel;
        // A missing key gives no entries or an empty first one: nothing to test. So does a
        // walk of more than 3000 domains while the services watcher's key still stands.
        if (schlüssel.empty() || schlüssel.front().empty()) return;
        // The last entry is the failing call's, left out by the bound of the loop.
        for (std::size_t i = 0; i + 1 < schlüssel.size(); ++i) {
            domain = schlüssel[i].substr(0, schlüssel[i].find(';'));
            const bool bekannt = domain.empty() || domain == std::string(1, '\0') || liste.Enthält(domain);
            if (bekannt || k_.Später(domain)) continue;
            neu = true;
            break;
        }
    } catch (...) {
        // A failed listing ends the routine without a word.
    }
    if (!neu) return;

    k_.Warnen(h.kategorie, [&](Warnung& f) {
        Übergehen([&] {
            f.Text1[0].Text = domain;
            f.Text1[1].Text = h.name;
            f.Text1[2].Text = kZoneMapDomains;
            f.Text1[3].Text = domain;
        });
        Übergehen([&] { f.Label1[0].Caption = h.überschrift; });
        Übergehen([&] { f.ListView2.Add(domain).SmallIcon = 1; });
        Übergehen([&] {
            for (int p : {4, 1, 2}) f.Picture3[p].Visible = false;
        });
        Übergehen([&] {
            ListItem& reihe = f.ListView4.Add(domain);
            reihe.SmallIcon = 1;
            reihe.SetSubItem(1, h.name);
            reihe.SetSubItem(2, kZoneMapDomains);
            reihe.SetSubItem(3, domain);
            reihe.SetSubItem(4, domain);
        });
        // The view fits the columns of both lists to their content.
    });
}

void Toolbarlöschen11_Click(AlarmDaten& a, ListenPanel& panel, int) {
    Gemeldet(panel, "Toolbarlöschen11_Click", [&] {
        MarkierteEntfernen(a.ListView12);
        a.vertrauenswürdigeSeiten.basis.Speichern();
    });
}

}  // namespace kes
