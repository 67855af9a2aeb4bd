// Numbers with something glued behind them: letters, marks, digits of the other system.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"
#include "unit/spelling/code_points.h"

namespace {

TEST(GluedToWesternNumber, EveryTamilDigitIsAMixture) {
    for (int digit = 0x0BE6; digit <= 0x0BEF; digit++) {
        EXPECT_TRUE(scanRefused("12" + codePoint(digit), "பொழில்-109", 1)) << std::hex << digit;
        EXPECT_TRUE(scanRefused("1.5" + codePoint(digit), "பொழில்-109", 1)) << std::hex << digit;
        EXPECT_TRUE(scanRefused("1." + codePoint(digit), "பொழில்-109", 1)) << std::hex << digit;
    }
}

TEST(GluedToWesternNumber, NeighboursOfTheTamilDigitsAreLetters) {
    EXPECT_TRUE(scanRefused("12" + codePoint(0x0BE5), "பொழில்-108", 1));
    EXPECT_TRUE(scanRefused("12" + codePoint(0x0BF0), "பொழில்-108", 1));  // ௰, ten
}

TEST(GluedToWesternNumber, DigitCutOffByTheEndIsALetter) {
    EXPECT_TRUE(scanRefused("12\xE0\xAF", "பொழில்-108", 1));
    EXPECT_TRUE(scanRefused("12\xE0", "பொழில்-108", 1));
}

TEST(GluedToWesternNumber, LettersAreRefused) {
    for (const char* tail : {"அ", "க", "a", "Z", "_", "ஜ", "ி", "é", "😀", "ஃ"}) {
        EXPECT_TRUE(scanRefused(std::string("12") + tail, "பொழில்-108", 1)) << tail;
        EXPECT_TRUE(scanRefused(std::string("a = 1.5") + tail, "பொழில்-108", 1)) << tail;
    }
}

TEST(GluedToWesternNumber, MarksAreRefused) {
    for (const char mark : std::string("+-/<>!#@$&^~|\\`\"'")) {
        EXPECT_TRUE(scanRefused(std::string("12") + mark + "3", "பொழில்-108", 1)) << mark;
    }
    EXPECT_TRUE(scanRefused("12\x01", "பொழில்-108", 1));
}

TEST(GluedToWesternNumber, InvisibleMarkIsRefusedAsALetter) {
    EXPECT_TRUE(scanRefused("12" + codePoint(0x200D), "பொழில்-108", 1));
}

TEST(GluedToTamilNumber, EveryWesternDigitIsAMixture) {
    for (char digit = '0'; digit <= '9'; digit++) {
        EXPECT_TRUE(scanRefused(std::string("௧௨") + digit, "பொழில்-109", 1)) << digit;
    }
}

TEST(GluedToTamilNumber, LettersAreRefused) {
    for (const char* tail : {"அ", "க", "a", "Z", "_", "ஜ", "ி", "é", "😀", "ஃ", "௰"}) {
        EXPECT_TRUE(scanRefused(std::string("௧௨") + tail, "பொழில்-108", 1)) << tail;
    }
}

TEST(GluedToTamilNumber, MarksAreRefused) {
    for (const char mark : std::string("+-/<>!#@$&^~|\\`\"'")) {
        EXPECT_TRUE(scanRefused(std::string("௧௨") + mark + "௩", "பொழில்-108", 1)) << mark;
    }
}

TEST(GluedToTamilNumber, DigitCutOffByTheEndIsALetter) {
    EXPECT_TRUE(scanRefused("௧\xE0\xAF", "பொழில்-108", 1));
}

TEST(GluedNumbers, OfOneSystemOrApartPass) {
    EXPECT_EQ(describe(scan("123 ௧௨௩ 1 ௨")), "NUMBER:123 NUMBER:௧௨௩ NUMBER:1 NUMBER:௨ END_OF_FILE");
    EXPECT_EQ(describe(scan("௧.5")), "NUMBER:௧ DOT:. NUMBER:5 END_OF_FILE");
    EXPECT_EQ(describe(scan("1%௨%3")), "PERCENTAGE:1% PERCENTAGE:௨% NUMBER:3 END_OF_FILE");
}

TEST(GluedNumbers, InsideAWordPass) {
    EXPECT_EQ(describe(scan("அ12 அ௧௨ அ1௨ அ௧2")),
              "IDENTIFIER:அ12 IDENTIFIER:அ௧௨ IDENTIFIER:அ1௨ IDENTIFIER:அ௧2 END_OF_FILE");
}

TEST(GluedNumbers, AreReportedWithTheirLine) {
    try {
        scan("a\n\n  எண் = 12அ\nb\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.code, "பொழில்-108");
        EXPECT_EQ(refusal.line, 3);
        EXPECT_EQ(refusal.lineText, "  எண் = 12அ");
    }
}

}  // namespace
