// An in-memory registry with the Win32 contracts: keys and value names compare without
// regard to case, subkeys enumerate in sorted order and values in creation order, buffers
// that are too small give 234, and a handle to a deleted key stops working.
// HKEY_CURRENT_USER is the user's hive below HKEY_USERS, as on a real machine.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/seam/registry_api.h"

namespace kes::fake {

inline const char* const kBenutzerSid = "S-1-5-21-0-0-0-1000";

class FakeRegistry : public RegistryApi {
public:
    FakeRegistry();

    long OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) override;
    long CreateKeyEx(RegHandle root, const std::string& subkey, RegKey* out) override;
    long EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) override;
    long EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) override;
    long EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen, std::uint32_t* type,
                   std::uint8_t* data, std::uint32_t* cbData) override;
    long QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                      std::uint32_t* cbData) override;
    long SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                    std::uint32_t cbData) override;
    long DeleteValue(RegHandle key, const char* name) override;
    long DeleteKey(RegHandle key, const std::string& subkey) override;

    // Test set-up, with paths like "HKEY_CURRENT_USER\Software\X".
    void SetString(const std::string& keyPath, const std::string& name, const std::string& data);
    void SetDword(const std::string& keyPath, const std::string& name, std::uint32_t data);
    void SetRaw(const std::string& keyPath, const std::string& name, std::uint32_t type, const std::string& bytes);
    void MakeKey(const std::string& keyPath);
    bool HasKey(const std::string& keyPath) const;
    bool HasValue(const std::string& keyPath, const std::string& name) const;
    int OpenHandles() const { return static_cast<int>(handles_.size()); }
    // Runs at every open, so a test can see what the program knew at that moment.
    std::function<void(const std::string& subkey)> beimÖffnen;

protected:
    long CloseKey(RegHandle key) override;

private:
    struct Wert {
        std::string name;
        std::uint32_t type;
        std::string data;
    };
    struct Knoten {
        std::string name;
        std::map<std::string, std::shared_ptr<Knoten>> kinder;  // by lower-case name: sorted
        std::vector<Wert> werte;
        bool gelöscht = false;
    };
    using KnotenPtr = std::shared_ptr<Knoten>;

    KnotenPtr Wurzel(RegHandle root) const;
    KnotenPtr Knoten_(RegHandle h) const;
    KnotenPtr Finde(KnotenPtr von, const std::string& pfad) const;
    KnotenPtr Anlegen(KnotenPtr von, const std::string& pfad);
    KnotenPtr AusPfad(const std::string& keyPath, bool anlegen);
    Wert* FindeWert(Knoten& k, const char* name);
    RegHandle NeuerHandle(KnotenPtr k);
    // 1018 for a handle whose key was deleted, 6 for one that never was.
    long Ungültig(RegHandle h) const;

    std::map<RegHandle, KnotenPtr> wurzeln_;
    std::map<RegHandle, KnotenPtr> handles_;
    RegHandle nächster_ = 0x1000;
};

}  // namespace kes::fake
