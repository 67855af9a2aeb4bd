// Blocks: what opens and closes them, and what stands between their statements.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

const Token kLineEnd = mark(TokenType::NEWLINE);
const Token kIndent = mark(TokenType::INDENT, 2);
const Token kDedent = mark(TokenType::DEDENT, 3);
const Token kPass = word("விடு", 2);

testing::AssertionResult blockRefused(const std::vector<Token>& tokens, const std::string& code,
                                      int line, bool inStruct = false) {
    return refuses(code, line, [&] { parserOver(tokens, 9).parseBlockStatement(inStruct); });
}

TEST(Block, EndsBehindItsDedent) {
    Parser parser = parserOver({kLineEnd, kIndent, kPass, kLineEnd, kDedent, kPass});
    const auto block = parser.parseBlockStatement(false);
    EXPECT_EQ(block->statements.size(), 1U);
    EXPECT_EQ(block->line, 0);
    EXPECT_EQ(parser.current, 5);
}

TEST(Block, NeedsALineEndThenIndentation) {
    EXPECT_TRUE(blockRefused({kIndent, kPass}, "பொழில்-202", 2));
    EXPECT_TRUE(blockRefused({kLineEnd, kPass, kDedent}, "பொழில்-202", 2));
    EXPECT_TRUE(blockRefused({kLineEnd, kDedent}, "பொழில்-202", 3));
    EXPECT_TRUE(blockRefused({kLineEnd, kLineEnd}, "பொழில்-202", 9));
    EXPECT_TRUE(blockRefused({}, "பொழில்-202", 9));
}

TEST(Block, NeedsNoLineEndBetweenStatements) {
    const auto block =
        parserOver({kLineEnd, kLineEnd, kIndent, kPass, kPass, kLineEnd, kLineEnd, kPass, kDedent})
            .parseBlockStatement(false);
    EXPECT_EQ(block->statements.size(), 3U);
}

TEST(Block, MayBeEmpty) {
    EXPECT_TRUE(
        parserOver({kLineEnd, kIndent, kDedent}).parseBlockStatement(false)->statements.empty());
    EXPECT_TRUE(parserOver({kLineEnd, kIndent, kLineEnd, kDedent})
                    .parseBlockStatement(false)
                    ->statements.empty());
}

TEST(Block, NeedsItsDedent) {
    EXPECT_TRUE(blockRefused({kLineEnd, kIndent, kPass}, "பொழில்-292", 9));
    EXPECT_TRUE(blockRefused({kLineEnd, kIndent, kPass, kLineEnd}, "பொழில்-292", 9));
    EXPECT_TRUE(blockRefused({kLineEnd, kIndent}, "பொழில்-292", 9));
}

TEST(Block, RefusesDeeperIndentation) {
    EXPECT_TRUE(blockRefused({kLineEnd, kIndent, kIndent, kPass}, "பொழில்-111", 2));
}

TEST(Block, PassesOnThatAStructureHoldsIt) {
    const std::vector<Token> tokens = {
        kLineEnd,       kIndent,  name("அ", 2), {TokenType::EQUALS, "=", 2},
        number("1", 2), kLineEnd, kDedent};
    EXPECT_EQ(treeOf(parserOver(tokens).parseBlockStatement(true)),
              "block\n  field அ kind 0\n    number 1 @2\n");
    EXPECT_EQ(treeOf(parserOver(tokens).parseBlockStatement(false)),
              "block\n  expression\n    assign அ = @2\n      number 1 @2\n");
}

TEST(Block, DoesNotSpinOnAWordThatIsLeft) {
    EXPECT_TRUE(blockRefused({kLineEnd, kIndent, word("பொது", 2), kDedent}, "பொழில்-291", 2, true));
}

TEST(Block, MayFollowAnotherDirectly) {
    EXPECT_TRUE(accepted("செயல் அ():\n    எனில் ஆ:\n        விடு\n    எனில் இ:\n        விடு\n"));
    EXPECT_TRUE(accepted("சுற்று அ:\n    சுற்று ஆ:\n        விடு\n    விடு\nவிடு"));
}

}  // namespace
