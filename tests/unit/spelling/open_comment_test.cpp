// Block comments that are never closed.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"

namespace {

using namespace std::string_literals;

TEST(OpenComment, IsRefused) {
    EXPECT_TRUE(scanRefused("ஃஃ", "பொழில்-118", 1));
    EXPECT_TRUE(scanRefused("ஃஃ விளக்கம்\n", "பொழில்-118", 1));
    EXPECT_TRUE(scanRefused("a = 1 ஃஃ விளக்கம்", "பொழில்-118", 1));
}

TEST(OpenComment, IsReportedWhereItOpened) {
    EXPECT_TRUE(scanRefused("a\nb ஃஃ c\nd\ne\n", "பொழில்-118", 2));
    EXPECT_TRUE(scanRefused("a\n    ஃஃ c\nd\ne\n", "பொழில்-118", 2));
}

TEST(OpenComment, ASingleMarkDoesNotCloseIt) {
    EXPECT_TRUE(scanRefused("ஃஃ a ஃ b\n", "பொழில்-118", 1));
    EXPECT_TRUE(scanRefused("ஃஃஃ", "பொழில்-118", 1));
}

TEST(OpenComment, ThirdPairOpensAnew) {
    EXPECT_TRUE(scanRefused("ஃஃ a ஃஃ\nb ஃஃ c\n", "பொழில்-118", 2));
}

TEST(OpenComment, NulByteEndsTheTextFirst) {
    EXPECT_TRUE(scanRefused("ஃஃ a \0 ஃஃ\n"s, "பொழில்-118", 1));
}

TEST(OpenComment, LineCommentNeedsNoClosing) {
    EXPECT_EQ(kindNames(scan("a ஃ b ஃஃ c\n")), "IDENTIFIER NEWLINE END_OF_FILE");
}

TEST(OpenComment, IsReportedWithItsLine) {
    try {
        scan("a\n  b = 1 ஃஃ c\nd\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "  b = 1 ஃஃ c");
    }
}

}  // namespace
