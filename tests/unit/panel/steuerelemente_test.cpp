// The panel's own controls: the three-state box and the number field of the stage.
#include <gtest/gtest.h>

#include "common/box.h"
#include "fake_timers.h"
#include "panel/aufab.h"

namespace kes::test {
namespace {

using Zahlen = std::vector<int>;

TEST(Box, ClickSwapsOnAndOff_GreyAndUnknownValuesIgnoreIt_CodeNeverRaises) {
    Box b;
    Zahlen gehört;
    b.Click = [&](std::int16_t& neu) { gehört.push_back(neu); };
    b.setValue(1);
    EXPECT_TRUE(gehört.empty());
    b.KlickVomBenutzer();
    b.KlickVomBenutzer();
    EXPECT_EQ(gehört, (Zahlen{0, 1}));
    for (std::int16_t wert : {2, 7}) {
        b.setValue(wert);
        b.KlickVomBenutzer();
        EXPECT_EQ(b.value(), wert);
        EXPECT_EQ(gehört.size(), 2u) << wert;
    }
}

TEST(AufAb, WithoutNumbers_NoFilterAndZeroPassedOn) {
    AufAb a;
    Zahlen gemeldet;
    a.TextValue = [&](std::int32_t& z) { gemeldet.push_back(z); };
    a.SetText("abc");
    a.PfeilSchritt(true);
    EXPECT_EQ(a.Text(), "abc");
    EXPECT_EQ(gemeldet, (Zahlen{0}));
}

class Stufenfeld : public ::testing::Test {
protected:
    void SetUp() override {
        a.Zahlen = true;
        a.Max = 30;
        a.TextValue = [&](std::int32_t& z) { gemeldet.push_back(z); };
    }
    AufAb a;
    Zahlen gemeldet;
};

TEST_F(Stufenfeld, LimitsAndFilters_ArrowsStopAtTheLimitsAndTellTwicePerStep) {
    a.SetText("45");
    EXPECT_EQ(a.Text(), "30");
    a.SetText("");
    EXPECT_EQ(a.Text(), "0");
    a.SetText("1x");
    EXPECT_EQ(a.Text(), "1") << "a letter cuts the last character";
    a.SetText("1x2");
    EXPECT_EQ(a.Text(), "1") << "the faulty one in the middle stays, the last goes";
    EXPECT_EQ(gemeldet, (Zahlen{30, 0, 1, 1}));
    a.SetText("1");
    EXPECT_EQ(gemeldet.size(), 4u) << "the same text raises nothing";

    a.SetText("29");
    gemeldet.clear();
    a.PfeilSchritt(true);
    EXPECT_EQ(a.Text(), "30");
    EXPECT_EQ(gemeldet, (Zahlen{30, 30}));
    gemeldet.clear();
    a.PfeilSchritt(true);
    EXPECT_EQ(gemeldet, (Zahlen{30}));
    a.SetText("0");
    gemeldet.clear();
    a.PfeilSchritt(false);
    EXPECT_EQ(a.Text(), "0");
    EXPECT_EQ(gemeldet, (Zahlen{0}));
}

// The arrows on window timers: 100 ms per step while held.
class Pfeile : public Stufenfeld {
protected:
    void SetUp() override {
        Stufenfeld::SetUp();
        uhr.SetHandler([&](int id) { a.Tick(id == 4 ? 0 : 1); });
        a.Zeitgeber(uhr, 4, 5);
        a.SetText("5");
        gemeldet.clear();
    }
    fake::FakeTimers uhr;
};

TEST_F(Pfeile, QuickClickChangesNothing_HeldArrowStepsEvery100msTellingTwicePerStep_NoTimerWithoutNumbers) {
    a.PfeilDrücken(0);
    EXPECT_TRUE(a.Gedrückt(0));
    uhr.Advance(99);
    a.PfeilLoslassen(0);
    EXPECT_FALSE(a.Gedrückt(0));
    uhr.Advance(500);
    EXPECT_EQ(a.Text(), "5");
    EXPECT_TRUE(gemeldet.empty());

    a.PfeilDrücken(1);
    uhr.Advance(250);
    a.PfeilLoslassen(1);
    EXPECT_EQ(a.Text(), "3");
    EXPECT_EQ(gemeldet, (Zahlen{4, 4, 3, 3}));
    EXPECT_FALSE(uhr.Running(5));

    a.Zahlen = false;  // without numbers the timer never starts
    a.PfeilDrücken(0);
    EXPECT_FALSE(uhr.Running(4));
    a.PfeilLoslassen(0);
}

}  // namespace
}  // namespace kes::test
