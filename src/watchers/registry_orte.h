// Registry places where programs settle beside the Run keys: named values of a key, all
// values of a key, or one named value of each subkey, each read in both views where the
// machine's software keys are. One class serves every such watcher; a constant description
// says which places it reads, which key its warnings carry and where its baseline lies.
// An entry is new when its place, name and data together are not in the baseline, so a
// changed value counts as new. A multi-string value gives one entry per part.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "common/kategorie.h"
#include "common/steuerelemente.h"
#include "watchers/aenderungsquellen.h"
#include "watchers/bekannte_texte.h"
#include "watchers/grundliste.h"
#include "watchers/kontext.h"
#include "watchers/listenmenue.h"

namespace kes {

// What of a key a place reads.
enum class Ortsart {
    Werte,            // the values named in the place
    AlleWerte,        // every value of the key
    WertJeSchlüssel,  // the first named value of each subkey, where the subkey has it
    Unterschlüssel,   // each subkey, with the first named value as its data; delete removes the subkey
    // Each subkey of a catalog, by the library its first named value names: a path as text, or
    // a binary catalog item with the path at its head. Windows renumbers a catalog's subkeys
    // when a provider comes or goes, so an entry is known by its path, not by its number.
    Katalog,
};

// Where a place's entries name a component class, the entry stands for the class's server
// file; a class without one passes in silence, as on the lists of helper objects.
enum class Klassenform {
    Keine,
    Wertname,  // the value's name is the class
    Daten,     // the value's data are the class
};

// How the warning of a place's value puts the machine back.
enum class Rückweg {
    Löschen,  // the value goes, as any autostart entry does
    // The text the baseline knows goes back ("Original"), else Windows' own, else none. Read
    // by subkeys, a subkey without its value starts nothing and is no entry.
    Original,
    Freigeben,  // a lock: a value of 0 is none, and the warning takes a lock away ("Freigeben")
};

struct RegistryOrt {
    RegHandle wurzel = 0;
    const char* schlüssel = nullptr;
    Ortsart art = Ortsart::Werte;
    std::array<const char*, 5> namen{};
    // A place below HKLM\Software is read in the 32-bit view too.
    bool beideAnsichten = false;
    // Named values that Windows cannot start a session without: a warning of one offers to
    // put back the known data ("Original"), never to delete it.
    std::array<const char*, 2> unentbehrlich{};
    Klassenform klasse = Klassenform::Keine;
    Rückweg rückweg = Rückweg::Löschen;
    // What Windows itself keeps in the place's values, put back by "Original" where the
    // baseline knows no text; none: the value goes.
    const char* vorgabe = nullptr;
};

struct OrtEintrag;

struct OrteBeschreibung {
    Kategorie kategorie = Kategorie::Keine;
    const char* datei = nullptr;        // the baseline below the program folder
    const char* überschrift = nullptr;  // the warning's headline
    std::span<const RegistryOrt> orte;
    // A new subkey that another watcher of the program warns of while its box is on: this
    // one learns it without a word, so that the user is not asked twice.
    bool (*anderswoGemeldet)(WächterKontext& k, const OrtEintrag& e) = nullptr;
};

// How an entry goes when the user deletes it; the warning keeps it in a field. An
// Unentbehrlich value is not deleted but put back, as is a Text; a Sperre is released; a
// Katalog entry goes with its subkey. A Programm is a subkey named by the program its value
// starts (a service): a new one goes with its subkey, a changed one warns as a Text; the
// warning never carries the word itself.
enum class Eintragsart { Wert, Teil, Schlüssel, Unentbehrlich, Katalog, Text, Sperre, Programm };
// The key a catalog entry is known by: its subkey's number left out.
std::string KatalogSchlüssel(const std::string& schlüssel);
const char* ArtName(Eintragsart art);

// One entry found: a value (or a part of a multi-string, or a subkey) with its data.
struct OrtEintrag {
    std::string wurzel;     // "HKEY_LOCAL_MACHINE"
    std::string schlüssel;  // the key, by its Wow6432Node path when seen in the 32-bit view
    std::string name;       // the value's name
    std::string daten;      // the server file or the library where the place names one
    Eintragsart art = Eintragsart::Wert;
    bool datei = false;  // the data are a file, whose details the warning shows

    // The baseline's line: key, name and data.
    std::string Zeile() const;
    // The deferred list's text: key and name, so that a deferred value that changes stays
    // deferred; a part of a multi-string is known by itself.
    std::string Aufschub() const;
};

// The value an entry belongs to: root, key and name joined by backslashes.
std::string WertPfad(const OrtEintrag& e);

// Every entry at the described places as they stand now; a missing key gives none.
// pumpen runs between the places and the subkeys.
std::vector<OrtEintrag> OrteAuflisten(Plattform& p, const OrteBeschreibung& b, const std::function<void()>& pumpen);

class RegistryOrte {
public:
    RegistryOrte(WächterKontext& k, const OrteBeschreibung& b, ListView& liste)
        : beschreibung(b), liste(liste), basis(k, b.datei, liste), k_(k) {}

    // The baseline from its file; without a file the list stays empty and the next pass
    // takes the machine as it stands.
    void Laden();
    // One pass: the first entry neither known nor deferred raises its warning. A pass with
    // no baseline file read or taken yet takes the present state instead, without a word.
    void Teste();
    // The present state written as the baseline file, for the first-run assistant.
    static void Erstaufnahme(WächterKontext& k, const OrteBeschreibung& b);

    // The accept of a warning: the entry's line into the baseline. With einzig, the value
    // ("root\\key\\name") has one known text: its other lines go.
    void Übernehmen(const std::string& zeile, const std::string& einzig = "");
    // The data the baseline knows for a value ("root\\key\\name"), the first line of it;
    // none when it knows none.
    std::optional<std::string> Bekannt(const std::string& wert) const;
    // The place a value of a warning belongs to, in either view; none when it is not one of
    // the watcher's. A place of named values must name it.
    const RegistryOrt* OrtVon(RegHandle root, const std::string& schlüssel, const std::string& name);
    // The panel's menu: the selected rows removed from the baseline.
    void MarkierteLöschen(ListenPanel& panel);
    // The keys the passes read, in each view they are read in; with everything below them
    // where the subkeys count.
    Änderungsorte Orte();

    const OrteBeschreibung& beschreibung;
    ListView& liste;  // the baseline: one line per known entry
    Grundliste basis;

private:
    void Warnen(const OrtEintrag& e);
    // The baseline's texts as the compare folds them, made anew when a line of the list
    // is not what it was when they were made.
    std::shared_ptr<const BekannteTexte> Bekannte();
    WächterKontext& k_;
    bool grundstand_ = false;  // a baseline file was read or written in this run
    // The entries of the last walk with the text the baseline knows each by, kept while
    // the places are quiet; the baseline and the deferred list are still asked at every
    // pass. Shared: a pass holds the walk it compares while a warning lets messages run.
    struct Gelistet {
        std::vector<OrtEintrag> einträge;
        std::vector<std::string> gefaltet;
    };
    std::shared_ptr<const Gelistet> stand_;
    std::vector<std::string> basiszeilen_;  // the list's lines the texts below were made of
    std::shared_ptr<const BekannteTexte> bekannt_;
};

}  // namespace kes
