// The registry listings and HiveOCX over the seam, run against the fake natively and
// against Win32 under Wine: the surplus entry of the failing call, the 255-byte limits of
// the autostart listing, the default value by either name, and numbers as text.
#include <gtest/gtest.h>

#include "common/steuerelemente.h"
#include "platform/hive_ocx.h"
#include "platform/registry.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

constexpr int kHkcu = 1;

class Listen : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());
    kes::Registry reg{p};
    HiveOCX hive{p.registry};

    // A value as the autostart list shows it: name, data, and the second reading.
    struct Zeile {
        std::string name, daten, zweite;
    };
    std::vector<Zeile> zeilen;
    std::vector<WertDaten> Auflisten(const std::string& unter) {
        return reg.GetValueList(kHkeyCurrentUser, Pfad(unter), [&](const WertDaten& w) {
            std::string pfad = Pfad(unter), name = w.Name;
            zeilen.push_back({w.Name, w.Daten, hive.ReadValueText(kHkcu, pfad, name)});
        });
    }
    const std::string wurzel = kTestSchlüssel;

    void SetUp() override {
        hive.DeleteKeyTree(static_cast<std::int32_t>(kHkeyCurrentUser), wurzel);
        Schlüssel("");
    }
    void TearDown() override { hive.DeleteKeyTree(static_cast<std::int32_t>(kHkeyCurrentUser), wurzel); }

    std::string Pfad(const std::string& unter) const { return unter.empty() ? wurzel : wurzel + "\\" + unter; }
    void Schlüssel(const std::string& unter) {
        RegKey k;
        ASSERT_EQ(p.registry.CreateKeyEx(kHkeyCurrentUser, Pfad(unter), kKeyAllAccess, &k), kErrorSuccess);
    }
    void Roh(const std::string& unter, const char* name, std::uint32_t typ, const std::string& daten) {
        RegKey k;
        ASSERT_EQ(p.registry.CreateKeyEx(kHkeyCurrentUser, Pfad(unter), kKeyAllAccess, &k), kErrorSuccess);
        ASSERT_EQ(p.registry.SetValueEx(k.Get(), name, typ, reinterpret_cast<const std::uint8_t*>(daten.data()),
                                        static_cast<std::uint32_t>(daten.size())),
                  kErrorSuccess);
    }
};

TEST_F(Listen, GetSubkeys_TwoSubkeys_GiveThreeEntriesTheLastFromTheFailingCall) {
    Schlüssel("Zwei\\Alpha");
    Schlüssel("Zwei\\beta");
    const auto namen = reg.GetSubkeys(kHkeyCurrentUser, Pfad("Zwei"), Kategorie::Keine);
    ASSERT_EQ(namen.size(), 3u);
    EXPECT_EQ(namen[0], "Alpha");
    EXPECT_EQ(namen[1], "beta");
    EXPECT_EQ(namen[2], std::string(2000, '\0'));
}

TEST_F(Listen, GetValueNames_EndWithTheSurplusEntry_AndEnumValuesTellsTypes) {
    Roh("Werte", "Text", kRegSz, std::string("x\0", 2));
    Roh("Werte", "Zahl", kRegDword, std::string("\x01\0\0\0", 4));
    const auto namen = reg.GetValueNames(kHkeyCurrentUser, Pfad("Werte"));
    ASSERT_EQ(namen.size(), 3u);
    EXPECT_EQ(namen[0], "Text");
    EXPECT_EQ(namen[1], "Zahl");
    EXPECT_EQ(namen[2], std::string(2000, '\0'));

    RegKey h;
    reg.OpenKey(kHkeyCurrentUser, Pfad("Werte"), h);
    ASSERT_TRUE(h);
    const auto werte = reg.EnumValues(h.Get());
    EXPECT_TRUE(reg.CloseKey(h));
    ASSERT_EQ(werte.size(), 3u);
    EXPECT_EQ(werte[0].Typ, "1");
    EXPECT_EQ(werte[1].Typ, "4");
}

TEST_F(Listen, ListSubkeys_OneEntryPerSubkey_OrOneEmptyEntry) {
    Schlüssel("Zwei\\Alpha");
    Schlüssel("Zwei\\beta");
    Schlüssel("Leer");
    EXPECT_EQ(ListSubkeys(p, kHkeyCurrentUser, Pfad("Zwei")), (std::vector<std::string>{"Alpha", "beta"}));
    EXPECT_EQ(ListSubkeys(p, kHkeyCurrentUser, Pfad("Leer")), (std::vector<std::string>{""}));
    EXPECT_EQ(ListSubkeys(p, kHkeyCurrentUser, Pfad("Fehlt")), (std::vector<std::string>{""}));
}

TEST_F(Listen, GetValueList_MissingKey_GivesNothingAndAddsNoRow) {
    EXPECT_TRUE(Auflisten("Fehlt").empty());
    EXPECT_TRUE(zeilen.empty());
}

TEST_F(Listen, GetValueList_StringWithTrailingNuls_ArrivesWithoutThem) {
    Roh("Run", "Tool", kRegSz, std::string("C:\\tool.exe /s\0\0", 16));
    const auto liste = Auflisten("Run");
    ASSERT_EQ(liste.size(), 1u);
    EXPECT_EQ(liste[0].Name, "Tool");
    EXPECT_EQ(liste[0].Daten, "C:\\tool.exe /s");
    ASSERT_EQ(zeilen.size(), 1u);
    EXPECT_EQ(zeilen[0].name, "Tool");
    EXPECT_EQ(zeilen[0].daten, "C:\\tool.exe /s");
    EXPECT_EQ(zeilen[0].zweite, "C:\\tool.exe /s");
}

TEST_F(Listen, GetValueList_255BytesPass_256ArriveEmpty_257EndTheWalk) {
    // Sizes count the closing NUL, as programs store strings (Wine adds one that is missing).
    Roh("Run", "a255", kRegSz, std::string(254, 'a') + '\0');
    Roh("Run", "b256", kRegSz, std::string(255, 'b') + '\0');
    Roh("Run", "c257", kRegSz, std::string(256, 'c') + '\0');
    Roh("Run", "danach", kRegSz, std::string("d\0", 2));
    const auto liste = Auflisten("Run");

    ASSERT_EQ(zeilen.size(), 2u) << "the 257-byte value and all after it are not listed";
    EXPECT_EQ(zeilen[0].name, "a255");
    EXPECT_EQ(zeilen[0].daten, std::string(254, 'a'));
    EXPECT_EQ(zeilen[1].name, "b256");
    EXPECT_EQ(zeilen[1].daten, "") << "fails the query with 255 bytes";
    EXPECT_EQ(zeilen[1].zweite, std::string(255, 'b')) << "the second reading has no such limit";

    ASSERT_EQ(liste.size(), 2u);
    EXPECT_EQ(liste[0].Name, "") << "only the last value survives in the array";
    EXPECT_EQ(liste[1].Name, "b256");
}

TEST_F(Listen, GetValueList_NumbersArriveAsRawBytes) {
    Roh("Run", "Zahl", kRegDword, std::string("\x01\0\0\0", 4));
    const auto liste = reg.GetValueList(kHkeyCurrentUser, Pfad("Run"));
    ASSERT_EQ(liste.size(), 1u);
    EXPECT_EQ(liste[0].Daten, "\x01");
}

TEST_F(Listen, HiveDefaultValue_ByNulNameAndByEmptyName_IsTheSameValue) {
    hive.WriteValue(kHkcu, Pfad("Standard"), std::string(1, '\0'), "eins");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Standard"), ""), "eins");
    EXPECT_TRUE(hive.ValueExists(kHkcu, Pfad("Standard"), ""));
    hive.WriteValue(kHkcu, Pfad("Standard"), "", "zwei");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Standard"), std::string(1, '\0')), "zwei");
    const auto namen = reg.GetValueNames(kHkeyCurrentUser, Pfad("Standard"));
    EXPECT_EQ(namen.size(), 2u) << "one value, the default, and the surplus entry";
    hive.DeleteValue(kHkcu, Pfad("Standard"), std::string(1, '\0'));
    EXPECT_FALSE(hive.ValueExists(kHkcu, Pfad("Standard"), ""));
}

TEST_F(Listen, HiveReadValue_NumbersAsDecimalText_MissingAsEmptyText) {
    Roh("Policies", "DisableRegistryTools", kRegDword, std::string("\x01\0\0\0", 4));
    Roh("Policies", "Gross", kRegDword, std::string("\xFF\xFF\xFF\xFF", 4));
    Roh("Policies", "Binär", kRegBinary, std::string("\x01\xA0\xFF", 3));
    Roh("Policies", "Mehrfach", kRegMultiSz, std::string("eins\0zwei\0\0", 11));
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Policies"), "DisableRegistryTools"), "1");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Policies"), "Gross"), "4294967295");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Policies"), "Binär"), "01 a0 ff");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Policies"), "Mehrfach"), "eins zwei");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Policies"), "fehlt"), "");
    EXPECT_EQ(hive.ReadValue(kHkcu, Pfad("Fehlt"), "DisableRegistryTools"), "");
}

TEST_F(Listen, HiveDeleteKey_RefusesSubkeys_DeleteKeyTreeTakesThemAlong) {
    Schlüssel("Baum\\Ast\\Blatt");
    hive.DeleteKey(kHkcu, Pfad("Baum"));
    EXPECT_TRUE(hive.KeyExists(kHkcu, Pfad("Baum\\Ast\\Blatt")));
    hive.DeleteKeyTree(static_cast<std::int32_t>(kHkeyCurrentUser), Pfad("Baum"));
    EXPECT_FALSE(hive.KeyExists(kHkcu, Pfad("Baum")));
    EXPECT_TRUE(hive.KeyExists(kHkcu, wurzel));
}

}  // namespace
}  // namespace kes::vertrag
