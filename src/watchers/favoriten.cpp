#include "watchers/favoriten.h"

#include "platform/allefunktionen.h"
#include "platform/sysfolder.h"
#include "watchers/alarm_daten.h"
#include "watchers/autostart_ordner.h"
#include "watchers/selbsttaetig.h"
#include "watchers/warnung.h"

namespace kes {

void Favoriten::LadeFavoriten() {
    Label2[0].Caption = Sysfolder(k_.P(), kCsidlFavorites);
    Label2[1].Caption = Label2[0].Caption + "\\Links";
    List4.Items.clear();
    const auto inhalt = basis.Lesen();
    if (!inhalt) return;
    // Unlike every other list, an empty line is read as an empty name and reading goes on.
    for (const auto& zeile : ZeilenLesen(*inhalt)) List4.Items.push_back(zeile);
}

void Favoriten::TesteFavoriten() {
    const Kategorie schlüssel = k_.W().Kategorieschlüssel;
    std::string ordner = schlüssel == Kategorie::Favorit1   ? Label2[0].Caption
                         : schlüssel == Kategorie::Favorit2 ? Label2[1].Caption
                                                            : File1.Path;
    // A folder of its own keeps its last walk while quiet; a pass of another key walks.
    const bool eigen = schlüssel == Kategorie::Favorit1 || schlüssel == Kategorie::Favorit2;
    auto& stand = stand_[schlüssel == Kategorie::Favorit2 ? 1 : 0];
    if (eigen && k_.W().Unverändert && stand) {
        File1.Path = ordner;
        File1.Items = *stand;
    } else {
        if (eigen) stand.reset();
        // No "Links" folder: this pass ends without a word.
        if (!PfadSetzen(k_.P(), File1, ordner)) return;
        Aktualisieren(k_.P(), File1);
        if (eigen) stand = File1.Items;
    }
    std::string name;
    const BekannteTexte bekannt = BekannteNamen(List4.Items);
    for (const std::string& datei : File1.Items)
        if (!NameBekannt(bekannt, datei)) {
            name = datei;
            break;
        }
    if (name.empty()) return;
    if (ordner.empty() || ordner.back() != '\\') ordner += "\\";
    const std::string pfad = ordner + name;

    Plattform& p = k_.P();
    if (k_.Box(6) == 1) {
        if (k_.W().Soundflag == 1) SoundSpielen(p, "AUTO");
        std::string sicherung;
        const bool ok = DateiSelbstLöschen(k_, pfad, sicherung);
        SelbstJournal(k_, Kategorie::Favoriten, pfad, "Automatisch gelöscht", sicherung,
                      {"Neuer IExplorer Favorit gefunden.",
                       ok ? "< Favorit Automatisch gelöscht OK >" : "< Favorit Automatisch gelöscht NEIN >"});
        // The balloon follows the removal, and only when asked for.
        if (k_.Box(7) == 1) k_.Sprechblase(name, "IExplorer Favorit wurde gelöscht ", "IExplorer Favorit");
        try {
            k_.Log("Neuer IExplorer Favorit gefunden.", {"Favorit: " + name},
                   ok ? "< Favorit Automatisch gelöscht OK >" : "< Favorit Automatisch gelöscht NEIN >");
        } catch (...) {
            // A log that cannot be written costs the entry, not the removal.
        }
        return;
    }
    // A deferred favourite ends the pass: the files behind it wait until it has gone.
    if (k_.Später(pfad)) return;
    k_.Warnen(Kategorie::Favoriten, [&](Warnung& f) {
        f.ListView2.Visible = false;
        for (int i = 1; i <= 4; ++i) f.Picture3[i].Visible = false;
        f.Label1[0].Caption = "Neuer IExplorer Favorit wurde hinzugefügt.";
        f.Label1[1].Caption = ordner;
        f.Label1[2].Caption = name;
        f.picProcIcon.Bild = 2;
    });
}

Änderungsorte Favoriten::Orte() const {
    return {{0, Label2[0].Caption}, {0, Label2[1].Caption}};
}

void LöscheFavoriten_Click(AlarmDaten& a, ListenPanel& panel, int) {
    Gemeldet(panel, "LöscheFavoriten_Click", [&] {
        ZeileEntfernen(a.List4);
        a.favoriten.basis.Speichern();
    });
}

}  // namespace kes
