// A baseline or exception list together with its file in the data folder. The list control
// is what a watcher compares with and what the control panel shows; the file is written
// anew from it, whole, at every change. This object is the only code that knows the file's
// name and the form of its lines: the watcher that owns it reads the file through it, and
// the warning's actions, the panel and the assistant change the list and save through it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/steuerelemente.h"
#include "platform/liste_schreiben.h"
#include "watchers/kontext.h"

namespace kes {

class Grundliste {
public:
    // A list box: one text a line.
    Grundliste(WächterKontext& k, const char* datei, ListBox& liste);
    // A list view: each row's text a line, or, with a separator, the text, the separator and
    // the first sub-item.
    Grundliste(WächterKontext& k, const char* datei, ListView& liste, const char* trenner = nullptr);
    // A list view of an ini file: each row is one section, whose number stands in column
    // spalte.
    static Grundliste Abschnitte(WächterKontext& k, const char* datei, ListView& liste, int spalte);

    // The program folder and the file name.
    std::string Pfad() const;
    // Whether this is the list of the control LISTE (a ListBox or a ListView).
    bool Zeigt(const void* liste) const { return liste == box_ || liste == view_; }
    // Whether the file can be opened for reading, and its content; none when it cannot.
    bool Vorhanden() const;
    std::optional<std::string> Lesen() const;

    // The file written anew from the list. Returns the last line printed: the scratch text
    // some log entries quote. A file that cannot be written throws Fehler 75 for the
    // caller's error exit, unless the caller passes such errors over.
    std::string Speichern(Schreibfehler fehler = Schreibfehler::Melden) const;
    // The file deleted, if there is one; errors passed over.
    void DateiLöschen() const;

    // A section of the ini file: its key read (up to 255 characters), written, and the
    // first number of 1..200 whose test key is empty (201 when all are taken).
    std::string Lesen(const std::string& abschnitt, const std::string& schlüssel) const;
    void Schreiben(const std::string& abschnitt, const std::string& schlüssel, const std::string& wert) const;
    int FreierAbschnitt(const std::string& prüfSchlüssel) const;
    // Every selected row removed, from the last to the first, each with its section; the
    // other sections keep their numbers, since the readers go through gaps.
    void MarkierteAbschnitteEntfernen();

private:
    Grundliste(WächterKontext& k, const char* datei, ListBox* box, ListView* view, const char* trenner, int spalte);
    std::vector<std::string> Zeilen() const;

    WächterKontext& k_;
    const char* datei_;
    ListBox* box_;
    ListView* view_;
    const char* trenner_;
    int spalte_;
};

// The selected line of a list box removed; false when none is.
bool ZeileEntfernen(ListBox& liste);
// The selected rows of a list view removed, from the last to the first.
void MarkierteEntfernen(ListView& liste);
// The first selected row of a list view, searched from the top; nullptr for none.
const ListItem* ErsteMarkierte(const ListView& l);

}  // namespace kes
