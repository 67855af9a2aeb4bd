// A smaller indentation must be the width of a block that is open.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

TEST(UnmatchedDedent, IsRefused) {
    EXPECT_TRUE(scanRefused("a\n    b\n  c\n", "பொழில்-111", 3));
    EXPECT_TRUE(scanRefused("a\n    b\n   c\n", "பொழில்-111", 3));
    EXPECT_TRUE(scanRefused("    a\n  b\n", "பொழில்-111", 2));
}

TEST(UnmatchedDedent, IsRefusedBetweenTwoOpenWidths) {
    EXPECT_TRUE(scanRefused("a\n  b\n      c\n    d\n", "பொழில்-111", 4));
    EXPECT_TRUE(scanRefused("a\n  b\n      c\n         d\n e\n", "பொழில்-111", 5));
}

TEST(UnmatchedDedent, ToAnOpenWidthPasses) {
    EXPECT_EQ(kindNames(scan("a\n  b\n      c\n  d\ne\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE "
              "DEDENT IDENTIFIER NEWLINE DEDENT IDENTIFIER NEWLINE END_OF_FILE");
}

TEST(UnmatchedDedent, OfABlankOrCommentLinePasses) {
    EXPECT_EQ(kindNames(scan("a\n    b\n  \n  ஃ விளக்கம்\n    c\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE IDENTIFIER NEWLINE DEDENT END_OF_FILE");
}

TEST(UnmatchedDedent, OfALineOpenedByABlockCommentPasses) {
    EXPECT_EQ(kindNames(scan("a\n    b\n  ஃஃ விளக்கம் ஃஃ c\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE IDENTIFIER NEWLINE DEDENT END_OF_FILE");
}

TEST(UnmatchedDedent, IsRefusedBehindASemicolon) {
    EXPECT_TRUE(scanRefused("a\n    b; c\n", "பொழில்-111", 2));
}

TEST(UnmatchedDedent, OfBlanksAtTheEndOfTextIsRefused) {
    EXPECT_TRUE(scanRefused("a\n    b\n  ", "பொழில்-111", 3));
}

TEST(UnmatchedDedent, CountsATabAsFour) {
    EXPECT_TRUE(scanRefused("a\n      b\n\tபc\n", "பொழில்-111", 3));
}

TEST(UnmatchedDedent, IsReportedWithItsLine) {
    try {
        scan("a\n    b\n  c கூட்டு\nd\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.line, 3);
        EXPECT_EQ(refusal.lineText, "  c கூட்டு");
    }
}

}  // namespace
