// The default phone book as a machine without dial-up entries shows it: Wine's remote
// access calls list no entry, and so does the fake until a test gives it some.
#include <gtest/gtest.h>

#include "platform/dfue.h"
#include "umgebung.h"

namespace kes::vertrag {
namespace {

class Telefonbuch : public ::testing::Test {
protected:
    Plattform& p = (DieUmgebung().Neu(), DieUmgebung().Alles());
};

TEST_F(Telefonbuch, EmptyPhoneBook_ListsNoEntryWithoutFailing) {
    std::vector<std::string> namen{"vorher"};
    EXPECT_EQ(p.dialup.EnumEntries(&namen), 0);
    EXPECT_TRUE(namen.empty());
    const auto liste = DFUEintraege(p);
    ASSERT_TRUE(liste.has_value());
    EXPECT_TRUE(liste->empty());
}

TEST_F(Telefonbuch, UnknownEntry_HasNoPropertiesAndLeavesTheTexts) {
    std::string land = "l", vorwahl = "v", nummer = "n";
    EXPECT_FALSE(DFUEigenschaften(p, "Kestrella Vertrag gibt es nicht", land, vorwahl, nummer));
    EXPECT_EQ(land + vorwahl + nummer, "lvn");
}

}  // namespace
}  // namespace kes::vertrag
