// The unused sidebar control: loading, hover and the place it names for a menu.
#include "panel/leiste.h"

#include <gtest/gtest.h>

namespace kes::test {
namespace {

TEST(Leiste, LoadHoverAndRelease) {
    Leiste l;
    l.Laden("A", 1, 1, "B", 0, 1, "C", 1, 2, "D", -1, 0, "E", 1, 1);
    EXPECT_EQ(l.Einträge[0].Caption, "A");
    EXPECT_FALSE(l.Einträge[1].Visible);
    EXPECT_TRUE(l.Einträge[1].Enabled);
    EXPECT_FALSE(l.Einträge[2].Enabled);
    EXPECT_FALSE(l.Einträge[3].Visible);

    Leiste h;
    h.MausBewegung(1, true);
    h.MausBewegung(3, true);
    EXPECT_TRUE(h.Gefangen);
    EXPECT_EQ(h.Einträge[3].Anzeige, Leiste::Bild::Hover);
    EXPECT_EQ(h.Einträge[3].Farbe, 255);
    EXPECT_EQ(h.Einträge[1].Anzeige, Leiste::Bild::Normal);
    EXPECT_EQ(h.Einträge[1].Farbe, 0);
    h.MausBewegung(3, false);
    EXPECT_FALSE(h.Gefangen);
    for (const auto& e : h.Einträge) EXPECT_EQ(e.Anzeige, Leiste::Bild::Normal);

    // A release names the entry's left edge and its foot less 40 twips.
    h.Resize(5000, 600);
    int index = -1, knopf = 0, x = 0, y = 0;
    h.Klick = [&](int& i, int& k, int& px, int& py) { index = i, knopf = k, x = px, y = py; };
    h.MausLos(2, 1);
    EXPECT_EQ(std::vector<int>({index, knopf, x, y}), std::vector<int>({2, 1, 2000, 560}));
    EXPECT_EQ(h.Einträge[2].Anzeige, Leiste::Bild::Gedrückt);
}

}  // namespace
}  // namespace kes::test
