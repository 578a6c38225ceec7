// The backup of what an action is about to remove or overwrite, in the data folder's
// "Sicherung": registry data as one .reg file, a file as its copy. Nothing is removed
// before the backup stands whole under its final name, and a backup is never overwritten.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/reg_datei.h"
#include "platform/seam/plattform.h"

namespace kes {

inline constexpr const char* kSicherungsordner = "daten\\Sicherung\\";
// Beside a file's copy: the path it came from.
inline constexpr const char* kHerkunftEndung = ".herkunft";

// One action's backup: say what goes, then write it before anything goes.
class Sicherung {
public:
    Sicherung(Plattform& p, std::string programmordner) : p_(p), programmordner_(std::move(programmordner)) {}

    // A value (NAME empty: the default value) or a key with everything below it, read now.
    void Wert(RegHandle root, const std::string& key, const std::string& name);
    void Schlüssel(RegHandle root, const std::string& key);
    // A file, copied when the backup is written; one file a backup.
    void Datei(const std::string& pfad);

    // Writes the backup: its file name in the backup folder, "" when nothing of what was
    // named exists (there is nothing to lose), nullopt when it could not be written.
    std::optional<std::string> Schreiben();
    std::string Ordner() const { return programmordner_ + kSicherungsordner; }

private:
    std::optional<std::string> Ablegen(const std::string& endung, const std::string& daten,
                                       const std::string& herkunft = "");

    Plattform& p_;
    std::string programmordner_;
    std::vector<RegAbschnitt> registry_;
    std::string datei_;
};

// A file that is there but cannot be read cannot be saved, so it must not go: the user hears
// of it as of any file in use that would not go. True when it was so reported.
bool UnlesbarGemeldet(Plattform& p, const std::string& pfad);

// The path a file's backup came from, as its note says; "" for a .reg backup or a lost note.
std::string Herkunft(FileApi& files, const std::string& programmordner, const std::string& name);

// The backup names of a journal line's "backup". A name starts with its time stamp
// ("20261124-100003-1..."), so a ";" in a saved file's own name does not split it.
std::vector<std::string> SicherungenTeilen(const std::string& feld);

// The German message that stops an action whose backup could not be written.
std::string SicherungFehlgeschlagenText(const std::string& ordner);

// The time in a file name: "20261122-140509".
std::string Zeitstempel(const Uhrzeit& t);

}  // namespace kes

namespace kes {

// Puts back the backup NAME (a file of the backup folder). A .reg backup names its keys,
// a file's copy its path; ZIEL stands in for a file's path only when its note is lost. Refuses, with the German
// reason, to overwrite what stands there now unless ÜBERSCHREIBEN; "" when done.
std::string Wiederherstellen(Plattform& p, const std::string& programmordner, const std::string& name,
                             const std::string& ziel, bool überschreiben);

}  // namespace kes
