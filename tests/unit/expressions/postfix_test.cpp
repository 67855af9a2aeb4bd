// Calls, members and elements.
#include <gtest/gtest.h>

#include <string>

#include "unit/expressions/expression_text.h"

namespace {

TEST(Call, TakesAnyNumberOfArguments) {
    EXPECT_EQ(shapeOf("f()"), "f()");
    EXPECT_EQ(shapeOf("f(1)"), "f(1)");
    EXPECT_EQ(shapeOf("f(1, \"அ\", a கூட்டு b)"), "f(1, \"அ\", (a கூட்டு b))");
}

TEST(Call, ArgumentsAreWholeExpressions) {
    EXPECT_EQ(shapeOf("f(a = 1, b => b, a ? b : c)"), "f((a = 1), (b => b), (a ? b : c))");
    EXPECT_EQ(shapeOf("f(g(h()))"), "f(g(h()))");
}

TEST(Call, AnythingCanBeCalled) {
    EXPECT_EQ(shapeOf("5(1)"), "5(1)");
    EXPECT_EQ(shapeOf("(f)(1)"), "group(f)(1)");
    EXPECT_EQ(shapeOf("[f][0](1)"), "[f][0](1)");
    EXPECT_EQ(shapeOf("(x => x)(1)"), "group((x => x))(1)");
}

TEST(Call, StandsOnOneLine) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "f(\n1)"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "f(1,\n2)"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "f(1\n)"));
    EXPECT_EQ(shapeOf("f\n(1)"), "f | \\n ( 1 )");
}

TEST(Call, TrailingCommaIsRefused) {
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "f(1,)"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "f(,)"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-201", "f(1,,2)"));
}

TEST(Call, LeftOpenIsRefusedAtItsParenthesis) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "f(1"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "f(1 2)"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-204", "f(1]"));
    EXPECT_TRUE(refusedAt(4, "பொழில்-204", "f(g(1"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "f("));
}

TEST(Member, NamesMayBeOfManyKinds) {
    for (const char* name : {"பெயர்", "நிலை", "இல்லை", "பக்கம்", "அகலம்", "உயரம்", "பாணி", "அழுத்தினால்",
                             "நிறம்", "உரை", "பொத்தான்", "மடிப்பு"}) {
        EXPECT_EQ(shapeOf(std::string("a.") + name), std::string("a.") + name);
    }
}

TEST(Member, OtherTokensAreNoNames) {
    for (const char* token : {"5", "\"அ\"", "'அ'", "50%", "(", ")", "[", "கூட்டு", "மெய்", "செல்க",
                              "தலைப்பு", "கூட்டிசேர்", "குறை", "ரகசிய", "=", ",", "."}) {
        EXPECT_TRUE(refusedAt(3, "பொழில்-210", std::string("a.") + token)) << token;
    }
    EXPECT_TRUE(refusedAt(3, "பொழில்-210", "a."));
    EXPECT_TRUE(refusedAt(3, "பொழில்-210", "a.\nb"));
}

TEST(Member, MayStandBehindTheAlternateDot) {
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "a"},
                           {TokenType::DOT_ALTERNATE, "·"},
                           {TokenType::IDENTIFIER, "b"}})),
              "a.b");
    EXPECT_TRUE(refusedAt(3, "பொழில்-210",
                          row({{TokenType::IDENTIFIER, "a"},
                               {TokenType::DOT_ALTERNATE, "·"},
                               {TokenType::NUMBER, "5"}})));
}

TEST(Member, OfAnything) {
    EXPECT_EQ(shapeOf("\"அ\".நீளம்"), "\"அ\".நீளம்");
    EXPECT_EQ(shapeOf("[1].நீளம்()"), "[1].நீளம்()");
    EXPECT_EQ(shapeOf("{}.நீளம்"), "{}.நீளம்");
    EXPECT_EQ(shapeOf("௧.நீளம்"), "௧.நீளம்");
    EXPECT_EQ(shapeOf("தான்.பெயர்"), "தான்.பெயர்");
}

TEST(Element, HoldsOneExpression) {
    EXPECT_EQ(shapeOf("a[0]"), "a[0]");
    EXPECT_EQ(shapeOf("a[b கூட்டு 1]"), "a[(b கூட்டு 1)]");
    EXPECT_EQ(shapeOf("a[b = 1]"), "a[(b = 1)]");
    EXPECT_EQ(shapeOf("a[b[c[0]]]"), "a[b[c[0]]]");
}

TEST(Element, OfAnything) {
    EXPECT_EQ(shapeOf("[1, 2][0]"), "[1, 2][0]");
    EXPECT_EQ(shapeOf("{அ: 1}[\"அ\"]"), "{\"அ\": 1}[\"அ\"]");
    EXPECT_EQ(shapeOf("\"அஆ\"[1]"), "\"அஆ\"[1]");
}

TEST(Element, LeftOpenIsRefusedAtItsBracket) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "a[0"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "a[0, 1]"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "a[0:1]"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "a[0)"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-205", "a[0\n]"));
    EXPECT_TRUE(refusedAt(5, "பொழில்-205", "a[0][1"));
}

TEST(Element, EmptyIsRefused) {
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a[]"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a["));
}

TEST(Postfix, ChainsFromTheLeft) {
    EXPECT_EQ(shapeOf("a.b.c"), "a.b.c");
    EXPECT_EQ(shapeOf("f()()()"), "f()()()");
    EXPECT_EQ(shapeOf("a[0][1][2]"), "a[0][1][2]");
    EXPECT_EQ(shapeOf("a.b(1)[2].c(3)"), "a.b(1)[2].c(3)");
}

TEST(Postfix, TakesTheLinesOfParenthesisNameAndBracket) {
    EXPECT_EQ(treeOf("f(a)"), "call @2\n  name f @1\n  arguments\n    name a @3\n");
    EXPECT_EQ(treeOf("a.b.c"), "member .c @5\n  member .b @3\n    name a @1\n");
    EXPECT_EQ(treeOf("a[b]"), "index @2\n  name a @1\n  name b @3\n");
    EXPECT_EQ(treeOf("f()[0](1)"),
              "call @7\n  index @4\n    call @2\n      name f @1\n      arguments\n"
              "    number 0 @5\n  arguments\n    number 1 @8\n");
}

TEST(Enumeration, MemberIsFoldedToItsPlace) {
    EXPECT_EQ(treeOf("நிறங்கள்.சிவப்பு"), "number 2\n");
    EXPECT_EQ(treeOf("நிறங்கள்.நீலம்"), "number 0\n");
    EXPECT_EQ(shapeOf("நிறங்கள்.சிவப்பு கூட்டு 1"), "(2 கூட்டு 1)");
}

TEST(Enumeration, UnknownMemberStays) {
    EXPECT_EQ(treeOf("நிறங்கள்.பச்சை"), "member .பச்சை @3\n  name நிறங்கள் @1\n");
}

TEST(Enumeration, OtherObjectsStay) {
    EXPECT_EQ(shapeOf("a.சிவப்பு"), "a.சிவப்பு");
    EXPECT_EQ(shapeOf("(நிறங்கள்).சிவப்பு"), "group(நிறங்கள்).சிவப்பு");
    EXPECT_EQ(shapeOf("a.நிறங்கள்.சிவப்பு"), "a.நிறங்கள்.சிவப்பு");
    EXPECT_EQ(shapeOf("நிறங்கள்[0].சிவப்பு"), "நிறங்கள்[0].சிவப்பு");
    EXPECT_EQ(shapeOf("நிறங்கள்"), "நிறங்கள்");
}

TEST(Enumeration, FoldedMemberTakesFurtherForms) {
    EXPECT_EQ(shapeOf("நிறங்கள்.சிவப்பு.நீலம்"), "2.நீலம்");
    EXPECT_EQ(shapeOf("நிறங்கள்.சிவப்பு()"), "2()");
    EXPECT_EQ(shapeOf("நிறங்கள்.சிவப்பு[0]"), "2[0]");
}

TEST(Enumeration, FoldedMemberIsNoTarget) {
    EXPECT_TRUE(refusedAt(4, "பொழில்-211", "நிறங்கள்.சிவப்பு = 1"));
    EXPECT_EQ(shapeOf("நிறங்கள்.பச்சை = 1"), "set(நிறங்கள்.பச்சை = 1)");
}

TEST(Enumeration, IsFoldedBehindTheAlternateDot) {
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "நிறங்கள்"},
                           {TokenType::DOT_ALTERNATE, "·"},
                           {TokenType::IDENTIFIER, "சிவப்பு"}})),
              "2");
}

}  // namespace
