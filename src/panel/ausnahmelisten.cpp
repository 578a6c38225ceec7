#include "panel/ausnahmelisten.h"

#include "platform/journal.h"
#include "platform/sicherung.h"
#include "watchers/waechter.h"

namespace kes {

namespace {
// The deferred list: memory only, the file system is not involved; 0 removes the selected
// entry, 1 all of them.
void spä1_Click(AlarmDaten& a, ListenPanel&, int index) {
    if (index == 0)
        ZeileEntfernen(a.List8);
    else
        a.List8.Items.clear();
}

constexpr Listenmenü kSpäter{Ausnahmeliste::List8,
                             &AlarmDaten::List8,
                             nullptr,
                             nullptr,
                             nullptr,
                             "spä",
                             {"Markierten Eintrag löschen", "Alle aus der Liste löschen"},
                             0,
                             " ---> Eintrag löschen",
                             spä1_Click};
}  // namespace

Ausnahmelisten::Ausnahmelisten(PanelKontext& k, AlarmDaten& a, const Fenster& fenster)
    : k_(k), a_(a), fenster_(fenster) {
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i) {
        const Listenmenü& art = Art(static_cast<Ausnahmeliste>(i));
        ListenMenü& menü = menüs_[static_cast<std::size_t>(i)];
        menü.Name = art.menü;
        for (const char* c : art.einträge)
            if (c) menü.Einträge.push_back(MenuItem{c});
    }
}

const Listenmenü& Ausnahmelisten::Art(Ausnahmeliste liste) const {
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen)
            if (m.menü && m.liste == liste) return m;
    return kSpäter;
}

void Ausnahmelisten::MausLos(Ausnahmeliste liste) {
    const Listenmenü& art = Art(liste);
    std::string text;
    if (art.kasten) {
        const ListBox& l = a_.*art.kasten;
        if (l.Items.empty()) return;
        text = l.Text();
    } else {
        const ListView& l = a_.*art.ansicht;
        if (l.Items.empty()) return;
        const ListItem* z = ErsteMarkierte(l);
        text = z ? z->Text : std::string();
    }
    if (art.gezeigt) text = art.gezeigt(a_);
    Menü(liste).Einträge[static_cast<std::size_t>(art.löschEintrag)].Caption = "\"" + text + "\"" + art.schwanz;
    Popup = liste;
}

void Ausnahmelisten::MenüKlick(Ausnahmeliste liste, int index) {
    const Listenmenü& art = Art(liste);
    const Grundliste* datei = art.datei ? &art.datei(a_) : nullptr;
    // The deferred list lives in memory only: nothing to save.
    if (!datei) return art.wahl(a_, *this, index);

    // The list's file saved before the choice, kept only when the choice changed the file.
    Plattform& p = k_.P();
    const std::string& ordner = k_.W().Programmordner;
    const std::optional<std::string> vorher = p.files.ReadAll(datei->Pfad());
    std::string sicherung;
    if (vorher) {
        Sicherung s(p, ordner);
        s.Datei(datei->Pfad());
        const std::optional<std::string> name = s.Schreiben();
        if (!name) {
            p.dialogs.ShowMessage(SicherungFehlgeschlagenText(s.Ordner()), "Achtung!", kMbOk | kMbIconExclamation);
            return;
        }
        sicherung = *name;
    }
    const std::string eintrag =
        index >= 0 && index < static_cast<int>(Menü(liste).Einträge.size()) ? Menü(liste).Einträge[index].Caption : "";
    art.wahl(a_, *this, index);
    if (sicherung.empty()) return;
    if (p.files.ReadAll(datei->Pfad()) == vorher) {
        p.files.Delete(ordner + kSicherungsordner + sicherung);
        p.files.Delete(ordner + kSicherungsordner + sicherung + kHerkunftEndung);
        return;
    }
    JournalEintrag e;
    e.ereignis = "answer";
    for (const WächterZeile& z : Wächtertabelle())
        for (const Listenmenü& m : z.listen)
            if (&m == &art) e.kategorie = KategorieName(z.kategorien[0]);
    e.ziel = datei->Pfad();
    e.aktion = eintrag;
    e.sicherung = sicherung;
    e.texte = {std::string("Aus der Liste gelöscht (Menü ") + art.menü + ")", eintrag};
    Journal(p.files, p.system, ordner).Schreiben(e);
}

std::optional<Ausnahmeliste> Ausnahmelisten::ListeVon(const ListBox& kasten) const {
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i) {
        const Listenmenü& art = Art(static_cast<Ausnahmeliste>(i));
        if (art.kasten && &(a_.*art.kasten) == &kasten) return art.liste;
    }
    return std::nullopt;
}

std::optional<Ausnahmeliste> Ausnahmelisten::ListeVon(const ListView& ansicht) const {
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i) {
        const Listenmenü& art = Art(static_cast<Ausnahmeliste>(i));
        if (art.ansicht && &(a_.*art.ansicht) == &ansicht) return art.liste;
    }
    return std::nullopt;
}

void Ausnahmelisten::Fehlermeldung(const std::string& routine, int nummer) {
    k_.P().dialogs.ShowMessage("(Alarm, " + routine + ") Fehler: " + std::to_string(nummer), "", kMbOk);
}

std::uintptr_t Ausnahmelisten::Fensterhandle() const {
    return fenster_.hWnd;
}

Plattform& Ausnahmelisten::P() {
    return k_.P();
}

}  // namespace kes
