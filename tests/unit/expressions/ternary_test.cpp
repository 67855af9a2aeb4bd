// The ternary in its two spellings and their mixtures.
#include <gtest/gtest.h>

#include "unit/expressions/expression_text.h"

namespace {

TEST(Ternary, HasTwoSpellingsThatMixFreely) {
    EXPECT_EQ(shapeOf("a எனில் b இல்லைஎனில் c"), "(a ? b : c)");
    EXPECT_EQ(shapeOf("a ? b : c"), "(a ? b : c)");
    EXPECT_EQ(shapeOf("a ? b இல்லைஎனில் c"), "(a ? b : c)");
    EXPECT_EQ(shapeOf("a எனில் b : c"), "(a ? b : c)");
}

TEST(Ternary, LeansRight) {
    EXPECT_EQ(shapeOf("a ? b : c ? d : e"), "(a ? b : (c ? d : e))");
    EXPECT_EQ(shapeOf("a எனில் b இல்லைஎனில் c எனில் d இல்லைஎனில் e"), "(a ? b : (c ? d : e))");
}

TEST(Ternary, NestsInItsMiddle) {
    EXPECT_EQ(shapeOf("a ? b ? c : d : e"), "(a ? (b ? c : d) : e)");
    EXPECT_EQ(shapeOf("a எனில் b ? c இல்லைஎனில் d : e"), "(a ? (b ? c : d) : e)");
}

TEST(Ternary, ConditionIsNoTernaryByItself) {
    EXPECT_EQ(shapeOf("(a ? b : c) ? d : e"), "(group((a ? b : c)) ? d : e)");
}

TEST(Ternary, MiddleIsAWholeExpression) {
    EXPECT_EQ(shapeOf("a ? b = c : d"), "(a ? (b = c) : d)");
    EXPECT_EQ(shapeOf("a ? b => c : d"), "(a ? (b => c) : d)");
    EXPECT_EQ(shapeOf("a ? b.c = d : e"), "(a ? set(b.c = d) : e)");
}

TEST(Ternary, LastPartIsATernaryAndNoMore) {
    EXPECT_TRUE(refusedAt(6, "பொழில்-211", "a ? b : c = d"));
    EXPECT_EQ(shapeOf("a ? b : c => d"), "(a ? b : c) | => d");
    EXPECT_EQ(shapeOf("a ? b : (c = d)"), "(a ? b : group((c = d)))");
}

TEST(Ternary, DisplayStateInTheMiddleTakesTheColon) {
    EXPECT_TRUE(refusedAt(8, "பொழில்-202", "a ? காட்சி_நிலை.b : c"));
    EXPECT_EQ(shapeOf("a ? காட்சி_நிலை.b : c : d"), "(a ? set(காட்சி_நிலை.b = c) : d)");
    EXPECT_EQ(shapeOf("a ? காட்சி_நிலை.b இல்லைஎனில் c"), "(a ? காட்சி_நிலை.b : c)");
}

TEST(Ternary, TakesTheLineOfItsOpener) {
    EXPECT_EQ(treeOf("a எனில் b இல்லைஎனில் c"), "ternary @2\n  name a @1\n  name b @3\n  name c @5\n");
    EXPECT_EQ(treeOf("a ? b : c ? d : e"),
              "ternary @2\n  name a @1\n  name b @3\n"
              "  ternary @6\n    name c @5\n    name d @7\n    name e @9\n");
}

TEST(Ternary, WithoutACloserIsRefused) {
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "a ? b"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "a எனில் b"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "a ? b\n: c"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "a ? b, c"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-202", "a ? b இல்லை c"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-202", "(a ? b)"));
}

TEST(Ternary, WithoutABranchIsRefused) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a ? : b"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a ?"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a ?\nb : c"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "a ? b :"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "a எனில் b இல்லைஎனில்\nc"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-201", "? a : b"));
}

TEST(Ternary, OpenerWithoutAConditionIsAName) {
    EXPECT_EQ(shapeOf("எனில் ? a : b"), "(எனில் ? a : b)");
}

TEST(Ternary, OpenersAreToldByKind) {
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "a"},
                           {TokenType::IDENTIFIER, "எனில்"},
                           {TokenType::IDENTIFIER, "b"}})),
              "a | எனில் b");
    EXPECT_EQ(shapeOf("a \"?\" b"), "a | ? b");
}

}  // namespace
