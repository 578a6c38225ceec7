// The registry seam's contract, run against the fake natively and against Win32 under
// Wine: return codes, buffer sizes, order of enumeration, and the default value.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Registry : public ::testing::Test {
protected:
    // Each test starts from a fresh environment, made before the reference is taken.
    RegistryApi& r = (DieUmgebung().Neu(), DieUmgebung().Registry());

    void SetUp() override {
        Löschen(kHkeyCurrentUser, kTestSchlüssel);
        ASSERT_EQ(r.CreateKeyEx(kHkeyCurrentUser, kTestSchlüssel, kKeyAllAccess, &wurzelSchlüssel), kErrorSuccess);
        wurzel = wurzelSchlüssel.Get();
    }
    void TearDown() override {
        wurzelSchlüssel.Close();
        Löschen(kHkeyCurrentUser, kTestSchlüssel);
    }

    // Removes a key with everything below it, depth first.
    void Löschen(RegHandle root, const std::string& pfad) {
        {
            RegKey k;
            if (r.OpenKeyEx(root, pfad, kKeyAllAccess, &k) != kErrorSuccess) return;
            for (;;) {
                char name[256];
                std::uint32_t länge = sizeof name;
                if (r.EnumKeyEx(k.Get(), 0, name, &länge) != kErrorSuccess) break;
                Löschen(k.Get(), name);
            }
        }
        r.DeleteKey(root, pfad, kAnsichtNativ);
    }

    RegKey Schlüssel(const std::string& unter) {
        RegKey k;
        EXPECT_EQ(r.CreateKeyEx(wurzel, unter, kKeyAllAccess, &k), kErrorSuccess);
        return k;
    }
    void Text(RegHandle h, const char* name, const std::string& daten) {
        ASSERT_EQ(r.SetValueEx(h, name, kRegSz, reinterpret_cast<const std::uint8_t*>(daten.data()),
                               static_cast<std::uint32_t>(daten.size())),
                  kErrorSuccess);
    }

    RegKey wurzelSchlüssel;
    RegHandle wurzel = 0;
};

TEST_F(Registry, MissingKeyAndValue_GiveNotFound) {
    RegKey h = Schlüssel("Da");
    const RegHandle vorher = h.Get();
    EXPECT_EQ(r.OpenKeyEx(wurzel, "GibtEsNicht", kKeyRead, &h), kErrorFileNotFound);
    EXPECT_EQ(h.Get(), vorher) << "a failed open leaves the out handle alone";
    std::uint32_t grösse = 0;
    EXPECT_EQ(r.QueryValueEx(wurzel, "fehlt", nullptr, nullptr, &grösse), kErrorFileNotFound);
    EXPECT_EQ(r.DeleteValue(wurzel, "fehlt"), kErrorFileNotFound);
}

TEST_F(Registry, KeyNames_OpenWithoutRegardToCase) {
    Schlüssel("Gemischt\\Unten");
    RegKey h;
    ASSERT_EQ(r.OpenKeyEx(wurzel, "GEMISCHT\\unten", kKeyRead, &h), kErrorSuccess);
    EXPECT_EQ(h.Close(), kErrorSuccess);
}

TEST_F(Registry, QueryValue_TellsSizeAndRefusesSmallBuffer) {
    const std::string daten("C:\\tool.exe /s\0", 15);
    Text(wurzel, "Tool", daten);
    std::uint32_t typ = 0, grösse = 0;
    ASSERT_EQ(r.QueryValueEx(wurzel, "TOOL", &typ, nullptr, &grösse), kErrorSuccess);
    EXPECT_EQ(typ, kRegSz);
    EXPECT_EQ(grösse, 15u);

    std::vector<std::uint8_t> klein(5);
    grösse = 5;
    EXPECT_EQ(r.QueryValueEx(wurzel, "Tool", &typ, klein.data(), &grösse), kErrorMoreData);
    EXPECT_EQ(grösse, 15u);

    std::vector<std::uint8_t> puffer(255, ' ');
    grösse = 255;
    ASSERT_EQ(r.QueryValueEx(wurzel, "Tool", &typ, puffer.data(), &grösse), kErrorSuccess);
    EXPECT_EQ(std::string(puffer.begin(), puffer.begin() + grösse), daten);
}

TEST_F(Registry, StringWithTrailingNuls_KeepsThemInTheRawData) {
    const std::string daten("wert\0\0", 6);
    Text(wurzel, "Nuls", daten);
    std::vector<std::uint8_t> puffer(255);
    std::uint32_t grösse = 255, typ = 0;
    ASSERT_EQ(r.QueryValueEx(wurzel, "Nuls", &typ, puffer.data(), &grösse), kErrorSuccess);
    EXPECT_EQ(std::string(puffer.begin(), puffer.begin() + grösse), daten);
}

TEST_F(Registry, DefaultValue_IsTheEmptyNameAndTheNullName) {
    Text(wurzel, "", std::string("standard\0", 9));
    std::vector<std::uint8_t> puffer(64);
    std::uint32_t grösse = 64;
    ASSERT_EQ(r.QueryValueEx(wurzel, nullptr, nullptr, puffer.data(), &grösse), kErrorSuccess);
    EXPECT_STREQ(reinterpret_cast<const char*>(puffer.data()), "standard");
    char name[16];
    std::uint32_t nameLänge = sizeof name;
    ASSERT_EQ(r.EnumValue(wurzel, 0, name, &nameLänge, nullptr, nullptr, nullptr), kErrorSuccess);
    EXPECT_EQ(nameLänge, 0u);
    EXPECT_EQ(r.DeleteValue(wurzel, nullptr), kErrorSuccess);
    EXPECT_EQ(r.EnumValue(wurzel, 0, name, &nameLänge, nullptr, nullptr, nullptr), kErrorNoMoreItems);
}

TEST_F(Registry, DwordValue_IsFourLittleEndianBytes) {
    const std::uint8_t eins[4] = {1, 0, 0, 0};
    ASSERT_EQ(r.SetValueEx(wurzel, "DisableRegistryTools", kRegDword, eins, 4), kErrorSuccess);
    std::uint8_t puffer[8] = {};
    std::uint32_t grösse = 8, typ = 0;
    ASSERT_EQ(r.QueryValueEx(wurzel, "DisableRegistryTools", &typ, puffer, &grösse), kErrorSuccess);
    EXPECT_EQ(typ, kRegDword);
    EXPECT_EQ(grösse, 4u);
    EXPECT_EQ(puffer[0], 1);
}

TEST_F(Registry, EnumKeyEx_SortedThenNoMoreItems_AndSmallBufferRefused) {
    Schlüssel("Zwei\\beta");
    Schlüssel("Zwei\\Alpha");
    RegKey k;
    ASSERT_EQ(r.OpenKeyEx(wurzel, "Zwei", kKeyAllAccess, &k), kErrorSuccess);
    const RegHandle h = k.Get();
    char name[2000];
    std::uint32_t länge = 2000;
    ASSERT_EQ(r.EnumKeyEx(h, 0, name, &länge), kErrorSuccess);
    EXPECT_EQ(std::string(name, länge), "Alpha");
    länge = 2000;
    ASSERT_EQ(r.EnumKeyEx(h, 1, name, &länge), kErrorSuccess);
    EXPECT_EQ(std::string(name, länge), "beta");
    länge = 2000;
    EXPECT_EQ(r.EnumKeyEx(h, 2, name, &länge), kErrorNoMoreItems);
    länge = 3;
    EXPECT_EQ(r.EnumKeyEx(h, 0, name, &länge), kErrorMoreData);

    char kurz[255];
    ASSERT_EQ(r.EnumKey(h, 1, kurz, sizeof kurz), kErrorSuccess);
    EXPECT_STREQ(kurz, "beta");
    EXPECT_EQ(r.EnumKey(h, 2, kurz, sizeof kurz), kErrorNoMoreItems);
}

TEST_F(Registry, EnumValue_DataSizeLimitAt256) {
    // Sizes count the terminating NUL, as a program that writes strings stores them.
    Text(wurzel, "zuerst", std::string(254, 'a') + '\0');
    Text(wurzel, "Mitte", std::string(255, 'b') + '\0');
    Text(wurzel, "danach", std::string(256, 'c') + '\0');

    auto aufzählen = [&](std::uint32_t index, std::string& name) {
        char n[255];
        std::uint32_t nameLänge = 255, typ = 0, datenGrösse = 256;
        std::uint8_t daten[256];
        const long rc = r.EnumValue(wurzel, index, n, &nameLänge, &typ, daten, &datenGrösse);
        if (rc == kErrorSuccess) name.assign(n, nameLänge);
        return rc;
    };
    // Windows lists values in creation order, Wine by name: the suite relies on neither.
    std::map<std::string, long> gelesen;
    int zuGross = 0;
    for (std::uint32_t i = 0; i < 3; ++i) {
        std::string name;
        const long rc = aufzählen(i, name);
        if (rc == kErrorSuccess) gelesen[name] = rc;
        if (rc == kErrorMoreData) ++zuGross;
    }
    EXPECT_EQ(gelesen.size(), 2u);
    EXPECT_TRUE(gelesen.count("zuerst"));
    EXPECT_TRUE(gelesen.count("Mitte")) << "256 bytes fit the announced 256";
    EXPECT_EQ(zuGross, 1) << "257 bytes do not";
    std::string name;
    EXPECT_EQ(aufzählen(3, name), kErrorNoMoreItems);

    std::uint8_t puffer[255];
    std::uint32_t grösse = 255;
    EXPECT_EQ(r.QueryValueEx(wurzel, "Mitte", nullptr, puffer, &grösse), kErrorMoreData)
        << "the same value does not fit a query with 255";
}

TEST_F(Registry, DeleteKey_RefusesAKeyWithSubkeys) {
    Schlüssel("Eltern\\Kind");
    EXPECT_NE(r.DeleteKey(wurzel, "Eltern", kAnsichtNativ), kErrorSuccess);
    EXPECT_EQ(r.DeleteKey(wurzel, "Eltern\\Kind", kAnsichtNativ), kErrorSuccess);
    EXPECT_EQ(r.DeleteKey(wurzel, "Eltern", kAnsichtNativ), kErrorSuccess);
    RegKey h;
    EXPECT_EQ(r.OpenKeyEx(wurzel, "Eltern", kKeyRead, &h), kErrorFileNotFound);
}

TEST_F(Registry, KeyDeletedWhileOpen_StopsAnsweringThroughTheOldHandle) {
    const RegKey k = Schlüssel("Verschwindet");
    const RegHandle h = k.Get();
    Text(h, "wert", "x");
    ASSERT_EQ(r.DeleteKey(wurzel, "Verschwindet", kAnsichtNativ), kErrorSuccess);
    std::uint32_t grösse = 0;
    EXPECT_EQ(r.QueryValueEx(h, "wert", nullptr, nullptr, &grösse), kErrorKeyDeleted);
    char name[64];
    std::uint32_t länge = 64;
    EXPECT_EQ(r.EnumValue(h, 0, name, &länge, nullptr, nullptr, nullptr), kErrorKeyDeleted);
    länge = 64;
    EXPECT_EQ(r.EnumKeyEx(h, 0, name, &länge), kErrorKeyDeleted) << "every further round of a walk fails alike";
}

TEST_F(Registry, CurrentUser_IsOneOfTheHivesBelowHkeyUsers) {
    Text(wurzel, "Kennung", "hier");
    RegKey users;
    ASSERT_EQ(r.OpenKeyEx(kHkeyUsers, "", kKeyEnumerateSubKeys, &users), kErrorSuccess);
    bool gefunden = false;
    char name[255];
    for (std::uint32_t i = 0; r.EnumKey(users.Get(), i, name, sizeof name) == kErrorSuccess; ++i) {
        RegKey h;
        if (r.OpenKeyEx(kHkeyUsers, std::string(name) + "\\" + kTestSchlüssel, kKeyQueryValue, &h) == kErrorSuccess) {
            std::uint32_t grösse = 0;
            gefunden = gefunden || r.QueryValueEx(h.Get(), "Kennung", nullptr, nullptr, &grösse) == kErrorSuccess;
        }
    }
    EXPECT_TRUE(gefunden);
}

}  // namespace
}  // namespace kes::vertrag
