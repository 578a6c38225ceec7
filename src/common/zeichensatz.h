// Conversion between the program's code page 1252 and UTF-8: the text of a Linux terminal and
// command line for the native build of kestrella-dat, and the journal, which is UTF-8 on
// every system; and from UTF-16, the text of the system's task files.
#pragma once

#include <string>

namespace kes::zeichensatz {

// Code points of the bytes 0x80 to 0x9F; the rest of the code page is Latin-1. The five
// bytes that the code page leaves free map to the control characters of the same number,
// as the system's own conversion does, so every byte has a character.
inline constexpr char32_t kOben[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

inline std::string NachUtf8(const std::string& cp1252) {
    std::string aus;
    for (unsigned char b : cp1252) {
        const char32_t c = b >= 0x80 && b < 0xA0 ? kOben[b - 0x80] : b;
        if (c < 0x80) {
            aus += static_cast<char>(c);
        } else if (c < 0x800) {
            aus += static_cast<char>(0xC0 | (c >> 6));
            aus += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            aus += static_cast<char>(0xE0 | (c >> 12));
            aus += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            aus += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return aus;
}

// The byte of a character, "?" for one the code page lacks (a surrogate among them).
inline char Zeichen(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (int k = 0; k < 32; ++k)
        if (kOben[k] == c) return static_cast<char>(0x80 + k);
    return '?';
}

// A character that the code page lacks, and a byte that is no valid UTF-8, become "?".
inline std::string NachCp1252(const std::string& utf8) {
    constexpr char32_t kKleinste[4] = {0, 0x80, 0x800, 0x10000};  // shorter forms are invalid
    std::string aus;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto b = static_cast<unsigned char>(utf8[i]);
        const int folge = b < 0x80 ? 0 : (b & 0xE0) == 0xC0 ? 1 : (b & 0xF0) == 0xE0 ? 2 : (b & 0xF8) == 0xF0 ? 3 : -1;
        bool gut = folge >= 0 && i + folge < utf8.size();
        char32_t c = folge <= 0 ? b : b & (0x3F >> folge);
        for (int k = 1; gut && k <= folge; ++k) {
            const auto f = static_cast<unsigned char>(utf8[i + k]);
            gut = (f & 0xC0) == 0x80;
            c = (c << 6) | (f & 0x3F);
        }
        if (!gut || c < kKleinste[folge]) {
            aus += '?';
            ++i;
            continue;
        }
        i += folge + 1;
        aus += Zeichen(c);
    }
    return aus;
}

// UTF-16 text (little-endian unless told otherwise) as the code page has it: a pair of
// surrogates is one character the code page lacks, a lone surrogate too; an odd last byte
// is no character.
inline std::string Utf16NachCp1252(const std::string& bytes, bool bigEndian = false) {
    std::string aus;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto a = static_cast<unsigned char>(bytes[i]), b = static_cast<unsigned char>(bytes[i + 1]);
        const char32_t c = bigEndian ? (a << 8 | b) : (b << 8 | a);
        const bool hoch = c >= 0xD800 && c < 0xDC00;
        if (hoch && i + 3 < bytes.size()) {
            const auto n = static_cast<unsigned char>(bytes[i + (bigEndian ? 2 : 3)]);
            if (n >= 0xDC && n < 0xE0) i += 2;  // the low half belongs to it
        }
        aus += Zeichen(c);
    }
    return aus;
}

}  // namespace kes::zeichensatz
