// The scanner's cursor, and the length of UTF-8 sequences.
#include <gtest/gtest.h>

#include "lexer/utf8.h"
#include "support/front_end.h"

namespace {

TEST(Utf8Length, FollowsTheFirstByte) {
    for (int byte = 0; byte < 256; byte++) {
        int expected = 1;
        if (byte >= 0xC0 && byte <= 0xDF) expected = 2;
        if (byte >= 0xE0 && byte <= 0xEF) expected = 3;
        if (byte >= 0xF0 && byte <= 0xF7) expected = 4;
        EXPECT_EQ(getUTF8SequenceLength(static_cast<char>(byte)), expected) << byte;
    }
}

TEST(CodePoints, AreSplitWithSignsApart) {
    EXPECT_EQ(splitCodePoints("கிa😀"), (std::vector<std::string_view>{"க", "ி", "a", "😀"}));
    EXPECT_TRUE(splitCodePoints("").empty());
}

TEST(Lexer, StartsAtTheFirstLine) {
    const Lexer lexer("அ", "file.பொழில்");
    EXPECT_EQ(lexer.source, "அ");
    EXPECT_EQ(lexer.filename, "file.பொழில்");
    EXPECT_EQ(lexer.position, 0);
    EXPECT_EQ(lexer.lineNumber, 1);
    EXPECT_EQ(lexer.currentLine, "");
    EXPECT_EQ(lexer.indentStack, std::vector<int>{0});
    EXPECT_EQ(lexer.lineStart, 0);
    EXPECT_TRUE(lexer.atLineStart);
}

TEST(Peek, GivesTheByteUnsigned) { EXPECT_EQ(Lexer("அ", "").peek(), 0xE0); }

TEST(Peek, GivesZeroAtAndPastTheEnd) {
    Lexer lexer("a", "");
    lexer.position = 1;
    EXPECT_EQ(lexer.peek(), 0);
    lexer.position = 7;
    EXPECT_EQ(lexer.peek(), 0);
}

TEST(Advance, MovesByWholeCharacters) {
    Lexer lexer("aé அ😀", "");
    const int expected[][2] = {{'a', 1}, {0xC3, 3}, {' ', 4}, {0xE0, 7}, {0xF0, 11}};
    for (const auto& [byte, position] : expected) {
        EXPECT_EQ(lexer.advance(), byte);
        EXPECT_EQ(lexer.position, position);
    }
}

TEST(Advance, StaysAtTheEnd) {
    Lexer lexer("a", "");
    lexer.position = 1;
    EXPECT_EQ(lexer.advance(), 0);
    EXPECT_EQ(lexer.position, 1);
    lexer.position = 5;
    EXPECT_EQ(lexer.advance(), 0);
    EXPECT_EQ(lexer.position, 5);
}

int indentOf(const std::string& source, int lineStart = 0) {
    Lexer lexer(source, "");
    lexer.lineStart = lineStart;
    return lexer.getCurrentIndent();
}

TEST(CurrentIndent, CountsBlanks) {
    EXPECT_EQ(indentOf("a"), 0);
    EXPECT_EQ(indentOf("   a"), 3);
    EXPECT_EQ(indentOf("     "), 5);
    EXPECT_EQ(indentOf(""), 0);
}

TEST(CurrentIndent, TabsGoToTheNextMultipleOfFour) {
    EXPECT_EQ(indentOf("\ta"), 4);
    EXPECT_EQ(indentOf("\t\ta"), 8);
    EXPECT_EQ(indentOf(" \ta"), 4);
    EXPECT_EQ(indentOf("   \ta"), 4);
    EXPECT_EQ(indentOf("    \ta"), 8);
    EXPECT_EQ(indentOf("\t  a"), 6);
}

TEST(CurrentIndent, StopsAtAnythingElse) {
    EXPECT_EQ(indentOf("  \r  a"), 2);
    EXPECT_EQ(indentOf("  \n  a"), 2);
}

TEST(CurrentIndent, MeasuresFromTheLinesStart) {
    EXPECT_EQ(indentOf("a\n   b", 2), 3);
    EXPECT_EQ(indentOf("a", 9), 0);
}

TEST(SkipWhitespace, PassesBlanksTabsAndCarriageReturns) {
    Lexer lexer(" \t\r \na", "");
    lexer.skipWhitespace();
    EXPECT_EQ(lexer.position, 4);
}

TEST(SkipWhitespace, LeavesOtherWhiteSpace) {
    Lexer lexer("\v \fa", "");
    lexer.skipWhitespace();
    EXPECT_EQ(lexer.position, 0);
}

}  // namespace
