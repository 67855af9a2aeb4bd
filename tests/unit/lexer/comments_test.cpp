// Comments: to the line's end, and in blocks.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

TEST(LineComment, EndsBeforeTheLineEnd) {
    EXPECT_EQ(describe(scan("a ஃ \"b' + 1.2.3\nc\n")),
              "IDENTIFIER:a NEWLINE:\\n IDENTIFIER:c NEWLINE:\\n END_OF_FILE");
}

TEST(LineComment, AtTheEndOfTextDoublesTheEnd) {
    EXPECT_EQ(kindNames(scan("a ஃ விளக்கம்")), "IDENTIFIER END_OF_FILE END_OF_FILE");
}

TEST(LineComment, AloneYieldsNothing) {
    EXPECT_EQ(kindNames(scan("ஃ")), "END_OF_FILE");
    EXPECT_EQ(kindNames(scan("   ஃ விளக்கம்\n")), "END_OF_FILE");
    EXPECT_EQ(kindNames(scan("ஃ விளக்கம்\nஃ விளக்கம்")), "END_OF_FILE");
}

TEST(LineComment, StillCountsItsLine) { EXPECT_EQ(scan("ஃ விளக்கம்\n  ஃ விளக்கம்\na")[0].line, 3); }

TEST(LineComment, WithASecondMarkFurtherOnIsNoBlock) {
    EXPECT_EQ(kindNames(scan("a ஃ b ஃஃ c\nd ஃஃ e ஃஃ\n")),
              "IDENTIFIER NEWLINE IDENTIFIER NEWLINE END_OF_FILE");
}

TEST(LineComment, GluedToAWordIsALetterOfIt) {
    EXPECT_EQ(describe(scan("எஃகு aஃ\n")), "IDENTIFIER:எஃகு IDENTIFIER:aஃ NEWLINE:\\n END_OF_FILE");
}

TEST(BlockComment, IsPassedInsideALine) {
    EXPECT_EQ(describe(scan("a ஃஃ \" ' + ஃ 1.2.3 ஃஃ b\n")),
              "IDENTIFIER:a IDENTIFIER:b NEWLINE:\\n END_OF_FILE");
}

TEST(BlockComment, MayBeEmpty) { EXPECT_EQ(describe(scan("ஃஃஃஃa")), "IDENTIFIER:a END_OF_FILE"); }

TEST(BlockComment, CountsItsLines) {
    const auto tokens = scan("a ஃஃ ஒன்று\nஇரண்டு\n\n ஃஃ b\nc");
    EXPECT_EQ(describe(tokens), "IDENTIFIER:a IDENTIFIER:b NEWLINE:\\n IDENTIFIER:c END_OF_FILE");
    EXPECT_EQ(tokens[1].line, 4);
    EXPECT_EQ(tokens[2].line, 4);
    EXPECT_EQ(tokens[3].line, 5);
}

TEST(BlockComment, DoesNotNest) {
    EXPECT_EQ(describe(scan("ஃஃ ஒன்று ஃஃ a ஃஃ இரண்டு ஃஃ\n")), "IDENTIFIER:a NEWLINE:\\n END_OF_FILE");
}

TEST(BlockComment, LeavesTheLineEndBehindIt) {
    EXPECT_EQ(kindNames(scan("ஃஃ விளக்கம் ஃஃ\n")), "NEWLINE END_OF_FILE");
}

TEST(BlockComment, AtTheEndOfTextDoublesTheEnd) {
    EXPECT_EQ(kindNames(scan("a ஃஃ விளக்கம் ஃஃ")), "IDENTIFIER END_OF_FILE END_OF_FILE");
}

TEST(BlockComment, MayBeFollowedByALineComment) {
    EXPECT_EQ(kindNames(scan("ஃஃ a ஃஃ ஃ b\nc\n")), "NEWLINE IDENTIFIER NEWLINE END_OF_FILE");
}

TEST(BlockComment, LeavesReportsWithTheLineWhereItBegan) {
    try {
        scan("a ஃஃ ஒன்று\nஇரண்டு ஃஃ +\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.line, 2);
        EXPECT_EQ(refusal.lineText, "a ஃஃ ஒன்று");
    }
}

TEST(Comments, AHundredThousandOnOneLine) {
    std::string source;
    for (int i = 0; i < 100000; i++) source += "ஃஃ x ஃஃ ";
    EXPECT_EQ(describe(scan(source + "a\n")), "IDENTIFIER:a NEWLINE:\\n END_OF_FILE");
}

TEST(Comments, AHundredThousandLines) {
    std::string source;
    for (int i = 0; i < 100000; i++) source += "ஃ x\n";
    const auto tokens = scan(source + "a");
    EXPECT_EQ(describe(tokens), "IDENTIFIER:a END_OF_FILE");
    EXPECT_EQ(tokens[0].line, 100001);
}

}  // namespace
