// Lines and their widths: INDENT, DEDENT, blank lines, semicolons, line numbers.
#include <gtest/gtest.h>

#include "support/front_end.h"

namespace {

std::vector<int> linesOf(const std::vector<Token>& tokens) {
    std::vector<int> lines;
    for (const Token& token : tokens) lines.push_back(token.line);
    return lines;
}

using Lines = std::vector<int>;

TEST(Indentation, OpensAndClosesABlock) {
    const auto tokens = scan("எனில் அ சமம் 1:\n    அச்சிடு(அ)\n");
    EXPECT_EQ(describe(tokens),
              "KEYWORD:எனில் IDENTIFIER:அ OPERATOR:சமம் NUMBER:1 COLON:: NEWLINE:\\n "
              "INDENT:4 KEYWORD:அச்சிடு LEFT_PAREN:( IDENTIFIER:அ RIGHT_PAREN:) NEWLINE:\\n "
              "DEDENT:0 END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 3, 3}));
}

TEST(Indentation, TellsTheWidthNowOnTop) {
    EXPECT_EQ(describe(scan("a\n  b\n       c\n  d\ne\n")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:2 IDENTIFIER:b NEWLINE:\\n "
              "INDENT:7 IDENTIFIER:c NEWLINE:\\n DEDENT:2 IDENTIFIER:d NEWLINE:\\n "
              "DEDENT:0 IDENTIFIER:e NEWLINE:\\n END_OF_FILE");
}

TEST(Indentation, ClosesSeveralBlocksAtOnce) {
    EXPECT_EQ(describe(scan("a\n b\n  c\n   d\ne")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:1 IDENTIFIER:b NEWLINE:\\n "
              "INDENT:2 IDENTIFIER:c NEWLINE:\\n INDENT:3 IDENTIFIER:d NEWLINE:\\n "
              "DEDENT:2 DEDENT:1 DEDENT:0 IDENTIFIER:e END_OF_FILE");
}

TEST(Indentation, EndOfTextClosesAllBlocksWithZero) {
    const auto tokens = scan("a\n b\n  c");
    EXPECT_EQ(describe(tokens),
              "IDENTIFIER:a NEWLINE:\\n INDENT:1 IDENTIFIER:b NEWLINE:\\n INDENT:2 IDENTIFIER:c "
              "DEDENT:0 DEDENT:0 END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 2, 2, 2, 3, 3, 3, 3, 3}));
}

TEST(Indentation, TokensStandOnTheLineThatCausedThem) {
    const auto tokens = scan("a\n  b\n\n\nc\n");
    EXPECT_EQ(kindNames(tokens),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE DEDENT IDENTIFIER NEWLINE END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 2, 2, 2, 5, 5, 5, 6}));
}

TEST(Indentation, FirstLineMayBeIndented) {
    EXPECT_EQ(describe(scan("   a\n")), "INDENT:3 IDENTIFIER:a NEWLINE:\\n DEDENT:0 END_OF_FILE");
}

TEST(Indentation, BlankLinesChangeNothing) {
    EXPECT_EQ(kindNames(scan("a\n    b\n\n  \n          \n    c\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE IDENTIFIER NEWLINE DEDENT END_OF_FILE");
}

TEST(Indentation, BlankLinesAreCounted) {
    EXPECT_EQ(linesOf(scan("\n\n   \na\n")), (Lines{4, 4, 5}));
}

TEST(Indentation, LineOfCommentChangesNothing) {
    EXPECT_EQ(kindNames(scan("a\n    b\nஃ விளக்கம்\n        ஃ விளக்கம்\n    c\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE IDENTIFIER NEWLINE DEDENT END_OF_FILE");
}

TEST(Indentation, LineOpenedByBlockCommentIsNotMeasured) {
    EXPECT_EQ(kindNames(scan("a\n    b\nஃஃ விளக்கம் ஃஃ c\n        ஃஃ விளக்கம் ஃஃ d\n    e\n")),
              "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE IDENTIFIER NEWLINE IDENTIFIER NEWLINE "
              "IDENTIFIER NEWLINE DEDENT END_OF_FILE");
}

TEST(Indentation, BlanksAtTheEndOfTextAreALine) {
    EXPECT_EQ(describe(scan("a\n    b\n        ")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:4 IDENTIFIER:b NEWLINE:\\n INDENT:8 END_OF_FILE "
              "DEDENT:0 DEDENT:0 END_OF_FILE");
}

TEST(Indentation, CarriageReturnAloneIsALineOfWidthZero) {
    const auto tokens = scan("a\n    b\n\r\n    c\n");
    EXPECT_EQ(
        kindNames(tokens),
        "IDENTIFIER NEWLINE INDENT IDENTIFIER NEWLINE DEDENT NEWLINE INDENT IDENTIFIER NEWLINE "
        "DEDENT END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 2, 2, 2, 3, 3, 4, 4, 4, 5, 5}));
}

TEST(Indentation, CarriageReturnAfterBlanksIsALineOfTheirWidth) {
    EXPECT_EQ(describe(scan("a\n  \r\n")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:2 NEWLINE:\\n DEDENT:0 END_OF_FILE");
}

TEST(Indentation, CarriageReturnBeforeALineEndIsPassed) {
    EXPECT_EQ(describe(scan("a\r\n  b\r\nc\r\n")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:2 IDENTIFIER:b NEWLINE:\\n DEDENT:0 IDENTIFIER:c "
              "NEWLINE:\\n END_OF_FILE");
}

TEST(Indentation, LeadingTabJumpsThreeBytesFurther) {
    EXPECT_EQ(describe(scan("\tabcdef\n")),
              "INDENT:4 IDENTIFIER:def NEWLINE:\\n DEDENT:0 END_OF_FILE");
    EXPECT_EQ(describe(scan("\t\tabcdefgh\n")),
              "INDENT:8 IDENTIFIER:gh NEWLINE:\\n DEDENT:0 END_OF_FILE");
}

TEST(Indentation, LeadingTabCanJumpIntoTheNextLine) {
    const auto tokens = scan("\ta\nbcd\n");
    EXPECT_EQ(describe(tokens), "INDENT:4 IDENTIFIER:cd NEWLINE:\\n DEDENT:0 END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 1, 2, 2}));
}

TEST(Indentation, TabAtTheEndOfTextThrows) {
    EXPECT_THROW(scan("\t"), std::out_of_range);
    EXPECT_THROW(scan("a\n\t"), std::out_of_range);
    EXPECT_THROW(scan("\tab"), std::out_of_range);
}

TEST(Indentation, TabBehindCodeAtTheEndOfTextIsPassed) {
    EXPECT_EQ(kindNames(scan("a\t")), "IDENTIFIER END_OF_FILE END_OF_FILE");
}

TEST(Semicolon, IsANewlineWithItsOwnText) {
    const auto tokens = scan("a;b\n");
    EXPECT_EQ(describe(tokens), "IDENTIFIER:a NEWLINE:; IDENTIFIER:b NEWLINE:\\n END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 1, 1, 2}));
}

TEST(Semicolon, MeasuresTheBlanksBehindIt) {
    EXPECT_EQ(describe(scan("a; b\n")),
              "IDENTIFIER:a NEWLINE:; INDENT:1 IDENTIFIER:b NEWLINE:\\n DEDENT:0 END_OF_FILE");
    EXPECT_TRUE(refused("அச்சிடு(1); அச்சிடு(2)\n", "பொழில்-111", 1));
}

TEST(Semicolon, WithoutABlankJoinsTwoStatementsAtTopLevel) {
    EXPECT_EQ(parse("அச்சிடு(1);அச்சிடு(2)\n").program.statements.size(), 2U);
}

TEST(Semicolon, InABlockCloses) {
    EXPECT_EQ(describe(scan("a\n    b;c\n")),
              "IDENTIFIER:a NEWLINE:\\n INDENT:4 IDENTIFIER:b NEWLINE:; DEDENT:0 IDENTIFIER:c "
              "NEWLINE:\\n END_OF_FILE");
}

TEST(Semicolon, AtTheLinesEndIsTheLineEndAlone) {
    const auto tokens = scan("a;\nb\n");
    EXPECT_EQ(describe(tokens), "IDENTIFIER:a NEWLINE:; IDENTIFIER:b NEWLINE:\\n END_OF_FILE");
    EXPECT_EQ(linesOf(tokens), (Lines{1, 1, 2, 2, 3}));
}

TEST(Newline, StandsOnTheLineItEnds) {
    EXPECT_EQ(linesOf(scan("a\nb\nc")), (Lines{1, 1, 2, 2, 3, 3}));
}

}  // namespace
