#include "platform/hive_ocx.h"

#include <cstdint>
#include <vector>

namespace kes {

namespace {
// One NUL character and the empty text both name the default value.
const char* Wertname(const std::string& name) { return (name.empty() || name[0] == '\0') ? "" : name.c_str(); }

class Schlüssel {
public:
    Schlüssel(RegistryApi& reg, int hive, const std::string& pfad, std::uint32_t maske) : reg_(reg) {
        const RegHandle root = HandleVonHive(hive);
        if (root != 0 && reg_.OpenKeyEx(root, pfad, maske, &h_) != kErrorSuccess) h_ = 0;
    }
    ~Schlüssel() {
        if (h_) reg_.CloseKey(h_);
    }
    Schlüssel(const Schlüssel&) = delete;
    Schlüssel& operator=(const Schlüssel&) = delete;
    RegHandle get() const { return h_; }

private:
    RegistryApi& reg_;
    RegHandle h_ = 0;
};
}  // namespace

RegHandle HandleVonHive(int hive) {
    if (hive < 0 || hive > 6) return 0;
    return kHkeyClassesRoot + static_cast<RegHandle>(hive);
}

std::string HiveOCX::ReadValue(int hive, const std::string& key, const std::string& name) {
    Schlüssel k(reg_, hive, key, kKeyRead);
    if (!k.get()) return "";
    std::uint32_t typ = 0, grösse = 0;
    if (reg_.QueryValueEx(k.get(), Wertname(name), &typ, nullptr, &grösse) != kErrorSuccess) return "";
    std::vector<std::uint8_t> daten(grösse + 1, 0);
    if (reg_.QueryValueEx(k.get(), Wertname(name), &typ, daten.data(), &grösse) != kErrorSuccess) return "";
    daten.resize(grösse);
    if (typ == kRegDword && grösse >= 4) {
        const std::uint32_t v = daten[0] | (daten[1] << 8) | (daten[2] << 16) | (static_cast<std::uint32_t>(daten[3]) << 24);
        return std::to_string(v);
    }
    std::string text(daten.begin(), daten.end());
    while (!text.empty() && text.back() == '\0') text.pop_back();
    return text;
}

void HiveOCX::WriteValue(int hive, const std::string& key, const std::string& name, const std::string& data) {
    const RegHandle root = HandleVonHive(hive);
    RegHandle h = 0;
    if (root == 0 || reg_.CreateKeyEx(root, key, &h) != kErrorSuccess) return;
    reg_.SetValueEx(h, Wertname(name), kRegSz, reinterpret_cast<const std::uint8_t*>(data.c_str()),
                    static_cast<std::uint32_t>(data.size() + 1));
    reg_.CloseKey(h);
}

void HiveOCX::DeleteValue(int hive, const std::string& key, const std::string& name) {
    Schlüssel k(reg_, hive, key, kKeyAllAccess);
    if (k.get()) reg_.DeleteValue(k.get(), Wertname(name));
}

bool HiveOCX::KeyExists(int hive, const std::string& key) { return Schlüssel(reg_, hive, key, kKeyRead).get() != 0; }

bool HiveOCX::ValueExists(int hive, const std::string& key, const std::string& name) {
    Schlüssel k(reg_, hive, key, kKeyRead);
    if (!k.get()) return false;
    std::uint32_t grösse = 0;
    return reg_.QueryValueEx(k.get(), Wertname(name), nullptr, nullptr, &grösse) == kErrorSuccess;
}

}  // namespace kes
