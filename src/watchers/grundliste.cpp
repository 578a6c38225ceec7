#include "watchers/grundliste.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"

namespace kes {

Grundliste::Grundliste(WächterKontext& k, const char* datei, ListBox* box, ListView* view, const char* trenner,
                       int spalte)
    : k_(k), datei_(datei), box_(box), view_(view), trenner_(trenner), spalte_(spalte) {}

Grundliste::Grundliste(WächterKontext& k, const char* datei, ListBox& liste)
    : Grundliste(k, datei, &liste, nullptr, nullptr, -1) {}

Grundliste::Grundliste(WächterKontext& k, const char* datei, ListView& liste, const char* trenner)
    : Grundliste(k, datei, nullptr, &liste, trenner, -1) {}

Grundliste Grundliste::Abschnitte(WächterKontext& k, const char* datei, ListView& liste, int spalte) {
    return Grundliste(k, datei, nullptr, &liste, nullptr, spalte);
}

std::string Grundliste::Pfad() const {
    return k_.W().Programmordner + datei_;
}

bool Grundliste::Vorhanden() const {
    return DateiVorhanden(k_.P(), Pfad());
}

std::optional<std::string> Grundliste::Lesen() const {
    return k_.P().files.ReadAll(Pfad());
}

std::vector<std::string> Grundliste::Zeilen() const {
    if (box_) return box_->Items;
    std::vector<std::string> zeilen;
    zeilen.reserve(view_->Items.size());
    for (const ListItem& z : view_->Items) zeilen.push_back(trenner_ ? z.Text + trenner_ + z.SubItem(1) : z.Text);
    return zeilen;
}

std::string Grundliste::Speichern(Schreibfehler fehler) const {
    return ListeSchreiben(k_.P(), k_.W().Programmordner, datei_, Zeilen(), fehler);
}

void Grundliste::DateiLöschen() const {
    kes::Übergehen([&] {
        if (Vorhanden()) k_.P().files.Delete(Pfad());
    });
}

std::string Grundliste::Lesen(const std::string& abschnitt, const std::string& schlüssel) const {
    return k_.P().profiles.GetString(abschnitt, schlüssel, "", Pfad(), 255);
}

void Grundliste::Schreiben(const std::string& abschnitt, const std::string& schlüssel, const std::string& wert) const {
    k_.P().profiles.WriteString(abschnitt, schlüssel, wert, Pfad());
}

int Grundliste::FreierAbschnitt(const std::string& prüfSchlüssel) const {
    int i = 1;
    for (; i <= 200; ++i)
        if (Lesen(std::to_string(i), prüfSchlüssel).empty()) break;
    return i;
}

void Grundliste::MarkierteAbschnitteEntfernen() {
    ListView& liste = *view_;
    for (std::size_t i = liste.Items.size(); i-- > 0;) {
        if (!liste.Items[i].Selected) continue;
        k_.P().profiles.WriteString(liste.Items[i].SubItem(static_cast<std::size_t>(spalte_)), std::nullopt, "",
                                    Pfad());
        liste.Items.erase(liste.Items.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

bool ZeileEntfernen(ListBox& liste) {
    if (liste.ListIndex < 0 || liste.ListIndex >= static_cast<int>(liste.Items.size())) return false;
    liste.Items.erase(liste.Items.begin() + liste.ListIndex);
    liste.ListIndex = -1;
    return true;
}

void MarkierteEntfernen(ListView& liste) {
    for (std::size_t i = liste.Items.size(); i-- > 0;)
        if (liste.Items[i].Selected) liste.Items.erase(liste.Items.begin() + static_cast<std::ptrdiff_t>(i));
}

const ListItem* ErsteMarkierte(const ListView& l) {
    for (const auto& z : l.Items)
        if (z.Selected) return &z;
    return nullptr;
}

}  // namespace kes
