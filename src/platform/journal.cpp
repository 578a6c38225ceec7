#include "platform/journal.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "common/zeichensatz.h"

namespace kes {

namespace {

using nlohmann::json;

json AlsJson(const JournalEintrag& e) {
    json texte = json::array();
    for (const std::string& t : e.texte) texte.push_back(zeichensatz::NachUtf8(t));
    json j = {{"id", e.id},
              {"time", e.zeit},
              {"event", e.ereignis},
              {"category", zeichensatz::NachUtf8(e.kategorie)},
              {"target", zeichensatz::NachUtf8(e.ziel)},
              {"action", zeichensatz::NachUtf8(e.aktion)}};
    if (!e.sicherung.empty()) j["backup"] = zeichensatz::NachUtf8(e.sicherung);
    j["texts"] = std::move(texte);
    return j;
}

// nullopt for a line that is no journal entry.
std::optional<JournalEintrag> AusJson(const std::string& zeile) {
    const json j = json::parse(zeile, nullptr, false);
    if (j.is_discarded() || !j.is_object()) return std::nullopt;
    try {
        JournalEintrag e;
        e.id = j.at("id").get<std::int64_t>();
        e.zeit = j.value("time", "");
        e.ereignis = j.value("event", "");
        e.kategorie = zeichensatz::NachCp1252(j.value("category", ""));
        e.ziel = zeichensatz::NachCp1252(j.value("target", ""));
        e.aktion = zeichensatz::NachCp1252(j.value("action", ""));
        e.sicherung = zeichensatz::NachCp1252(j.value("backup", ""));
        for (const json& t : j.value("texts", json::array())) e.texte.push_back(zeichensatz::NachCp1252(t.get<std::string>()));
        return e;
    } catch (const json::exception&) {
        return std::nullopt;
    }
}

// The file's lines without their CR LF; empty lines are not counted as lines.
template <typename F>
void Zeilen(const std::string& text, F&& f) {
    std::size_t anfang = 0, nummer = 0;
    while (anfang < text.size()) {
        std::size_t ende = text.find('\n', anfang);
        if (ende == std::string::npos) ende = text.size();
        std::string z = text.substr(anfang, ende - anfang);
        anfang = ende + 1;
        ++nummer;
        if (!z.empty() && z.back() == '\r') z.pop_back();
        if (!z.empty()) f(nummer, z);
    }
}

// The id of the last whole line: ids only grow down the file, so only the end is read.
std::int64_t LetzteId(const std::string& text) {
    std::size_t ende = text.size();
    while (ende > 0) {
        const std::size_t anfang = text.rfind('\n', ende - 1);
        const std::size_t von = anfang == std::string::npos ? 0 : anfang + 1;
        if (auto e = AusJson(text.substr(von, ende - von))) return e->id;
        if (anfang == std::string::npos) break;
        ende = anfang;
    }
    return 0;
}

}  // namespace

std::int64_t Journal::Schreiben(JournalEintrag e) {
    const std::string alt = files_.ReadAll(Pfad()).value_or("");
    e.id = LetzteId(alt) + 1;
    e.zeit = IsoZeit(system_.Jetzt());
    std::string zeile = AlsJson(e).dump(-1, ' ', false, json::error_handler_t::replace) + "\r\n";
    // A line cut short by a kill stays alone on its line: the new one starts on a fresh one.
    if (!alt.empty() && alt.back() != '\n') zeile = "\r\n" + zeile;
    files_.MakeDirectory(programmordner_ + "daten");
    return files_.Append(Pfad(), zeile) ? e.id : 0;
}

Journal::Inhalt Journal::Lesen(FileApi& files, const std::string& programmordner) {
    Inhalt inhalt;
    Zeilen(files.ReadAll(programmordner + kJournaldatei).value_or(""), [&](std::size_t nummer, const std::string& z) {
        if (auto e = AusJson(z)) {
            inhalt.einträge.push_back(std::move(*e));
            inhalt.zeilen.push_back(z);
        } else {
            inhalt.hinweise.push_back("Zeile " + std::to_string(nummer) + " des Journals ist beschädigt und wurde übergangen.");
        }
    });
    return inhalt;
}

std::string IsoZeit(const Uhrzeit& t) {
    const int abstand = t.utcAbstandMinuten < 0 ? -t.utcAbstandMinuten : t.utcAbstandMinuten;
    char b[40];
    std::snprintf(b, sizeof b, "%04d-%02d-%02dT%02d:%02d:%02d%c%02d:%02d", t.jahr, t.monat, t.tag, t.stunde, t.minute,
                  t.sekunde, t.utcAbstandMinuten < 0 ? '-' : '+', abstand / 60, abstand % 60);
    return b;
}

}  // namespace kes
