#include "fake_registry.h"

#include <cstring>

#include "common/mischen.h"
#include "common/text.h"

namespace kes::fake {

namespace {
std::vector<std::string> Teile(const std::string& pfad) {
    std::vector<std::string> teile;
    std::string teil;
    for (char c : pfad) {
        if (c == '\\') {
            if (!teil.empty()) teile.push_back(teil);
            teil.clear();
        } else {
            teil += c;
        }
    }
    if (!teil.empty()) teile.push_back(teil);
    return teile;
}

const char* NameOderStandard(const char* name) {
    return name ? name : "";
}
}  // namespace

FakeRegistry::FakeRegistry(Maschine maschine) : zweiAnsichten_(maschine == Maschine::Bit64) {
    for (RegHandle h : {kHkeyLocalMachine, kHkeyUsers, kHkeyCurrentConfig, kHkeyPerformanceData, kHkeyDynData})
        wurzeln_[h] = std::make_shared<Knoten>();
    Gehe(wurzeln_[kHkeyUsers], ".DEFAULT", false, true);
    wurzeln_[kHkeyCurrentUser] = Gehe(wurzeln_[kHkeyUsers], kBenutzerSid, false, true);
    wurzeln_[kHkeyClassesRoot] = Gehe(wurzeln_[kHkeyLocalMachine], "Software\\Classes", false, true);
    if (zweiAnsichten_) ZweiteAnsichtAnlegen();
}

FakeRegistry::KnotenPtr FakeRegistry::Wurzel(RegHandle root) const {
    auto it = wurzeln_.find(root);
    return it == wurzeln_.end() ? nullptr : it->second;
}

FakeRegistry::KnotenPtr FakeRegistry::Knoten_(RegHandle h) const {
    if (auto w = Wurzel(h)) return w;
    auto it = handles_.find(h);
    if (it == handles_.end() || it->second->gelöscht) return nullptr;
    return it->second;
}

FakeRegistry::KnotenPtr FakeRegistry::Kind(const KnotenPtr& von, const std::string& name) {
    auto& kind = von->kinder[Klein(name)];
    if (!kind) {
        kind = std::make_shared<Knoten>();
        kind->name = name;
        kind->eltern = von;
        Geändert(von);
    }
    return kind;
}

void FakeRegistry::Geändert(const KnotenPtr& k) {
    static std::uint64_t uhr = 0;
    k->eigeneÄnderungen = ++uhr;
    for (KnotenPtr p = k; p; p = p->eltern.lock()) p->alleÄnderungen = uhr;
}

std::function<std::optional<std::uint64_t>()> FakeRegistry::Änderungen(RegHandle root, const std::string& subkey,
                                                                       std::uint32_t sam, bool subtree) {
    auto von = Knoten_(root);
    auto k = von ? Gehe(von, subkey, (sam & kKeyWow64_32Key) != 0, false) : nullptr;
    if (!k) return {};
    return [k, subtree]() -> std::optional<std::uint64_t> {
        if (k->gelöscht) return std::nullopt;
        return subtree ? k->alleÄnderungen : k->eigeneÄnderungen;
    };
}

std::function<std::optional<std::uint64_t>(int)> FakeRegistry::Abdruck(RegHandle root, const std::string& subkey,
                                                                       std::uint32_t sam) {
    auto von = Knoten_(root);
    auto k = von ? Gehe(von, subkey, (sam & kKeyWow64_32Key) != 0, false) : nullptr;
    if (!k) return {};
    return [this, k](int tiefe) -> std::optional<std::uint64_t> {
        std::uint64_t h = 0;
        if (!Abdrucken(k, tiefe, h)) return std::nullopt;
        return h;
    };
}

bool FakeRegistry::Abdrucken(const KnotenPtr& k, int tiefe, std::uint64_t& h) {
    if (k->gelöscht || tiefe < 0) return false;
    for (std::uint64_t x : {k->eigeneÄnderungen, std::uint64_t{k->kinder.size()}, std::uint64_t{k->werte.size()}})
        Mischen(h, x);
    if (tiefe == 0) return true;
    for (const auto& [klein, kind] : k->kinder) {
        Mischen(h, kind->name);
        if (tiefe == 1) {
            Mischen(h, kind->eigeneÄnderungen);
            continue;
        }
        const KnotenPtr ziel = Verfolgt(kind, false);
        if (!ziel || !Abdrucken(ziel, tiefe - 1, h)) return false;
    }
    return true;
}

FakeRegistry::KnotenPtr FakeRegistry::Umgeleitet(const KnotenPtr& k) const {
    auto it = k->kinder.find("wow6432node");
    return it == k->kinder.end() ? k : it->second;
}

FakeRegistry::KnotenPtr FakeRegistry::Verfolgt(const KnotenPtr& k, bool anlegen) {
    if (k->verweis.empty()) return k;
    return Gehe(wurzeln_[kHkeyLocalMachine], k->verweis, false, anlegen);
}

// Wine's walk: the 32-bit view turns to Wow6432Node at the start key and at every key on
// the way, except before a step that names Wow6432Node itself, so that both the plain path
// and the one through Wow6432Node reach the 32-bit key. Links are followed in both views.
FakeRegistry::KnotenPtr FakeRegistry::Gehe(KnotenPtr von, const std::string& pfad, bool bit32, bool anlegen) {
    const bool umleiten = bit32 && zweiAnsichten_;
    const auto teile = Teile(pfad);
    if (umleiten) von = Umgeleitet(von);
    for (std::size_t i = 0; i < teile.size(); ++i) {
        auto it = von->kinder.find(Klein(teile[i]));
        if (it == von->kinder.end() && !anlegen) return nullptr;
        von = it != von->kinder.end() ? it->second : Kind(von, teile[i]);
        if (umleiten && (i + 1 == teile.size() || !GleichOhneFall(teile[i + 1], "Wow6432Node"))) von = Umgeleitet(von);
        if (!(von = Verfolgt(von, anlegen))) return nullptr;
    }
    return von;
}

long FakeRegistry::Ungültig(RegHandle h) const {
    auto it = handles_.find(h);
    return it != handles_.end() && it->second->gelöscht ? kErrorKeyDeleted : kErrorInvalidHandle;
}

RegHandle FakeRegistry::NeuerHandle(KnotenPtr k) {
    const RegHandle h = nächster_;
    nächster_ += 4;
    handles_[h] = std::move(k);
    return h;
}

FakeRegistry::Wert* FakeRegistry::FindeWert(Knoten& k, const char* name) {
    const std::string gesucht = NameOderStandard(name);
    for (auto& w : k.werte)
        if (GleichOhneFall(w.name, gesucht)) return &w;
    return nullptr;
}

long FakeRegistry::OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) {
    if (beimÖffnen) beimÖffnen(subkey);
    auto von = Knoten_(root);
    if (!von) return Ungültig(root);
    // The ANSI call sees the path up to its first NUL, as the platform's does.
    auto k = Gehe(von, subkey.substr(0, subkey.find('\0')), (sam & kKeyWow64_32Key) != 0, false);
    if (!k) return kErrorFileNotFound;
    *out = RegKey(*this, NeuerHandle(k));
    return kErrorSuccess;
}

long FakeRegistry::CreateKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) {
    auto von = Knoten_(root);
    if (!von) return Ungültig(root);
    *out = RegKey(*this, NeuerHandle(Gehe(von, subkey, (sam & kKeyWow64_32Key) != 0, true)));
    return kErrorSuccess;
}

long FakeRegistry::CloseKey(RegHandle key) {
    if (Wurzel(key)) return kErrorSuccess;
    return handles_.erase(key) ? kErrorSuccess : kErrorInvalidHandle;
}

long FakeRegistry::EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    if (index >= k->kinder.size()) return kErrorNoMoreItems;
    auto it = std::next(k->kinder.begin(), index);
    const std::string& n = it->second->name;
    if (*nameLen <= n.size()) return kErrorMoreData;
    std::memcpy(name, n.c_str(), n.size() + 1);
    *nameLen = static_cast<std::uint32_t>(n.size());
    return kErrorSuccess;
}

long FakeRegistry::EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) {
    std::uint32_t länge = cb;
    return EnumKeyEx(key, index, name, &länge);
}

long FakeRegistry::EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen,
                             std::uint32_t* type, std::uint8_t* data, std::uint32_t* cbData) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    if (index >= k->werte.size()) return kErrorNoMoreItems;
    const Wert& w = k->werte[index];
    if (*nameLen <= w.name.size()) return kErrorMoreData;
    if (data && cbData && *cbData < w.data.size()) {
        *cbData = static_cast<std::uint32_t>(w.data.size());
        return kErrorMoreData;
    }
    std::memcpy(name, w.name.c_str(), w.name.size() + 1);
    *nameLen = static_cast<std::uint32_t>(w.name.size());
    if (type) *type = w.type;
    if (data && cbData) std::memcpy(data, w.data.data(), w.data.size());
    if (cbData) *cbData = static_cast<std::uint32_t>(w.data.size());
    return kErrorSuccess;
}

long FakeRegistry::QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                                std::uint32_t* cbData) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    Wert* w = FindeWert(*k, name);
    if (!w) return kErrorFileNotFound;
    if (type) *type = w->type;
    if (data && cbData && *cbData < w->data.size()) {
        *cbData = static_cast<std::uint32_t>(w->data.size());
        return kErrorMoreData;
    }
    if (data && cbData) std::memcpy(data, w->data.data(), w->data.size());
    if (cbData) *cbData = static_cast<std::uint32_t>(w->data.size());
    return kErrorSuccess;
}

long FakeRegistry::SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                              std::uint32_t cbData) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    std::string bytes(reinterpret_cast<const char*>(data), cbData);
    if (Wert* w = FindeWert(*k, name)) {
        w->type = type;
        w->data = bytes;
    } else {
        k->werte.push_back({NameOderStandard(name), type, bytes});
    }
    Geändert(k);
    return kErrorSuccess;
}

long FakeRegistry::DeleteValue(RegHandle key, const char* name) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    for (auto it = k->werte.begin(); it != k->werte.end(); ++it)
        if (GleichOhneFall(it->name, NameOderStandard(name))) {
            k->werte.erase(it);
            Geändert(k);
            return kErrorSuccess;
        }
    return kErrorFileNotFound;
}

long FakeRegistry::DeleteKey(RegHandle key, const std::string& subkey, std::uint32_t view) {
    auto von = Knoten_(key);
    if (!von) return Ungültig(key);
    const std::string pfad = subkey.substr(0, subkey.find('\0'));
    if (Teile(pfad).empty()) return kErrorAccessDenied;
    auto k = Gehe(von, pfad, (view & kKeyWow64_32Key) != 0, false);
    if (!k) return kErrorFileNotFound;
    auto eltern = k->eltern.lock();
    if (!eltern || !k->kinder.empty()) return kErrorAccessDenied;
    k->gelöscht = true;
    eltern->kinder.erase(Klein(k->name));
    Geändert(eltern);
    return kErrorSuccess;
}

FakeRegistry::KnotenPtr FakeRegistry::AusPfad(const std::string& keyPath, bool anlegen) {
    static const std::pair<const char*, RegHandle> kWurzeln[] = {{"HKEY_CLASSES_ROOT", kHkeyClassesRoot},
                                                                 {"HKEY_CURRENT_USER", kHkeyCurrentUser},
                                                                 {"HKEY_LOCAL_MACHINE", kHkeyLocalMachine},
                                                                 {"HKEY_USERS", kHkeyUsers},
                                                                 {"HKEY_CURRENT_CONFIG", kHkeyCurrentConfig}};
    const auto trenner = keyPath.find('\\');
    const std::string wurzel = keyPath.substr(0, trenner);
    const std::string rest = trenner == std::string::npos ? "" : keyPath.substr(trenner + 1);
    for (const auto& [name, h] : kWurzeln)
        if (wurzel == name) return Gehe(wurzeln_[h], rest, false, anlegen);
    return nullptr;
}

void FakeRegistry::SetRaw(const std::string& keyPath, const std::string& name, std::uint32_t type,
                          const std::string& bytes) {
    auto k = AusPfad(keyPath, true);
    if (Wert* w = FindeWert(*k, name.c_str())) {
        w->type = type;
        w->data = bytes;
    } else {
        k->werte.push_back({name, type, bytes});
    }
    Geändert(k);
}

void FakeRegistry::SetString(const std::string& keyPath, const std::string& name, const std::string& data) {
    SetRaw(keyPath, name, kRegSz, data + std::string(1, '\0'));
}

void FakeRegistry::SetDword(const std::string& keyPath, const std::string& name, std::uint32_t v) {
    std::string b(4, '\0');
    for (int i = 0; i < 4; ++i) b[i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    SetRaw(keyPath, name, kRegDword, b);
}

void FakeRegistry::MakeKey(const std::string& keyPath) {
    AusPfad(keyPath, true);
}

bool FakeRegistry::HasKey(const std::string& keyPath) const {
    return const_cast<FakeRegistry*>(this)->AusPfad(keyPath, false) != nullptr;
}

bool FakeRegistry::HasValue(const std::string& keyPath, const std::string& name) const {
    auto* self = const_cast<FakeRegistry*>(this);
    auto k = self->AusPfad(keyPath, false);
    return k && self->FindeWert(*k, name.c_str());
}

}  // namespace kes::fake
