// Blanks and tabs mixed at a line's start.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

TEST(MixedIndentation, IsRefusedInEitherOrder) {
    EXPECT_TRUE(scanRefused(" \ta\n", "பொழில்-110", 1));
    EXPECT_TRUE(scanRefused("\t a\n", "பொழில்-110", 1));
    EXPECT_TRUE(scanRefused("a\n    \tb\n", "பொழில்-110", 2));
    EXPECT_TRUE(scanRefused("a\nb\n\t\t  c\n", "பொழில்-110", 3));
}

TEST(MixedIndentation, IsRefusedOnABlankLine) {
    EXPECT_TRUE(scanRefused("\t \n", "பொழில்-110", 1));
    EXPECT_TRUE(scanRefused("a\n \t\nb\n", "பொழில்-110", 2));
    EXPECT_TRUE(scanRefused("a\n \t", "பொழில்-110", 2));
}

TEST(MixedIndentation, IsRefusedOnALineOfComment) {
    EXPECT_TRUE(scanRefused("a\n \tஃ விளக்கம்\n", "பொழில்-110", 2));
    EXPECT_TRUE(scanRefused("a\n \tஃஃ விளக்கம் ஃஃ\n", "பொழில்-110", 2));
}

TEST(MixedIndentation, IsRefusedInsideBrackets) {
    EXPECT_TRUE(scanRefused("a = {\n \t\"b\": 1}\n", "பொழில்-110", 2));
}

TEST(MixedIndentation, IsRefusedBehindASemicolon) {
    EXPECT_TRUE(scanRefused("a; \tb\n", "பொழில்-110", 1));
}

TEST(MixedIndentation, OfDifferentLinesPasses) {
    // The tab jumps three bytes further: over the letter ப.
    EXPECT_EQ(describe(scan("a\n\tபb\n    c\n")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:4 IDENTIFIER:b NEWLINE:\\n IDENTIFIER:c NEWLINE:\\n "
              "DEDENT:0 END_OF_FILE");
}

TEST(MixedIndentation, BehindTheFirstCharacterPasses) {
    EXPECT_EQ(describe(scan("  a \t b\t \n")),
              "INDENT:2 IDENTIFIER:a IDENTIFIER:b NEWLINE:\\n DEDENT:0 END_OF_FILE");
}

TEST(MixedIndentation, InTheLinesOfAStringOrACommentPasses) {
    EXPECT_EQ(kindNames(scan("\"a\n \tb\"\n")), "STRING NEWLINE END_OF_FILE");
    EXPECT_EQ(kindNames(scan("ஃஃ a\n \tb\n\t c ஃஃ\n")), "NEWLINE END_OF_FILE");
}

TEST(MixedIndentation, EndsAtACarriageReturn) {
    EXPECT_EQ(kindNames(scan("  \r\t\n")), "INDENT NEWLINE DEDENT END_OF_FILE");
}

TEST(MixedIndentation, IsReportedWithItsLine) {
    try {
        scan("a\n \tஅ = 1 ஃ விளக்கம்\nb\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, " \tஅ = 1 ஃ விளக்கம்");
    }
}

}  // namespace
