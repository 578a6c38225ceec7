// The registry listings in either view, and the 32-bit machine, where there is one view
// and the view flags change nothing.
#include <gtest/gtest.h>

#include "fake_plattform.h"
#include "platform/registry.h"

namespace kes::test {
namespace {

using Namen = std::vector<std::string>;
const std::string kSchlüssel = "Software\\Hersteller";

// A 64-bit program's own subkey and value in the 64-bit view, a 32-bit one's in the other.
void Befüllen(fake::FakeRegistry& reg) {
    reg.SetString("HKEY_LOCAL_MACHINE\\" + kSchlüssel + "\\Programm64", "Pfad", "C:\\Programme\\p64.exe");
    reg.SetString("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Hersteller\\Programm32", "Pfad", "C:\\p32.exe");
    reg.SetString("HKEY_LOCAL_MACHINE\\" + kSchlüssel, "Wert64", "64");
    reg.SetString("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Hersteller", "Wert32", "32");
}

// The walks end with the entry of their failing call.
Namen OhneLetzten(Namen namen) {
    if (!namen.empty()) namen.pop_back();
    return namen;
}

TEST(RegistryAnsichten, EveryListing_ReadsTheViewItIsAskedFor) {
    struct Fall {
        fake::Maschine maschine;
        Ansicht ansicht;
        Namen unterschlüssel, werte;
    };
    const Fall fälle[] = {
        {fake::Maschine::Bit64, Ansicht::Nativ, {"Programm64"}, {"Wert64"}},
        {fake::Maschine::Bit64, Ansicht::Bit32, {"Programm32"}, {"Wert32"}},
        // One view: the flag is ignored, and Wow6432Node is a key like any other.
        {fake::Maschine::Bit32, Ansicht::Bit32, {"Programm64"}, {"Wert64"}},
    };
    for (const Fall& f : fälle) {
        SCOPED_TRACE(::testing::Message() << "64-bit machine " << (f.maschine == fake::Maschine::Bit64)
                                          << ", 32-bit view " << (f.ansicht == Ansicht::Bit32));
        fake::FakePlattform fp(f.maschine);
        Befüllen(fp.registry);
        Registry reg(fp.plattform);

        EXPECT_EQ(ListSubkeys(fp.plattform, kHkeyLocalMachine, kSchlüssel, f.ansicht), f.unterschlüssel);
        EXPECT_EQ(OhneLetzten(reg.GetSubkeys(kHkeyLocalMachine, kSchlüssel, Kategorie::Keine, f.ansicht)),
                  f.unterschlüssel);
        EXPECT_EQ(OhneLetzten(reg.GetValueNames(kHkeyLocalMachine, kSchlüssel, f.ansicht)), f.werte);
        Namen zeilen;
        reg.GetValueList(
            kHkeyLocalMachine, kSchlüssel, [&](const WertDaten& w) { zeilen.push_back(w.Name); }, f.ansicht);
        EXPECT_EQ(zeilen, f.werte);
    }
}

TEST(RegistryAnsichten, ThirtyTwoBitMachine_HasOneViewThatBothFlagsReach) {
    fake::FakePlattform fp(fake::Maschine::Bit32);
    RegistryApi& r = fp.registry;
    EXPECT_FALSE(r.ZweiAnsichten());
    {
        RegKey k;
        ASSERT_EQ(r.CreateKeyEx(kHkeyLocalMachine, kSchlüssel, kKeyAllAccess | kKeyWow64_32Key, &k), kErrorSuccess);
    }
    EXPECT_TRUE(fp.registry.HasKey("HKEY_LOCAL_MACHINE\\" + kSchlüssel));
    EXPECT_FALSE(fp.registry.HasKey("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node"));
    for (std::uint32_t ansicht : {kAnsichtNativ, kKeyWow64_32Key, kKeyWow64_64Key}) {
        RegKey k;
        EXPECT_EQ(r.OpenKeyEx(kHkeyLocalMachine, kSchlüssel, kKeyRead | ansicht, &k), kErrorSuccess) << ansicht;
    }
    EXPECT_EQ(r.DeleteKey(kHkeyLocalMachine, kSchlüssel, kKeyWow64_32Key), kErrorSuccess);
    EXPECT_FALSE(fp.registry.HasKey("HKEY_LOCAL_MACHINE\\" + kSchlüssel));
}

}  // namespace
}  // namespace kes::test
