// Command lines the delete action starts: REG DELETE must really remove a key, the odd
// switch "/v/f" of the trusted-sites branch must behave as the platform's tool does, and
// a name with blanks or switches in it, on the line as the program builds it, must delete
// its own key and nothing beside it.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/reg_befehl.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Befehle : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());

    void Schlüssel(const std::string& pfad) {
        RegKey k;
        ASSERT_EQ(p.registry.CreateKeyEx(kHkeyCurrentUser, pfad, kKeyAllAccess, &k), kErrorSuccess);
        const std::uint8_t eins[4] = {1, 0, 0, 0};
        p.registry.SetValueEx(k.Get(), "wert", kRegDword, eins, 4);
    }
    bool Da(const std::string& pfad) {
        RegKey k;
        return p.registry.OpenKeyEx(kHkeyCurrentUser, pfad, kKeyRead, &k) == kErrorSuccess;
    }
    // The command is not waited for: give it a few seconds to take effect.
    bool VerschwindetBald(const std::string& pfad) {
        for (int i = 0; i < 100; ++i) {
            if (!Da(pfad)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }
    bool HatWert(const std::string& pfad) {
        RegKey k;
        if (p.registry.OpenKeyEx(kHkeyCurrentUser, pfad, kKeyRead, &k) != kErrorSuccess) return false;
        std::uint32_t grösse = 0;
        return p.registry.QueryValueEx(k.Get(), "wert", nullptr, nullptr, &grösse) == kErrorSuccess;
    }
    const std::string dienste = std::string(kTestSchlüssel) + "\\Dienste";
    // Two keys side by side, the hostile one and the one its name would reach unquoted;
    // deletes the hostile one with the program's command line and tells what stayed.
    void Nachbarn(const std::string& feindlich, const std::string& nachbar) {
        Schlüssel(dienste + "\\" + nachbar);
        Schlüssel(dienste + "\\" + feindlich);
        ASSERT_TRUE(RegNameSicher(feindlich));
        ASSERT_TRUE(p.shell.RunCommand(RegDelete("HKCU\\" + dienste + "\\", feindlich, "/f"), 2));
        // Once the named key is gone, the command has done all it does.
        EXPECT_TRUE(VerschwindetBald(dienste + "\\" + feindlich)) << feindlich;
        EXPECT_TRUE(HatWert(dienste + "\\" + nachbar)) << feindlich;
    }
    void TearDown() override {
        for (const char* k : {"\\Weg\\Kind", "\\Weg", "\\Bleibt"})
            p.registry.DeleteKey(kHkeyCurrentUser, std::string(kTestSchlüssel) + k, kAnsichtNativ);
        for (const char* k : {"a b", "a /va", "a", "/f", "b  ", "b", "c\tx", "c"})
            p.registry.DeleteKey(kHkeyCurrentUser, dienste + "\\" + k, kAnsichtNativ);
        p.registry.DeleteKey(kHkeyCurrentUser, dienste, kAnsichtNativ);
    }
};

TEST_F(Befehle, RegDeleteWithForce_RemovesTheKeyWithItsSubkeys) {
    const std::string weg = std::string(kTestSchlüssel) + "\\Weg";
    Schlüssel(weg + "\\Kind");
    ASSERT_TRUE(p.shell.RunCommand("REG DELETE HKCU\\" + weg + " /f", 2));
    EXPECT_TRUE(VerschwindetBald(weg));
}

TEST_F(Befehle, RegDeleteWithTheJoinedSwitches_LeavesTheKey) {
    const std::string bleibt = std::string(kTestSchlüssel) + "\\Bleibt";
    Schlüssel(bleibt);
    p.shell.RunCommand("REG DELETE HKCU\\" + bleibt + " /v/f", 2);
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_TRUE(Da(bleibt)) << "the tool refuses the switch; the registry routine after it does the work";
}

TEST_F(Befehle, NameWithABlank_DeletesOnlyItsOwnKey) {
    Nachbarn("a b", "a");
}

TEST_F(Befehle, NameHoldingASwitch_DeletesItsKeyAndLeavesTheValuesOfTheOther) {
    Nachbarn("a /va", "a");
}

TEST_F(Befehle, NameLikeASwitchAndNamesWithBlanksOrATabAtTheEnd_StayWhole) {
    Nachbarn("/f", "a");
    Nachbarn("b  ", "b");
    Nachbarn("c\tx", "c");
}

}  // namespace
}  // namespace kes::vertrag
