#include "watchers/dfue.h"

#include "common/fehler.h"
#include "common/pumpenfrei.h"
#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/dfue.h"
#include "watchers/alarm_daten.h"
#include "watchers/warnung.h"

namespace kes {

static_assert(sizeof("€") == 2 && "€"[0] == kEuro, "sources are compiled to code page 1252");

void DFÜ::LadeDFÜ() {
    ListView2.Items.clear();
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;
    // Read by fields: a comma ends an entry, and the first empty entry ends the reading.
    std::string name;
    for (const auto& feld : FelderLesen(*inhalt)) {
        if (feld.empty()) break;
        const auto p = feld.find(kEuro);
        // An entry without "€" is all number; the name of the entry before it stays, as
        // the failed cut of the name leaves it.
        if (p != std::string::npos) name = feld.substr(0, p);
        ListView2.Add(name).SetSubItem(1, p == std::string::npos ? feld : feld.substr(p + 1));
    }
    ListView2.Sortieren();
}

void DFÜ::TesteDFÜ() {
    try {
        Prüfen();
    } catch (const Fehler& e) {
        k_.P().dialogs.ShowMessage("Fehler DFÜ (TesteDFÜ) FehlerNr: " + std::to_string(e.Nummer()), "", kMbOk);
    }
}

void DFÜ::Prüfen() {
    Plattform& p = k_.P();
    const auto namen = DFUEintraege(p);
    if (!namen) return;
    // One set of texts for all entries: an entry that cannot be read is judged by the
    // number of the entry before it, and the number stays in upper case once compared.
    std::string land, vorwahl, nummer;
    std::size_t gefunden = namen->size();
    for (std::size_t i = 0; i < namen->size(); ++i) {
        DFUEigenschaften(p, (*namen)[i], land, vorwahl, nummer);
        const Pumpenfrei frei;  // the baseline as the panel shows it, read in one go
        bool bekannt = false;
        for (const auto& z : ListView2.Items) {
            nummer = Gross(nummer);
            if (Gross(z.SubItem(1)) == nummer) {
                bekannt = true;
                break;
            }
        }
        // An entry without a number is never reported.
        if (!bekannt && !nummer.empty()) {
            gefunden = i;
            break;
        }
    }
    if (gefunden == namen->size()) return;
    const std::string name = (*namen)[gefunden];
    if (k_.Später(name)) return;
    k_.Warnen(Kategorie::DFÜ, [&](Warnung& f) {
        f.ListView2.Visible = false;
        for (int i = 1; i <= 4; ++i) f.Picture3[i].Visible = false;
        f.Label1[0].Caption = "Es wurde eine neue DFÜ-Verbindung erstellt.";
        f.Text1[0].Text = name;
        f.Text1[1].Text = nummer;
        f.Label1[1].Caption = name;
        f.Label1[2].Caption = "Nummer: " + nummer;
        f.picProcIcon.Bild = 3;
    });
}

void löschedfü1_Click(AlarmDaten& a, ListenPanel& panel, int index) {
    if (index == 0) {
        if (const ListItem* z = ErsteMarkierte(a.ListView2)) DFUBearbeiten(panel.P(), z->Text, panel.Fensterhandle());
        return;
    }
    for (std::size_t i = 0; i < a.ListView2.Items.size(); ++i) {
        if (!a.ListView2.Items[i].Selected) continue;
        a.ListView2.Items.erase(a.ListView2.Items.begin() + static_cast<std::ptrdiff_t>(i));
        break;
    }
    Übergehen([&] { a.dfü.basis.Speichern(); });
    a.dfü.LadeDFÜ();
}

}  // namespace kes
