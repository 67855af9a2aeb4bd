// Every node starts without a line, and the parser gives each the one its class has.
#include <gtest/gtest.h>

#include "unit/expressions/expression_text.h"

namespace {

TEST(Lines, NodesStartWithNone) {
    const Token token = {TokenType::IDENTIFIER, "a", 7};
    const auto name = [] { return std::make_unique<VariableAccess>("a"); };
    EXPECT_EQ(PercentageLiteral("5%").line, 0);
    EXPECT_EQ(name()->line, 0);
    EXPECT_EQ(ColorExpression("#abc", true).line, 0);
    EXPECT_EQ(GroupingExpression(name()).line, 0);
    EXPECT_EQ(UnaryExpression(token, name()).line, 0);
    EXPECT_EQ(BinaryExpression(name(), token, name()).line, 0);
    EXPECT_EQ(LogicalExpression(name(), token, name()).line, 0);
    EXPECT_EQ(TernaryExpression(name(), name(), name()).line, 0);
    EXPECT_EQ(CallExpression(name(), {}).line, 0);
    EXPECT_EQ(GetExpression(name(), token).line, 0);
    EXPECT_EQ(SetMemberExpression(name(), token, name()).line, 0);
    EXPECT_EQ(IndexExpression(name(), name()).line, 0);
    EXPECT_EQ(ListLiteral().line, 0);
    EXPECT_EQ(MapLiteral({}).line, 0);
    EXPECT_EQ(LambdaExpression({}, name()).line, 0);
    EXPECT_EQ(AssignmentExpression("a", token, name()).line, 0);
}

TEST(Lines, BinaryAndLogicalTakeTheirOperators) {
    EXPECT_EQ(treeOf("a கூட்டு b கழி c"),
              "binary கழி @4\n  binary கூட்டு @2\n    name a @1\n    name b @3\n  name c @5\n");
    EXPECT_EQ(treeOf("a அல்லது b மற்றும் c"),
              "logical அல்லது @2\n  name a @1\n  logical மற்றும் @4\n    name b @3\n    name c @5\n");
}

TEST(Lines, EveryBinaryLevelTakesItsOperators) {
    for (const std::string word : {"கூட்டுஇருமை", "வேறுஇருமை", "பெருக்குஇருமை", "சமம்", "சமமில்லை",
                                   "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்", "இடதுஇருமை",
                                   "வலதுஇருமை", "கூட்டு", "கழி", "இணை", "பெருக்கு", "வகு", "மீதி"}) {
        EXPECT_EQ(treeOf("a " + word + " b"), "binary " + word + " @2\n  name a @1\n  name b @3\n");
    }
}

TEST(Lines, AreThoseOfTheSource) {
    const auto node = parserOf(scan("a ஃஃ\nஃஃ கூட்டு ஃஃ\n\nஃஃ b"))->parseExpression();
    const auto* sum = dynamic_cast<const BinaryExpression*>(node.get());
    ASSERT_NE(sum, nullptr);
    EXPECT_EQ(sum->left->line, 1);
    EXPECT_EQ(sum->line, 2);
    EXPECT_EQ(sum->op.line, 2);
    EXPECT_EQ(sum->right->line, 4);
}

TEST(Lines, FoldedMembersColoursAndKeywordsHaveNone) {
    EXPECT_EQ(treeOf("[நிறங்கள்.சிவப்பு, \"#abc\", நிலை, உரை, செல்க]"),
              "list @1\n  number 2\n  colour hex #abc\n  name நிலை\n  name உரை\n  name செல்க\n");
}

}  // namespace
