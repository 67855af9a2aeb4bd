// The prefix operators.
#include <gtest/gtest.h>

#include <string>

#include "unit/expressions/expression_text.h"

namespace {

const char* const kPrefixes[] = {"இல்லை", "கழி", "எதிர்இருமை", "மிகை", "குறை"};

TEST(Unary, HasFiveWords) {
    for (const std::string prefix : kPrefixes) {
        EXPECT_EQ(shapeOf(prefix + " a"), "(" + prefix + " a)");
    }
}

TEST(Unary, LeansRight) {
    for (const std::string outer : kPrefixes) {
        for (const std::string inner : kPrefixes) {
            const std::string pair = outer + " " + inner;
            EXPECT_EQ(shapeOf(pair + " a"), "(" + outer + " (" + inner + " a))");
        }
    }
    EXPECT_EQ(shapeOf("இல்லை கழி எதிர்இருமை மிகை குறை a"),
              "(இல்லை (கழி (எதிர்இருமை (மிகை (குறை a)))))");
}

TEST(Unary, BindsLooserThanPostfix) {
    for (const std::string prefix : kPrefixes) {
        EXPECT_EQ(shapeOf(prefix + " a.b[0](c)"), "(" + prefix + " a.b[0](c))");
    }
}

TEST(Unary, SubtractsBehindAnOperandAndNegatesElsewhere) {
    EXPECT_EQ(shapeOf("a கழி கழி b"), "(a கழி (கழி b))");
    EXPECT_EQ(shapeOf("கழி a கழி b"), "((கழி a) கழி b)");
    EXPECT_EQ(shapeOf("a பெருக்கு கழி b"), "(a பெருக்கு (கழி b))");
    EXPECT_EQ(shapeOf("[கழி 1, கழி 2]"), "[(கழி 1), (கழி 2)]");
}

TEST(Unary, NegationBindsTighterThanComparison) {
    EXPECT_EQ(shapeOf("இல்லை a சமம் b"), "((இல்லை a) சமம் b)");
    EXPECT_EQ(shapeOf("வயது பெரிதுசமம் 18 மற்றும் இல்லை தடை"),
              "<(வயது பெரிதுசமம் 18) மற்றும் (இல்லை தடை)>");
}

TEST(Unary, TypeQuestionIsAnOrdinaryCall) { EXPECT_EQ(shapeOf("என்னவகை(x)"), "என்னவகை(x)"); }

TEST(Unary, TypeQuestionAsAKeywordWouldBeAPrefix) {
    EXPECT_EQ(shapeOf(row({{TokenType::KEYWORD, "என்னவகை"}, {TokenType::IDENTIFIER, "a"}})),
              "(என்னவகை a)");
}

TEST(Unary, WordsAreToldByTheirKinds) {
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "இல்லை"}, {TokenType::IDENTIFIER, "a"}})),
              "இல்லை | a");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "கழி"}, {TokenType::IDENTIFIER, "a"}})),
              "கழி | a");
    EXPECT_EQ(shapeOf(row({{TokenType::UNARY_MINUS, "-"}, {TokenType::IDENTIFIER, "a"}})), "(- a)");
}

TEST(Unary, TakesTheLineOfItsOperator) {
    EXPECT_EQ(treeOf("கழி இல்லை a"), "unary கழி @1\n  unary இல்லை @2\n    name a @3\n");
}

TEST(Unary, WithoutAnOperandIsRefused) {
    for (const std::string prefix : kPrefixes) {
        EXPECT_TRUE(refusedAt(2, "பொழில்-201", prefix)) << prefix;
        EXPECT_TRUE(refusedAt(2, "பொழில்-201", prefix + "\na")) << prefix;
        EXPECT_TRUE(refusedAt(2, "பொழில்-201", prefix + " கூட்டு a")) << prefix;
    }
}

TEST(Unary, IsNoTarget) { EXPECT_TRUE(refusedAt(3, "பொழில்-211", "கழி a = 1")); }

TEST(Unary, OperandIsNoLambda) { EXPECT_EQ(shapeOf("இல்லை a => b"), "(இல்லை a) | => b"); }

}  // namespace
