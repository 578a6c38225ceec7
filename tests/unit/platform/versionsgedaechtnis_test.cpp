// The version records kept between walks: read once while a file stays as it was, read
// again after a write, and nothing kept that was read while the file could not be read.
#include "platform/versionsgedaechtnis.h"

#include <gtest/gtest.h>

#include "fake_plattform.h"

namespace kes::test {
namespace {

constexpr const char* kDatei = "C:\\Prog\\tool.exe";

class Versionen : public ::testing::Test {
protected:
    fake::FakePlattform fp;
    VersionsGedächtnis gedächtnis;

    void SetUp() override {
        fp.files.Put(kDatei, "MZ");
        Hersteller("Erste GmbH");
    }
    void Hersteller(const std::string& name) {
        fake::FakeVersion v;
        v.übersetzungen = {{0x0407, 0x04E4, {{"CompanyName", name}}}};
        fp.details.SetVersion(kDatei, v);
    }
    std::string Gefragt(const char* pfad = kDatei) {
        DateiVersion v;
        gedächtnis.Infos(fp.plattform, pfad, v);
        return v.CompanyName;
    }
};

TEST_F(Versionen, UnchangedFile_ReadOnce_WrittenFile_ReadAgain) {
    EXPECT_EQ(Gefragt(), "Erste GmbH");
    EXPECT_EQ(Gefragt(), "Erste GmbH");
    EXPECT_EQ(fp.details.versionsLesungen, 1);
    Hersteller("Zweite AG");  // a new version resource is a write of the file
    EXPECT_EQ(Gefragt(), "Zweite AG");
    EXPECT_EQ(fp.details.versionsLesungen, 2);
}

TEST_F(Versionen, FileHeldOpenElsewhere_UnknownNow_ItselfOnceFree) {
    fp.files.Lock(kDatei);
    EXPECT_EQ(Gefragt(), "Unbekannt");
    fp.files.Lock(kDatei, false);
    EXPECT_EQ(Gefragt(), "Erste GmbH") << "the unknown record was not kept";
    EXPECT_EQ(Gefragt("C:\\Prog\\fehlt.exe"), "Unbekannt");
}

TEST_F(Versionen, Tidying_ForgetsOnlyWhatWasNotAskedSince) {
    Gefragt();
    gedächtnis.Aufräumen();
    Gefragt();
    gedächtnis.Aufräumen();
    EXPECT_EQ(fp.details.versionsLesungen, 1) << "asked between the two, kept";
    gedächtnis.Aufräumen();
    Gefragt();
    EXPECT_EQ(fp.details.versionsLesungen, 2) << "not asked since the last, forgotten";
}

}  // namespace
}  // namespace kes::test
