#include "platform/reg_datei.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "platform/registry.h"

namespace kes {

namespace {

constexpr const char* kKopf = "REGEDIT4";
constexpr RegHandle kRoots[] = {kHkeyClassesRoot,     kHkeyCurrentUser,   kHkeyLocalMachine, kHkeyUsers,
                                kHkeyPerformanceData, kHkeyCurrentConfig, kHkeyDynData};

std::string Voll(RegHandle root, const std::string& key) {
    return key.empty() ? RootName(root) : RootName(root) + "\\" + key;
}

// The value's data, growing the buffer for as long as the platform asks for more.
long WertHolen(RegistryApi& reg, RegHandle key, const std::string& name, RegWert* aus) {
    std::string puffer(256, '\0');
    for (;;) {
        std::uint32_t typ = 0, länge = static_cast<std::uint32_t>(puffer.size());
        const long e = reg.QueryValueEx(key, name.c_str(), &typ, reinterpret_cast<std::uint8_t*>(puffer.data()), &länge);
        if (e == kErrorMoreData) {
            puffer.assign(std::max<std::size_t>(länge, puffer.size() * 2), '\0');
            continue;
        }
        if (e == kErrorSuccess) *aus = {name, typ, puffer.substr(0, länge)};
        return e;
    }
}

bool AlleWerte(RegistryApi& reg, RegHandle key, std::vector<RegWert>& aus) {
    std::string name(16384, '\0');
    std::string daten(256, '\0');
    for (std::uint32_t i = 0;;) {
        std::uint32_t nl = static_cast<std::uint32_t>(name.size()), typ = 0,
                      dl = static_cast<std::uint32_t>(daten.size());
        const long e = reg.EnumValue(key, i, name.data(), &nl, &typ, reinterpret_cast<std::uint8_t*>(daten.data()), &dl);
        if (e == kErrorMoreData) {
            daten.assign(std::max<std::size_t>(dl, daten.size() * 2), '\0');
            continue;  // the same index again
        }
        if (e == kErrorNoMoreItems) return true;
        if (e != kErrorSuccess) return false;
        aus.push_back({name.substr(0, nl), typ, daten.substr(0, dl)});
        ++i;
    }
}

void Baum(RegistryApi& reg, RegHandle root, const std::string& key, std::vector<RegAbschnitt>& aus, int tiefe) {
    RegKey k;
    if (tiefe > 64 || reg.OpenKeyEx(root, key, kKeyRead, &k) != kErrorSuccess) return;
    RegAbschnitt a{Voll(root, key), {}};
    if (!AlleWerte(reg, k.Get(), a.werte)) return;
    aus.push_back(std::move(a));
    std::vector<std::string> unter;
    char name[256];
    for (std::uint32_t i = 0;; ++i) {
        std::uint32_t nl = sizeof name;
        if (reg.EnumKeyEx(k.Get(), i, name, &nl) != kErrorSuccess) break;
        unter.emplace_back(name, nl);
    }
    k.Close();  // no key stays open down the tree
    for (const std::string& u : unter) Baum(reg, root, key.empty() ? u : key + "\\" + u, aus, tiefe + 1);
}

std::string Hex(const std::string& bytes) {
    std::string s;
    char b[4];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::snprintf(b, sizeof b, "%02x", static_cast<unsigned char>(bytes[i]));
        if (i) s += ',';
        s += b;
    }
    return s;
}

std::string Zitiert(const std::string& s) {
    std::string z = "\"";
    for (char c : s) {
        if (c == '\\' || c == '"') z += '\\';
        z += c;
    }
    return z + "\"";
}

// A string that reads back as the same bytes: one NUL at its end and no control character.
bool AlsText(const RegWert& w) {
    if (w.typ != kRegSz || w.daten.empty() || w.daten.back() != '\0') return false;
    for (std::size_t i = 0; i + 1 < w.daten.size(); ++i)
        if (static_cast<unsigned char>(w.daten[i]) < 0x20) return false;
    return true;
}

std::string Daten(const RegWert& w) {
    if (AlsText(w)) return Zitiert(w.daten.substr(0, w.daten.size() - 1));
    if (w.typ == kRegDword && w.daten.size() == 4) {
        std::uint32_t v = 0;
        for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(w.daten[i]);
        char b[16];
        std::snprintf(b, sizeof b, "%08x", v);
        return std::string("dword:") + b;
    }
    if (w.typ == kRegBinary) return "hex:" + Hex(w.daten);
    return "hex(" + std::to_string(w.typ) + "):" + Hex(w.daten);
}

// A quoted text from POS on, its escapes undone; POS is left after the closing quote.
std::optional<std::string> Entzitiert(const std::string& z, std::size_t& pos) {
    if (pos >= z.size() || z[pos] != '"') return std::nullopt;
    std::string s;
    for (++pos; pos < z.size(); ++pos) {
        if (z[pos] == '\\' && pos + 1 < z.size()) {
            s += z[++pos];
        } else if (z[pos] == '"') {
            ++pos;
            return s;
        } else {
            s += z[pos];
        }
    }
    return std::nullopt;
}

std::optional<std::string> HexLesen(const std::string& s) {
    std::string bytes;
    std::size_t i = 0;
    while (i < s.size()) {
        if (s[i] == ',' || s[i] == ' ') {
            ++i;
            continue;
        }
        if (i + 1 >= s.size() || !std::isxdigit(static_cast<unsigned char>(s[i])) ||
            !std::isxdigit(static_cast<unsigned char>(s[i + 1])))
            return std::nullopt;
        bytes += static_cast<char>(std::stoi(s.substr(i, 2), nullptr, 16));
        i += 2;
    }
    return bytes;
}

std::optional<RegWert> WertzeileLesen(const std::string& z) {
    RegWert w;
    std::size_t pos = 0;
    if (!z.empty() && z[0] == '@') {
        pos = 1;
    } else {
        auto name = Entzitiert(z, pos);
        if (!name) return std::nullopt;
        w.name = *name;
    }
    if (pos >= z.size() || z[pos] != '=') return std::nullopt;
    const std::string d = z.substr(pos + 1);
    if (!d.empty() && d[0] == '"') {
        std::size_t p = 0;
        auto text = Entzitiert(d, p);
        if (!text || p != d.size()) return std::nullopt;
        w.typ = kRegSz;
        w.daten = *text + '\0';
        return w;
    }
    if (d.rfind("dword:", 0) == 0) {
        const std::string h = d.substr(6);
        if (h.size() != 8 || h.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) return std::nullopt;
        const std::uint32_t v = static_cast<std::uint32_t>(std::stoul(h, nullptr, 16));
        w.typ = kRegDword;
        for (int i = 0; i < 4; ++i) w.daten += static_cast<char>((v >> (8 * i)) & 0xFF);
        return w;
    }
    std::size_t doppelpunkt = d.find(':');
    if (doppelpunkt == std::string::npos) return std::nullopt;
    const std::string art = d.substr(0, doppelpunkt);
    if (art == "hex") {
        w.typ = kRegBinary;
    } else if (art.size() > 5 && art.rfind("hex(", 0) == 0 && art.back() == ')') {
        const std::string zahl = art.substr(4, art.size() - 5);
        if (zahl.empty() || zahl.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos || zahl.size() > 8)
            return std::nullopt;
        // regedit writes the type in hex; the numbers below ten read the same either way.
        w.typ = static_cast<std::uint32_t>(std::stoul(zahl, nullptr, 16));
    } else {
        return std::nullopt;
    }
    auto bytes = HexLesen(d.substr(doppelpunkt + 1));
    if (!bytes) return std::nullopt;
    w.daten = *bytes;
    return w;
}

}  // namespace

std::optional<std::pair<RegHandle, std::string>> RegPfadTeilen(const std::string& pfad) {
    const std::size_t trenner = pfad.find('\\');
    const std::string wurzel = pfad.substr(0, trenner);
    for (RegHandle r : kRoots)
        if (RootName(r) == wurzel) return std::make_pair(r, trenner == std::string::npos ? "" : pfad.substr(trenner + 1));
    return std::nullopt;
}

std::vector<RegAbschnitt> RegWertLesen(RegistryApi& reg, RegHandle root, const std::string& key,
                                       const std::string& name) {
    RegKey k;
    if (reg.OpenKeyEx(root, key, kKeyQueryValue, &k) != kErrorSuccess) return {};
    RegWert w;
    if (WertHolen(reg, k.Get(), name, &w) != kErrorSuccess) return {};
    return {{Voll(root, key), {w}}};
}

std::vector<RegAbschnitt> RegBaumLesen(RegistryApi& reg, RegHandle root, const std::string& key) {
    std::vector<RegAbschnitt> aus;
    Baum(reg, root, key, aus, 0);
    return aus;
}

std::string RegDateiText(const std::vector<RegAbschnitt>& abschnitte) {
    std::string t = std::string(kKopf) + "\r\n";
    for (const RegAbschnitt& a : abschnitte) {
        t += "\r\n[" + a.pfad + "]\r\n";
        for (const RegWert& w : a.werte) t += (w.name.empty() ? std::string("@") : Zitiert(w.name)) + "=" + Daten(w) + "\r\n";
    }
    return t;
}

std::optional<std::vector<RegAbschnitt>> RegDateiLesen(const std::string& text) {
    // Lines, with regedit's continuations of hex data ("\" at the end) joined.
    std::vector<std::string> zeilen;
    std::string offen;
    std::size_t anfang = 0;
    while (anfang <= text.size()) {
        std::size_t ende = text.find('\n', anfang);
        if (ende == std::string::npos) ende = text.size();
        std::string z = text.substr(anfang, ende - anfang);
        anfang = ende + 1;
        if (!z.empty() && z.back() == '\r') z.pop_back();
        if (!offen.empty()) z = offen + z.substr(std::min(z.find_first_not_of(' '), z.size()));
        offen.clear();
        if (!z.empty() && z.back() == '\\' && z.find("=hex") != std::string::npos) {
            z.pop_back();
            offen = z;
            continue;
        }
        zeilen.push_back(z);
    }
    if (!offen.empty()) zeilen.push_back(offen);
    if (zeilen.empty() || zeilen[0] != kKopf) return std::nullopt;
    std::vector<RegAbschnitt> aus;
    for (std::size_t i = 1; i < zeilen.size(); ++i) {
        const std::string& z = zeilen[i];
        if (z.empty() || z[0] == ';') continue;
        if (z[0] == '[') {
            if (z.back() != ']' || !RegPfadTeilen(z.substr(1, z.size() - 2))) return std::nullopt;
            aus.push_back({z.substr(1, z.size() - 2), {}});
            continue;
        }
        auto w = WertzeileLesen(z);
        if (!w || aus.empty()) return std::nullopt;
        aus.back().werte.push_back(*w);
    }
    return aus;
}

std::vector<std::string> RegVorhanden(RegistryApi& reg, const std::vector<RegAbschnitt>& abschnitte) {
    std::vector<std::string> da;
    for (const RegAbschnitt& a : abschnitte) {
        auto teile = RegPfadTeilen(a.pfad);
        if (!teile) continue;
        RegKey k;
        if (reg.OpenKeyEx(teile->first, teile->second, kKeyQueryValue, &k) != kErrorSuccess) continue;
        if (a.werte.empty()) da.push_back(a.pfad);
        for (const RegWert& w : a.werte) {
            std::uint32_t länge = 0;
            if (reg.QueryValueEx(k.Get(), w.name.c_str(), nullptr, nullptr, &länge) == kErrorSuccess)
                da.push_back(a.pfad + "\\" + (w.name.empty() ? "@" : w.name));
        }
    }
    return da;
}

bool RegEinspielen(RegistryApi& reg, const std::vector<RegAbschnitt>& abschnitte) {
    for (const RegAbschnitt& a : abschnitte) {
        auto teile = RegPfadTeilen(a.pfad);
        if (!teile) return false;
        RegKey k;
        if (reg.CreateKeyEx(teile->first, teile->second, kKeyAllAccess, &k) != kErrorSuccess) return false;
        for (const RegWert& w : a.werte)
            if (reg.SetValueEx(k.Get(), w.name.c_str(), w.typ, reinterpret_cast<const std::uint8_t*>(w.daten.data()),
                               static_cast<std::uint32_t>(w.daten.size())) != kErrorSuccess)
                return false;
    }
    return true;
}

}  // namespace kes
