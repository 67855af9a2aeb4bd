// Assignment: its words, its targets, and the colon of the display state.
#include <gtest/gtest.h>

#include <string>

#include "unit/expressions/expression_text.h"

namespace {

const char* const kCompoundWords[] = {
    "ஒன்றுசேர்", "ஒன்றுகழி", "கூட்டிசேர்",  "கழிசேர்", "பெருக்குசேர்", "வகுசேர்",
    "மீதிசேர்",  "பெஇசேர்",  "கூட்டுஇசேர்", "வேஇசேர்", "இடதுஇசேர்",   "வலதுஇசேர்",
};

TEST(Assignment, ToAVariableKeepsItsWord) {
    EXPECT_EQ(shapeOf("x = 1"), "(x = 1)");
    for (const std::string word : kCompoundWords) {
        EXPECT_EQ(shapeOf("x " + word + " 1"), "(x " + word + " 1)");
    }
}

TEST(Assignment, LeansRight) {
    EXPECT_EQ(shapeOf("a = b = c"), "(a = (b = c))");
    EXPECT_EQ(shapeOf("a கூட்டிசேர் b = c"), "(a கூட்டிசேர் (b = c))");
    EXPECT_EQ(shapeOf("a = b.c = d[0] = 1"), "(a = set(b.c = _set_index_internal(d, 0, 1)))");
}

TEST(Assignment, ValueIsAnyExpression) {
    EXPECT_EQ(shapeOf("x = a ? b : c"), "(x = (a ? b : c))");
    EXPECT_EQ(shapeOf("x = y => y"), "(x = (y => y))");
    EXPECT_EQ(shapeOf("x = a அல்லது b"), "(x = <a அல்லது b>)");
}

TEST(Assignment, ToAMemberDropsTheWord) {
    EXPECT_EQ(shapeOf("a.b = 1"), "set(a.b = 1)");
    EXPECT_EQ(shapeOf("a.b.c = 1"), "set(a.b.c = 1)");
    EXPECT_EQ(shapeOf("a[0].b = 1"), "set(a[0].b = 1)");
    EXPECT_EQ(shapeOf("f().b = 1"), "set(f().b = 1)");
    for (const std::string word : kCompoundWords) {
        EXPECT_EQ(shapeOf("a.b " + word + " 1"), "set(a.b = 1)") << word;
    }
}

TEST(Assignment, ToAnElementBecomesACall) {
    EXPECT_EQ(shapeOf("a[0] = 7"), "_set_index_internal(a, 0, 7)");
    EXPECT_EQ(shapeOf("a[0][1] = 7"), "_set_index_internal(a[0], 1, 7)");
    EXPECT_EQ(shapeOf("a.b[c] = d"), "_set_index_internal(a.b, c, d)");
    for (const std::string word : kCompoundWords) {
        EXPECT_EQ(shapeOf("a[0] " + word + " 1"), "_set_index_internal(a, 0, 1)") << word;
    }
}

TEST(Assignment, TakesTheLineOfItsWord) {
    EXPECT_EQ(treeOf("x = 1"), "assign x = @2\n  number 1 @3\n");
    EXPECT_EQ(treeOf("a.b = 1"), "set member .b @4\n  name a @1\n  number 1 @5\n");
    EXPECT_EQ(treeOf("a[0] = 7"),
              "call @5\n  name _set_index_internal\n  arguments\n"
              "    name a @1\n    number 0 @3\n    number 7 @6\n");
    EXPECT_EQ(treeOf("a = b கூட்டிசேர் 1"),
              "assign a = @2\n  assign b கூட்டிசேர் @4\n    number 1 @5\n");
}

TEST(Assignment, ToAVariableOfAnyKindOfWord) {
    for (const std::string name : {"நிலை", "செயல்", "வரம்பு", "பக்கம்", "அகலம்", "உரை", "வரையறை"}) {
        EXPECT_EQ(shapeOf(name + " = 1"), "(" + name + " = 1)");
    }
}

TEST(Assignment, ToAnythingElseIsRefusedAtItsWord) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-211", "5 = x"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "(x) = 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "f() = 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-211", "\"அ\" = 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-211", "\"#abc\" = 1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-211", "மெய் = 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "[a] = 1"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-211", "{} = 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "a கூட்டு b = 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "a மற்றும் b = 1"));
    EXPECT_TRUE(refusedAt(6, "பொழில்-211", "a ? b : c = 1"));
    EXPECT_TRUE(refusedAt(6, "பொழில்-211", "(a.b) கூட்டிசேர் 1"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "a = 5 = x"));
}

TEST(Assignment, ValueIsParsedBeforeTheTargetIsJudged) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "5 = )"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "5 = 6 = 7"));
}

TEST(Assignment, NeedsAValue) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x ="));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x =\n1"));
    for (const std::string word : kCompoundWords) {
        EXPECT_TRUE(refusedAt(3, "பொழில்-201", "x " + word)) << word;
    }
}

TEST(Assignment, KindsThatTheScannerNeverSendsAssignToo) {
    for (const TokenType kind :
         {TokenType::RESERVED_132, TokenType::INCREMENT, TokenType::DECREMENT}) {
        EXPECT_EQ(
            shapeOf(row({{TokenType::IDENTIFIER, "x"}, {kind, "~"}, {TokenType::NUMBER, "1"}})),
            "(x ~ 1)");
        EXPECT_TRUE(
            refusedAt(2, "பொழில்-211",
                      row({{TokenType::NUMBER, "5"}, {kind, "~"}, {TokenType::NUMBER, "1"}})));
    }
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "x"}, {TokenType::RESERVED_136, "~"}})),
              "x | ~");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "x"}, {TokenType::RESERVED_130, "~"}})),
              "x | ~");
}

TEST(DisplayState, ColonAssignsToItsMembers) {
    EXPECT_EQ(shapeOf("காட்சி_நிலை.எண்ணிக்கை : 5"), "set(காட்சி_நிலை.எண்ணிக்கை = 5)");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a: b கூட்டு 1"), "set(காட்சி_நிலை.a = (b கூட்டு 1))");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a: b = 1"), "set(காட்சி_நிலை.a = (b = 1))");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a: காட்சி_நிலை.b: 1"),
              "set(காட்சி_நிலை.a = set(காட்சி_நிலை.b = 1))");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a: b => b"), "set(காட்சி_நிலை.a = (b => b))");
}

TEST(DisplayState, TakesTheLineOfTheColon) {
    EXPECT_EQ(treeOf("காட்சி_நிலை.a : 5"),
              "set member .a @4\n  name காட்சி_நிலை @1\n  number 5 @5\n");
}

TEST(DisplayState, EqualsAssignsToo) {
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a = 5"), "set(காட்சி_நிலை.a = 5)");
    EXPECT_EQ(shapeOf("காட்சி_நிலை = 5"), "(காட்சி_நிலை = 5)");
}

TEST(DisplayState, ColonAssignsNowhereElse) {
    EXPECT_EQ(shapeOf("a.b : 5"), "a.b | : 5");
    EXPECT_EQ(shapeOf("காட்சி_நிலை : 5"), "காட்சி_நிலை | : 5");
    EXPECT_EQ(shapeOf("காட்சி_நிலை[0] : 5"), "காட்சி_நிலை[0] | : 5");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a.b : 5"), "காட்சி_நிலை.a.b | : 5");
    EXPECT_EQ(shapeOf("காட்சி_நிலை.a() : 5"), "காட்சி_நிலை.a() | : 5");
    EXPECT_EQ(shapeOf("(காட்சி_நிலை.a) : 5"), "group(காட்சி_நிலை.a) | : 5");
    EXPECT_EQ(shapeOf("b கூட்டு காட்சி_நிலை.a : 5"), "(b கூட்டு காட்சி_நிலை.a) | : 5");
}

TEST(DisplayState, ColonNeedsAValue) {
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "காட்சி_நிலை.a :"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "காட்சி_நிலை.a:\n5"));
}

TEST(DisplayState, AsAConditionLeavesTheStatementWithoutAColon) {
    EXPECT_TRUE(refused("எனில் காட்சி_நிலை.a: அச்சிடு(1)\n", "பொழில்-202", 1));
    EXPECT_TRUE(refused("எனில் காட்சி_நிலை.a:\n    அச்சிடு(1)\n", "பொழில்-201", 1));
}

}  // namespace
