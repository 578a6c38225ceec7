#include "platform/infos.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "common/fehler.h"
#include "platform/allefunktionen.h"

namespace kes {

namespace {
constexpr const char* kUnbekannt = "Unbekannt";
constexpr std::size_t kTextPuffer = 255;

struct Feld {
    const char* name;
    std::string DateiVersion::*feld;
};
// The record's order, with the names the version block is asked for.
constexpr Feld kFelder[] = {
    {"CompanyName", &DateiVersion::CompanyName},
    {"FileDescription", &DateiVersion::FileDescription},
    {"FileVersion", &DateiVersion::FileVersion},
    {"InternalName", &DateiVersion::InternalName},
    {"LegalCopyright", &DateiVersion::LegalCopyright},
    {"OriginalFileName", &DateiVersion::OriginalFileName},
    {"ProductName", &DateiVersion::ProductName},
    {"ProductVersion", &DateiVersion::ProductVersion},
    {"Comments", &DateiVersion::Comments},
    {"LegalTrademarks", &DateiVersion::LegalTrademarks},
    {"PrivateBuild", &DateiVersion::PrivateBuild},
    {"SpecialBuild", &DateiVersion::SpecialBuild},
};

bool Leer(const std::string& s) {
    return s.find_first_not_of(' ') == std::string::npos;
}

std::uint32_t Dword(const std::string& b, std::size_t at) {
    std::uint32_t v = 0;
    for (std::size_t i = 4; i-- > 0;) v = (v << 8) | static_cast<std::uint8_t>(at + i < b.size() ? b[at + i] : 0);
    return v;
}

// Days since 1970-01-01 to the civil date (proleptic Gregorian).
void AusTagen(std::int64_t z, int& jahr, int& monat, int& tag) {
    z += 719468;
    const std::int64_t ära = (z >= 0 ? z : z - 146096) / 146097;
    const std::int64_t tdä = z - ära * 146097;
    const std::int64_t jdä = (tdä - tdä / 1460 + tdä / 36524 - tdä / 146096) / 365;
    const std::int64_t tdj = tdä - (365 * jdä + jdä / 4 - jdä / 100);
    const std::int64_t mp = (5 * tdj + 2) / 153;
    tag = static_cast<int>(tdj - (153 * mp + 2) / 5 + 1);
    monat = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    jahr = static_cast<int>(jdä + ära * 400 + (monat <= 2 ? 1 : 0));
}
}  // namespace

std::string Zeitpunkt::Text() const {
    char puffer[32];
    std::snprintf(puffer, sizeof puffer, "%02d.%02d.%04d  %02d:%02d:%02d", Tag, Monat, Jahr, Stunde, Minute, Sekunde);
    return puffer;
}

Zeitpunkt AusFiletime(std::uint64_t filetime) {
    constexpr std::int64_t kTage1601Bis1970 = 134774;
    const std::int64_t sekunden = static_cast<std::int64_t>(filetime / 10000000ULL);
    Zeitpunkt z;
    AusTagen(sekunden / 86400 - kTage1601Bis1970, z.Jahr, z.Monat, z.Tag);
    const std::int64_t rest = sekunden % 86400;
    z.Stunde = static_cast<int>(rest / 3600);
    z.Minute = static_cast<int>(rest / 60 % 60);
    z.Sekunde = static_cast<int>(rest % 60);
    return z;
}

void DateiInfos(Plattform& p, const std::string& pfad, DateiVersion& record) {
    if (!DateiVorhanden(p, pfad)) {
        for (const auto& f : kFelder) record.*f.feld = kUnbekannt;
        return;
    }
    DateiVersion gelesen;
    [&] {
        const std::uint32_t grösse = p.details.VersionInfoSize(pfad);
        if (grösse == 0) return;
        std::vector<std::uint8_t> block;
        if (!p.details.VersionInfo(pfad, grösse, &block)) return;
        std::string übersetzung;
        if (!p.details.QueryValue(block, "\\VarFileInfo\\Translation", &übersetzung)) return;
        übersetzung.resize(4, '\0');
        const auto b = [&](int i) { return static_cast<std::uint8_t>(übersetzung[i]); };
        // Built in signed 16 and 32 bits: a code page or language from 32768 on overflows.
        if (b(3) > 127 || b(1) > 127) throw Fehler(6, "Überlauf");
        const std::uint32_t zahl = b(3) * 256u + b(2) + b(0) * 65536u + b(1) * 16777216u;
        char hex[9];
        std::snprintf(hex, sizeof hex, "%08X", static_cast<unsigned>(zahl));

        for (const auto& f : kFelder) {
            std::string wert;
            if (p.details.QueryValue(block, std::string("\\StringFileInfo\\") + hex + "\\" + f.name, &wert)) {
                wert = wert.substr(0, kTextPuffer);
                gelesen.*f.feld = wert.substr(0, wert.find('\0'));
            } else {
                gelesen.*f.feld = kUnbekannt;
            }
        }
    }();
    for (const auto& f : kFelder)
        if (Leer(gelesen.*f.feld)) gelesen.*f.feld = kUnbekannt;
    record = gelesen;
}

bool DateiZeiten(Plattform& p, const std::string& pfad, Zeitpunkt& erstellt, Zeitpunkt& zugriff,
                 Zeitpunkt& geschrieben) {
    std::uint64_t e = 0, z = 0, g = 0;
    if (!p.details.FileTimes(pfad, &e, &z, &g)) return false;
    erstellt = AusFiletime(p.details.ToLocalFileTime(e));
    zugriff = AusFiletime(p.details.ToLocalFileTime(z));
    geschrieben = AusFiletime(p.details.ToLocalFileTime(g));
    return true;
}

DateiKurz DateiKurzinfo(Plattform& p, const std::string& pfad) {
    std::string fest(52, '\0');
    if (const std::uint32_t grösse = p.details.VersionInfoSize(pfad); grösse >= 1) {
        std::vector<std::uint8_t> block;
        std::string wert;
        if (p.details.VersionInfo(pfad, grösse, &block) && p.details.QueryValue(block, "\\", &wert))
            fest = wert.substr(0, 52) + std::string(52 - std::min<std::size_t>(wert.size(), 52), '\0');
    }
    DateiKurz k;
    k.Dateiname = pfad.substr(pfad.find_last_of('\\') + 1);
    // By dwFileType; 6 and anything above 7 have no name.
    static const char* const kTypen[] = {kUnbekannt,
                                         "Anwendung",
                                         "Dynamic Link Library (DLL)",
                                         "Geräte Trieber",
                                         "Schriftart",
                                         "Virtueller Geräte Treiber",
                                         "",
                                         "Static Library"};
    const std::uint32_t typ = Dword(fest, 36);
    k.Typ = typ < 8 ? kTypen[typ] : "";
    const std::uint32_t ms = Dword(fest, 8), ls = Dword(fest, 12);
    const auto teil = [](std::uint32_t wort) { return std::to_string(static_cast<std::int16_t>(wort & 0xFFFF)); };
    k.Version = teil(ms >> 16) + "." + teil(ms) + "." + teil(ls >> 16) + "." + teil(ls);
    k.Pfad = pfad;
    return k;
}

}  // namespace kes
