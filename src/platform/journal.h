// The journal: daten\journal.jsonl, one JSON object a line (UTF-8) for every warning raised,
// every answer, every automatic action and every restore, for collectors that read JSON
// lines. Lines are only ever appended, each in one write; a reader passes over a damaged
// line and says so.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/seam/plattform.h"

namespace kes {

inline constexpr const char* kJournaldatei = "daten\\journal.jsonl";

// One line. The texts are the program's own (code page 1252); the file holds them as UTF-8.
struct JournalEintrag {
    std::int64_t id = 0;      // "id", given by Schreiben
    std::string zeit;         // "time", ISO 8601 with the offset, given by Schreiben
    std::string ereignis;     // "event": "warning", "answer", "auto" or "restore"
    std::string kategorie;    // "category": the category key
    std::string ziel;         // "target": key path with value name, file or process path
    std::string aktion;       // "action": the button or the automatic action
    std::string sicherung;    // "backup": the backup's file name; left out when empty
    std::vector<std::string> texte;  // "texts": the headline and rows the user saw
};

class Journal {
public:
    Journal(FileApi& files, SystemApi& system, std::string programmordner)
        : files_(files), system_(system), programmordner_(std::move(programmordner)) {}

    // Appends the entry with the next free id and the time now: the id, 0 when the line
    // could not be written.
    std::int64_t Schreiben(JournalEintrag e);

    struct Inhalt {
        std::vector<JournalEintrag> einträge;
        std::vector<std::string> zeilen;    // each entry's line as the file holds it (UTF-8)
        std::vector<std::string> hinweise;  // one per line passed over
    };
    Inhalt Lesen() const { return Lesen(files_, programmordner_); }
    // For a reader without a clock.
    static Inhalt Lesen(FileApi& files, const std::string& programmordner);
    std::string Pfad() const { return programmordner_ + kJournaldatei; }

private:
    FileApi& files_;
    SystemApi& system_;
    std::string programmordner_;
};

// "2026-11-22T14:05:09+01:00".
std::string IsoZeit(const Uhrzeit& t);

}  // namespace kes
