// kestrella-dat's conversion between the settings file's code page 1252 and UTF-8.
#include <gtest/gtest.h>

#include "common/zeichensatz.h"

namespace kes::zeichensatz {
namespace {

TEST(Zeichensatz, UmlautsAndTheUpperPunctuation_BecomeTheirUtf8Characters) {
    EXPECT_EQ(NachUtf8("hostsgr\xF6\xDF"
                       "e"),
              "hostsgr\xC3\xB6\xC3\x9F"
              "e");
    EXPECT_EQ(NachUtf8("\x80 \x96 \x93x\x94 \x9F"), "\xE2\x82\xAC \xE2\x80\x93 \xE2\x80\x9Cx\xE2\x80\x9D \xC5\xB8");
}

TEST(Zeichensatz, EveryByte_ComesBackFromItsUtf8Form) {
    std::string alle;
    for (int b = 1; b < 256; ++b) alle += static_cast<char>(b);
    EXPECT_EQ(NachCp1252(NachUtf8(alle)), alle);
}

TEST(Zeichensatz, CharactersTheCodePageLacksAndBrokenUtf8_BecomeQuestionMarks) {
    EXPECT_EQ(NachCp1252("\xE6\x97\xA5 \xF0\x9F\x98\x80"), "? ?") << "a CJK character and an emoji";
    EXPECT_EQ(NachCp1252("a\xC3"), "a?") << "cut off after the lead byte";
    EXPECT_EQ(NachCp1252("\xC3(x"), "?(x") << "a lead byte without its follower";
    EXPECT_EQ(NachCp1252("\xC0\xAF"), "??") << "an overlong form of '/'";
}

}  // namespace
}  // namespace kes::zeichensatz
