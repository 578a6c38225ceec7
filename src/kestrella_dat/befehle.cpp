#include "kestrella_dat/befehle.h"

#include <charconv>

#include "common/zeichensatz.h"
#include "platform/journal.h"
#include "platform/sicherung.h"

namespace kes::werkzeug {

namespace {

// The form of a journal time; --since takes it cut after a whole part.
constexpr std::string_view kZeitform = "0000-00-00T00:00:00";

bool ZeitPasst(const std::string& t) {
    if (t.size() != 4 && t.size() != 7 && t.size() != 10 && t.size() != 13 && t.size() != 16 && t.size() != 19)
        return false;
    for (std::size_t i = 0; i < t.size(); ++i) {
        const bool ziffer = t[i] >= '0' && t[i] <= '9';
        if (kZeitform[i] == '0' ? !ziffer : t[i] != kZeitform[i]) return false;
    }
    return true;
}

std::optional<std::int64_t> Nummer(const std::string& text) {
    std::int64_t n = 0;
    const char* ende = text.data() + text.size();
    const auto [rest, fehler] = std::from_chars(text.data(), ende, n);
    if (text.empty() || text[0] == '-' || fehler != std::errc() || rest != ende || n <= 0) return std::nullopt;
    return n;
}

std::string MitTrenner(std::string ordner) {
    if (ordner.back() != '\\' && ordner.back() != '/') ordner += '\\';
    return ordner;
}

// The folder without the separator that closes it, for messages.
std::string OhneTrenner(const std::string& ordner) {
    return ordner.substr(0, ordner.size() - 1);
}

std::string Text(const Ausgaben& o, const std::string& s) {
    return o.utf8 ? zeichensatz::NachUtf8(s) : s;
}

void Melden(Ausgaben& o, const std::string& s) {
    o.fehler << "kestrella-dat: " << Text(o, s) << '\n';
}

bool OrdnerDa(FileApi& files, const std::string& ordner) {
    const std::uint32_t a = files.GetAttributes(ordner);
    return a != kInvalidAttributes && (a & kAttrDirectory);
}

const char* Ereignis(const std::string& e) {
    if (e == "warning") return "Warnung";
    if (e == "answer") return "Antwort";
    if (e == "auto") return "Automatisch";
    if (e == "restore") return "Wiederherstellung";
    return nullptr;
}

// A value name or a text may hold a line break: it would split the entry's one line.
std::string EineZeile(std::string s) {
    for (char& c : s)
        if (static_cast<unsigned char>(c) < 0x20) c = ' ';
    return s;
}

std::string Zeile(const JournalEintrag& e) {
    const char* ereignis = Ereignis(e.ereignis);
    std::string z = "Nr. " + std::to_string(e.id) + " | " + EineZeile(e.zeit) + " | " +
                    (ereignis ? ereignis : EineZeile(e.ereignis));
    const std::pair<const char*, const std::string*> felder[] = {
        {"Kategorie", &e.kategorie}, {"Aktion", &e.aktion}, {"Ziel", &e.ziel}, {"Sicherung", &e.sicherung}};
    for (const auto& [name, wert] : felder)
        if (!wert->empty()) z += std::string(" | ") + name + ": " + EineZeile(*wert);
    return z;
}

}  // namespace

std::optional<std::variant<Aufruf, Fehlaufruf>> AufrufLesen(const std::vector<std::string>& argumente) {
    if (argumente.empty() || (argumente[0] != "journal" && argumente[0] != "restore")) return std::nullopt;
    const std::string& befehl = argumente[0];
    const bool journal = befehl == "journal";
    std::vector<std::string> frei;
    JournalAufruf j;
    RestoreAufruf r;
    for (std::size_t i = 1; i < argumente.size(); ++i) {
        const std::string& x = argumente[i];
        if (journal && x == "--json") {
            j.json = true;
        } else if (journal && x == "--since") {
            if (i + 1 == argumente.size()) return Fehlaufruf{"Nach --since fehlt die Zeit, etwa 2026-11-24 oder 2026-11-24T10:00."};
            j.seit = argumente[++i];
            if (!ZeitPasst(j.seit))
                return Fehlaufruf{"--since erwartet eine Zeit wie 2026-11-24 oder 2026-11-24T10:00, nicht: " + j.seit};
        } else if (!journal && x == "--force") {
            r.erzwingen = true;
        } else if (x.rfind("--", 0) == 0) {
            return Fehlaufruf{"Unbekannte Option für " + befehl + ": " + x};
        } else {
            frei.push_back(x);
        }
    }
    if (frei.empty() || frei[0].empty()) return Fehlaufruf{"Der Programmordner fehlt (der Ordner mit daten\\)."};
    if (journal) {
        if (frei.size() != 1) return Fehlaufruf{"journal nimmt nur den Programmordner, nicht auch: " + frei[1]};
        j.ordner = MitTrenner(frei[0]);
        return Aufruf{j};
    }
    if (frei.size() < 2) return Fehlaufruf{"Die Nummer des Eintrags im Journal fehlt."};
    if (frei.size() > 2) return Fehlaufruf{"restore nimmt den Programmordner und eine Nummer, nicht auch: " + frei[2]};
    const auto id = Nummer(frei[1]);
    if (!id) return Fehlaufruf{"Die Nummer eines Eintrags ist eine ganze Zahl ab 1, nicht: " + frei[1]};
    r.ordner = MitTrenner(frei[0]);
    r.id = *id;
    return Aufruf{r};
}

int JournalZeigen(FileApi& files, const JournalAufruf& a, Ausgaben& o) {
    if (!OrdnerDa(files, a.ordner)) {
        Melden(o, "Der Programmordner ist nicht da: " + OhneTrenner(a.ordner));
        return kFehlgeschlagen;
    }
    const std::string pfad = a.ordner + kJournaldatei;
    if (files.GetAttributes(pfad) == kInvalidAttributes) {
        // A program that has not warned yet has no journal: nothing to show.
        Melden(o, "Noch kein Journal: " + pfad);
        return kErledigt;
    }
    if (!files.CanRead(pfad)) {
        Melden(o, "Das Journal kann nicht gelesen werden: " + pfad);
        return kFehlgeschlagen;
    }
    const Journal::Inhalt inhalt = Journal::Lesen(files, a.ordner);
    for (const std::string& h : inhalt.hinweise) Melden(o, h);
    for (std::size_t i = 0; i < inhalt.einträge.size(); ++i) {
        const JournalEintrag& e = inhalt.einträge[i];
        // As text: the time's form sorts as it counts, the offset aside.
        if (e.zeit < a.seit) continue;
        o.aus << (a.json ? inhalt.zeilen[i] : Text(o, Zeile(e))) << '\n';
    }
    return kErledigt;
}

int Zurückholen(Plattform& p, const RestoreAufruf& a, Ausgaben& o) {
    if (!OrdnerDa(p.files, a.ordner)) {
        Melden(o, "Der Programmordner ist nicht da: " + OhneTrenner(a.ordner));
        return kFehlgeschlagen;
    }
    const Journal::Inhalt inhalt = Journal::Lesen(p.files, a.ordner);
    for (const std::string& h : inhalt.hinweise) Melden(o, h);
    const std::string nr = std::to_string(a.id);
    bool bekannt = false;
    std::optional<JournalEintrag> eintrag;
    for (const JournalEintrag& e : inhalt.einträge) {
        if (e.id != a.id) continue;
        bekannt = true;
        if (!e.sicherung.empty()) eintrag = e;
    }
    if (!bekannt) {
        Melden(o, "Im Journal gibt es keinen Eintrag Nr. " + nr + ": " + a.ordner + kJournaldatei);
        return kFehlgeschlagen;
    }
    if (!eintrag) {
        Melden(o, "Eintrag Nr. " + nr + " hat keine Sicherung: zu ihm gibt es nichts wiederherzustellen.");
        return kFehlgeschlagen;
    }

    std::string zurück;
    bool alle = true;
    for (const std::string& name : SicherungenTeilen(eintrag->sicherung)) {
        const std::string grund = Wiederherstellen(p, a.ordner, name, eintrag->ziel, a.erzwingen);
        if (grund.empty()) {
            o.aus << Text(o, "Sicherung " + name + " wiederhergestellt.") << '\n';
            zurück += (zurück.empty() ? "" : ";") + name;
            continue;
        }
        alle = false;
        const bool stehtDa = grund.rfind("Schon vorhanden", 0) == 0;
        Melden(o, "Sicherung " + name + " nicht wiederhergestellt: " + grund +
                      (stehtDa && !a.erzwingen ? " (--force überschreibt es)" : ""));
    }
    if (zurück.empty()) return kFehlgeschlagen;

    // What was put back, also when another backup of the entry was refused.
    JournalEintrag z;
    z.ereignis = "restore";
    z.kategorie = eintrag->kategorie;
    z.ziel = eintrag->ziel;
    z.aktion = "Wiederherstellen";
    z.sicherung = zurück;
    z.texte.push_back("Aus der Sicherung von Eintrag Nr. " + nr + " wiederhergestellt" +
                      (a.erzwingen ? ", Vorhandenes überschrieben." : "."));
    if (Journal(p.files, p.system, a.ordner).Schreiben(z) == 0)
        Melden(o, "Die Wiederherstellung steht nicht im Journal, es kann nicht geschrieben werden: " + a.ordner +
                      kJournaldatei);
    return alle ? kErledigt : kFehlgeschlagen;
}

}  // namespace kes::werkzeug
