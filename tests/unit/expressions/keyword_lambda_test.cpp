// Lambdas by the word வினை.
#include <gtest/gtest.h>

#include "unit/expressions/expression_text.h"

namespace {

TEST(KeywordLambda, OfNamesInParentheses) {
    EXPECT_EQ(shapeOf("வினை (a, b): a கூட்டு b"), "(a, b => (a கூட்டு b))");
    EXPECT_EQ(shapeOf("வினை(a): a"), "(a => a)");
    EXPECT_EQ(shapeOf("வினை (): 1"), "( => 1)");
}

TEST(KeywordLambda, NeedsNoParentheses) {
    EXPECT_EQ(shapeOf("வினை a, b: a"), "(a, b => a)");
    EXPECT_EQ(shapeOf("வினை a: a"), "(a => a)");
    EXPECT_EQ(shapeOf("வினை: 1"), "( => 1)");
}

TEST(KeywordLambda, CommasAreOptional) {
    EXPECT_EQ(shapeOf("வினை (a b c): a"), "(a, b, c => a)");
    EXPECT_EQ(shapeOf("வினை a b: a"), "(a, b => a)");
    EXPECT_EQ(shapeOf("வினை (a, b,): a"), "(a, b => a)");
    EXPECT_EQ(shapeOf("வினை (, a): a"), "(a => a)");
    EXPECT_EQ(shapeOf("வினை (,): 1"), "( => 1)");
}

TEST(KeywordLambda, ParametersMaySpanLines) {
    EXPECT_EQ(shapeOf("வினை (a,\nb\nc): a"), "(a, b, c => a)");
    EXPECT_EQ(shapeOf("வினை (\na\n): a"), "(a => a)");
    EXPECT_EQ(shapeOf("வினை\na: a"), "(a => a)");
    EXPECT_EQ(shapeOf("வினை (\n, a): a"), "(a => a)");
}

TEST(KeywordLambda, NamesMayBeOfManyKinds) {
    EXPECT_EQ(shapeOf("வினை (நிலை, பக்கம், அகலம், பாணி, நிறம், உரை): 1"),
              "(நிலை, பக்கம், அகலம், பாணி, நிறம், உரை => 1)");
}

TEST(KeywordLambda, BodyReachesAsFarAsAnExpression) {
    EXPECT_EQ(shapeOf("வினை (a): b = a"), "(a => (b = a))");
    EXPECT_EQ(shapeOf("வினை (a): b ? c : d"), "(a => (b ? c : d))");
    EXPECT_EQ(shapeOf("வினை (a): வினை (b): a"), "(a => (b => a))");
    EXPECT_EQ(shapeOf("வினை (a): b => a"), "(a => (b => a))");
    EXPECT_EQ(shapeOf("வினை (a): a கூட்டு 1"), "(a => (a கூட்டு 1))");
}

TEST(KeywordLambda, IsAPrimary) {
    EXPECT_EQ(shapeOf("a கூட்டு வினை (b): b"), "(a கூட்டு (b => b))");
    EXPECT_EQ(shapeOf("f(வினை (a): a, வினை: 1)"), "f((a => a), ( => 1))");
    EXPECT_EQ(shapeOf("[வினை: 1]"), "[( => 1)]");
    EXPECT_EQ(shapeOf("கழி வினை: 1"), "(கழி ( => 1))");
}

TEST(KeywordLambda, TakesTheLineOfItsWord) {
    EXPECT_EQ(treeOf("a கூட்டு வினை (b): b"),
              "binary கூட்டு @2\n  name a @1\n  lambda (b) @3\n    name b @8\n");
}

TEST(KeywordLambda, LeftOpenIsRefusedAtItsParenthesis) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை (a: 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை (: 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை (5): 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை (, , a): 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை ("));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "வினை (a 5): 1"));
}

TEST(KeywordLambda, WithoutAColonIsRefusedWhereItLacks) {
    EXPECT_TRUE(refusedAt(5, "பொழில்-202", "வினை (a) a"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-202", "வினை (a)\n: a"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-202", "வினை 5: 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-202", "வினை )"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-202", "வினை"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "வினை a => a"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "வினை () => 1"));
}

TEST(KeywordLambda, BodyIsNoBlock) {
    EXPECT_TRUE(refusedAt(6, "பொழில்-201", "வினை (a):\n    a"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "வினை:"));
}

TEST(KeywordLambda, InAPlainStatementIsRefused) {
    EXPECT_TRUE(refused("a = 1\nb = வினை (c): c\n", "பொழில்-234", 2));
    EXPECT_TRUE(accepted("அச்சிடு(வினை (c): c)\n"));
}

TEST(KeywordLambda, WordIsAnOrdinaryParameterOfAnArrow) {
    EXPECT_EQ(shapeOf("வினை => 1"), "(வினை => 1)");
    EXPECT_EQ(shapeOf("a.வினை"), "a.வினை");
}

}  // namespace
