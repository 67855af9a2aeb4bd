// Where several checks would refuse, the first in the order of the text and of the hooks does.
#include <gtest/gtest.h>

#include "support/front_end.h"
#include "unit/spelling/code_points.h"

namespace {

const std::string kJoiner = codePoint(0x200D);

TEST(CheckOrder, InvisibleMarkBeforeTheSignBehindIt) {
    EXPECT_TRUE(scanRefused(kJoiner + "ி", "பொழில்-117", 1));
    EXPECT_TRUE(scanRefused("ி" + kJoiner, "பொழில்-106", 1));
}

TEST(CheckOrder, LettersInTheirOrder) {
    EXPECT_TRUE(scanRefused("ிஜ", "பொழில்-106", 1));
    EXPECT_TRUE(scanRefused("ஜஅா", "பொழில்-115", 1));
    EXPECT_TRUE(scanRefused("அாஜ", "பொழில்-114", 1));
    EXPECT_TRUE(scanRefused("ஜ" + kJoiner, "பொழில்-115", 1));
    EXPECT_TRUE(scanRefused("க" + kJoiner + "ஜ", "பொழில்-117", 1));
}

TEST(CheckOrder, MarkEndsTheWordBeforeTheLettersBehindIt) {
    EXPECT_TRUE(scanRefused("அ+ஜ", "பொழில்-101", 1));
    EXPECT_TRUE(scanRefused("+ஜ", "பொழில்-101", 1));
}

TEST(CheckOrder, LettersBeforeSpacing) {
    EXPECT_TRUE(scanRefused("அச்" + kJoiner + " சிடு", "பொழில்-117", 1));
    EXPECT_TRUE(scanRefused("ஜ னில்", "பொழில்-115", 1));
}

TEST(CheckOrder, SpacingBeforeTheLettersOfTheSecondHalf) {
    EXPECT_TRUE(scanRefused("எலிவே ஷன்", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("எலி வே ஷன்", "பொழில்-115", 1));
}

TEST(CheckOrder, SpacingBeforeTypo) {
    EXPECT_TRUE(scanRefused("அச்சிட", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("அச்சிட ு", "பொழில்-112", 1));
    EXPECT_TRUE(scanRefused("இல்லைஎனில ்", "பொழில்-112", 1));
}

TEST(CheckOrder, LettersBeforeTypo) {
    EXPECT_TRUE(scanRefused("நிஜலை", "பொழில்-115", 1));
    EXPECT_TRUE(scanRefused("நிலை" + kJoiner, "பொழில்-117", 1));
}

TEST(CheckOrder, MixedIndentationBeforeAllElseOnTheLine) {
    EXPECT_TRUE(scanRefused("a\n    b\n \tc\n", "பொழில்-110", 3));
    EXPECT_TRUE(scanRefused(" \tஜ", "பொழில்-110", 1));
    EXPECT_TRUE(scanRefused(" \tஃஃ", "பொழில்-110", 1));
}

TEST(CheckOrder, IndentationBeforeTheWords) {
    EXPECT_TRUE(scanRefused("a\n    b\n  ஜ\n", "பொழில்-111", 3));
    EXPECT_TRUE(scanRefused("a\n    b\n  ஃ ஜ\n  ஜ\n", "பொழில்-111", 4));
}

TEST(CheckOrder, EarlierLinesFirst) {
    EXPECT_TRUE(scanRefused("நிலா\nஜ\n", "பொழில்-113", 1));
    EXPECT_TRUE(scanRefused("ஜ\nநிலா\n", "பொழில்-115", 1));
}

TEST(CheckOrder, ScannerBeforeParser) { EXPECT_TRUE(refused(")\n\nஜ\n", "பொழில்-115", 3)); }

}  // namespace
