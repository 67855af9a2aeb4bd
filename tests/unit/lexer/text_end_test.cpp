// How a text may end, and texts of unusual length.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"

namespace {

using namespace std::string_literals;

TEST(TextEnd, OfAnEmptyTextIsOneToken) {
    const auto tokens = scan("");
    ASSERT_EQ(kindNames(tokens), "END_OF_FILE");
    EXPECT_EQ(tokens[0].text, "");
    EXPECT_EQ(tokens[0].line, 1);
    EXPECT_TRUE(parse("").program.statements.empty());
}

TEST(TextEnd, WithoutALineEndYieldsNoNewline) {
    EXPECT_EQ(kindNames(scan("a")), "IDENTIFIER END_OF_FILE");
    EXPECT_EQ(kindNames(scan("a\n  b")), "IDENTIFIER NEWLINE INDENT IDENTIFIER DEDENT END_OF_FILE");
}

TEST(TextEnd, InBlanksIsDoubled) {
    EXPECT_EQ(kindNames(scan("a ")), "IDENTIFIER END_OF_FILE END_OF_FILE");
    EXPECT_EQ(kindNames(scan("a\r")), "IDENTIFIER END_OF_FILE END_OF_FILE");
    EXPECT_EQ(parse("அச்சிடு(1)  ").program.statements.size(), 1U);
}

TEST(TextEnd, OfBlanksAloneIsAnIndentedLine) {
    EXPECT_EQ(kindNames(scan("  ")), "INDENT END_OF_FILE DEDENT END_OF_FILE");
}

TEST(TextEnd, OfBlankLinesIsOneToken) { EXPECT_EQ(kindNames(scan("\n \n  \n")), "END_OF_FILE"); }

TEST(NulByte, EndsTheText) {
    EXPECT_EQ(kindNames(scan("a\0b"s)), "IDENTIFIER END_OF_FILE");
    EXPECT_EQ(kindNames(scan("\0a"s)), "END_OF_FILE");
    EXPECT_EQ(kindNames(scan("a \0b"s)), "IDENTIFIER END_OF_FILE END_OF_FILE");
    EXPECT_EQ(kindNames(scan("1\0"s
                             "2")),
              "NUMBER END_OF_FILE");
    EXPECT_EQ(kindNames(scan("a\n  \0b\n"s)),
              "IDENTIFIER NEWLINE INDENT END_OF_FILE DEDENT END_OF_FILE");
}

TEST(NulByte, EndsTheTextInsideQuotes) {
    EXPECT_TRUE(scanRefused("\"a\0\""s, "பொழில்-102", 1));
    EXPECT_TRUE(scanRefused("'a\0'"s, "பொழில்-103", 1));
}

TEST(NulByte, EndsTheTextInsideALineComment) {
    EXPECT_EQ(kindNames(scan("a ஃ b\0\nc"s)), "IDENTIFIER END_OF_FILE END_OF_FILE");
    EXPECT_EQ(kindNames(scan("ஃ b\0\nc"s)), "END_OF_FILE");
}

TEST(TruncatedUtf8, AtTheEndIsALetterOfTheWord) {
    for (const char* tail : {"\xE0", "\xE0\xAE", "\xC3", "\xF0\x9F\x98"}) {
        const auto tokens = scan("a அ"s + tail);
        ASSERT_EQ(kindNames(tokens), "IDENTIFIER IDENTIFIER END_OF_FILE");
        EXPECT_EQ(tokens[1].text, "அ"s + tail);
    }
}

TEST(TruncatedUtf8, AloneIsAWord) {
    EXPECT_EQ(kindNames(scan("\xE0\xAE")), "IDENTIFIER END_OF_FILE");
    EXPECT_EQ(kindNames(scan("a\n\xE0\xAF")), "IDENTIFIER NEWLINE IDENTIFIER END_OF_FILE");
}

TEST(TruncatedUtf8, InQuotesIsLeftOpen) {
    EXPECT_TRUE(scanRefused("\"\xE0", "பொழில்-102", 1));
    EXPECT_TRUE(scanRefused("'\xE0\xAE", "பொழில்-103", 1));
}

TEST(LongText, OfOneLineInQuotes) {
    const std::string content(10 * 1024 * 1024, 'x');
    const auto tokens = scan("அச்சிடு(\"" + content + "\")\n");
    ASSERT_EQ(kindNames(tokens), "KEYWORD LEFT_PAREN STRING RIGHT_PAREN NEWLINE END_OF_FILE");
    EXPECT_TRUE(tokens[2].text == content);
}

TEST(LongText, OfOneLineInAComment) {
    EXPECT_EQ(kindNames(scan("a ஃ" + std::string(10 * 1024 * 1024, '+') + "\nb")),
              "IDENTIFIER NEWLINE IDENTIFIER END_OF_FILE");
}

TEST(LongText, OfOneLineOfTokens) {
    const std::string text = "\"" + std::string(100, 'x') + "\", ";
    std::string source;
    for (int i = 0; i < 100000; i++) source += text;
    const auto tokens = scan(source + "\n");
    ASSERT_EQ(tokens.size(), 2U * 100000 + 2);
    EXPECT_EQ(tokens[tokens.size() - 2].line, 1);
}

TEST(LongText, OfOneWord) {
    const std::string word(1024 * 1024, 'a');
    const auto tokens = scan(word);
    ASSERT_EQ(kindNames(tokens), "IDENTIFIER END_OF_FILE");
    EXPECT_TRUE(tokens[0].text == word);
}

TEST(LongText, OfManyOpenBlocks) {
    std::string source;
    for (int depth = 0; depth < 2000; depth++) source += std::string(depth, ' ') + "a\n";
    const auto tokens = scan(source);
    EXPECT_EQ(tokens.size(), 2000U * 2 + 1999 * 2 + 1);
    EXPECT_EQ(tokens.back().type, TokenType::END_OF_FILE);
}

}  // namespace
