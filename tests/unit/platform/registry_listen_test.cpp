// The registry listings where the current category key decides: the cut-off of a large
// walk; and walks that the platform refuses.
#include <gtest/gtest.h>

#include "common/steuerelemente.h"
#include "fake_plattform.h"
#include "platform/hive_ocx.h"
#include "platform/registry.h"

namespace kes::test {
namespace {

class RegistryListen : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    Registry reg{fp.plattform};
    const std::string dienste = "SYSTEM\\CurrentControlSet\\Services";
};

TEST_F(RegistryListen, CutOffFollowsTheCategoryKey_AnyWalkUnderDiensteGivesUpPast3000Entries) {
    struct Fall {
        int unterschlüssel;
        Kategorie schlüssel;
        std::size_t einträge;  // the surplus entry of the failing call included
    };
    // The surplus entry is the 3001st at 3000 subkeys.
    const Fall fälle[] = {{2999, Kategorie::Dienste, 3000}, {3000, Kategorie::Dienste, 0},
                          {3001, Kategorie::Dienste, 0},    {3001, Kategorie::ToolBar, 3002},
                          {3001, Kategorie::Keine, 3002}};
    int angelegt = 0;
    for (const Fall& f : fälle) {
        for (; angelegt < f.unterschlüssel; ++angelegt)
            fp.registry.MakeKey("HKEY_LOCAL_MACHINE\\" + dienste + "\\Dienst" + std::to_string(angelegt));
        EXPECT_EQ(reg.GetSubkeys(kHkeyLocalMachine, dienste, f.schlüssel).size(), f.einträge)
            << f.unterschlüssel << " subkeys under " << KategorieName(f.schlüssel);
    }
    // The cut-off reads the process-wide key at every round, not a copy taken at the start:
    // it can change while the walk lets window messages run.
    Kategorie schlüssel = Kategorie::Keine;
    fp.timers.beimPumpen.push_back([&] { schlüssel = Kategorie::Dienste; });
    EXPECT_TRUE(reg.GetSubkeys(kHkeyLocalMachine, dienste, schlüssel).empty());
}

// The walks over a key the caller opened pump while that key is open, as their callers
// expect; the program itself walks only through GetSubkeys and GetValueNames, which pump
// once the key is closed.
class RegistryListenOffen : public RegistryListen {
protected:
    void SetUp() override { fp.timers.vorDerPumpe = nullptr; }
};

TEST_F(RegistryListenOffen, WalkLetsWindowMessagesRunThreeTimesARound_AKeyDeletedMeanwhileEndsItInsteadOfSpinning) {
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\A\\Eins");
    RegKey h;
    reg.OpenKey(kHkeyCurrentUser, "Software\\A", h);
    int geklickt = 0;
    fp.timers.beimPumpen.push_back([&] { ++geklickt; });
    const int vorher = fp.timers.pumpen;
    EXPECT_EQ(reg.EnumSubkeys(h.Get(), Kategorie::Keine).size(), 2u);
    EXPECT_EQ(fp.timers.pumpen - vorher, 6) << "two rounds";
    EXPECT_EQ(geklickt, 1) << "a pending click runs in the middle of the walk";
    EXPECT_TRUE(reg.CloseKey(h));

    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\Weg\\Eins");
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\Weg\\Zwei");
    RegKey w;
    reg.OpenKey(kHkeyCurrentUser, "Software\\Weg", w);
    // Another program removes the key between two rounds of the walk.
    fp.timers.beimPumpen.push_back([&] {
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg\\Eins", kAnsichtNativ);
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg\\Zwei", kAnsichtNativ);
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg", kAnsichtNativ);
    });
    EXPECT_TRUE(reg.EnumSubkeys(w.Get(), Kategorie::Keine).empty());
    EXPECT_TRUE(reg.EnumValues(w.Get()).empty());
}

TEST_F(RegistryListen, MissingKey_GetSubkeysAndGetValueNamesEndInsteadOfSpinning_RootNamesAndHiveCodes) {
    EXPECT_TRUE(reg.GetSubkeys(kHkeyLocalMachine, "SOFTWARE\\Fehlt", Kategorie::Keine).empty());
    EXPECT_TRUE(reg.GetValueNames(kHkeyLocalMachine, "SOFTWARE\\Fehlt").empty());
    EXPECT_EQ(fp.registry.OpenHandles(), 0);

    EXPECT_EQ(RootName(kHkeyCurrentUser), "HKEY_CURRENT_USER");
    EXPECT_EQ(RootName(0x1234), "");
    EXPECT_EQ(HiveVonHandle(kHkeyClassesRoot), 0);
    EXPECT_EQ(HiveVonHandle(kHkeyUsers), 3);
    EXPECT_EQ(HiveVonHandle(0x1234), -1);
}

// Fuzz finding: subkeys whose names begin with a NUL (which the native API can make) sent
// the tree deletion round in circles, each of them naming the key itself again.
TEST_F(RegistryListen, DeleteKeyTree_SubkeysNamedWithANul_StayAndTheWalkEnds) {
    const std::string domains =
        "HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
    for (const std::string& kind :
         {std::string("\0a", 2), std::string("\0b", 2), std::string("x\0y", 3), std::string("www")})
        fp.registry.MakeKey(domains + "boese.example\\" + kind);
    fp.registry.MakeKey(domains + "andere.example");
    int öffnungen = 0;
    fp.registry.beimÖffnen = [&](const std::string&) {
        if (++öffnungen > 1000) throw std::runtime_error("the walk does not end");
    };
    HiveOCX(fp.registry)
        .DeleteKeyTree(static_cast<std::int32_t>(kHkeyCurrentUser),
                       domains.substr(std::string("HKEY_CURRENT_USER\\").size()) + "boese.example");
    EXPECT_FALSE(fp.registry.HasKey(domains + "boese.example\\www"));
    EXPECT_TRUE(fp.registry.HasKey(domains + "boese.example")) << "it keeps the children it cannot name";
    EXPECT_TRUE(fp.registry.HasKey(domains + "andere.example"));
    EXPECT_EQ(fp.registry.OpenHandles(), 0);

    // A key whose own name holds one would be the key above it, all domains.
    HiveOCX(fp.registry)
        .DeleteKeyTree(static_cast<std::int32_t>(kHkeyCurrentUser),
                       domains.substr(std::string("HKEY_CURRENT_USER\\").size()) + std::string("\0x", 2));
    EXPECT_TRUE(fp.registry.HasKey(domains + "andere.example"));
    EXPECT_TRUE(fp.registry.HasKey(domains + "boese.example"));
}

}  // namespace
}  // namespace kes::test
