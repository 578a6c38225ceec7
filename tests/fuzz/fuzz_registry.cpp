// The registry listings over keys with hostile names and values: empty names, names and
// data of 254 to 257 and 2000 bytes, NULs inside, every value type. The walks end, keep
// their limits (the surplus entry, 255-byte data, one entry per subkey or one empty one),
// leave no key open, and the single-value reads give text for any type.
#include "feindlich.h"
#include "platform/hive_ocx.h"
#include "platform/registry.h"
#include "pruefen.h"

using namespace kes;
using kes::fuzz::Prüfen;

namespace {
const char* const kSchlüssel[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects",
    "Software\\Microsoft\\Windows\\CurrentVersion\\ShellServiceObjectDelayLoad",
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\SharedTaskScheduler",
    "Software\\Microsoft\\Internet Explorer\\URLSearchHooks",
    "SYSTEM\\CurrentControlSet\\Services",
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains",
    "Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\System",
    "CLSID",
};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider d(data, size);
    fake::FakePlattform fp;
    fuzz::RegistryFüllen(fp.registry, d, 24);
    Plattform& p = fp.plattform;
    Registry reg(p);
    HiveOCX hive(fp.registry);

    for (RegHandle root : {kHkeyLocalMachine, kHkeyCurrentUser, kHkeyClassesRoot, kHkeyUsers}) {
        for (const char* k : kSchlüssel) {
            const auto unter = reg.GetSubkeys(root, k, Kategorie::Keine);
            if (!unter.empty())
                Prüfen(unter.back() == std::string(2000, '\0'), "the surplus entry is not the failing call's");
            const auto dienste = reg.GetSubkeys(root, k, Kategorie::Dienste);
            Prüfen(dienste.size() <= kDiensteGrenze && (dienste.empty() || dienste == unter),
                   "the services' bound changed a walk within it");
            const auto namen = reg.GetValueNames(root, k);
            const auto zeilen = ListSubkeys(p, root, k);
            Prüfen(!zeilen.empty(), "ListSubkeys gave no entry at all");
            // A name of 255 bytes or more ends that walk early.
            if (!unter.empty())
                Prüfen(zeilen.size() <= std::max<std::size_t>(unter.size() - 1, 1), "ListSubkeys finds more keys");
            std::size_t anzahl = 0;
            reg.GetValueList(root, k, [&](const WertDaten& w) {
                ++anzahl;
                Prüfen(w.Daten.size() <= 255, "listed data over 255 bytes");
                Prüfen(w.Name.find('\0') == std::string::npos, "a listed name holds a NUL");
            });
            if (!namen.empty()) Prüfen(anzahl <= namen.size() - 1, "more rows than values");
            const int code = HiveVonHandle(root);
            for (std::size_t i = 0; i + 1 < namen.size() && i < 8; ++i) {
                std::string schlüssel = k, name = namen[i];
                hive.ReadValue(code, k, namen[i]);
                hive.ReadValueText(code, schlüssel, name);
                hive.ValueExists(code, k, namen[i]);
            }
            for (std::size_t i = 0; i + 1 < unter.size() && i < 8; ++i) {
                const std::string kind = std::string(k) + "\\" + unter[i];
                hive.KeyExists(code, kind);
                hive.ReadValue(code, kind, std::string(1, '\0'));
            }
        }
    }
    Prüfen(fp.registry.OpenHandles() == 0, "a walk left a key open");

    // The deletions the warnings make, on whatever names stand there.
    const auto domains = reg.GetSubkeys(kHkeyCurrentUser, kSchlüssel[6], Kategorie::Keine);
    for (std::size_t i = 0; i + 1 < domains.size() && i < 4; ++i)
        hive.DeleteKeyTree(static_cast<std::int32_t>(0x80000001u), std::string(kSchlüssel[6]) + "\\" + domains[i]);
    Prüfen(fp.registry.OpenHandles() == 0, "a deletion left a key open");
    return 0;
}
