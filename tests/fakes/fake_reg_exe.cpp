#include "fake_reg_exe.h"

#include <optional>

#include "common/text.h"

namespace kes::fake {

std::vector<std::string> Befehlsargumente(const std::string& zeile) {
    std::vector<std::string> argumente;
    std::size_t i = 0;
    const std::size_t n = zeile.size();
    for (;;) {
        while (i < n && (zeile[i] == ' ' || zeile[i] == '\t')) ++i;
        if (i >= n) break;
        std::string arg;
        bool inQuotes = false;
        while (i < n && (inQuotes || (zeile[i] != ' ' && zeile[i] != '\t'))) {
            if (zeile[i] == '\\') {
                std::size_t striche = 0;
                while (i < n && zeile[i] == '\\') ++striche, ++i;
                if (i < n && zeile[i] == '"') {
                    // 2n backslashes and a quote: n backslashes, the quote toggles; 2n+1: a quote.
                    arg.append(striche / 2, '\\');
                    if (striche % 2) {
                        arg += '"';
                        ++i;
                    }
                } else {
                    arg.append(striche, '\\');
                }
            } else if (zeile[i] == '"') {
                if (inQuotes && i + 1 < n && zeile[i + 1] == '"') {
                    arg += '"';  // "" inside quotes is one quote
                    i += 2;
                } else {
                    inQuotes = !inQuotes;
                    ++i;
                }
            } else {
                arg += zeile[i++];
            }
        }
        argumente.push_back(arg);
    }
    return argumente;
}

namespace {
std::optional<RegHandle> Wurzel(const std::string& name) {
    static const std::pair<const char*, RegHandle> kNamen[] = {
        {"HKLM", kHkeyLocalMachine},  {"HKEY_LOCAL_MACHINE", kHkeyLocalMachine},
        {"HKCU", kHkeyCurrentUser},   {"HKEY_CURRENT_USER", kHkeyCurrentUser},
        {"HKCR", kHkeyClassesRoot},   {"HKEY_CLASSES_ROOT", kHkeyClassesRoot},
        {"HKU", kHkeyUsers},          {"HKEY_USERS", kHkeyUsers},
        {"HKCC", kHkeyCurrentConfig}, {"HKEY_CURRENT_CONFIG", kHkeyCurrentConfig}};
    for (const auto& [n, h] : kNamen)
        if (GleichOhneFall(name, n)) return h;
    return std::nullopt;
}

void Baumlöschen(RegistryApi& reg, RegHandle root, const std::string& pfad) {
    {
        RegKey k;
        if (reg.OpenKeyEx(root, pfad, kKeyAllAccess, &k) != kErrorSuccess) return;
        char name[256];
        std::uint32_t länge = sizeof name;
        while ((länge = sizeof name, reg.EnumKeyEx(k.Get(), 0, name, &länge)) == kErrorSuccess)
            Baumlöschen(reg, k.Get(), name);
    }
    reg.DeleteKey(root, pfad, kAnsichtNativ);
}

bool Schalter(const std::string& a, const char* name) {
    return a.size() > 1 && (a[0] == '/' || a[0] == '-') && GleichOhneFall(a.substr(1), name);
}
}  // namespace

bool RegDeleteAusführen(RegistryApi& reg, const std::string& zeile) {
    const auto a = Befehlsargumente(zeile);
    if (a.size() < 3 || !GleichOhneFall(a[0], "REG") || !GleichOhneFall(a[1], "DELETE")) return false;
    bool f = false, va = false, ve = false;
    std::optional<std::string> wert;
    for (std::size_t i = 3; i < a.size(); ++i) {
        if (Schalter(a[i], "f")) {
            f = true;
        } else if (Schalter(a[i], "va")) {
            va = true;
        } else if (Schalter(a[i], "ve")) {
            ve = true;
        } else if (Schalter(a[i], "v") && i + 1 < a.size()) {
            wert = a[++i];
        } else {
            return false;  // ERROR: Invalid syntax.
        }
    }
    if (!f || (va + ve + wert.has_value()) > 1) return false;
    std::string schlüssel = a[2];
    const auto trenner = schlüssel.find('\\');
    const auto root = Wurzel(schlüssel.substr(0, trenner));
    if (!root) return false;
    std::string pfad = trenner == std::string::npos ? "" : schlüssel.substr(trenner + 1);
    // A closing backslash names the same key.
    if (!pfad.empty() && pfad.back() == '\\') pfad.pop_back();
    if (pfad.empty()) return false;  // reg.exe does not delete a root
    if (!va && !ve && !wert) {
        Baumlöschen(reg, *root, pfad);
        return true;
    }
    RegKey k;
    if (reg.OpenKeyEx(*root, pfad, kKeyAllAccess, &k) != kErrorSuccess) return false;
    const RegHandle h = k.Get();
    if (va) {
        char name[16384];
        std::uint32_t länge = sizeof name;
        while ((länge = sizeof name, reg.EnumValue(h, 0, name, &länge, nullptr, nullptr, nullptr)) == kErrorSuccess)
            reg.DeleteValue(h, std::string(name, länge).c_str());
    } else {
        reg.DeleteValue(h, ve ? "" : wert->c_str());
    }
    return true;
}

}  // namespace kes::fake
