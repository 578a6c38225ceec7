// The settings bag: names without regard to case, defaults, conversions, and damaged blocks
// that must give a numbered error and never a crash.
#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "common/fehler.h"
#include "core/property_bag.h"

namespace kes::test {
namespace {

// The number of the error the call raises; -1 when it raises none.
template <class F>
int FehlerNummer(F f) {
    try {
        f();
    } catch (const Fehler& e) {
        return e.Nummer();
    }
    return -1;
}

TEST(PropertyBag, RoundTripKeepsTypesAndFindsNamesInAnyCase) {
    PropertyBag bag;
    bag.WriteProperty("Box4", std::int16_t{1});
    bag.WriteProperty("hostsgrösse", std::int32_t{70000});
    bag.WriteProperty("AnzeigeLöschen", true);
    bag.WriteProperty("InternetStartPage1", std::string("http://\xE4\r\n\0x", 12));
    const PropertyBag zurück = PropertyBag::AusInhalt(bag.Contents());
    EXPECT_EQ(std::get<std::int16_t>(zurück.ReadProperty("box4", std::int16_t{0})), 1);
    EXPECT_EQ(std::get<std::int32_t>(zurück.ReadProperty("HOSTSGRÖSSE", std::int32_t{0})), 70000);
    EXPECT_TRUE(std::get<bool>(zurück.ReadProperty("anzeigelöschen", false)));
    EXPECT_EQ(std::get<std::string>(zurück.ReadProperty("internetstartpage1", std::string())),
              std::string("http://\xE4\r\n\0x", 12));
    EXPECT_EQ(std::get<std::int16_t>(zurück.ReadProperty("Aufab1", std::int16_t{5})), 5);
}

TEST(PropertyBag, WriteEqualToDefaultLeavesTheKeyOut_AndLastWriteWins) {
    PropertyBag bag;
    bag.WriteProperty("Box1", std::int16_t{1}, std::int16_t{0});
    bag.WriteProperty("box1", std::int16_t{0}, std::int16_t{0});
    EXPECT_EQ(bag.Finde("BOX1"), nullptr);
    bag.WriteProperty("Seite", std::string(), std::int16_t{0});
    EXPECT_NE(bag.Finde("seite"), nullptr) << "a text never equals the number default";
    bag.WriteProperty("Box2", std::int16_t{1});
    bag.WriteProperty("BOX2", std::int16_t{2});
    EXPECT_EQ(bag.Einträge().size(), 2u);
}

TEST(PropertyBag, ConvertsLikeTheRuntime) {
    PropertyBag bag;
    bag.WriteProperty("zahl", std::string("12"));
    bag.WriteProperty("text", std::string("zwölf"));
    EXPECT_EQ(std::get<std::int16_t>(bag.ReadProperty("zahl", std::int16_t{0})), 12);
    bag.WriteProperty("gross", std::int32_t{70000});
    EXPECT_EQ(std::get<std::string>(bag.ReadProperty("gross", std::string())), "70000");
    EXPECT_EQ(FehlerNummer([&] { bag.ReadProperty("text", std::int16_t{0}); }), 13);
    // A 16-bit number takes its whole range and not one beyond either end.
    for (std::int32_t z : {-32768, 32767}) {
        bag.WriteProperty("grenze", z);
        EXPECT_EQ(std::get<std::int16_t>(bag.ReadProperty("grenze", std::int16_t{0})), z);
    }
    for (std::int32_t z : {-32769, 32768}) {
        bag.WriteProperty("grenze", z);
        EXPECT_EQ(FehlerNummer([&] { bag.ReadProperty("grenze", std::int16_t{0}); }), 6) << z;
    }
}

TEST(PropertyBag, AnyDamage_GivesANumberedErrorNeverACrash) {
    PropertyBag bag;
    for (int i = 1; i <= 31; ++i) bag.WriteProperty("Box" + std::to_string(i), std::int16_t(i % 3));
    bag.WriteProperty("InternetStartPage4", std::string(300, 'w'));
    const std::string gut = bag.Contents();
    std::mt19937 zufall(4711);
    int abgelehnt = 0;
    for (int runde = 0; runde < 3000; ++runde) {
        std::string kaputt = gut;
        if (runde % 3 == 0) {
            kaputt.resize(zufall() % gut.size());
        } else if (runde % 3 == 1) {
            for (int k = 0; k < 4; ++k) kaputt[zufall() % kaputt.size()] = static_cast<char>(zufall());
        } else {
            kaputt.assign(zufall() % 64, '\0');
            for (char& c : kaputt) c = static_cast<char>(zufall());
        }
        const int n = FehlerNummer([&] { PropertyBag::AusInhalt(kaputt); });
        EXPECT_TRUE(n == -1 || n == 62 || n == 321) << n;
        abgelehnt += n != -1;
    }
    EXPECT_GT(abgelehnt, 1000);
}

}  // namespace
}  // namespace kes::test
