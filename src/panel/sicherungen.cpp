// The page "Sicherungen" of the control panel: every backup the journal names that is still
// on disk, newest first, with the size of all backups together; its menu puts one back or
// deletes it. A restore is a journal line of its own.
#include <algorithm>

#include "panel/alarm.h"
#include "common/text.h"
#include "platform/allefunktionen.h"
#include "platform/journal.h"
#include "platform/sicherung.h"

namespace kes {

namespace {

constexpr std::size_t kSpalteSicherung = 4, kSpalteNummer = 5;

bool Da(FileApi& files, const std::string& ordner, const std::string& name) {
    return files.GetAttributes(ordner + kSicherungsordner + name) != kInvalidAttributes;
}

// "2026-11-24T09:47:12+01:00" as a German user reads it: "24.11.2026 09:47:12".
std::string Ortszeit(const std::string& iso) {
    if (iso.size() < 19 || iso[4] != '-' || iso[10] != 'T') return iso;
    return iso.substr(8, 2) + "." + iso.substr(5, 2) + "." + iso.substr(0, 4) + " " + iso.substr(11, 8);
}

}  // namespace

void AlarmFenster::SicherungenLaden() {
    Plattform& p = k_.P();
    const std::string& ordner = k_.W().Programmordner;
    Sicherungen.Items.clear();
    SicherungenAuswahl = -1;
    const Journal::Inhalt inhalt = Journal::Lesen(p.files, ordner);
    for (auto e = inhalt.einträge.rbegin(); e != inhalt.einträge.rend(); ++e) {
        if (e->sicherung.empty() || e->ereignis == "restore") continue;
        const std::vector<std::string> namen = SicherungenTeilen(e->sicherung);
        if (std::none_of(namen.begin(), namen.end(), [&](const std::string& n) { return Da(p.files, ordner, n); }))
            continue;
        ListItem& z = Sicherungen.Add(Ortszeit(e->zeit));
        z.SetSubItem(1, e->kategorie);
        z.SetSubItem(2, e->aktion);
        z.SetSubItem(3, e->ziel);
        z.SetSubItem(kSpalteSicherung, e->sicherung);
        z.SetSubItem(kSpalteNummer, std::to_string(e->id));
    }
    // Everything in the folder counts, notes and leftovers of a cut-short write included.
    double summe = 0;
    FindData d;
    for (FileFind f = p.files.FindFirst(ordner + kSicherungsordner + "*.*", &d); f;) {
        if (!(d.attributes & kAttrDirectory)) summe += static_cast<double>(d.size);
        if (!p.files.FindNext(f.Get(), &d)) break;
    }
    SicherungenGrösse.Caption = "Sicherungen: " + std::to_string(Sicherungen.Items.size()) +
                                "   zusammen " + GrösseFormat(summe, false, p.system.NumberFormat());
}

void AlarmFenster::NachWiederherstellen(const std::string& datei) {
    // A list's own file came back: the list shows it at once, and the next save keeps it.
    for (const AlarmDaten::ListeMitDatei& l : ListenMitDatei())
        if (!datei.empty() && Klein(l.liste->Pfad()) == Klein(datei)) l.laden(*this);
}

void AlarmFenster::Sicherungen_MouseUp() {
    if (SicherungenAuswahl < 0 || SicherungenAuswahl >= static_cast<int>(Sicherungen.Items.size())) return;
    Menü = {"sicherung", -1};
}

void AlarmFenster::sicherung1_Click(int index) {
    if (SicherungenAuswahl < 0 || SicherungenAuswahl >= static_cast<int>(Sicherungen.Items.size())) return;
    // A copy: the message boxes below let messages run, and a reload may come meanwhile.
    const ListItem zeile = Sicherungen.Items[static_cast<std::size_t>(SicherungenAuswahl)];
    Plattform& p = k_.P();
    const std::string ordner = k_.W().Programmordner;
    const std::vector<std::string> namen = SicherungenTeilen(zeile.SubItem(kSpalteSicherung));
    if (index == 1) {
        if (p.dialogs.ShowMessage("Die Sicherung wird endgültig gelöscht:\r\n" + zeile.SubItem(3), "Kestrella-Info",
                                  kMbYesNo | kMbIconQuestion) != kIdYes)
            return;
        for (const std::string& n : namen) {
            p.files.Delete(ordner + kSicherungsordner + n);
            p.files.Delete(ordner + kSicherungsordner + n + kHerkunftEndung);
        }
        SicherungenLaden();
        return;
    }
    if (index != 0) return;
    bool überschreiben = false;
    std::string zurück, gründe;
    for (const std::string& n : namen) {
        std::string grund = Wiederherstellen(p, ordner, n, zeile.SubItem(3), überschreiben);
        if (grund.rfind("Schon vorhanden", 0) == 0 &&
            p.dialogs.ShowMessage(grund + "\r\n\r\nÜberschreiben?", "Kestrella-Info", kMbYesNo | kMbIconQuestion) ==
                kIdYes) {
            überschreiben = true;
            grund = Wiederherstellen(p, ordner, n, zeile.SubItem(3), true);
        }
        if (grund.empty()) {
            zurück += (zurück.empty() ? "" : ";") + n;
            NachWiederherstellen(Herkunft(p.files, ordner, n));
        } else
            gründe += grund + "\r\n";
    }
    if (!zurück.empty()) {
        JournalEintrag e;
        e.ereignis = "restore";
        e.kategorie = zeile.SubItem(1);
        e.ziel = zeile.SubItem(3);
        e.aktion = "Wiederherstellen";
        e.sicherung = zurück;
        e.texte = {"Aus der Sicherung von Eintrag Nr. " + zeile.SubItem(kSpalteNummer) + " wiederhergestellt" +
                   (überschreiben ? ", Vorhandenes überschrieben." : ".")};
        Journal(p.files, p.system, ordner).Schreiben(e);
    }
    p.dialogs.ShowMessage(gründe.empty() ? "Wiederhergestellt:\r\n" + zeile.SubItem(3)
                                         : "Nicht alles wurde wiederhergestellt:\r\n" + gründe,
                          "Kestrella-Info", kMbOk | (gründe.empty() ? kMbIconInformation : kMbIconExclamation));
}

}  // namespace kes
