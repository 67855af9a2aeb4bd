// Symbols, and the marks that no token stands for.
#include <gtest/gtest.h>

#include <string>

#include "support/front_end.h"

namespace {

TEST(Symbols, HaveTheirKinds) {
    EXPECT_EQ(describe(scan("():?,.[]{}*=")),
              "LEFT_PAREN:( RIGHT_PAREN:) COLON:: QUESTION:? COMMA:, DOT:. LEFT_BRACKET:[ "
              "RIGHT_BRACKET:] LEFT_BRACE:{ RIGHT_BRACE:} STAR:* EQUALS:= END_OF_FILE");
}

TEST(Symbols, TheDotHasNoAlternate) {
    for (const Token& token : scan("a.b .. 1. .")) {
        EXPECT_NE(token.type, TokenType::DOT_ALTERNATE);
    }
}

TEST(Arrow, IsAnOperator) {
    EXPECT_EQ(describe(scan("=>")), "OPERATOR:=> END_OF_FILE");
    EXPECT_EQ(
        describe(scan("a=>b==>c")),
        "IDENTIFIER:a OPERATOR:=> IDENTIFIER:b EQUALS:= OPERATOR:=> IDENTIFIER:c END_OF_FILE");
}

TEST(Arrow, MayNotBeBroken) {
    Lexer lexer("= >", "test.பொழில்");
    EXPECT_EQ(lexer.getNextToken().type, TokenType::EQUALS);
    EXPECT_TRUE(refuses("பொழில்-101", 1, [&] { lexer.getNextToken(); }));
}

TEST(StrayMark, IsRefused) {
    for (const char mark : std::string("+-/<>!#@%$&^~|\\`")) {
        EXPECT_TRUE(scanRefused(std::string("a\n") + mark, "பொழில்-101", 2)) << mark;
    }
}

TEST(StrayMark, MayBeAControlCharacter) {
    for (const char mark : {'\x01', '\x1B', '\x7F', '\v', '\f', '\b'}) {
        EXPECT_TRUE(scanRefused(std::string("a ") + mark, "பொழில்-101", 1)) << int{mark};
    }
}

TEST(StrayMark, GluedToAWordComesBehindIt) {
    Lexer lexer("அ+", "test.பொழில்");
    const Token word = lexer.getNextToken();
    EXPECT_EQ(word.type, TokenType::IDENTIFIER);
    EXPECT_EQ(word.text, "அ");
    EXPECT_EQ(lexer.position, 3);
    EXPECT_TRUE(refuses("பொழில்-101", 1, [&] { lexer.getNextToken(); }));
    EXPECT_EQ(lexer.position, 4) << "passed before it is refused";
}

TEST(StrayMark, IsReportedWithItsLogicalLine) {
    try {
        scan("a;b +\n");
        FAIL() << "nothing was refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(refusal.kind, LEXICAL_ERROR);
        EXPECT_EQ(refusal.line, 1);
        EXPECT_EQ(refusal.lineText, "b +");
    }
}

TEST(Refusal, OfACodeThatTheCatalogueLacksThrows) {
    Lexer lexer("a", "test.பொழில்");
    EXPECT_THROW(lexer.பிழை("பொழில்-100"), std::out_of_range);
    EXPECT_THROW(lexer.பிழை("101"), std::out_of_range);
}

}  // namespace
