#include "platform/hive_ocx.h"

#include <cstdint>
#include <vector>

namespace kes {

namespace {
// One NUL character and the empty text both name the default value.
const char* Wertname(const std::string& name) {
    return (name.empty() || name[0] == '\0') ? "" : name.c_str();
}

// The key of a hive code, or an empty one when the code or the key is unknown.
RegKey Schlüssel(RegistryApi& reg, int hive, const std::string& pfad, std::uint32_t maske) {
    RegKey k;
    const RegHandle root = HandleVonHive(hive);
    if (root != 0) reg.OpenKeyEx(root, pfad, maske, &k);
    return k;
}

constexpr std::uint32_t kRegQword = 11;

std::string AlsText(std::uint32_t typ, const std::vector<std::uint8_t>& daten) {
    if ((typ == kRegDword && daten.size() >= 4) || (typ == kRegQword && daten.size() >= 8)) {
        std::uint64_t v = 0;
        for (std::size_t i = typ == kRegDword ? 4 : 8; i-- > 0;) v = (v << 8) | daten[i];
        return std::to_string(v);
    }
    if (typ == kRegSz || typ == kRegExpandSz || typ == kRegMultiSz) {
        std::string text(daten.begin(), daten.end());
        while (!text.empty() && text.back() == '\0') text.pop_back();
        if (typ == kRegMultiSz)
            for (char& c : text)
                if (c == '\0') c = ' ';
        return text;
    }
    static const char kZiffern[] = "0123456789abcdef";
    std::string hex;
    for (std::uint8_t b : daten) {
        if (!hex.empty()) hex += ' ';
        hex += kZiffern[b >> 4];
        hex += kZiffern[b & 15];
    }
    return hex;
}
}  // namespace

RegHandle HandleVonHive(int hive) {
    if (hive < 0 || hive > 6) return 0;
    return kHkeyClassesRoot + static_cast<RegHandle>(hive);
}

std::string HiveOCX::ReadValue(int hive, const std::string& key, const std::string& name) {
    return Offen(*this, hive, key).ReadValue(name);
}

HiveOCX::Offen::Offen(HiveOCX& ocx, int hive, const std::string& key)
    : reg_(ocx.reg_), k_(Schlüssel(ocx.reg_, hive, key, kKeyRead)) {}

std::string HiveOCX::Offen::ReadValue(const std::string& name) {
    if (!k_) return "";
    std::uint32_t typ = 0, grösse = 0;
    if (reg_.QueryValueEx(k_.Get(), Wertname(name), &typ, nullptr, &grösse) != kErrorSuccess) return "";
    std::vector<std::uint8_t> daten(grösse + 1, 0);
    if (reg_.QueryValueEx(k_.Get(), Wertname(name), &typ, daten.data(), &grösse) != kErrorSuccess) return "";
    daten.resize(grösse);
    return AlsText(typ, daten);
}

bool HiveOCX::Offen::ValueExists(const std::string& name) {
    if (!k_) return false;
    std::uint32_t grösse = 0;
    return reg_.QueryValueEx(k_.Get(), Wertname(name), nullptr, nullptr, &grösse) == kErrorSuccess;
}

std::string HiveOCX::ReadValueText(int hive, std::string& key, std::string& name) {
    return ReadValue(hive, key, name);
}

void HiveOCX::WriteValue(int hive, const std::string& key, const std::string& name, const std::string& data) {
    const RegHandle root = HandleVonHive(hive);
    RegKey k;
    if (root == 0 || reg_.CreateKeyEx(root, key, kKeyAllAccess, &k) != kErrorSuccess) return;
    reg_.SetValueEx(k.Get(), Wertname(name), kRegSz, reinterpret_cast<const std::uint8_t*>(data.c_str()),
                    static_cast<std::uint32_t>(data.size() + 1));
}

void HiveOCX::DeleteValue(int hive, const std::string& key, const std::string& name) {
    const RegKey k = Schlüssel(reg_, hive, key, kKeyAllAccess);
    if (k) reg_.DeleteValue(k.Get(), Wertname(name));
}

void HiveOCX::DeleteKey(int hive, const std::string& key) {
    const RegHandle root = HandleVonHive(hive);
    if (root != 0) reg_.DeleteKey(root, key, kAnsichtNativ);
}

void HiveOCX::DeleteKeyTree(std::int32_t root, const std::string& key) {
    Baum(static_cast<RegHandle>(static_cast<std::uint32_t>(root)), key, 0);
}

// Depth first: a key can only go once its subkeys are gone. The depth limit keeps a
// key that refuses deletion from being walked forever.
void HiveOCX::Baum(RegHandle root, const std::string& key, int tiefe) {
    // A path with a NUL ends there for the ANSI calls and names a key above the one meant.
    if (key.empty() || key.find('\0') != std::string::npos || tiefe > 64) return;
    std::vector<std::string> kinder;
    {
        RegKey k;
        if (reg_.OpenKeyEx(root, key, kKeyAllAccess, &k) != kErrorSuccess) return;
        char name[256];
        for (std::uint32_t i = 0;; ++i) {
            std::uint32_t länge = sizeof name;
            if (reg_.EnumKeyEx(k.Get(), i, name, &länge) != kErrorSuccess) break;
            // A name with a NUL in it cannot be named through the ANSI calls: its path would
            // end at the NUL and name this key again, and the walk would go round in circles.
            const std::string kind(name, länge);
            if (kind.empty() || kind.find('\0') != std::string::npos) continue;
            kinder.push_back(kind);
        }
    }
    for (const auto& kind : kinder) Baum(root, key + "\\" + kind, tiefe + 1);
    reg_.DeleteKey(root, key, kAnsichtNativ);
}

bool HiveOCX::KeyExists(int hive, const std::string& key) {
    return static_cast<bool>(Schlüssel(reg_, hive, key, kKeyRead));
}

bool HiveOCX::ValueExists(int hive, const std::string& key, const std::string& name) {
    return Offen(*this, hive, key).ValueExists(name);
}

}  // namespace kes
