// The two registry views of a 64-bit machine, run against the fake natively and against
// Win32 under Wine: where a key written by a 32-bit program lands, what the two views
// share, and that creating, deleting and listing in one view leave the other alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/registry.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

constexpr std::uint32_t k32 = kKeyWow64_32Key;
constexpr std::uint32_t kNativ = kAnsichtNativ;
// The suite's own keys in the machine's part of the registry.
const std::string kMaschinenSchlüssel = "Software\\KestrellaVertrag";
const std::string kKlasse = "CLSID\\{4B657374-0000-4000-8000-56657274726C}";

class RegistryAnsichten : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());
    RegistryApi& r = p.registry;

    struct Ort {
        RegHandle root;
        std::string pfad;
    };
    // Every key the tests make, in both views.
    const std::vector<Ort> eigene = {{kHkeyLocalMachine, kMaschinenSchlüssel},
                                     {kHkeyLocalMachine, "Software\\Policies\\KestrellaVertrag"},
                                     {kHkeyLocalMachine, "System\\KestrellaVertrag"},
                                     {kHkeyCurrentUser, kTestSchlüssel},
                                     {kHkeyClassesRoot, kKlasse},
                                     {kHkeyClassesRoot, "KestrellaVertrag.Datei"}};

    void SetUp() override { Aufräumen(); }
    void TearDown() override { Aufräumen(); }
    void Aufräumen() {
        for (const Ort& o : eigene)
            for (std::uint32_t ansicht : {k32, kNativ}) Löschen(o.root, o.pfad, ansicht);
    }

    // Removes a key with everything below it, depth first, in one view.
    void Löschen(RegHandle root, const std::string& pfad, std::uint32_t ansicht) {
        for (const std::string& kind : Unterschlüssel(root, pfad, ansicht)) Löschen(root, pfad + "\\" + kind, ansicht);
        r.DeleteKey(root, pfad, ansicht);
    }

    void Schreiben(RegHandle root, const std::string& pfad, std::uint32_t ansicht, const char* name) {
        RegKey k;
        ASSERT_EQ(r.CreateKeyEx(root, pfad, kKeyAllAccess | ansicht, &k), kErrorSuccess);
        const std::string daten = std::string(name) + '\0';
        ASSERT_EQ(r.SetValueEx(k.Get(), name, kRegSz, reinterpret_cast<const std::uint8_t*>(daten.data()),
                               static_cast<std::uint32_t>(daten.size())),
                  kErrorSuccess);
    }
    bool Sieht(RegHandle root, const std::string& pfad, std::uint32_t ansicht, const char* name) {
        RegKey k;
        if (r.OpenKeyEx(root, pfad, kKeyRead | ansicht, &k) != kErrorSuccess) return false;
        std::uint32_t grösse = 0;
        return r.QueryValueEx(k.Get(), name, nullptr, nullptr, &grösse) == kErrorSuccess;
    }
    bool Da(RegHandle root, const std::string& pfad, std::uint32_t ansicht) {
        RegKey k;
        return r.OpenKeyEx(root, pfad, kKeyRead | ansicht, &k) == kErrorSuccess;
    }
    // Sorted: Windows lists values in creation order, Wine by name.
    std::vector<std::string> Unterschlüssel(RegHandle root, const std::string& pfad, std::uint32_t ansicht) {
        std::vector<std::string> namen;
        RegKey k;
        if (r.OpenKeyEx(root, pfad, kKeyRead | ansicht, &k) != kErrorSuccess) return namen;
        char name[256];
        for (std::uint32_t i = 0, länge = sizeof name; r.EnumKeyEx(k.Get(), i, name, &länge) == kErrorSuccess;
             ++i, länge = sizeof name)
            namen.emplace_back(name, länge);
        std::sort(namen.begin(), namen.end());
        return namen;
    }
    std::vector<std::string> Werte(RegHandle root, const std::string& pfad, std::uint32_t ansicht) {
        std::vector<std::string> namen;
        RegKey k;
        if (r.OpenKeyEx(root, pfad, kKeyRead | ansicht, &k) != kErrorSuccess) return namen;
        char name[256];
        for (std::uint32_t i = 0, länge = sizeof name;
             r.EnumValue(k.Get(), i, name, &länge, nullptr, nullptr, nullptr) == kErrorSuccess;
             ++i, länge = sizeof name)
            namen.emplace_back(name, länge);
        std::sort(namen.begin(), namen.end());
        return namen;
    }
};

TEST_F(RegistryAnsichten, SixtyFourBitMachine_HasTwoViews) {
    EXPECT_TRUE(r.ZweiAnsichten());
}

// A key written in the 32-bit view: where each view finds it, and whether a value written
// in the program's own view at the same path reaches the 32-bit one.
struct Fall {
    const char* name;
    RegHandle root;
    std::string pfad;
    bool geteilt;
    std::vector<std::pair<RegHandle, std::string>> auchNativ;  // where the own view shows the 32-bit key
};

TEST_F(RegistryAnsichten, KeyWrittenInThe32BitView_IsSeenWhereTheMachineRedirectsOrSharesIt) {
    const Fall fälle[] = {
        {"machine software",
         kHkeyLocalMachine,
         kMaschinenSchlüssel,
         false,
         {{kHkeyLocalMachine, "Software\\Wow6432Node\\KestrellaVertrag"}}},
        {"COM class",
         kHkeyClassesRoot,
         kKlasse,
         false,
         {{kHkeyLocalMachine, "Software\\Classes\\Wow6432Node\\" + kKlasse},
          {kHkeyLocalMachine, "Software\\Wow6432Node\\Classes\\" + kKlasse}}},
        // Wine links only the COM keys AppId, Protocols and TypeLib; Windows shares file types.
        {"file type",
         kHkeyClassesRoot,
         "KestrellaVertrag.Datei",
         false,
         {{kHkeyLocalMachine, "Software\\Classes\\Wow6432Node\\KestrellaVertrag.Datei"}}},
        {"machine policies",
         kHkeyLocalMachine,
         "Software\\Policies\\KestrellaVertrag",
         true,
         {{kHkeyLocalMachine, "Software\\Wow6432Node\\Policies\\KestrellaVertrag"}}},
        {"machine system", kHkeyLocalMachine, "System\\KestrellaVertrag", true, {}},
        {"user software", kHkeyCurrentUser, kTestSchlüssel, true, {}},
    };
    for (const Fall& f : fälle) {
        SCOPED_TRACE(f.name);
        Schreiben(f.root, f.pfad, k32, "von32");
        EXPECT_TRUE(Sieht(f.root, f.pfad, k32, "von32"));
        EXPECT_EQ(Sieht(f.root, f.pfad, kNativ, "von32"), f.geteilt);
        for (const auto& [root, pfad] : f.auchNativ) EXPECT_TRUE(Sieht(root, pfad, kNativ, "von32")) << pfad;

        Schreiben(f.root, f.pfad, kNativ, "von64");
        EXPECT_TRUE(Sieht(f.root, f.pfad, kNativ, "von64"));
        EXPECT_EQ(Sieht(f.root, f.pfad, k32, "von64"), f.geteilt);
    }
}

TEST_F(RegistryAnsichten, PathThroughWow6432Node_ReachesThe32BitKeyInEitherView) {
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel, k32, "von32");
    for (std::uint32_t ansicht : {k32, kNativ})
        EXPECT_TRUE(Sieht(kHkeyLocalMachine, "Software\\Wow6432Node\\KestrellaVertrag", ansicht, "von32")) << ansicht;
    EXPECT_FALSE(Da(kHkeyLocalMachine, "Software\\Wow6432Node\\Wow6432Node\\KestrellaVertrag", k32));
}

TEST_F(RegistryAnsichten, CreateAndDeleteInOneView_LeaveTheOtherViewsKey) {
    const std::string kind = kMaschinenSchlüssel + "\\Kind";
    const std::pair<std::uint32_t, std::uint32_t> fälle[] = {{k32, kNativ}, {kNativ, k32}};
    for (const auto& [eine, andere] : fälle) {
        SCOPED_TRACE(eine);
        Schreiben(kHkeyLocalMachine, kind, andere, "andere");
        EXPECT_EQ(r.DeleteKey(kHkeyLocalMachine, kind, eine), kErrorFileNotFound) << "not made in this view yet";

        Schreiben(kHkeyLocalMachine, kind, eine, "eine");
        EXPECT_FALSE(Sieht(kHkeyLocalMachine, kind, andere, "eine"));
        EXPECT_NE(r.DeleteKey(kHkeyLocalMachine, kMaschinenSchlüssel, eine), kErrorSuccess) << "it has a subkey";
        EXPECT_EQ(r.DeleteKey(kHkeyLocalMachine, kind, eine), kErrorSuccess);
        EXPECT_FALSE(Da(kHkeyLocalMachine, kind, eine));
        EXPECT_TRUE(Sieht(kHkeyLocalMachine, kind, andere, "andere"));
        Aufräumen();
    }
}

TEST_F(RegistryAnsichten, Listings_ShowOnlyTheirViewsSubkeysAndValues) {
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel + "\\Nur64", kNativ, "wert");
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel, kNativ, "wert64");
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel + "\\Nur32b", k32, "wert");
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel + "\\Nur32a", k32, "wert");
    Schreiben(kHkeyLocalMachine, kMaschinenSchlüssel, k32, "wert32");

    using Namen = std::vector<std::string>;
    EXPECT_EQ(Unterschlüssel(kHkeyLocalMachine, kMaschinenSchlüssel, kNativ), Namen({"Nur64"}));
    EXPECT_EQ(Unterschlüssel(kHkeyLocalMachine, kMaschinenSchlüssel, k32), Namen({"Nur32a", "Nur32b"}));
    EXPECT_EQ(Werte(kHkeyLocalMachine, kMaschinenSchlüssel, kNativ), Namen({"wert64"}));
    EXPECT_EQ(Werte(kHkeyLocalMachine, kMaschinenSchlüssel, k32), Namen({"wert32"}));

    // The 32-bit view of HKLM\Software is Wow6432Node itself, which it does not list again.
    const Namen software64 = Unterschlüssel(kHkeyLocalMachine, "Software", kNativ);
    const Namen software32 = Unterschlüssel(kHkeyLocalMachine, "Software", k32);
    for (const Namen* namen : {&software64, &software32})
        EXPECT_NE(std::find(namen->begin(), namen->end(), "KestrellaVertrag"), namen->end());
    EXPECT_NE(std::find(software64.begin(), software64.end(), "Wow6432Node"), software64.end());
    EXPECT_EQ(std::find(software32.begin(), software32.end(), "Wow6432Node"), software32.end());

    // The program's own listings, asked for the 32-bit view.
    EXPECT_EQ(ListSubkeys(p, kHkeyLocalMachine, kMaschinenSchlüssel, Ansicht::Bit32), Namen({"Nur32a", "Nur32b"}));
    EXPECT_EQ(ListSubkeys(p, kHkeyLocalMachine, kMaschinenSchlüssel), Namen({"Nur64"}));
    Namen zeilen;
    kes::Registry(p).GetValueList(
        kHkeyLocalMachine, kMaschinenSchlüssel, [&](const WertDaten& w) { zeilen.push_back(w.Name + "=" + w.Daten); },
        Ansicht::Bit32);
    EXPECT_EQ(zeilen, Namen({"wert32=wert32"}));
}

}  // namespace
}  // namespace kes::vertrag
