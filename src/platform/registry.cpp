#include "platform/registry.h"

#include <algorithm>
#include <cstring>

#include "common/text.h"

namespace kes {

namespace {
constexpr std::uint32_t kNamePuffer = 2000;
constexpr std::uint32_t kListenPuffer = 255;

std::string BisNul(const char* puffer, std::size_t länge) {
    const std::string s(puffer, länge);
    return s.substr(0, s.find('\0'));
}
}  // namespace

std::string RootName(RegHandle root) {
    switch (root) {
        case kHkeyClassesRoot:
            return "HKEY_CLASSES_ROOT";
        case kHkeyCurrentUser:
            return "HKEY_CURRENT_USER";
        case kHkeyLocalMachine:
            return "HKEY_LOCAL_MACHINE";
        case kHkeyUsers:
            return "HKEY_USERS";
        case kHkeyPerformanceData:
            return "HKEY_PERFORMANCE_DATA";
        case kHkeyCurrentConfig:
            return "HKEY_CURRENT_CONFIG";
        case kHkeyDynData:
            return "HKEY_DYN_DATA";
        default:
            return "";
    }
}

int HiveVonHandle(RegHandle root) {
    if (root < kHkeyClassesRoot || root > kHkeyDynData) return -1;
    return static_cast<int>(root - kHkeyClassesRoot);
}

namespace {
constexpr const char* kWow = "Wow6432Node";
}  // namespace

std::string Pfad32(RegHandle root, const std::string& key) {
    if (root == kHkeyClassesRoot) return std::string(kWow) + "\\" + key;
    const auto trenner = key.find('\\');
    if (trenner == std::string::npos) return key + "\\" + kWow;
    return key.substr(0, trenner) + "\\" + kWow + key.substr(trenner);
}

bool IstPfad32(const std::string& key) {
    std::size_t anfang = 0;
    while (anfang <= key.size()) {
        const auto ende = std::min(key.find('\\', anfang), key.size());
        if (GleichOhneFall(key.substr(anfang, ende - anfang), kWow)) return true;
        anfang = ende + 1;
    }
    return false;
}

std::vector<std::string> BeideAnsichten(Plattform& p, RegHandle root, const std::string& key) {
    if (!p.registry.ZweiAnsichten()) return {key};
    return {key, Pfad32(root, key)};
}

void Registry::OpenKey(RegHandle root, const std::string& key, RegKey& handle, Ansicht ansicht) {
    p_.registry.OpenKeyEx(root, key, kKeyAllAccess | AnsichtFlag(ansicht), &handle);
}

bool Registry::CloseKey(RegKey& handle) {
    return handle.Close() == kErrorSuccess;
}

std::vector<std::string> Registry::EnumSubkeys(RegHandle handle, const Kategorie& kategorieschlüssel) {
    return Unterschlüssel(handle, kategorieschlüssel, [this] { p_.timers.PumpMessages(); });
}

std::vector<WertEintrag> Registry::EnumValues(RegHandle handle) {
    return Werte(handle, [this] { p_.timers.PumpMessages(); });
}

std::vector<std::string> Registry::Unterschlüssel(RegHandle handle, const Kategorie& kategorieschlüssel,
                                                  const std::function<void()>& pumpen) {
    std::vector<std::string> namen;
    std::vector<char> puffer(kNamePuffer);
    for (std::uint32_t i = 0;; ++i) {
        pumpen();
        std::fill(puffer.begin(), puffer.end(), '\0');
        std::uint32_t grösse = kNamePuffer;
        pumpen();
        const long rc = p_.registry.EnumKeyEx(handle, i, puffer.data(), &grösse);
        pumpen();
        // Stored whatever the call returned: the failing call leaves the last entry.
        namen.emplace_back(puffer.data(), std::min(grösse, kNamePuffer));
        if (kategorieschlüssel == Kategorie::Dienste && i + 1 > kDiensteGrenze) return {};
        if (rc == kErrorNoMoreItems) return namen;
        // A refused handle or a key deleted during the walk fails every further round:
        // such a walk would never end.
        if (rc != kErrorSuccess && rc != kErrorMoreData) return {};
    }
}

std::vector<WertEintrag> Registry::Werte(RegHandle handle, const std::function<void()>& pumpen) {
    std::vector<WertEintrag> werte;
    std::vector<char> puffer(kNamePuffer);
    std::uint32_t typ = 0;  // kept across rounds: the failing call does not touch it
    for (std::uint32_t i = 0;; ++i) {
        pumpen();
        std::fill(puffer.begin(), puffer.end(), '\0');
        std::uint32_t grösse = kNamePuffer, datenGrösse = kNamePuffer;
        const long rc = p_.registry.EnumValue(handle, i, puffer.data(), &grösse, &typ, nullptr, &datenGrösse);
        werte.push_back({std::to_string(typ), std::string(puffer.data(), std::min(grösse, kNamePuffer))});
        if (rc == kErrorNoMoreItems) return werte;
        if (rc != kErrorSuccess && rc != kErrorMoreData) return {};
    }
}

// The walks read the whole key first and let the window messages run once it is closed,
// as many times as the rounds would have: a message handler never meets an open key, and
// what it changes shows in the next walk.
void Registry::Nachholen(int pumpen) {
    while (pumpen-- > 0) p_.timers.PumpMessages();
}

std::vector<std::string> Registry::GetSubkeys(RegHandle root, const std::string& key,
                                              const Kategorie& kategorieschlüssel, Ansicht ansicht) {
    p_.timers.PumpMessages();
    int pumpen = 0;
    std::vector<std::string> namen;
    {
        RegKey k;
        OpenKey(root, key, k, ansicht);
        namen = Unterschlüssel(k.Get(), kategorieschlüssel, [&] { ++pumpen; });
    }
    Nachholen(pumpen);
    return namen;
}

std::vector<std::string> Registry::GetValueNames(RegHandle root, const std::string& key, Ansicht ansicht) {
    int pumpen = 0;
    std::vector<WertEintrag> werte;
    {
        RegKey k;
        OpenKey(root, key, k, ansicht);
        werte = Werte(k.Get(), [&] { ++pumpen; });
    }
    Nachholen(pumpen);
    std::vector<std::string> namen;
    namen.reserve(werte.size());
    for (const auto& w : werte) namen.push_back(w.Name);
    return namen;
}

std::vector<WertDaten> Registry::GetValueList(RegHandle root, const std::string& key,
                                              const std::function<void(const WertDaten&)>& zeile, Ansicht ansicht) {
    std::vector<WertDaten> liste;
    RegKey k;
    if (p_.registry.OpenKeyEx(root, key, kKeyQueryValue | AnsichtFlag(ansicht), &k) != kErrorSuccess) return liste;
    const RegHandle h = k.Get();

    // The enumeration is told of 256 bytes while it has 255 to spare: the buffer really
    // holds 256, so a value of exactly 256 bytes passes here and fails in the query below.
    std::uint8_t enumDaten[kListenPuffer + 1];
    for (std::uint32_t i = 0;; ++i) {
        char name[kListenPuffer];
        std::memset(name, ' ', sizeof name);
        std::uint32_t nameGrösse = kListenPuffer, typ = 0, datenGrösse = kListenPuffer + 1;
        if (p_.registry.EnumValue(h, i, name, &nameGrösse, &typ, enumDaten, &datenGrösse) != kErrorSuccess) break;

        liste.assign(i + 1, WertDaten{});
        const std::string wertName = BisNul(name, sizeof name);

        std::uint8_t daten[kListenPuffer];
        std::memset(daten, ' ', sizeof daten);
        std::uint32_t grösse = kListenPuffer;
        typ = kRegSz;
        std::string text;
        if (p_.registry.QueryValueEx(h, wertName.c_str(), &typ, daten, &grösse) == kErrorSuccess) {
            text.assign(reinterpret_cast<const char*>(daten), std::min(grösse, kListenPuffer));
            while (!text.empty() && text.back() == '\0') text.pop_back();
        }
        liste[i] = {wertName, text};

        if (zeile) zeile(liste[i]);
    }
    return liste;
}

std::vector<std::string> ListSubkeys(Plattform& p, RegHandle root, const std::string& key, Ansicht ansicht) {
    std::vector<std::string> namen(1);
    RegKey k;
    if (p.registry.OpenKeyEx(root, key, kKeyEnumerateSubKeys | AnsichtFlag(ansicht), &k) != kErrorSuccess) return namen;
    for (std::uint32_t i = 0;; ++i) {
        char puffer[kListenPuffer];
        std::memset(puffer, ' ', sizeof puffer);
        if (p.registry.EnumKey(k.Get(), i, puffer, sizeof puffer) != kErrorSuccess) break;
        if (namen.size() < i + 1) namen.resize(i + 1);
        namen[i] = BisNul(puffer, sizeof puffer);
    }
    return namen;
}

}  // namespace kes
