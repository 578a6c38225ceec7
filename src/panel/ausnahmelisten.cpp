#include "panel/ausnahmelisten.h"

#include "common/fehler.h"
#include "platform/allefunktionen.h"
#include "platform/dfue.h"

namespace kes {

namespace {
using L = Ausnahmeliste;

struct Art {
    const char* menü;
    std::vector<const char*> einträge;  // design captions; "" where the caption is set before each opening
    int löschEintrag;                   // the entry that deletes the selected row and gets the caption
    const char* schwanz;                // the caption's tail behind the quoted text
};

const Art& ArtVon(L liste) {
    static const Art kArten[kAusnahmelistenAnzahl] = {
        {"Prozess", {""}, 0, " Eintrag löschen"},
        {"ProzessListview6", {"Löschen"}, 0, " Eintrag löschen"},
        {"LöschFavoriten", {""}, 0, " Eintrag löschen"},
        {"löschedfü", {"Info zur DFÜ-Verbindung", "lösche"}, 1, " --> Eintrag aus der Liste löschen"},
        {"LöscheAutostartordner", {"lösche"}, 0, " Eintrag löschen"},
        {"löscheRegistry", {""}, 0, " --> Eintrag löschen"},
        {"Löschewindows", {"lösche"}, 0, " Eintrag löschen"},
        {"spä", {"Markierten Eintrag löschen", "Alle aus der Liste löschen"}, 0, " ---> Eintrag löschen"},
        {"bho", {"bholöschen"}, 0, " --> Eintrag aus der Liste löschen"},
        {"löscheactivex", {"löschen"}, 0, " --> Eintrag löschen"},
        {"shellservice", {"löschen"}, 0, " --> Eintrag aus der Liste löschen"},
        {"taskscheduler", {"löschen"}, 0, " --> Eintrag aus der Liste löschen"},
        {"searchhook", {"löschen"}, 0, " ---> Eintrag löschen"},
        {"dienst2", {"Alle Einträge aus der liste entfernen", "löschen"}, 1, " ---> Eintrag löschen"},
        {"dienst", {"", "Alle Dienste aus der Liste entfernen"}, 0, " --> Eintrag aus der Liste löschen"},
        {"Toolbarlöschen1", {"Toolbarlöschen"}, 0, " --> Eintrag aus der Liste löschen"},
    };
    return kArten[static_cast<int>(liste)];
}

// The first selected row of a list view, searched from the top; nullptr for none.
const ListItem* ErsteMarkierte(const ListView& l) {
    for (const auto& z : l.Items)
        if (z.Selected) return &z;
    return nullptr;
}

// The count label of the service page.
std::string Einträge(std::size_t n) {
    return "Ausnahmen:   [Einträge: " + std::to_string(n) + "]";
}
}  // namespace

Ausnahmelisten::Ausnahmelisten(PanelKontext& k, AlarmDaten& a, const Fenster& fenster)
    : k_(k), a_(a), fenster_(fenster) {
    for (int i = 0; i < kAusnahmelistenAnzahl; ++i) {
        const Art& art = ArtVon(static_cast<L>(i));
        menüs_[static_cast<std::size_t>(i)].Name = art.menü;
        for (const char* c : art.einträge) menüs_[static_cast<std::size_t>(i)].Einträge.push_back(MenuItem{c});
    }
}

std::string Ausnahmelisten::GezeigterText(Ausnahmeliste liste) const {
    auto markiert = [](const ListView& l) {
        const ListItem* z = ErsteMarkierte(l);
        return z ? z->Text : std::string();
    };
    switch (liste) {
        case L::List1:
            return a_.List1.Text();
        case L::List4:
            return a_.List4.Text();
        case L::List3:
            return a_.List3.Text();
        case L::List5:
            return a_.List5.Text();
        case L::List8:
            return a_.List8.Text();
        case L::List6:
            return a_.List6.Text();
        case L::List9:
            return a_.List9.Text();
        case L::List10:
            return a_.List10.Text();
        case L::ListView6:
            return markiert(a_.ListView6);
        case L::ListView8:
            return markiert(a_.ListView8);
        case L::ListView9:
            return markiert(a_.ListView9);
        case L::ListView10:
            return markiert(a_.ListView10);
        case L::ListView11:
            return markiert(a_.ListView11);
        case L::ListView12:
            return markiert(a_.ListView12);
        case L::ListView2: {
            const ListItem* z = ErsteMarkierte(a_.ListView2);
            return z ? z->Text + "\" Nummer: " + z->SubItem(1) : std::string("\" Nummer: ");
        }
        case L::ListView1: {
            // The user reads a row number here, not the entry.
            for (std::size_t i = 0; i < a_.ListView1.Items.size(); ++i)
                if (a_.ListView1.Items[i].Selected) return std::to_string(i + 1);
            return "0";
        }
    }
    return "";
}

void Ausnahmelisten::MausLos(Ausnahmeliste liste) {
    bool leer = false;
    switch (liste) {
        case L::List1:
            leer = a_.List1.Items.empty();
            break;
        case L::List4:
            leer = a_.List4.Items.empty();
            break;
        case L::List3:
            leer = a_.List3.Items.empty();
            break;
        case L::List5:
            leer = a_.List5.Items.empty();
            break;
        case L::List8:
            leer = a_.List8.Items.empty();
            break;
        case L::List6:
            leer = a_.List6.Items.empty();
            break;
        case L::List9:
            leer = a_.List9.Items.empty();
            break;
        case L::List10:
            leer = a_.List10.Items.empty();
            break;
        case L::ListView6:
            leer = a_.ListView6.Items.empty();
            break;
        case L::ListView2:
            leer = a_.ListView2.Items.empty();
            break;
        case L::ListView1:
            leer = a_.ListView1.Items.empty();
            break;
        case L::ListView8:
            leer = a_.ListView8.Items.empty();
            break;
        case L::ListView9:
            leer = a_.ListView9.Items.empty();
            break;
        case L::ListView10:
            leer = a_.ListView10.Items.empty();
            break;
        case L::ListView11:
            leer = a_.ListView11.Items.empty();
            break;
        case L::ListView12:
            leer = a_.ListView12.Items.empty();
            break;
    }
    if (leer) return;
    const Art& art = ArtVon(liste);
    Menü(liste).Einträge[static_cast<std::size_t>(art.löschEintrag)].Caption =
        "\"" + GezeigterText(liste) + "\"" + art.schwanz;
    Popup = liste;
}

void Ausnahmelisten::DiensteZählen() {
    a_.ww[19].Caption = Einträge(a_.ListView11.Items.size());
}

void Ausnahmelisten::Fehlermeldung(const std::string& routine, int nummer) {
    k_.P().dialogs.ShowMessage("(Alarm, " + routine + ") Fehler: " + std::to_string(nummer), "", kMbOk);
}

void Ausnahmelisten::MenüKlick(Ausnahmeliste liste, int index) {
    Plattform& p = k_.P();
    // Where they are not caught, the routine stops with a message instead of ending the program.
    auto gemeldet = [&](const char* routine, auto&& tun) {
        try {
            tun();
        } catch (const Fehler& f) {
            Fehlermeldung(routine, f.Nummer());
        } catch (const std::exception&) {
            Fehlermeldung(routine, 5);
        }
    };
    switch (liste) {
        case L::List1:
            if (!ZeileEntfernen(a_.List1)) return;
            Übergehen([&] { a_.prozesse.firmen.Speichern(); });
            a_.prozesse.LadeProzessFirmen();
            break;
        case L::ListView6:
            gemeldet("Pro1_Click", [&] {
                MarkierteEntfernen(a_.ListView6);
                a_.prozesse.basis.Speichern();
                a_.prozesse.LadeProzesse();
            });
            break;
        case L::List4:
            gemeldet("LöscheFavoriten_Click", [&] {
                ZeileEntfernen(a_.List4);
                a_.favoriten.basis.Speichern();
            });
            break;
        case L::ListView2:
            if (index == 0) {
                // "Info zur DFÜ-Verbindung": the phone book's own editor, over the panel; the
                // list stays as it is.
                if (const ListItem* z = ErsteMarkierte(a_.ListView2)) DFUBearbeiten(p, z->Text, fenster_.hWnd);
                break;
            }
            for (std::size_t i = 0; i < a_.ListView2.Items.size(); ++i) {
                if (!a_.ListView2.Items[i].Selected) continue;
                a_.ListView2.Items.erase(a_.ListView2.Items.begin() + static_cast<std::ptrdiff_t>(i));
                break;
            }
            Übergehen([&] { a_.dfü.basis.Speichern(); });
            a_.dfü.LadeDFÜ();
            break;
        case L::List3:
            if (!ZeileEntfernen(a_.List3)) return;
            gemeldet("LöscheAutostartordner1_Click", [&] { a_.autostartOrdner.basis.Speichern(); });
            break;
        case L::ListView1:
            gemeldet("löscheRegistry1_Click", [&] {
                MarkierteEntfernen(a_.ListView1);
                a_.autostartRegistry.basis.Speichern();
            });
            break;
        case L::List5:
            ZeileEntfernen(a_.List5);
            Übergehen([&] { a_.windowsDateien.ausnahmen.Speichern(); });
            break;
        case L::List8:
            // Memory only: the file system is not involved.
            if (index == 0)
                ZeileEntfernen(a_.List8);
            else
                a_.List8.Items.clear();
            break;
        case L::ListView8:
            Übergehen([&] { a_.klassenlisten.bho.MarkierteAbschnitteEntfernen(); });
            break;
        case L::List6:
            ZeileEntfernen(a_.List6);
            Übergehen([&] { a_.activeX.basis.Speichern(); });
            break;
        case L::ListView9:
            Übergehen([&] { a_.klassenlisten.shellService.MarkierteAbschnitteEntfernen(); });
            break;
        case L::ListView10:
            Übergehen([&] { a_.klassenlisten.taskScheduler.MarkierteAbschnitteEntfernen(); });
            break;
        case L::List9:
            // The whole list goes, whichever line was chosen.
            a_.List9.Items.clear();
            a_.List9.ListIndex = -1;
            a_.klassenlisten.urlSearchHooks.DateiLöschen();
            break;
        case L::List10:
            if (index == 0) {
                a_.List10.Items.clear();
                a_.List10.ListIndex = -1;
                a_.dienste.firmen.DateiLöschen();
            } else {
                ZeileEntfernen(a_.List10);
                Übergehen([&] { a_.dienste.firmen.Speichern(); });
                a_.dienste.LadeDiensteHersteller();
            }
            break;
        case L::ListView11:
            if (index == 0) {
                Übergehen([&] { a_.dienste.basis.MarkierteAbschnitteEntfernen(); });
            } else {
                a_.ListView11.Items.clear();
                Übergehen([&] { p.files.Delete(a_.dienste.basis.Pfad()); });
            }
            DiensteZählen();
            break;
        case L::ListView12:
            gemeldet("Toolbarlöschen11_Click", [&] {
                MarkierteEntfernen(a_.ListView12);
                a_.vertrauenswürdigeSeiten.basis.Speichern();
            });
            break;
    }
}

}  // namespace kes
