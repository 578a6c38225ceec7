// An in-memory registry with the Win32 contracts: keys and value names compare without
// regard to case, subkeys enumerate in sorted order and values in creation order, buffers
// that are too small give 234, and a handle to a deleted key stops working.
// HKEY_CURRENT_USER is the user's hive below HKEY_USERS, as on a real machine.
// It stands for a 32-bit Windows, with one view and the view flags ignored, or for a 64-bit
// one with the two views as Wine 8.0 keeps them: in the 32-bit view every key that has a
// Wow6432Node subkey is that subkey, and what both views share is a link below Wow6432Node
// to the 64-bit key.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/seam/registry_api.h"

namespace kes::fake {

inline const char* const kBenutzerSid = "S-1-5-21-0-0-0-1000";

enum class Maschine { Bit32, Bit64 };

class FakeRegistry : public RegistryApi {
public:
    explicit FakeRegistry(Maschine maschine = Maschine::Bit32);

    long OpenKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) override;
    long CreateKeyEx(RegHandle root, const std::string& subkey, std::uint32_t sam, RegKey* out) override;
    long EnumKeyEx(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen) override;
    long EnumKey(RegHandle key, std::uint32_t index, char* name, std::uint32_t cb) override;
    long EnumValue(RegHandle key, std::uint32_t index, char* name, std::uint32_t* nameLen, std::uint32_t* type,
                   std::uint8_t* data, std::uint32_t* cbData) override;
    long QueryValueEx(RegHandle key, const char* name, std::uint32_t* type, std::uint8_t* data,
                      std::uint32_t* cbData) override;
    long SetValueEx(RegHandle key, const char* name, std::uint32_t type, const std::uint8_t* data,
                    std::uint32_t cbData) override;
    long DeleteValue(RegHandle key, const char* name) override;
    long DeleteKey(RegHandle key, const std::string& subkey, std::uint32_t view) override;
    bool ZweiAnsichten() override { return zweiAnsichten_; }

    // Test set-up, with paths like "HKEY_CURRENT_USER\Software\X" in the 64-bit view:
    // the 32-bit keys are below Wow6432Node, as a registry editor shows them.
    void SetString(const std::string& keyPath, const std::string& name, const std::string& data);
    void SetDword(const std::string& keyPath, const std::string& name, std::uint32_t data);
    void SetRaw(const std::string& keyPath, const std::string& name, std::uint32_t type, const std::string& bytes);
    void MakeKey(const std::string& keyPath);
    bool HasKey(const std::string& keyPath) const;
    bool HasValue(const std::string& keyPath, const std::string& name) const;
    int OpenHandles() const { return static_cast<int>(handles_.size()); }
    // A change source's reading: how often the key (in the view of sam) changed, in its
    // values and subkeys or, with subtree, anywhere below; none once the key is deleted.
    // Empty when there is no such key.
    std::function<std::optional<std::uint64_t>()> Änderungen(RegHandle root, const std::string& subkey,
                                                             std::uint32_t sam, bool subtree);
    // A change source's imprint of the key: its stamp and counts, and those of its subkeys
    // down to the depth it is asked for, with the subkeys' names; by the enumeration's
    // stamps at the last level, as Windows gives them. Empty when there is no such key.
    std::function<std::optional<std::uint64_t>(int depth)> Abdruck(RegHandle root, const std::string& subkey,
                                                                   std::uint32_t sam);
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
        std::weak_ptr<Knoten> eltern;
        // A shared key's link: the path below HKEY_LOCAL_MACHINE of the key it stands for.
        std::string verweis;
        bool gelöscht = false;
        // The stamp of its last change (its values, its subkeys coming and going), from one
        // count of the whole registry, as the system's clock stamps a key; and the same
        // anywhere below it too.
        std::uint64_t eigeneÄnderungen = 0;
        std::uint64_t alleÄnderungen = 0;
    };
    using KnotenPtr = std::shared_ptr<Knoten>;

    KnotenPtr Wurzel(RegHandle root) const;
    KnotenPtr Knoten_(RegHandle h) const;
    KnotenPtr Kind(const KnotenPtr& von, const std::string& name);
    // Counts a change of the key for the key and every key above it.
    static void Geändert(const KnotenPtr& k);
    // The key a path leads to from VON, walked as Wine walks it; with ANLEGEN the missing
    // keys are made on the way. Null when a key is missing.
    KnotenPtr Gehe(KnotenPtr von, const std::string& pfad, bool bit32, bool anlegen);
    // In the 32-bit view a key with a Wow6432Node subkey stands for that subkey.
    KnotenPtr Umgeleitet(const KnotenPtr& k) const;
    KnotenPtr Verfolgt(const KnotenPtr& k, bool anlegen);
    bool Abdrucken(const KnotenPtr& k, int tiefe, std::uint64_t& h);
    void ZweiteAnsichtAnlegen();
    void Verweis(const std::string& pfad, const std::string& ziel);
    KnotenPtr AusPfad(const std::string& keyPath, bool anlegen);
    Wert* FindeWert(Knoten& k, const char* name);
    RegHandle NeuerHandle(KnotenPtr k);
    // 1018 for a handle whose key was deleted, 6 for one that never was.
    long Ungültig(RegHandle h) const;

    const bool zweiAnsichten_;
    std::map<RegHandle, KnotenPtr> wurzeln_;
    std::map<RegHandle, KnotenPtr> handles_;
    RegHandle nächster_ = 0x1000;
};

}  // namespace kes::fake
