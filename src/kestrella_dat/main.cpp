// kestrella-dat: prints a kestrella.dat as text and sets or removes single keys, for
// administrators who roll out settings and for tests that need a given state; shows the
// journal of a program folder and puts back the backup of an answer.
//
//   kestrella-dat show FILE
//   kestrella-dat set FILE KEY VALUE     (creates FILE when it does not exist)
//   kestrella-dat del FILE KEY
//   kestrella-dat journal DIR [--since TIME] [--json]
//   kestrella-dat restore DIR ID [--force]
//
// DIR is the program folder, the one that holds daten\. journal prints one line per entry of
// daten\journal.jsonl; --json prints the entries' lines as the file holds them (UTF-8), and
// --since TIME only those whose time is TIME or later, TIME being the start of a journal
// time cut after a whole part (2026-11-24, 2026-11-24T10, 2026-11-24T10:00), compared as
// text. Damaged lines are named on stderr and passed over. restore puts back every backup
// of entry ID (the "id" of its line) and appends a "restore" line; it refuses to overwrite
// what stands there now unless --force. Options may stand anywhere after the command.
// Exit codes: 0 done, 1 the work could not be done (missing folder, unknown entry, no
// backup, a refused restore), 2 a wrong call. The native Linux build has no registry: it
// shows the journal and answers restore with exit code 2.
//
// kestrella.dat and the program's texts are code page 1252. The native Linux build converts
// arguments and output from and to the terminal's UTF-8; the Windows build leaves that to the console's code page.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "common/fehler.h"
#include "common/text.h"
#include "common/zeichensatz.h"
#include "core/property_bag.h"
#include "kestrella_dat/befehle.h"

using namespace kes;

namespace {

#ifdef _WIN32
constexpr bool kUtf8 = false;
// A console shows the file's bytes by its own code page; redirected output keeps them as
// they are, in the program's code page.
std::string Eingabe(const std::string& s) {
    return s;
}
std::string Ausgabe(const std::string& s) {
    return s;
}
#else
constexpr bool kUtf8 = true;
// On Linux the terminal and the command line speak UTF-8, the file code page 1252.
std::string Eingabe(const std::string& s) {
    return zeichensatz::NachCp1252(s);
}
std::string Ausgabe(const std::string& s) {
    return zeichensatz::NachUtf8(s);
}
#endif

const char* TypName(BagTyp t) {
    switch (t) {
        case BagTyp::Int16:
            return "int16";
        case BagTyp::Int32:
            return "int32";
        case BagTyp::Text:
            return "string";
        case BagTyp::Bool:
            return "boolean";
    }
    return "?";
}

// The type a key has in the program's settings; other keys are stored as text.
BagTyp TypFürSchlüssel(const std::string& name) {
    const std::string k = Klein(name);
    if (k == Klein("hostsgrösse")) return BagTyp::Int32;
    if (k == "aufab1" || (k.rfind("box", 0) == 0 && k.size() > 3)) return BagTyp::Int16;
    if (k == Klein("AnzeigeLöschen") || k == "sofort") return BagTyp::Bool;
    return BagTyp::Text;
}

BagWert Wert(BagTyp typ, const std::string& text) {
    // Conversion goes through the bag's own reader, so the tool accepts what the program does.
    PropertyBag hilfe;
    hilfe.WriteProperty("x", text);
    switch (typ) {
        case BagTyp::Int16:
            return hilfe.ReadProperty("x", std::int16_t{0});
        case BagTyp::Int32:
            return hilfe.ReadProperty("x", std::int32_t{0});
        case BagTyp::Bool:
            return hilfe.ReadProperty("x", false);
        case BagTyp::Text:
            break;
    }
    return text;
}

bool Laden(const std::string& pfad, PropertyBag& bag, bool fehlendErlaubt) {
    std::ifstream ein(pfad, std::ios::binary);
    if (!ein) {
        if (fehlendErlaubt) return true;
        std::cerr << "kestrella-dat: cannot read " << pfad << "\n";
        return false;
    }
    std::stringstream inhalt;
    inhalt << ein.rdbuf();
    bag = PropertyBag::AusInhalt(inhalt.str());
    return true;
}

bool Speichern(const std::string& pfad, const PropertyBag& bag) {
    std::ofstream aus(pfad, std::ios::binary | std::ios::trunc);
    aus << bag.Contents();
    if (!aus) {
        std::cerr << "kestrella-dat: cannot write " << pfad << "\n";
        return false;
    }
    return true;
}

int Hilfe() {
    std::cerr << "usage: kestrella-dat show FILE\n"
                 "       kestrella-dat set FILE KEY VALUE\n"
                 "       kestrella-dat del FILE KEY\n"
                 "       kestrella-dat journal DIR [--since TIME] [--json]\n"
                 "       kestrella-dat restore DIR ID [--force]\n";
    return 2;
}

// journal and restore, on the program folder.
int Journalbefehl(const std::variant<werkzeug::Aufruf, werkzeug::Fehlaufruf>& aufruf) {
    if (const auto* f = std::get_if<werkzeug::Fehlaufruf>(&aufruf)) {
        std::cerr << "kestrella-dat: " << Ausgabe(f->grund) << "\n";
        return Hilfe();
    }
    werkzeug::Ausgaben o{std::cout, std::cerr, kUtf8};
    try {
        return werkzeug::AufDiesemSystem(std::get<werkzeug::Aufruf>(aufruf), o);
    } catch (const std::exception& e) {
        // The journal and the backups come from outside; whatever they hold ends in a message.
        std::cerr << "kestrella-dat: " << e.what() << "\n";
        return werkzeug::kFehlgeschlagen;
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> argumente;
    for (int i = 1; i < argc; ++i) argumente.push_back(Eingabe(argv[i]));
    if (const auto aufruf = werkzeug::AufrufLesen(argumente)) return Journalbefehl(*aufruf);
    if (argc < 3) return Hilfe();
    const std::string befehl = argv[1], pfad = argv[2];
    try {
        PropertyBag bag;
        if (befehl == "show" && argc == 3) {
            if (!Laden(pfad, bag, false)) return 1;
            for (const auto& e : bag.Einträge())
                std::cout << Ausgabe(e.name) << " (" << TypName(TypVon(e.wert))
                          << ") = " << Ausgabe(WertAlsText(e.wert)) << "\n";
            return 0;
        }
        if (befehl == "set" && argc == 5) {
            if (!Laden(pfad, bag, true)) return 1;
            const std::string name = Eingabe(argv[3]);
            const auto* alt = bag.Finde(name);
            const BagTyp typ = alt ? TypVon(alt->wert) : TypFürSchlüssel(name);
            bag.WriteProperty(alt ? alt->name : name, Wert(typ, Eingabe(argv[4])));
            return Speichern(pfad, bag) ? 0 : 1;
        }
        if (befehl == "del" && argc == 4) {
            if (!Laden(pfad, bag, false)) return 1;
            bag.Remove(Eingabe(argv[3]));
            return Speichern(pfad, bag) ? 0 : 1;
        }
        return Hilfe();
    } catch (const Fehler& f) {
        std::cerr << "kestrella-dat: " << pfad << ": " << f.what() << " (Fehler " << f.Nummer() << ")\n";
        return 1;
    }
}
