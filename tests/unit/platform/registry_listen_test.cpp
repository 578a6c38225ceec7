// The registry listings where the category key decides: the services cut-off, the rows of
// the autostart list by root, and walks that the platform refuses.
#include <gtest/gtest.h>

#include "core/steuerelemente.h"
#include "fake_plattform.h"
#include "platform/registry.h"

namespace kes::test {
namespace {

class RegistryListen : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    std::string kategorie;
    ListView liste33;
    Registry reg{fp.plattform, kategorie, &liste33};
    const std::string dienste = "SYSTEM\\CurrentControlSet\\Services";

    void Dienste(int anzahl) {
        for (int i = 0; i < anzahl; ++i)
            fp.registry.MakeKey("HKEY_LOCAL_MACHINE\\" + dienste + "\\Dienst" + std::to_string(i));
    }
};

TEST_F(RegistryListen, Dienste_2999Subkeys_AreListedWithTheSurplusEntry) {
    kategorie = "Dienste";
    Dienste(2999);
    EXPECT_EQ(reg.GetSubkeys(kHkeyLocalMachine, dienste).size(), 3000u);
}

TEST_F(RegistryListen, Dienste_3000SubkeysOrMore_GiveNoEntriesAtAll) {
    kategorie = "Dienste";
    Dienste(3000);
    EXPECT_TRUE(reg.GetSubkeys(kHkeyLocalMachine, dienste).empty()) << "the surplus entry is the 3001st";
    fp.registry.MakeKey("HKEY_LOCAL_MACHINE\\" + dienste + "\\Noch einer");
    EXPECT_TRUE(reg.GetSubkeys(kHkeyLocalMachine, dienste).empty());
}

TEST_F(RegistryListen, OtherCategory_HasNoCutOff) {
    kategorie = "BHO";
    Dienste(3001);
    EXPECT_EQ(reg.GetSubkeys(kHkeyLocalMachine, dienste).size(), 3002u);
}

TEST_F(RegistryListen, WalkLetsWindowMessagesRunThreeTimesARound) {
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\A\\Eins");
    RegHandle h = 0;
    reg.OpenKey(kHkeyCurrentUser, "Software\\A", h);
    int geklickt = 0;
    fp.timers.beimPumpen.push_back([&] { ++geklickt; });
    const int vorher = fp.timers.pumpen;
    EXPECT_EQ(reg.EnumSubkeys(h).size(), 2u);
    EXPECT_EQ(fp.timers.pumpen - vorher, 6) << "two rounds";
    EXPECT_EQ(geklickt, 1) << "a pending click runs in the middle of the walk";
    EXPECT_TRUE(reg.CloseKey(h));
}

TEST_F(RegistryListen, KeyDeletedDuringTheWalk_EndsTheWalkInsteadOfSpinning) {
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\Weg\\Eins");
    fp.registry.MakeKey("HKEY_CURRENT_USER\\Software\\Weg\\Zwei");
    RegHandle h = 0;
    reg.OpenKey(kHkeyCurrentUser, "Software\\Weg", h);
    // Another program removes the key between two rounds of the walk.
    fp.timers.beimPumpen.push_back([&] {
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg\\Eins");
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg\\Zwei");
        fp.registry.DeleteKey(kHkeyCurrentUser, "Software\\Weg");
    });
    EXPECT_TRUE(reg.EnumSubkeys(h).empty());
    EXPECT_TRUE(reg.EnumValues(h).empty());
    reg.CloseKey(h);
}

TEST_F(RegistryListen, MissingKey_GetSubkeysAndGetValueNamesEndInsteadOfSpinning) {
    EXPECT_TRUE(reg.GetSubkeys(kHkeyLocalMachine, "SOFTWARE\\Fehlt").empty());
    EXPECT_TRUE(reg.GetValueNames(kHkeyLocalMachine, "SOFTWARE\\Fehlt").empty());
    EXPECT_EQ(fp.registry.OpenHandles(), 0);
}

TEST_F(RegistryListen, AutostartRows_OnlyForTheThreeRootsOfTheLists) {
    kategorie = "AutostartRegistry";
    const std::string run = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    fp.registry.SetString("HKEY_LOCAL_MACHINE\\" + run, "Lokal", "C:\\l.exe");
    fp.registry.SetString(std::string("HKEY_USERS\\") + fake::kBenutzerSid + "\\" + run, "Nutzer", "C:\\n.exe");
    fp.registry.SetString("HKEY_CURRENT_CONFIG\\" + run, "Konfig", "C:\\k.exe");
    reg.GetValueList(kHkeyLocalMachine, run);
    reg.GetValueList(kHkeyUsers, std::string(fake::kBenutzerSid) + "\\" + run);
    EXPECT_EQ(reg.GetValueList(kHkeyCurrentConfig, run).size(), 1u) << "listed, but without a row";
    ASSERT_EQ(liste33.Items.size(), 2u);
    EXPECT_EQ(liste33.Items[0].Text, "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(liste33.Items[1].Text, "HKEY_USERS");
    EXPECT_EQ(liste33.Items[1].SubItem(4), "C:\\n.exe") << "the second reading goes by the hive code of the root";
    EXPECT_EQ(fp.registry.OpenHandles(), 0);
}

TEST_F(RegistryListen, RootNamesAndHiveCodes) {
    EXPECT_EQ(RootName(kHkeyCurrentUser), "HKEY_CURRENT_USER");
    EXPECT_EQ(RootName(0x1234), "");
    EXPECT_EQ(HiveVonHandle(kHkeyClassesRoot), 0);
    EXPECT_EQ(HiveVonHandle(kHkeyUsers), 3);
    EXPECT_EQ(HiveVonHandle(0x1234), -1);
}

}  // namespace
}  // namespace kes::test
