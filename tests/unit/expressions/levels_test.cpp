// The binary levels: every operator word, how each associates, and how each binds against each.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "unit/expressions/expression_text.h"

namespace {

/// From the loosest to the tightest. The first two make LogicalExpression.
const std::vector<std::vector<std::string>> kLevels = {
    {"அல்லது"},
    {"மற்றும்"},
    {"கூட்டுஇருமை"},
    {"வேறுஇருமை"},
    {"பெருக்குஇருமை"},
    {"சமம்", "சமமில்லை"},
    {"பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"},
    {"இடதுஇருமை", "வலதுஇருமை"},
    {"கூட்டு", "கழி", "இணை"},
    {"பெருக்கு", "வகு", "மீதி"},
};

struct Operator {
    std::string word;
    std::size_t level;
};

std::vector<Operator> operators() {
    std::vector<Operator> all;
    for (std::size_t level = 0; level < kLevels.size(); level++) {
        for (const std::string& word : kLevels[level]) all.push_back({word, level});
    }
    return all;
}

std::string joined(const std::string& left, const Operator& op, const std::string& right) {
    const std::string inner = left + " " + op.word + " " + right;
    return op.level <= 1 ? "<" + inner + ">" : "(" + inner + ")";
}

TEST(Levels, AreNineteenWords) { EXPECT_EQ(operators().size(), 19U); }

TEST(Levels, EveryWordJoinsTwoOperands) {
    for (const Operator& op : operators()) {
        EXPECT_EQ(shapeOf("a " + op.word + " b"), joined("a", op, "b"));
    }
}

TEST(Levels, EveryPairBindsByLevelAndFromTheLeft) {
    for (const Operator& first : operators()) {
        for (const Operator& second : operators()) {
            const std::string text = "a " + first.word + " b " + second.word + " c";
            const std::string expected = second.level > first.level
                                             ? joined("a", first, joined("b", second, "c"))
                                             : joined(joined("a", first, "b"), second, "c");
            EXPECT_EQ(shapeOf(text), expected) << text;
        }
    }
}

TEST(Levels, LongChainsLeanLeft) {
    EXPECT_EQ(shapeOf("a கழி b கூட்டு c இணை d கழி e"), "((((a கழி b) கூட்டு c) இணை d) கழி e)");
    EXPECT_EQ(shapeOf("a வகு b பெருக்கு c மீதி d"), "(((a வகு b) பெருக்கு c) மீதி d)");
    EXPECT_EQ(shapeOf("a பெரிது b சிறிது c"), "((a பெரிது b) சிறிது c)");
}

TEST(Levels, AllInOneExpression) {
    EXPECT_EQ(shapeOf("a அல்லது b மற்றும் c கூட்டுஇருமை d வேறுஇருமை e பெருக்குஇருமை f சமம் g "
                      "பெரிது h இடதுஇருமை i கூட்டு j பெருக்கு k"),
              "<a அல்லது <b மற்றும் (c கூட்டுஇருமை (d வேறுஇருமை (e பெருக்குஇருமை (f சமம் (g "
              "பெரிது (h இடதுஇருமை (i கூட்டு (j பெருக்கு k))))))))>>");
    EXPECT_EQ(shapeOf("a பெருக்கு b கூட்டு c இடதுஇருமை d பெரிது e சமம் f பெருக்குஇருமை g "
                      "வேறுஇருமை h கூட்டுஇருமை i மற்றும் j அல்லது k"),
              "<<((((((((a பெருக்கு b) கூட்டு c) இடதுஇருமை d) பெரிது e) சமம் f) பெருக்குஇருமை "
              "g) வேறுஇருமை h) கூட்டுஇருமை i) மற்றும் j> அல்லது k>");
}

TEST(Levels, JoiningBindsLikeAdding) {
    EXPECT_EQ(shapeOf("மதிப்பு பெரிது 1 இணை 2"), "(மதிப்பு பெரிது (1 இணை 2))");
}

TEST(Levels, ParenthesesGroupAnew) {
    EXPECT_EQ(shapeOf("(a கூட்டு b) பெருக்கு c"), "(group((a கூட்டு b)) பெருக்கு c)");
    EXPECT_EQ(shapeOf("a கழி (b கழி c)"), "(a கழி group((b கழி c)))");
}

TEST(Levels, EveryWordBindsLooserThanPrefixAndPostfix) {
    for (const Operator& op : operators()) {
        EXPECT_EQ(shapeOf("குறை a " + op.word + " குறை b"), joined("(குறை a)", op, "(குறை b)"));
        EXPECT_EQ(shapeOf("a(1) " + op.word + " b[2]"), joined("a(1)", op, "b[2]"));
        EXPECT_EQ(shapeOf("a.x " + op.word + " b.y"), joined("a.x", op, "b.y"));
    }
}

TEST(Levels, EveryWordBindsTighterThanTernaryAndAssignment) {
    for (const Operator& op : operators()) {
        EXPECT_EQ(shapeOf("a " + op.word + " b ? c " + op.word + " d : e " + op.word + " f"),
                  "(" + joined("a", op, "b") + " ? " + joined("c", op, "d") + " : " +
                      joined("e", op, "f") + ")");
        EXPECT_EQ(shapeOf("x = a " + op.word + " b"), "(x = " + joined("a", op, "b") + ")");
    }
}

TEST(Levels, EveryWordNeedsARightOperand) {
    for (const Operator& op : operators()) {
        EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a " + op.word)) << op.word;
        EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a " + op.word + "\nb")) << op.word;
        EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a " + op.word + " )")) << op.word;
    }
}

TEST(Levels, OnlySubtractionStandsWithoutALeftOperand) {
    for (const Operator& op : operators()) {
        if (op.word == "கழி") continue;
        EXPECT_TRUE(refusedAt(1, "பொழில்-201", op.word + " b")) << op.word;
    }
}

TEST(Levels, LineEndEndsTheExpression) { EXPECT_EQ(shapeOf("a\nகூட்டு b"), "a | \\n கூட்டு b"); }

TEST(Levels, OperatorsAreToldByKindAndText) {
    EXPECT_EQ(shapeOf("a \"கூட்டு\" b"), "a | கூட்டு b");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "a"},
                           {TokenType::IDENTIFIER, "கூட்டு"},
                           {TokenType::IDENTIFIER, "b"}})),
              "a | கூட்டு b");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "a"},
                           {TokenType::OPERATOR, "+"},
                           {TokenType::IDENTIFIER, "b"}})),
              "a | + b");
}

}  // namespace
