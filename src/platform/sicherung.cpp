#include "platform/sicherung.h"

#include <cstdio>

#include "platform/allefunktionen.h"

namespace kes {

void Sicherung::Wert(RegHandle root, const std::string& key, const std::string& name) {
    for (RegAbschnitt& a : RegWertLesen(p_.registry, root, key, name)) registry_.push_back(std::move(a));
}

void Sicherung::Schlüssel(RegHandle root, const std::string& key) {
    for (RegAbschnitt& a : RegBaumLesen(p_.registry, root, key)) registry_.push_back(std::move(a));
}

void Sicherung::Datei(const std::string& pfad) {
    datei_ = pfad;
}

std::optional<std::string> Sicherung::Schreiben() {
    if (!datei_.empty()) {
        if (p_.files.GetAttributes(datei_) == kInvalidAttributes) return std::string();
        const std::optional<std::string> daten = p_.files.ReadAll(datei_);
        if (!daten) return std::nullopt;  // there, but not to be read: it cannot be saved
        const std::size_t trenner = datei_.find_last_of('\\');
        std::string endung = "-";  // appended, not "-" + ...: GCC 12 warns of a false overlap there
        endung += datei_.substr(trenner == std::string::npos ? 0 : trenner + 1);
        return Ablegen(endung, *daten, datei_);
    }
    if (registry_.empty()) return std::string();
    return Ablegen(".reg", RegDateiText(registry_));
}

std::optional<std::string> Sicherung::Ablegen(const std::string& endung, const std::string& daten,
                                              const std::string& herkunft) {
    // The data folder may be gone; an existing folder is no failure.
    p_.files.MakeDirectory(programmordner_ + "daten");
    p_.files.MakeDirectory(programmordner_ + "daten\\Sicherung");
    const std::string stempel = Zeitstempel(p_.system.Jetzt());
    for (int n = 1; n < 10000; ++n) {
        const std::string name = stempel + "-" + std::to_string(n) + endung;
        const std::string ziel = Ordner() + name;
        if (p_.files.GetAttributes(ziel) != kInvalidAttributes ||
            p_.files.GetAttributes(ziel + kHerkunftEndung) != kInvalidAttributes)
            continue;
        // A file's copy names where it came from, in a line beside it written first, so that
        // the backup alone is enough to put it back.
        if (!herkunft.empty() && !p_.files.WriteAll(ziel + kHerkunftEndung, herkunft + "\r\n")) return std::nullopt;
        // Under its own name only when whole: a backup cut short by a kill is a ".tmp".
        const std::string halb = ziel + ".tmp";
        if (!p_.files.WriteAll(halb, daten) || !p_.files.MoveReplacing(halb, ziel)) {
            p_.files.Delete(halb);
            if (!herkunft.empty()) p_.files.Delete(ziel + kHerkunftEndung);
            return std::nullopt;
        }
        return name;
    }
    return std::nullopt;
}

std::vector<std::string> SicherungenTeilen(const std::string& feld) {
    // "20261124-100003-": eight digits, a dash, six digits, a dash.
    const auto stempel = [&](std::size_t i) {
        if (feld.size() < i + 16) return false;
        for (std::size_t k = 0; k < 16; ++k) {
            const char c = feld[i + k];
            if ((k == 8 || k == 15) ? c != '-' : (c < '0' || c > '9')) return false;
        }
        return true;
    };
    std::vector<std::string> namen;
    std::size_t anfang = 0;
    for (std::size_t i = 0; i <= feld.size(); ++i) {
        if (i < feld.size() && !(feld[i] == ';' && stempel(i + 1))) continue;
        if (i > anfang) namen.push_back(feld.substr(anfang, i - anfang));
        anfang = i + 1;
    }
    return namen;
}

bool UnlesbarGemeldet(Plattform& p, const std::string& pfad) {
    if (p.files.GetAttributes(pfad) == kInvalidAttributes || p.files.CanRead(pfad)) return false;
    DateiNichtGelöscht(p, pfad, 32);  // ERROR_SHARING_VIOLATION
    return true;
}

std::string Herkunft(FileApi& files, const std::string& programmordner, const std::string& name) {
    const auto notiz = files.ReadAll(programmordner + kSicherungsordner + name + kHerkunftEndung);
    return notiz ? notiz->substr(0, notiz->find_first_of("\r\n")) : std::string();
}

std::string SicherungFehlgeschlagenText(const std::string& ordner) {
    return "Die Sicherung konnte nicht geschrieben werden:\r\n" + ordner +
           "\r\n\r\nEs wurde nichts gelöscht oder geändert.";
}

std::string Zeitstempel(const Uhrzeit& t) {
    char b[32];
    std::snprintf(b, sizeof b, "%04d%02d%02d-%02d%02d%02d", t.jahr, t.monat, t.tag, t.stunde, t.minute, t.sekunde);
    return b;
}

}  // namespace kes

namespace kes {

std::string Wiederherstellen(Plattform& p, const std::string& programmordner, const std::string& name,
                             const std::string& ursprung, bool überschreiben) {
    const std::string quelle = programmordner + kSicherungsordner + name;
    const std::optional<std::string> daten = p.files.ReadAll(quelle);
    if (!daten) return "Die Sicherung " + name + " ist nicht mehr da oder kann nicht gelesen werden.";
    if (name.size() > 4 && name.compare(name.size() - 4, 4, ".reg") == 0) {
        const auto abschnitte = RegDateiLesen(*daten);
        if (!abschnitte) return "Die Sicherung " + name + " ist beschädigt.";
        const std::vector<std::string> da = RegVorhanden(p.registry, *abschnitte);
        if (!da.empty() && !überschreiben) return "Schon vorhanden, nichts wurde geändert: " + da.front();
        if (!RegEinspielen(p.registry, *abschnitte)) return "Die Registry konnte nicht geschrieben werden.";
        return "";
    }
    std::string ziel = Herkunft(p.files, programmordner, name);
    if (ziel.empty()) ziel = ursprung;
    if (ziel.empty()) return "Zur Sicherung " + name + " ist kein Ziel bekannt.";
    if (p.files.GetAttributes(ziel) != kInvalidAttributes && !überschreiben)
        return "Schon vorhanden, nichts wurde geändert: " + ziel;
    // Beside the target first, then in its place in one step: never half a file.
    const std::string halb = ziel + ".kestrella.tmp";
    if (!p.files.WriteAll(halb, *daten) || !p.files.MoveReplacing(halb, ziel)) {
        p.files.Delete(halb);
        return "Die Datei konnte nicht geschrieben werden: " + ziel;
    }
    return "";
}

}  // namespace kes
