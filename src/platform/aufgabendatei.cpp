#include "platform/aufgabendatei.h"

#include <cstdint>

#include "common/zeichensatz.h"

namespace kes {

namespace {

bool Beginnt(const std::string& s, std::size_t ab, const char* mit) {
    return s.compare(ab, std::char_traits<char>::length(mit), mit) == 0;
}

bool GültigesUtf8(const std::string& s) {
    for (std::size_t i = 0; i < s.size();) {
        const auto b = static_cast<unsigned char>(s[i]);
        const int folge = b < 0x80 ? 0 : (b & 0xE0) == 0xC0 ? 1 : (b & 0xF0) == 0xE0 ? 2 : (b & 0xF8) == 0xF0 ? 3 : -1;
        if (folge < 0 || i + folge >= s.size()) return false;
        for (int k = 1; k <= folge; ++k)
            if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return false;
        i += folge + 1;
    }
    return true;
}

// The file's text in code page 1252: by its byte order mark, else by the first character
// ("<" in UTF-16 has a zero byte), else UTF-8 unless the declaration names another
// encoding or the bytes are no UTF-8 (an ANSI file without a declaration).
std::string Text(const std::string& roh) {
    if (Beginnt(roh, 0, "\xFF\xFE")) return zeichensatz::Utf16NachCp1252(roh.substr(2));
    if (Beginnt(roh, 0, "\xFE\xFF")) return zeichensatz::Utf16NachCp1252(roh.substr(2), true);
    if (Beginnt(roh, 0, "\xEF\xBB\xBF")) return zeichensatz::NachCp1252(roh.substr(3));
    if (roh.size() >= 2 && roh[0] != '\0' && roh[1] == '\0') return zeichensatz::Utf16NachCp1252(roh);
    if (roh.size() >= 2 && roh[0] == '\0' && roh[1] != '\0') return zeichensatz::Utf16NachCp1252(roh, true);
    if (Beginnt(roh, 0, "<?xml")) {
        const std::string kopf = roh.substr(0, roh.find("?>"));
        const auto enc = kopf.find("encoding");
        if (enc != std::string::npos) {
            const auto an = kopf.find_first_of("\"'", enc);
            std::string name = an == std::string::npos ? "" : kopf.substr(an + 1, 5);
            for (char& c : name) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
            if (name != "utf-8") return roh;
        }
    }
    return GültigesUtf8(roh) ? zeichensatz::NachCp1252(roh) : roh;
}

// The predefined entities and character references; anything else stays as it stands.
std::string Entschlüsselt(const std::string& s) {
    static const struct {
        const char* name;
        char zeichen;
    } kNamen[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    std::string aus;
    for (std::size_t i = 0; i < s.size(); ++i) {
        // An entity is short: a search to the end for every "&" would take time growing
        // with the square of the text.
        const auto länge = s[i] == '&' ? s.substr(i, 12).find(';') : std::string::npos;
        if (länge == std::string::npos) {
            aus += s[i];
            continue;
        }
        const std::size_t ende = i + länge;
        const std::string name = s.substr(i + 1, länge - 1);
        bool bekannt = false;
        for (const auto& n : kNamen)
            if (name == n.name) {
                aus += n.zeichen;
                bekannt = true;
            }
        if (!bekannt && name.size() >= 2 && name[0] == '#') {
            const bool hex = name[1] == 'x';
            const std::string ziffern = name.substr(hex ? 2 : 1);
            std::uint32_t c = 0;
            bool gut = !ziffern.empty();
            for (char z : ziffern) {
                const int w = z >= '0' && z <= '9'                            ? z - '0'
                              : hex && (z | 0x20) >= 'a' && (z | 0x20) <= 'f' ? (z | 0x20) - 'a' + 10
                                                                              : -1;
                gut = gut && w >= 0 && c <= 0x10FFFF;
                if (gut) c = c * (hex ? 16 : 10) + static_cast<std::uint32_t>(w);
            }
            if (gut) {
                aus += zeichensatz::Zeichen(c > 0 && c <= 0x10FFFF ? c : U'?');
                bekannt = true;
            }
        }
        if (!bekannt) {
            aus += s[i];
            continue;
        }
        i = ende;
    }
    return aus;
}

// A line of the baseline must stay one line: control characters become blanks, and the
// blanks at the ends go.
std::string Bereinigt(std::string s) {
    for (char& c : s)
        if (static_cast<unsigned char>(c) < 0x20 || c == '\x7F') c = ' ';
    const auto a = s.find_first_not_of(' ');
    if (a == std::string::npos) return "";
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

std::string Verbunden(const std::string& programm, const std::string& argumente) {
    const std::string p = Bereinigt(programm), a = Bereinigt(argumente);
    return p.empty() || a.empty() ? p + a : p + " " + a;
}

// The name of a tag without its namespace prefix.
std::string Lokal(const std::string& tag, std::size_t ab) {
    const auto ende = tag.find_first_of(" \t\r\n/", ab);
    std::string name = tag.substr(ab, ende == std::string::npos ? std::string::npos : ende - ab);
    const auto doppelpunkt = name.rfind(':');
    return doppelpunkt == std::string::npos ? name : name.substr(doppelpunkt + 1);
}

// The end of the tag that starts at i, past quoted attribute values; npos when cut short.
std::size_t TagEnde(const std::string& t, std::size_t i) {
    char zitat = 0;
    for (std::size_t j = i + 1; j < t.size(); ++j) {
        if (zitat) {
            if (t[j] == zitat) zitat = 0;
        } else if (t[j] == '"' || t[j] == '\'') {
            zitat = t[j];
        } else if (t[j] == '>') {
            return j;
        }
    }
    return std::string::npos;
}

// Past a comment, a CDATA section, a processing instruction or a declaration starting at
// i; npos when cut short. CDATA's text goes to text.
std::size_t Überspringen(const std::string& t, std::size_t i, std::string* text) {
    const auto hinter = [&](const char* ende, std::size_t ab) {
        const auto e = t.find(ende, ab);
        return e == std::string::npos ? e : e + std::char_traits<char>::length(ende);
    };
    if (Beginnt(t, i, "<!--")) return hinter("-->", i + 4);
    if (!Beginnt(t, i, "<![CDATA[")) return hinter(">", i + 2);
    const auto e = hinter("]]>", i + 9);
    if (text && e != std::string::npos) *text += t.substr(i + 9, e - i - 12);
    return e;
}

}  // namespace

std::string AufgabenbefehlXml(const std::string& inhalt) {
    const std::string t = Text(inhalt);
    // Depth of open elements; the Exec action's depth once it is found.
    int tiefe = 0;
    int exec = -1;
    std::string programm, argumente;
    std::string* feld = nullptr;  // the child of Exec being read
    std::size_t i = 0;
    while (i < t.size()) {
        if (t[i] != '<') {
            const auto e = t.find('<', i);
            const std::string stück = t.substr(i, e == std::string::npos ? std::string::npos : e - i);
            if (feld && tiefe == exec + 2) *feld += Entschlüsselt(stück);
            i = e == std::string::npos ? t.size() : e;
            continue;
        }
        if (Beginnt(t, i, "<!") || Beginnt(t, i, "<?")) {
            i = Überspringen(t, i, feld && tiefe == exec + 2 ? feld : nullptr);
            if (i == std::string::npos) return "";
            continue;
        }
        const auto e = TagEnde(t, i);
        if (e == std::string::npos) return "";
        const std::string tag = t.substr(i + 1, e - i - 1);
        i = e + 1;
        if (!tag.empty() && tag[0] == '/') {
            --tiefe;
            if (exec >= 0 && tiefe == exec) return Verbunden(programm, argumente);
            if (exec >= 0 && tiefe == exec + 1) feld = nullptr;
            continue;
        }
        const bool leer = !tag.empty() && tag.back() == '/';
        const std::string name = Lokal(tag, 0);
        if (name == "Exec") {
            if (leer) return "";
            exec = tiefe;
        } else if (exec >= 0 && tiefe == exec + 1 && !leer) {
            if (name == "Command") feld = &programm;
            if (name == "Arguments") feld = &argumente;
        }
        if (!leer) ++tiefe;
    }
    // No Exec action, or the file ends inside it.
    return "";
}

std::string AufgabenbefehlJob(const std::string& inhalt) {
    // The fixed section and the count of running instances.
    std::size_t i = 0x44 + 2;
    auto text = [&](std::string& aus) {
        if (inhalt.size() < i + 2) return false;
        const std::size_t n = static_cast<unsigned char>(inhalt[i]) |
                              static_cast<std::size_t>(static_cast<unsigned char>(inhalt[i + 1])) << 8;
        i += 2;
        if (inhalt.size() - i < 2 * n) return false;
        aus = zeichensatz::Utf16NachCp1252(inhalt.substr(i, 2 * n));
        aus = aus.substr(0, aus.find('\0'));
        i += 2 * n;
        return true;
    };
    std::string programm, parameter;
    if (!text(programm) || !text(parameter)) return "";
    return Verbunden(programm, parameter);
}

}  // namespace kes
