#include "warning/antwort.h"

#include "warning/form3.h"
#include "warning/kategorien.h"

namespace kes {

JournalEintrag Journalzeile(Form3Fenster& f, const std::string& ereignis, const std::string& aktion) {
    WarnKontext& k = f.K();
    const Kategorie kategorie = k.W().Kategorieschlüssel;
    JournalEintrag e;
    e.ereignis = ereignis;
    e.kategorie = KategorieName(kategorie);
    e.aktion = aktion;
    // What the deferred list would hold: a registry entry's key path with the value name, a
    // file's path. A process goes by its path, not by the name the list takes.
    const Aufschub später = Zeile(kategorie).später;
    if (später && kategorie != Kategorie::Prozesse) e.ziel = später(f);
    if (e.ziel.empty()) e.ziel = f.Zeile2();
    if (e.ziel.empty()) e.ziel = f.Text1[0].Text;
    for (const Label& l : f.Label1)
        if (!l.Caption.empty()) e.texte.push_back(l.Caption);
    for (const ListItem& z : f.ListView2.Items)
        if (!z.Text.empty()) e.texte.push_back(z.Text);
    return e;
}

Antwort::Antwort(Form3Fenster& f, const std::string& aktion)
    : f_(f), p_(f.K().P()), programmordner_(f.K().W().Programmordner), eintrag_(Journalzeile(f, "answer", aktion)) {
    f_.antwort = this;
}

Antwort::~Antwort() {
    // The window's memory stands until the message loop's clean-up, after the handler.
    if (f_.antwort == this) f_.antwort = nullptr;
    if (abgebrochen_) return;
    // A journal that cannot be written does not undo the answer.
    Journal(p_.files, p_.system, programmordner_).Schreiben(eintrag_);
}

Sicherung SicherungFür(Form3Fenster& f) {
    return Sicherung(f.K().P(), f.K().W().Programmordner);
}

void Sichern(Form3Fenster& f, Sicherung& s) {
    const std::optional<std::string> name = s.Schreiben();
    if (!name) {
        if (f.antwort) f.antwort->abgebrochen_ = true;
        f.K().P().dialogs.ShowMessage(SicherungFehlgeschlagenText(s.Ordner()), "Achtung!", kMbOk | kMbIconExclamation);
        throw SicherungFehlt{};
    }
    if (f.antwort && !name->empty()) {
        if (!f.antwort->eintrag_.sicherung.empty()) f.antwort->eintrag_.sicherung += ";";
        f.antwort->eintrag_.sicherung += *name;
    }
}

}  // namespace kes
