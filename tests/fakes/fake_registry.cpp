#include "fake_registry.h"

#include <cstring>

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

FakeRegistry::FakeRegistry() {
    for (RegHandle h : {kHkeyLocalMachine, kHkeyUsers, kHkeyCurrentConfig, kHkeyPerformanceData, kHkeyDynData})
        wurzeln_[h] = std::make_shared<Knoten>();
    Anlegen(wurzeln_[kHkeyUsers], ".DEFAULT");
    wurzeln_[kHkeyCurrentUser] = Anlegen(wurzeln_[kHkeyUsers], kBenutzerSid);
    wurzeln_[kHkeyClassesRoot] = Anlegen(wurzeln_[kHkeyLocalMachine], "Software\\Classes");
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

FakeRegistry::KnotenPtr FakeRegistry::Finde(KnotenPtr von, const std::string& pfad) const {
    for (const auto& teil : Teile(pfad)) {
        auto it = von->kinder.find(Klein(teil));
        if (it == von->kinder.end()) return nullptr;
        von = it->second;
    }
    return von;
}

FakeRegistry::KnotenPtr FakeRegistry::Anlegen(KnotenPtr von, const std::string& pfad) {
    for (const auto& teil : Teile(pfad)) {
        auto& kind = von->kinder[Klein(teil)];
        if (!kind) {
            kind = std::make_shared<Knoten>();
            kind->name = teil;
        }
        von = kind;
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

long FakeRegistry::OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t, RegKey* out) {
    if (beimÖffnen) beimÖffnen(subkey);
    auto von = Knoten_(root);
    if (!von) return Ungültig(root);
    // The ANSI call sees the path up to its first NUL, as the platform's does.
    auto k = Finde(von, subkey.substr(0, subkey.find('\0')));
    if (!k) return kErrorFileNotFound;
    *out = RegKey(*this, NeuerHandle(k));
    return kErrorSuccess;
}

long FakeRegistry::CreateKeyEx(RegHandle root, const std::string& subkey, RegKey* out) {
    auto von = Knoten_(root);
    if (!von) return Ungültig(root);
    *out = RegKey(*this, NeuerHandle(Anlegen(von, subkey)));
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
    return kErrorSuccess;
}

long FakeRegistry::DeleteValue(RegHandle key, const char* name) {
    auto k = Knoten_(key);
    if (!k) return Ungültig(key);
    for (auto it = k->werte.begin(); it != k->werte.end(); ++it)
        if (GleichOhneFall(it->name, NameOderStandard(name))) {
            k->werte.erase(it);
            return kErrorSuccess;
        }
    return kErrorFileNotFound;
}

long FakeRegistry::DeleteKey(RegHandle key, const std::string& subkey) {
    auto von = Knoten_(key);
    if (!von) return Ungültig(key);
    auto teile = Teile(subkey.substr(0, subkey.find('\0')));
    if (teile.empty()) return kErrorAccessDenied;
    const std::string letzter = teile.back();
    teile.pop_back();
    std::string eltern;
    for (const auto& t : teile) eltern += t + "\\";
    auto elternKnoten = Finde(von, eltern);
    if (!elternKnoten) return kErrorFileNotFound;
    auto it = elternKnoten->kinder.find(Klein(letzter));
    if (it == elternKnoten->kinder.end()) return kErrorFileNotFound;
    if (!it->second->kinder.empty()) return kErrorAccessDenied;
    it->second->gelöscht = true;
    elternKnoten->kinder.erase(it);
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
        if (wurzel == name) return anlegen ? Anlegen(wurzeln_[h], rest) : Finde(wurzeln_[h], rest);
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
