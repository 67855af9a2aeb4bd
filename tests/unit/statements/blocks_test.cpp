// Blocks: what opens and closes them, and what stands between their statements.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

const Token kFirstLineEnd = mark(TokenType::NEWLINE);
const Token kSecondIndent = mark(TokenType::INDENT, 2);
const Token kThirdDedent = mark(TokenType::DEDENT, 3);
const Token kPass = word("விடு", 2);

testing::AssertionResult blockRefused(const std::vector<Token>& tokens, const std::string& code,
                                      int line, bool inStruct = false) {
    return refuses(code, line, [&] { parserOver(tokens, 9).parseBlockStatement(inStruct); });
}

TEST(Block, EndsBehindItsDedent) {
    Parser parser =
        parserOver({kFirstLineEnd, kSecondIndent, kPass, kFirstLineEnd, kThirdDedent, kPass});
    const auto block = parser.parseBlockStatement(false);
    EXPECT_EQ(block->statements.size(), 1U);
    EXPECT_EQ(block->line, 0);
    EXPECT_EQ(parser.current, 5);
}

TEST(Block, NeedsALineEndThenIndentation) {
    EXPECT_TRUE(blockRefused({kSecondIndent, kPass}, "பொழில்-202", 2));
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kPass, kThirdDedent}, "பொழில்-202", 2));
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kThirdDedent}, "பொழில்-202", 3));
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kFirstLineEnd}, "பொழில்-202", 9));
    EXPECT_TRUE(blockRefused({}, "பொழில்-202", 9));
}

TEST(Block, NeedsNoLineEndBetweenStatements) {
    const auto block = parserOver({kFirstLineEnd, kFirstLineEnd, kSecondIndent, kPass, kPass,
                                   kFirstLineEnd, kFirstLineEnd, kPass, kThirdDedent})
                           .parseBlockStatement(false);
    EXPECT_EQ(block->statements.size(), 3U);
}

TEST(Block, MayBeEmpty) {
    EXPECT_TRUE(parserOver({kFirstLineEnd, kSecondIndent, kThirdDedent})
                    .parseBlockStatement(false)
                    ->statements.empty());
    EXPECT_TRUE(parserOver({kFirstLineEnd, kSecondIndent, kFirstLineEnd, kThirdDedent})
                    .parseBlockStatement(false)
                    ->statements.empty());
}

TEST(Block, NeedsItsDedent) {
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kSecondIndent, kPass}, "பொழில்-292", 9));
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kSecondIndent, kPass, kFirstLineEnd}, "பொழில்-292", 9));
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kSecondIndent}, "பொழில்-292", 9));
}

TEST(Block, RefusesDeeperIndentation) {
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kSecondIndent, kSecondIndent, kPass}, "பொழில்-111", 2));
}

TEST(Block, PassesOnThatAStructureHoldsIt) {
    const std::vector<Token> tokens = {
        kFirstLineEnd,  kSecondIndent, name("அ", 2), {TokenType::EQUALS, "=", 2},
        number("1", 2), kFirstLineEnd, kThirdDedent};
    EXPECT_EQ(treeOf(parserOver(tokens).parseBlockStatement(true)),
              "block\n  field அ kind 0\n    number 1 @2\n");
    EXPECT_EQ(treeOf(parserOver(tokens).parseBlockStatement(false)),
              "block\n  expression\n    assign அ = @2\n      number 1 @2\n");
}

TEST(Block, DoesNotSpinOnAWordThatIsLeft) {
    EXPECT_TRUE(blockRefused({kFirstLineEnd, kSecondIndent, word("பொது", 2), kThirdDedent},
                             "பொழில்-291", 2, true));
}

TEST(Block, MayFollowAnotherDirectly) {
    EXPECT_TRUE(accepted("செயல் அ():\n    எனில் ஆ:\n        விடு\n    எனில் இ:\n        விடு\n"));
    EXPECT_TRUE(accepted("சுற்று அ:\n    சுற்று ஆ:\n        விடு\n    விடு\nவிடு"));
}

}  // namespace
