#include "common/text.h"

#include <cmath>
#include <cstdio>

namespace kes {

namespace {
unsigned char KleinZeichen(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 32);
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 32);
    if (c == 0x8A || c == 0x8C || c == 0x8E) return static_cast<unsigned char>(c + 16);  // Š Œ Ž
    if (c == 0x9F) return 0xFF;                                                          // Ÿ
    return c;
}
unsigned char GrossZeichen(unsigned char c) {
    if (c >= 'a' && c <= 'z') return static_cast<unsigned char>(c - 32);
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<unsigned char>(c - 32);
    if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<unsigned char>(c - 16);
    if (c == 0xFF) return 0x9F;
    return c;
}
}  // namespace

std::string Klein(std::string s) {
    for (char& c : s) c = static_cast<char>(KleinZeichen(static_cast<unsigned char>(c)));
    return s;
}

std::string Gross(std::string s) {
    for (char& c : s) c = static_cast<char>(GrossZeichen(static_cast<unsigned char>(c)));
    return s;
}

bool GleichOhneFall(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (KleinZeichen(static_cast<unsigned char>(a[i])) != KleinZeichen(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

std::string FormatGruppiert(double zahl, char tausender) {
    const double gerundet = std::round(zahl);
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.0f", std::fabs(gerundet));
    std::string ziffern = puffer;
    std::string aus;
    for (std::size_t i = 0; i < ziffern.size(); ++i) {
        if (i > 0 && (ziffern.size() - i) % 3 == 0) aus += tausender;
        aus += ziffern[i];
    }
    return (gerundet < 0 ? "-" : "") + aus;
}

std::string FormatFest(double zahl, int nachkomma, char dezimal) {
    const double faktor = std::pow(10.0, nachkomma);
    // Half away from zero, as the runtime's Format does; the small nudge keeps values such
    // as 1.005 that binary cannot hold exactly from rounding down.
    const double gerundet = std::round(zahl * faktor * (1 + 1e-12)) / faktor;
    char puffer[64];
    std::snprintf(puffer, sizeof puffer, "%.*f", nachkomma, gerundet);
    std::string s = puffer;
    for (char& c : s)
        if (c == '.') c = dezimal;
    return s;
}

}  // namespace kes
