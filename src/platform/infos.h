// The module Infos: what a file says about itself. The twelve texts of its version block,
// its three times in local time, and a short summary of name, kind and version. "Unbekannt"
// stands for anything that could not be read, whatever the reason.
#pragma once

#include <cstdint>
#include <string>

#include "platform/seam/plattform.h"

namespace kes {

// The version field record, in the order of the version block's string names.
struct DateiVersion {
    std::string CompanyName;
    std::string FileDescription;
    std::string FileVersion;
    std::string InternalName;
    std::string LegalCopyright;
    std::string OriginalFileName;
    std::string ProductName;
    std::string ProductVersion;
    std::string Comments;
    std::string LegalTrademarks;
    std::string PrivateBuild;
    std::string SpecialBuild;
};

// A date value to the second, in local time.
struct Zeitpunkt {
    int Jahr = 0, Monat = 0, Tag = 0;
    int Stunde = 0, Minute = 0, Sekunde = 0;

    // "dd.mm.yyyy  hh:mm:ss", two blanks between date and time.
    std::string Text() const;
    bool operator==(const Zeitpunkt&) const = default;
};

// A FILETIME number (100 ns since 1601) as a date, without any change of zone.
Zeitpunkt AusFiletime(std::uint64_t filetime);

// The summary of DateiKurzinfo.
struct DateiKurz {
    std::string Dateiname;
    std::string Typ;
    std::string Version;
    std::string Pfad;
};

// Fills all twelve fields from the first translation of the version block. A missing
// file gives "Unbekannt" everywhere. A first translation whose code page or language
// reaches 32768 ends in an overflow error (Fehler 6) with the record left as it was.
void DateiInfos(Plattform& p, const std::string& pfad, DateiVersion& record);
// The three times of a file opened without sharing, as local time. False, with the
// three left as they were, when the file is missing or open elsewhere.
bool DateiZeiten(Plattform& p, const std::string& pfad, Zeitpunkt& erstellt, Zeitpunkt& zugriff,
                 Zeitpunkt& geschrieben);
// File name, kind of file, version "a.b.c.d" (each part as a signed 16-bit number) and
// the path as passed in. A file without version block gives "Unbekannt" and "0.0.0.0".
DateiKurz DateiKurzinfo(Plattform& p, const std::string& pfad);

}  // namespace kes
