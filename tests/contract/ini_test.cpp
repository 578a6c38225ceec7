// The profile calls' contract: what a read gives for missing things, case, quotes and
// buffer size, and what writes, key removals and section removals leave behind.
#include <gtest/gtest.h>

#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Ini : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());
    ProfileApi& ini = p.profiles;
    const std::string datei = DieUmgebung().Ordner() + "\\bho.ini";
    std::string Lies(const std::string& abschnitt, const std::string& schlüssel, int puffer = 255) {
        return ini.GetString(abschnitt, schlüssel, "", datei, puffer);
    }
};

TEST_F(Ini, MissingFileSectionOrKey_GivesTheDefault) {
    EXPECT_EQ(ini.GetString("1", "Clisd", "vorgabe", datei), "vorgabe");
    ASSERT_TRUE(ini.WriteString("1", std::string("Clisd"), std::string("{A}"), datei));
    EXPECT_EQ(ini.GetString("2", "Clisd", "", datei), "");
    EXPECT_EQ(ini.GetString("1", "Pfad", "", datei), "");
}

TEST_F(Ini, SectionsAndKeysMatchWithoutRegardToCase) {
    ASSERT_TRUE(ini.WriteString("Abschnitt", std::string("Name"), std::string("Wert"), datei));
    EXPECT_EQ(Lies("ABSCHNITT", "name"), "Wert");
    ASSERT_TRUE(ini.WriteString("abschnitt", std::string("NAME"), std::string("neu"), datei));
    EXPECT_EQ(Lies("Abschnitt", "Name"), "neu");
}

TEST_F(Ini, SectionsKeepTheirKeysApart) {
    for (int i = 1; i <= 3; ++i) {
        const std::string n = std::to_string(i);
        ASSERT_TRUE(ini.WriteString(n, std::string("Pfad"), "C:\\bho" + n + ".dll", datei));
        ASSERT_TRUE(ini.WriteString(n, std::string("Clisd"), "{" + n + "}", datei));
    }
    EXPECT_EQ(Lies("2", "Pfad"), "C:\\bho2.dll");
    EXPECT_EQ(Lies("3", "Clisd"), "{3}");
}

TEST_F(Ini, RemovingAKeyOrASection) {
    ASSERT_TRUE(ini.WriteString("1", std::string("a"), std::string("x"), datei));
    ASSERT_TRUE(ini.WriteString("1", std::string("b"), std::string("y"), datei));
    ASSERT_TRUE(ini.WriteString("2", std::string("a"), std::string("z"), datei));
    ASSERT_TRUE(ini.WriteString("1", std::string("a"), std::nullopt, datei));
    EXPECT_EQ(Lies("1", "a"), "");
    EXPECT_EQ(Lies("1", "b"), "y");
    ASSERT_TRUE(ini.WriteString("1", std::nullopt, std::nullopt, datei));
    EXPECT_EQ(Lies("1", "b"), "");
    EXPECT_EQ(Lies("2", "a"), "z");
}

TEST_F(Ini, ReadTrimsBlanksDropsQuotesAndCutsToTheBuffer) {
    ASSERT_TRUE(p.files.WriteAll(datei, "[1]\r\n  Name  =  mit Blanken  \r\nZitat=\"in Anf\xFChrung\"\r\n"));
    EXPECT_EQ(Lies("1", "Name"), "mit Blanken");
    EXPECT_EQ(Lies("1", "Zitat"), "in Anf\xFChrung");
    EXPECT_EQ(Lies("1", "Name", 5), "mit ");
}

TEST_F(Ini, WriteIntoAMissingFolder_Fails) {
    EXPECT_FALSE(ini.WriteString("1", std::string("a"), std::string("x"), DieUmgebung().Ordner() + "\\fehlt\\x.ini"));
}

}  // namespace
}  // namespace kes::vertrag
