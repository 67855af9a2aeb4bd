// Lambdas by arrow: how they are recognised, their parameters and bodies.
#include <gtest/gtest.h>

#include <string>

#include "unit/expressions/expression_text.h"

namespace {

TEST(ArrowLambda, OfOneName) {
    EXPECT_EQ(shapeOf("x => x பெருக்கு 2"), "(x => (x பெருக்கு 2))");
    EXPECT_EQ(shapeOf("இரட்டி = x => x"), "(இரட்டி = (x => x))");
}

TEST(ArrowLambda, OfNamesInParentheses) {
    EXPECT_EQ(shapeOf("(a, b) => a கூட்டு b"), "(a, b => (a கூட்டு b))");
    EXPECT_EQ(shapeOf("(a) => a"), "(a => a)");
    EXPECT_EQ(shapeOf("() => 1"), "( => 1)");
}

TEST(ArrowLambda, NamesMayBeOfManyKinds) {
    for (const std::string name : {"நிலை", "வினை", "இல்லை", "பக்கம்", "அகலம்", "உயரம்", "பாணி",
                                   "அழுத்தினால்", "நிறம்", "உரை", "மடிப்பு"}) {
        EXPECT_EQ(shapeOf(name + " => 1"), "(" + name + " => 1)");
        EXPECT_EQ(shapeOf("(a, " + name + ") => 1"), "(a, " + name + " => 1)");
    }
}

TEST(ArrowLambda, OtherTokensAreNoNames) {
    EXPECT_EQ(shapeOf("5 => 1"), "5 | => 1");
    EXPECT_EQ(shapeOf("மெய் => 1"), "boolean மெய் | => 1");
    EXPECT_EQ(shapeOf("\"a\" => 1"), "\"a\" | => 1");
    EXPECT_EQ(shapeOf("செல்க => 1"), "செல்க | => 1");
}

TEST(ArrowLambda, BodyReachesAsFarAsAnExpression) {
    EXPECT_EQ(shapeOf("x => y = 1"), "(x => (y = 1))");
    EXPECT_EQ(shapeOf("x => a ? b : c"), "(x => (a ? b : c))");
    EXPECT_EQ(shapeOf("x => y => x"), "(x => (y => x))");
    EXPECT_EQ(shapeOf("f(x => x, 1)"), "f((x => x), 1)");
    EXPECT_EQ(shapeOf("[x => x, (y) => y]"), "[(x => x), (y => y)]");
}

TEST(ArrowLambda, BodyIsOneExpression) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x =>"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x =>\n1"));
}

TEST(ArrowLambda, NameThatNoExpressionReadsIsAllowed) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "நிறம் => நிறம்"));
}

TEST(ArrowLambda, StandsWhereAnExpressionBegins) {
    EXPECT_EQ(shapeOf("a கூட்டு x => 1"), "(a கூட்டு x) | => 1");
    EXPECT_EQ(shapeOf("a ? b : x => 1"), "(a ? b : x) | => 1");
    EXPECT_EQ(shapeOf("கழி x => 1"), "(கழி x) | => 1");
}

TEST(ArrowLambda, PairOfEqualsAndGreaterIsAnArrow) {
    EXPECT_EQ(shapeOf("x = பெரிது y"), "(x => y)");
    EXPECT_EQ(shapeOf("(a, b) = பெரிது a"), "(a, b => a)");
    EXPECT_EQ(shapeOf("z = x = பெரிது y"), "(z = (x => y))");
    EXPECT_EQ(shapeOf("() = பெரிது 1"), "( => 1)");
}

TEST(ArrowLambda, PairMakesTheStatementALostValue) {
    EXPECT_TRUE(refused("x = பெரிது y\n", "பொழில்-201", 1));
    EXPECT_TRUE(accepted("z = x = பெரிது y\n"));
}

TEST(ArrowLambda, OtherComparisonsMakeNoPair) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x = சிறிது y"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x = பெரிதுசமம் y"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x கூட்டிசேர் பெரிது y"));
}

TEST(ArrowLambda, ArrowsAreToldByTextAlone) {
    EXPECT_EQ(shapeOf("x \"=>\" y"), "(x => y)");
    EXPECT_EQ(shapeOf("x '=>' y"), "(x => y)");
    EXPECT_EQ(shapeOf("x = \">\" y"), "(x => y)");
    EXPECT_EQ(shapeOf("x = '>' y"), "(x => y)");
    EXPECT_EQ(shapeOf("x = \"பெரிது\" y"), "(x => y)");
    EXPECT_EQ(shapeOf("(a) \"=>\" y"), "(a => y)");
    EXPECT_TRUE(refused("x = \">\"\n", "பொழில்-201", 1));
    EXPECT_TRUE(refused("x = \"பெரிது\"\n", "பொழில்-201", 1));
    EXPECT_EQ(shapeOf("x = \"> \""), "(x = \"> \")");
}

TEST(ArrowLambda, PairNeedsAnEqualsOfItsKind) {
    EXPECT_EQ(shapeOf("x \"=\" பெரிது"), "x | = பெரிது");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "x"},
                           {TokenType::EQUALS, "="},
                           {TokenType::OPERATOR, ">"},
                           {TokenType::NUMBER, "1"}})),
              "(x => 1)");
}

TEST(ArrowLambda, LookStopsAtTheFirstClosingParenthesis) {
    EXPECT_EQ(shapeOf("(a(b)) => 1"), "group(a(b)) | => 1");
    EXPECT_EQ(shapeOf("((a)) => 1"), "group(group(a)) | => 1");
    EXPECT_EQ(shapeOf("(a)(b) => 1"), "group(a)(b) | => 1");
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a(b) => 1"));
}

TEST(ArrowLambda, LookStopsAtALineEnd) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a\n) => 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "(\na) => 1"));
}

TEST(ArrowLambda, WithoutAnArrowIsAGroup) {
    EXPECT_EQ(shapeOf("(a) கூட்டு 1"), "(group(a) கூட்டு 1)");
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a, b)"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "()"));
}

TEST(ArrowLambda, CallBeforeAnArrowIsNone) {
    EXPECT_EQ(shapeOf("f(x) => 1"), "f(x) | => 1");
    EXPECT_EQ(shapeOf("a.b => 1"), "a.b | => 1");
}

TEST(ArrowLambda, BadParameterIsRefusedAtItself) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-232", "(5) => 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-232", "(a, \"b\") => 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-232", "(a,) => 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-232", "(, a) => 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-232", "(a, தலைப்பு) => 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-232", "((a) => 1"));
}

TEST(ArrowLambda, MissingCommaIsRefusedAtTheParenthesis) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a b) => 1"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a = 1) => 1"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-204", "x = (a.b) => 1"));
}

TEST(ArrowLambda, TakesTheLineOfItsFirstToken) {
    EXPECT_EQ(treeOf("z = x => y"), "assign z = @2\n  lambda (x) @3\n    name y @5\n");
    EXPECT_EQ(treeOf("z = (a, b) => a"), "assign z = @2\n  lambda (a, b) @3\n    name a @9\n");
    EXPECT_EQ(treeOf("x = பெரிது y"), "lambda (x) @1\n  name y @4\n");
}

TEST(ArrowLambda, KeepsItsParametersAsTokens) {
    const auto node = parserOf(spread("(a, நிலை) => 1"))->parseExpression();
    const auto* lambda = dynamic_cast<const LambdaExpression*>(node.get());
    ASSERT_NE(lambda, nullptr);
    ASSERT_EQ(lambda->parameters.size(), 2U);
    EXPECT_EQ(lambda->parameters[0].type, TokenType::IDENTIFIER);
    EXPECT_EQ(lambda->parameters[0].line, 2);
    EXPECT_EQ(lambda->parameters[1].type, TokenType::KEYWORD);
    EXPECT_EQ(lambda->parameters[1].text, "நிலை");
    EXPECT_EQ(lambda->parameters[1].line, 4);
}

}  // namespace
