// List and map literals.
#include <gtest/gtest.h>

#include <string>

#include "unit/expressions/expression_text.h"

namespace {

TEST(List, HoldsExpressions) {
    EXPECT_EQ(shapeOf("[]"), "[]");
    EXPECT_EQ(shapeOf("[1]"), "[1]");
    EXPECT_EQ(shapeOf("[1, \"அ\", 'ஆ', மெய், [2], {}, a கூட்டு b]"),
              "[1, \"அ\", 'ஆ', boolean மெய், [2], {}, (a கூட்டு b)]");
    EXPECT_EQ(shapeOf("[a = 1, b => b, c ? d : e]"), "[(a = 1), (b => b), (c ? d : e)]");
}

TEST(List, MayEndInAComma) {
    EXPECT_EQ(shapeOf("[1, 2,]"), "[1, 2]");
    EXPECT_EQ(shapeOf("[1,]"), "[1]");
}

TEST(List, TakesTheLineOfItsBracket) {
    EXPECT_EQ(treeOf("[[1], 2]"), "list @1\n  list @2\n    number 1 @3\n  number 2 @6\n");
}

TEST(List, WithoutACommaIsRefusedAtTheNextToken) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-207", "[1 2]"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-207", "[1)"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-207", "[1}"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-207", "[1: 2]"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-207", "[1, 2 => 3]"));
}

TEST(List, LeftOpenWhereABlockEndsIsRefusedAtThatEnd) {
    EXPECT_TRUE(refused("எனில் அ:\n    ஆ([1", "பொழில்-207", 2));
    EXPECT_TRUE(refusedAt(
        3, "பொழில்-207",
        row({{TokenType::LEFT_BRACKET, "["}, {TokenType::NUMBER, "1"}, {TokenType::DEDENT, "0"}})));
}

TEST(List, LeftOpenIsRefusedAtItsBracket) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-205", "[1"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-205", "[1\n]"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-205", "[1;2]"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-205", "[1,"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "[[1"));
}

TEST(List, StandsOnOneLine) {
    EXPECT_TRUE(refusedAt(4, "பொழில்-201", "[1,\n2]"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "[\n1]"));
    EXPECT_EQ(shapeOf("[1, ஃஃ\nஃஃ 2]"), "[1, 2]");
}

TEST(List, EmptyPlacesAreRefused) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "[,]"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-201", "[1,,2]"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "["));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "[)"));
}

TEST(Map, HoldsKeysAndExpressions) {
    EXPECT_EQ(shapeOf("{}"), "{}");
    EXPECT_EQ(shapeOf("{\"பெயர்\": \"கமலா\", வயது: 30}"), "{\"பெயர்\": \"கமலா\", \"வயது\": 30}");
    EXPECT_EQ(shapeOf("{a: {b: [1]}, c: d கூட்டு e}"), "{\"a\": {\"b\": [1]}, \"c\": (d கூட்டு e)}");
    EXPECT_EQ(shapeOf("{a: b => b, c: d = 1, e: f ? g : h}"),
              "{\"a\": (b => b), \"c\": (d = 1), \"e\": (f ? g : h)}");
}

TEST(Map, KeepsOrderAndRepeatedKeys) {
    EXPECT_EQ(shapeOf("{b: 1, a: 2, \"b\": 3, b: 4}"), "{\"b\": 1, \"a\": 2, \"b\": 3, \"b\": 4}");
}

TEST(Map, KeyIsTakenAsItStands) {
    EXPECT_EQ(shapeOf("{\"#abc\": 1, \"\": 2, \"a b\": 3, நிகழ்நேர.a: 4}"),
              "{\"#abc\": 1, \"\": 2, \"a b\": 3, \"நிகழ்நேர.a\": 4}");
}

TEST(Map, MayEndInAComma) { EXPECT_EQ(shapeOf("{a: 1, b: 2,}"), "{\"a\": 1, \"b\": 2}"); }

TEST(Map, MaySpanLines) {
    EXPECT_EQ(shapeOf("{\n    a: 1,\n    b: 2\n}"), "{\"a\": 1, \"b\": 2}");
    EXPECT_EQ(shapeOf("{\n    a: 1,\n\n        b: 2,\n}"), "{\"a\": 1, \"b\": 2}");
    EXPECT_EQ(shapeOf("{a:\n1\n,\nb:\n\n    2\n}"), "{\"a\": 1, \"b\": 2}");
    EXPECT_EQ(shapeOf("{\n}"), "{}");
    EXPECT_EQ(shapeOf("{\n  \n    }"), "{} | 0");
}

TEST(Map, LeavesAnIndentationThatItOpenedAlone) {
    EXPECT_EQ(shapeOf("{a: 1,\n    b: 2}"), "{\"a\": 1, \"b\": 2} | 0");
}

TEST(Map, TakesTheLineOfItsBrace) {
    EXPECT_EQ(treeOf("{a: 1, \"b\": {}}"),
              "map @1\n  key \"a\"\n    number 1 @4\n  key \"b\"\n    map @8\n");
}

TEST(Map, OtherKeysAreRefused) {
    for (const std::string key :
         {"1", "'a'", "நிலை", "உரை", "அகலம்", "மெய்", "50%", "(", "[", ":", ",", ")", "கூட்டு"}) {
        EXPECT_TRUE(refusedAt(2, "பொழில்-212", "{" + key + ": 1}")) << key;
    }
    EXPECT_TRUE(refusedAt(6, "பொழில்-212", "{a: 1,,}"));
    EXPECT_TRUE(refusedAt(7, "பொழில்-212", "{a: 1,\n5: 2}"));
}

TEST(Map, EndOfTextIsNoKey) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-212", "{"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-212", "{\n"));
    EXPECT_TRUE(refusedAt(6, "பொழில்-212", "{a: 1,"));
}

TEST(Map, WithoutAColonIsRefusedWhereItLacks) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{a 1}"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{a}"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{a = 1}"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{\"a\"\n: 1}"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{a"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-202", "{a.b: 1}"));
}

TEST(Map, LeftOpenIsRefusedAtItsBrace) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-206", "{a: 1"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-206", "{a: 1 b: 2}"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-206", "{a: 1]"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-206", "{\n    a: 1\n    b: 2\n}"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-206", "{a: {b: 1"));
}

TEST(Map, WithoutAValueIsRefused) {
    EXPECT_TRUE(refusedAt(4, "பொழில்-201", "{a: }"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-201", "{a: , b: 1}"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-201", "{a:"));
}

TEST(Map, OnlyTheMapItselfSpansLines) {
    EXPECT_TRUE(refusedAt(7, "பொழில்-201", "{a: [1,\n2]}"));
    EXPECT_TRUE(refusedAt(6, "பொழில்-201", "{a: 1 கூட்டு\n2}"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-206", "{a: 1\nகூட்டு 2}"));
}

}  // namespace
