#include "platform/ini_datei.h"

#include <vector>

#include "common/text.h"
#include "platform/allefunktionen.h"

namespace kes {

namespace {
std::string Trimmen(const std::string& s) {
    const auto a = s.find_first_not_of(" \t");
    if (a == std::string::npos) return "";
    const auto b = s.find_last_not_of(" \t");
    return s.substr(a, b - a + 1);
}

// The section name of a "[name]" line, or nullopt for any other line.
std::optional<std::string> Abschnitt(const std::string& zeile) {
    const std::string t = Trimmen(zeile);
    if (t.size() < 2 || t.front() != '[') return std::nullopt;
    const auto zu = t.find(']');
    if (zu == std::string::npos) return std::nullopt;
    return Trimmen(t.substr(1, zu - 1));
}

// Key and value of a "key=value" line.
bool Eintrag(const std::string& zeile, std::string& schlüssel, std::string& wert) {
    const auto gleich = zeile.find('=');
    if (gleich == std::string::npos) return false;
    schlüssel = Trimmen(zeile.substr(0, gleich));
    wert = Trimmen(zeile.substr(gleich + 1));
    return true;
}
}  // namespace

std::string IniDatei::GetString(const std::string& section, const std::string& key, const std::string& standard,
                                const std::string& file, int bufferSize) {
    const auto inhalt = files_.ReadAll(file);
    std::string ergebnis = standard;
    bool gefunden = false;
    if (inhalt) {
        bool imAbschnitt = false;
        for (const auto& zeile : ZeilenLesen(*inhalt)) {
            if (auto name = Abschnitt(zeile)) {
                imAbschnitt = GleichOhneFall(*name, section);
                continue;
            }
            std::string s, w;
            if (imAbschnitt && Eintrag(zeile, s, w) && GleichOhneFall(s, key)) {
                // A value in matching quotes loses them, as the platform reads it.
                if (w.size() >= 2 && ((w.front() == '"' && w.back() == '"') || (w.front() == '\'' && w.back() == '\'')))
                    w = w.substr(1, w.size() - 2);
                ergebnis = w;
                gefunden = true;
                break;
            }
        }
    }
    if (!gefunden) ergebnis = Trimmen(standard);
    if (bufferSize > 0 && static_cast<int>(ergebnis.size()) > bufferSize - 1) ergebnis.resize(bufferSize - 1);
    return ergebnis;
}

bool IniDatei::WriteString(const std::string& section, const std::optional<std::string>& key,
                           const std::optional<std::string>& value, const std::string& file) {
    std::vector<std::string> zeilen;
    if (auto inhalt = files_.ReadAll(file)) zeilen = ZeilenLesen(*inhalt);

    // Where the section starts and ends (end: one past its last key line).
    int anfang = -1, ende = -1;
    for (int i = 0; i < static_cast<int>(zeilen.size()); ++i) {
        if (auto name = Abschnitt(zeilen[i])) {
            if (anfang >= 0) break;
            if (GleichOhneFall(*name, section)) anfang = i, ende = i + 1;
            continue;
        }
        if (anfang >= 0 && !Trimmen(zeilen[i]).empty()) ende = i + 1;
    }
    if (!key) {
        if (anfang < 0) return true;
        int bis = ende;
        while (bis < static_cast<int>(zeilen.size()) && Trimmen(zeilen[bis]).empty()) ++bis;
        zeilen.erase(zeilen.begin() + anfang, zeilen.begin() + bis);
    } else {
        int treffer = -1;
        for (int i = anfang + 1; anfang >= 0 && i < ende; ++i) {
            std::string s, w;
            if (Eintrag(zeilen[i], s, w) && GleichOhneFall(s, *key)) {
                treffer = i;
                break;
            }
        }
        if (!value) {
            if (treffer >= 0) zeilen.erase(zeilen.begin() + treffer);
        } else if (treffer >= 0) {
            zeilen[treffer] = *key + "=" + *value;
        } else if (anfang >= 0) {
            zeilen.insert(zeilen.begin() + ende, *key + "=" + *value);
        } else {
            if (!zeilen.empty() && !Trimmen(zeilen.back()).empty()) zeilen.push_back("");
            zeilen.push_back("[" + section + "]");
            zeilen.push_back(*key + "=" + *value);
        }
    }
    std::string text;
    for (const auto& z : zeilen) text += z + "\r\n";
    return files_.WriteAll(file, text);
}

}  // namespace kes
