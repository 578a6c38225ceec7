#include "watchers/selbsttaetig.h"

#include "platform/allefunktionen.h"
#include "platform/journal.h"

namespace kes {

Sicherung SelbstSicherung(WächterKontext& k) {
    return Sicherung(k.P(), k.W().Programmordner);
}

std::optional<std::string> SelbstSichern(WächterKontext& k, Sicherung& s) {
    std::optional<std::string> name = s.Schreiben();
    if (!name) {
        try {
            k.Sprechblase("Kestrella", SicherungFehlgeschlagenText(s.Ordner()), "Kestrella");
        } catch (...) {
            // No icon to speak from: the step is left undone all the same.
        }
    }
    return name;
}

bool DateiSelbstLöschen(WächterKontext& k, const std::string& pfad, std::string& sicherung) {
    Plattform& p = k.P();
    if (UnlesbarGemeldet(p, pfad)) return false;
    Sicherung s = SelbstSicherung(k);
    s.Datei(pfad);
    const std::optional<std::string> name = SelbstSichern(k, s);
    if (!name) return false;
    sicherung = *name;
    return DateiLöschen(p, pfad);
}

void SelbstJournal(WächterKontext& k, Kategorie kategorie, const std::string& ziel, const std::string& aktion,
                   const std::string& sicherung, std::vector<std::string> texte) {
    JournalEintrag e;
    e.ereignis = "auto";
    e.kategorie = KategorieName(kategorie);
    e.ziel = ziel;
    e.aktion = aktion;
    e.sicherung = sicherung;
    e.texte = std::move(texte);
    Journal(k.P().files, k.P().system, k.W().Programmordner).Schreiben(e);
}

}  // namespace kes
