// Command lines the delete action starts: REG DELETE must really remove a key, and the
// odd switch "/v/f" of the trusted-sites branch must behave as the platform's tool does.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Befehle : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());

    void Schlüssel(const std::string& pfad) {
        RegHandle h = 0;
        ASSERT_EQ(p.registry.CreateKeyEx(kHkeyCurrentUser, pfad, &h), kErrorSuccess);
        const std::uint8_t eins[4] = {1, 0, 0, 0};
        p.registry.SetValueEx(h, "wert", kRegDword, eins, 4);
        p.registry.CloseKey(h);
    }
    bool Da(const std::string& pfad) {
        RegHandle h = 0;
        if (p.registry.OpenKeyEx(kHkeyCurrentUser, pfad, kKeyRead, &h) != kErrorSuccess) return false;
        p.registry.CloseKey(h);
        return true;
    }
    // The command is not waited for: give it a few seconds to take effect.
    bool VerschwindetBald(const std::string& pfad) {
        for (int i = 0; i < 100; ++i) {
            if (!Da(pfad)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return false;
    }
    void TearDown() override {
        for (const char* k : {"\\Weg\\Kind", "\\Weg", "\\Bleibt"})
            p.registry.DeleteKey(kHkeyCurrentUser, std::string(kTestSchlüssel) + k);
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

}  // namespace
}  // namespace kes::vertrag
