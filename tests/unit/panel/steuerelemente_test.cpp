// The panel's own controls: the three-state box and the number field of the stage.
#include <gtest/gtest.h>

#include "common/box.h"
#include "panel/aufab.h"

namespace kes::test {
namespace {

TEST(Box, ClickSwapsOnAndOff_GreyIgnoresIt_CodeNeverRaises) {
    Box b;
    std::vector<int> gehört;
    b.Click = [&](std::int16_t& neu) { gehört.push_back(neu); };
    b.setValue(1);
    EXPECT_TRUE(gehört.empty());
    b.KlickVomBenutzer();
    b.KlickVomBenutzer();
    EXPECT_EQ(gehört, (std::vector<int>{0, 1}));
    b.setValue(2);
    b.KlickVomBenutzer();
    EXPECT_EQ(b.value(), 2);
    EXPECT_EQ(gehört.size(), 2u);
}

class Stufenfeld : public ::testing::Test {
protected:
    void SetUp() override {
        a.Zahlen = true;
        a.Max = 30;
        a.TextValue = [&](std::int32_t& z) { gemeldet.push_back(z); };
    }
    AufAb a;
    std::vector<int> gemeldet;
};

TEST_F(Stufenfeld, LimitsAndFilters) {
    a.SetText("45");
    EXPECT_EQ(a.Text(), "30");
    a.SetText("");
    EXPECT_EQ(a.Text(), "0");
    a.SetText("1x");
    EXPECT_EQ(a.Text(), "1") << "a letter cuts the last character";
    a.SetText("1x2");
    EXPECT_EQ(a.Text(), "1") << "the faulty one in the middle stays, the last goes";
    EXPECT_EQ(gemeldet, (std::vector<int>{30, 0, 1, 1}));
    a.SetText("1");
    EXPECT_EQ(gemeldet.size(), 4u) << "the same text raises nothing";
}

TEST_F(Stufenfeld, ArrowsStopAtTheLimitsAndTellTwicePerStep) {
    a.SetText("29");
    gemeldet.clear();
    a.PfeilSchritt(true);
    EXPECT_EQ(a.Text(), "30");
    EXPECT_EQ(gemeldet, (std::vector<int>{30, 30}));
    gemeldet.clear();
    a.PfeilSchritt(true);
    EXPECT_EQ(gemeldet, (std::vector<int>{30}));
    a.SetText("0");
    gemeldet.clear();
    a.PfeilSchritt(false);
    EXPECT_EQ(a.Text(), "0");
    EXPECT_EQ(gemeldet, (std::vector<int>{0}));
}

TEST(AufAb, WithoutNumbers_NoFilterAndZeroPassedOn) {
    AufAb a;
    std::vector<int> gemeldet;
    a.TextValue = [&](std::int32_t& z) { gemeldet.push_back(z); };
    a.SetText("abc");
    a.PfeilSchritt(true);
    EXPECT_EQ(a.Text(), "abc");
    EXPECT_EQ(gemeldet, (std::vector<int>{0}));
}

}  // namespace
}  // namespace kes::test
