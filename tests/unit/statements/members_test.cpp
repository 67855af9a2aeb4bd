// The rules that are entered with a parsed expression. The dispatch reaches some of them by no
// source; they are called here.
#include <gtest/gtest.h>

#include "unit/statements/parsing.h"

namespace {

/// `target` declared with the value that `source` holds.
std::unique_ptr<Statement> declare(const std::string& target, const std::string& source,
                                   bool inStruct = false) {
    return parserAt(source).parseVarDeclaration(expressionOf(target), inStruct);
}

int memberKindOf(const std::string& value) {
    const auto statement = declare("அ", value);
    const auto* node = dynamic_cast<const VarDeclaration*>(statement.get());
    return node == nullptr ? -1 : static_cast<int>(node->type);
}

TEST(VarDeclaration, TakesNameAndValue) {
    for (const bool inStruct : {false, true}) {
        const auto statement = declare("அ", "1 கூட்டு 2", inStruct);
        const auto* node = dynamic_cast<const VarDeclaration*>(statement.get());
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->name, "அ");
        EXPECT_FALSE(node->isPrivate);
        EXPECT_EQ(node->line, 0);
        EXPECT_EQ(printTree(*node->initializer), "binary கூட்டு @1\n  number 1 @1\n  number 2 @1\n");
    }
}

TEST(VarDeclaration, KnowsTheKindOfLiterals) {
    EXPECT_EQ(memberKindOf("[1]"), 7);
    EXPECT_EQ(memberKindOf("[]"), 7);
    EXPECT_EQ(memberKindOf("{\"அ\": 1}"), 9);
    EXPECT_EQ(memberKindOf("{}"), 9);
}

TEST(VarDeclaration, KnowsTheKindOfTimes) {
    EXPECT_EQ(memberKindOf("இப்போதுநேரம்()"), 6);
    EXPECT_EQ(memberKindOf("நேரம்.உருவாக்கு(1)"), 6);
    EXPECT_EQ(memberKindOf("நேரம்.உருவாக்கு"), 0);
    EXPECT_EQ(memberKindOf("இப்போதுநேரம்"), 0);
    EXPECT_EQ(memberKindOf("நேரம்.வடிவம்()"), 0);
    EXPECT_EQ(memberKindOf("காலங்கள்.உருவாக்கு()"), 0);
    EXPECT_EQ(memberKindOf("அ.நேரம்.உருவாக்கு()"), 0);
    EXPECT_EQ(memberKindOf("உருவாக்கு()"), 0);
}

TEST(VarDeclaration, KnowsTheKindOfStructures) {
    Parser parser = parserAt("கட்டமைப்பு வீடு:\n    அ = 1\nவீடு(1)\n");
    const auto structure = parser.parseStatement(false);
    ASSERT_EQ(parser.structDefinitions.count("வீடு"), 1U);
    const auto statement = parser.parseVarDeclaration(expressionOf("அ"), false);
    EXPECT_EQ(dynamic_cast<const VarDeclaration&>(*statement).type, VarType::Object);
    EXPECT_EQ(memberKindOf("வீடு(1)"), 0);
}

TEST(VarDeclaration, LeavesOtherKindsOpen) {
    for (const char* const value :
         {"1", "1.5", "\"உரை\"", "'அ'", "மெய்", "ஆ", "([1])", "(ஆ) => ஆ", "[1] கூட்டு [2]"}) {
        EXPECT_EQ(memberKindOf(value), 0) << value;
    }
}

TEST(VarDeclaration, SetsAnyOtherTarget) {
    EXPECT_EQ(treeOf(declare("அ.ஆ", "1")), "set\n  member .ஆ @1\n    name அ @1\n  number 1 @1\n");
    EXPECT_EQ(treeOf(declare("அ[0]", "2")),
              "set\n  index @1\n    name அ @1\n    number 0 @1\n  number 2 @1\n");
    EXPECT_EQ(treeOf(declare("5", "[1]")), "set\n  number 5 @1\n  list @1\n    number 1 @1\n");
}

TEST(VarDeclaration, OfAStructureRefusesAnyOtherTarget) {
    EXPECT_TRUE(refuses("பொழில்-210", 1, [] { declare("அ.ஆ", "1", true); }));
    EXPECT_TRUE(refuses("பொழில்-210", 2, [] {
        parserOver({number("1", 2)}).parseVarDeclaration(expressionOf("5"), true);
    }));
}

TEST(SetStatement, ParsesItsValue) {
    EXPECT_EQ(treeOf(parserAt("1 கூட்டு 2").parseSetStatement(expressionOf("அ"))),
              "set\n  name அ @1\n  binary கூட்டு @1\n    number 1 @1\n    number 2 @1\n");
}

TEST(CompoundAssignment, TakesItsOperatorAndValue) {
    const auto statement =
        parserAt("கூட்டிசேர் 1").parseCompoundAssignmentStatement(expressionOf("அ"));
    const auto* node = dynamic_cast<const CompoundAssignmentStatement*>(statement.get());
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->op.type, TokenType::ASSIGN_OPERATOR);
    EXPECT_EQ(node->op.text, "கூட்டிசேர்");
    EXPECT_EQ(printTree(*node->target), "name அ @1\n");
    EXPECT_EQ(printTree(*node->value), "number 1 @1\n");
}

TEST(Increment, TakesItsOperatorAlone) {
    Parser parser = parserOver({mark(TokenType::INCREMENT, 2), number("1")});
    const auto statement = parser.parseIncrementStatement(expressionOf("அ"));
    const auto* node = dynamic_cast<const IncrementStatement*>(statement.get());
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->op.type, TokenType::INCREMENT);
    EXPECT_EQ(node->op.line, 2);
    EXPECT_EQ(printTree(*node->target), "name அ @1\n");
    EXPECT_EQ(parser.current, 1);
}

TEST(ExpressionStatement, HoldsCallsAndAssignments) {
    for (const char* const source :
         {"அ()", "அ.ஆ()", "அ = 1", "அ கூட்டிசேர் 1", "அ.ஆ = 1", "அ[0] = 1", "காட்சி_நிலை.அ : 5"}) {
        const auto statement = parserOver({}).parseExpressionStatement(expressionOf(source));
        const auto* node = dynamic_cast<const ExpressionStatement*>(statement.get());
        ASSERT_NE(node, nullptr) << source;
        EXPECT_EQ(printTree(*node->expression), printTree(*expressionOf(source)));
    }
}

TEST(ExpressionStatement, RefusesAValueThatWouldBeLost) {
    for (const char* const source :
         {"அ", "1", "1.5", "\"உரை\"", "'அ'", "மெய்", "50%", "\"#abc\"", "(அ)", "(அ())", "குறை 1",
          "1 கூட்டு 2", "அ மற்றும் ஆ", "அ ? ஆ : இ", "அ.ஆ", "அ[0]", "[1]", "{}", "அ => அ"}) {
        EXPECT_TRUE(refuses("பொழில்-201", 3, [&] {
            parserOver({mark(TokenType::NEWLINE, 3)})
                .parseExpressionStatement(expressionOf(source));
        })) << source;
    }
}

TEST(ExpressionStatement, IsTheWidgetItself) {
    auto widget = std::make_unique<PassStatement>();
    const Statement* inside = widget.get();
    auto carrier = std::make_unique<WidgetExpression>(std::move(widget));
    const auto statement = parserOver({}).parseExpressionStatement(std::move(carrier));
    EXPECT_EQ(statement.get(), inside);
}

}  // namespace
