// What an expression begins with: the rows of the table in their order.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "parser/token_predicates.h"
#include "support/token_names.h"
#include "unit/expressions/expression_text.h"
#include "unit/lexer/word_rows.h"

namespace {

constexpr int kKinds = static_cast<int>(TokenType::END_OF_FILE) + 1;

TEST(Primary, NamedColourStandsBehindTheAlternateDot) {
    const std::pair<TokenType, std::string> word = {TokenType::IDENTIFIER, "நிறம்"};
    const std::pair<TokenType, std::string> dot = {TokenType::DOT_ALTERNATE, "·"};
    EXPECT_EQ(treeOf(row({word, dot, {TokenType::IDENTIFIER, "சிவப்பு"}})), "colour named சிவப்பு\n");
    EXPECT_TRUE(refusedAt(3, "பொழில்-210", row({word, dot, {TokenType::NUMBER, "1"}})));
    EXPECT_TRUE(refusedAt(3, "பொழில்-210", row({word, dot, {TokenType::KEYWORD, "நிலை"}})));
    EXPECT_TRUE(refusedAt(3, "பொழில்-210", row({word, dot})));
}

TEST(Primary, ColourWordByItselfIsAName) {
    EXPECT_EQ(treeOf(row({{TokenType::IDENTIFIER, "நிறம்"}})), "name நிறம் @1\n");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "நிறம்"},
                           {TokenType::DOT, "."},
                           {TokenType::IDENTIFIER, "சிவப்பு"}})),
              "நிறம்.சிவப்பு");
    EXPECT_EQ(shapeOf(row({{TokenType::IDENTIFIER, "a"},
                           {TokenType::DOT_ALTERNATE, "·"},
                           {TokenType::IDENTIFIER, "சிவப்பு"}})),
              "a.சிவப்பு");
}

TEST(Primary, ColourOfTheScannersKindIsRefused) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-201", "நிறம்.சிவப்பு"));
    EXPECT_TRUE(refusedAt(3, "பொழில்-201", "a = நிறம்"));
}

TEST(Primary, StringWithAHashIsAColour) {
    EXPECT_EQ(treeOf("\"#abc\""), "colour hex #abc\n");
    EXPECT_EQ(shapeOf("\"#\""), "hex #");
    EXPECT_EQ(shapeOf("\"# தலைப்பு\""), "hex # தலைப்பு");
    EXPECT_EQ(shapeOf("[\"#112233\", f(\"#fff\")]"), "[hex #112233, f(hex #fff)]");
    EXPECT_EQ(shapeOf("\" #abc\""), "\" #abc\"");
    EXPECT_EQ(shapeOf("'#abc'"), "'#abc'");
}

TEST(Primary, ColourFillsOneOfItsTexts) {
    const auto hex = parserOf(scan("\"#abc\""))->parseExpression();
    const auto* colour = dynamic_cast<const ColorExpression*>(hex.get());
    ASSERT_NE(colour, nullptr);
    EXPECT_TRUE(colour->isHex);
    EXPECT_EQ(colour->hexValue, "#abc");
    EXPECT_EQ(colour->colorName, "");
    const ColorExpression named("சிவப்பு", false);
    EXPECT_EQ(named.hexValue, "");
    EXPECT_EQ(named.colorName, "சிவப்பு");
}

TEST(Primary, Literals) {
    EXPECT_EQ(treeOf("மெய்"), "boolean மெய் @1\n");
    EXPECT_EQ(treeOf("பொய்"), "boolean பொய் @1\n");
    EXPECT_EQ(treeOf("'அ'"), "character 'அ' @1\n");
    EXPECT_EQ(treeOf("50%"), "percentage 50% @1\n");
    EXPECT_EQ(treeOf("௫௦%"), "percentage ௫௦% @1\n");
    EXPECT_EQ(treeOf("42"), "number 42 @1\n");
    EXPECT_EQ(treeOf("௧௨"), "number ௧௨ @1\n");
    EXPECT_EQ(treeOf("3.14"), "decimal 3.14 @1\n");
    EXPECT_EQ(treeOf("1."), "decimal 1. @1\n");
    EXPECT_EQ(treeOf("\"அ\""), "string \"அ\" @1\n");
    EXPECT_EQ(treeOf("\"\""), "string \"\" @1\n");
}

TEST(Primary, BuiltInNamesAreNamesWithoutALine) {
    EXPECT_EQ(treeOf("இப்போதுநேரம்"), "name இப்போதுநேரம்\n");
    EXPECT_EQ(treeOf("வரம்பு(1, 4)"),
              "call @2\n  name வரம்பு\n  arguments\n    number 1 @3\n    number 4 @5\n");
    EXPECT_EQ(shapeOf("இப்போதுநேரம்()"), "இப்போதுநேரம்()");
}

TEST(Primary, PlainWordBringsItsLine) {
    EXPECT_EQ(treeOf("பெயர்"), "name பெயர் @1\n");
    EXPECT_EQ(treeOf("தான்"), "name தான் @1\n");
    EXPECT_EQ(treeOf("அடையாளம்"), "name அடையாளம் @1\n");
}

TEST(Primary, NavigationWordsAreNamesWithoutALine) {
    EXPECT_EQ(treeOf("செல்க"), "name செல்க\n");
    EXPECT_EQ(treeOf("பக்கம்"), "name பக்கம்\n");
    EXPECT_EQ(treeOf("வரையறை"), "name வரையறை\n");
    EXPECT_EQ(shapeOf("செல்க(1)"), "செல்க(1)");
}

TEST(Primary, EveryOtherKeywordIsANameWithoutALine) {
    int seen = 0;
    for (const WordRow& word : kFirstRows) {
        if (word.kind != TokenType::KEYWORD || word.word == std::string("வினை")) continue;
        EXPECT_EQ(treeOf(word.word), "name " + std::string(word.word) + "\n");
        seen++;
    }
    EXPECT_EQ(seen, 24);
    EXPECT_EQ(treeOf("எனில்"), "name எனில்\n");
    EXPECT_EQ(treeOf("இல்லைஎனில்"), "name இல்லைஎனில்\n");
    EXPECT_EQ(shapeOf("நிலை(1).பொது"), "நிலை(1).பொது");
}

TEST(Primary, WidgetWordWithoutAParenthesisIsANameWithoutALine) {
    int seen = 0;
    for (int value = 0; value < kKinds; value++) {
        const auto kind = static_cast<TokenType>(value);
        if (kind == TokenType::IDENTIFIER || !isWidgetToken({kind, "w", 1})) continue;
        EXPECT_EQ(treeOf(row({{kind, "w"}})), "name w\n") << kTokenNames[value];
        seen++;
    }
    EXPECT_EQ(seen, 34);
    for (const char* word : {"தலைமை", "குமரி", "பாணி", "அழுத்தினால்", "அகலம்", "உயரம்", "உரை"}) {
        EXPECT_EQ(treeOf(word), "name " + std::string(word) + "\n");
    }
}

TEST(Primary, LookForAWidgetLeavesTheLineEnds) {
    EXPECT_EQ(shapeOf("உரை\n\na"), "உரை | \\n a");
    EXPECT_EQ(shapeOf("உரை கூட்டு அகலம்"), "(உரை கூட்டு அகலம்)");
    EXPECT_EQ(shapeOf("உரை.a[0]"), "உரை.a[0]");
}

TEST(Primary, LookForAWidgetPassesLineEndsAlone) {
    const std::vector<Token> over = row({{TokenType::TEXT, "உரை"},
                                         {TokenType::INDENT, "4"},
                                         {TokenType::LEFT_PAREN, "("},
                                         {TokenType::RIGHT_PAREN, ")"}});
    EXPECT_EQ(treeOf(over), "name உரை\n");
    EXPECT_TRUE(refused("அ = உரை\n    (1)\n", "பொழில்-111", 2));
    EXPECT_TRUE(accepted("அ = உரை\n(1)\n"));
}

TEST(Primary, WidgetKnownByTextAloneIsACall) {
    EXPECT_EQ(shapeOf("மடிப்பு(1)"), "மடிப்பு(1)");
    EXPECT_EQ(treeOf("மடிப்பு"), "name மடிப்பு @1\n");
}

TEST(Primary, PlainWordComesBeforeTheWidgetWords) {
    for (const char* word : {"உரை", "பெட்டி", "அட்டை", "தேடுபொறி", "உள்_இவெ", "மடிப்பு"}) {
        const auto tokens = row({{TokenType::IDENTIFIER, word},
                                 {TokenType::LEFT_PAREN, "("},
                                 {TokenType::RIGHT_PAREN, ")"}});
        ASSERT_TRUE(isWidgetToken(tokens[0])) << word;
        EXPECT_EQ(shapeOf(tokens), std::string(word) + "()");
    }
}

TEST(Primary, GroupTakesTheLineOfItsParenthesis) {
    EXPECT_EQ(treeOf("((a))"), "group @1\n  group @2\n    name a @3\n");
    EXPECT_EQ(shapeOf("(a = 1)"), "group((a = 1))");
}

TEST(Primary, GroupLeftOpenIsRefusedAtItsParenthesis) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a b)"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a, b)"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a\n)"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "(a]"));
    EXPECT_TRUE(refusedAt(1, "பொழில்-204", "((a)"));
}

TEST(Primary, GroupHoldsAnExpression) {
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "()"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "(\na)"));
    EXPECT_TRUE(refusedAt(2, "பொழில்-201", "("));
}

/// Kinds with a row of their own, but for those that take more than their token.
std::set<TokenType> kindsThatStandAlone() {
    std::set<TokenType> kinds = {
        TokenType::KEYWORD,   TokenType::IDENTIFIER,  TokenType::NUMBER,     TokenType::STRING,
        TokenType::CHARACTER, TokenType::BOOLEAN,     TokenType::PERCENTAGE, TokenType::NAVIGATE,
        TokenType::PAGE,      TokenType::DEFINITIONS, TokenType::HEADER,     TokenType::BODY,
        TokenType::STYLE,     TokenType::ON_PRESS,    TokenType::WIDTH,      TokenType::HEIGHT,
    };
    for (int value = 0; value < kKinds; value++) {
        const auto kind = static_cast<TokenType>(value);
        if (isWidgetToken({kind, "w", 1})) kinds.insert(kind);
    }
    return kinds;
}

TEST(Primary, EveryOtherKindIsRefusedAtItself) {
    const std::set<TokenType> alone = kindsThatStandAlone();
    const std::set<TokenType> opening = {
        TokenType::LEFT_PAREN,  TokenType::LEFT_BRACKET, TokenType::LEFT_BRACE,
        TokenType::BIT_NOT,     TokenType::UNARY_PLUS,   TokenType::UNARY_MINUS,
        TokenType::RTDB_INSERT, TokenType::RTDB_UPDATE,  TokenType::RTDB_DELETE,
    };
    int refusals = 0;
    for (int value = 0; value < kKinds; value++) {
        const auto kind = static_cast<TokenType>(value);
        if (opening.count(kind) != 0) continue;
        const auto tokens =
            row({{TokenType::IDENTIFIER, "a"}, {TokenType::EQUALS, "="}, {kind, "w"}});
        if (alone.count(kind) != 0) {
            EXPECT_NO_THROW(shapeOf(tokens)) << kTokenNames[value];
        } else {
            EXPECT_TRUE(refusedAt(3, "பொழில்-201", tokens)) << kTokenNames[value];
            refusals++;
        }
    }
    EXPECT_EQ(refusals, 145 - 9 - static_cast<int>(alone.size()));
}

TEST(Primary, PropertyWordsAreRefused) {
    for (const char* word : {"நிறம்", "பின்னணி", "பெட்டிபின்னணி", "அடிப்பகுதிதேர்வு", "தலைப்பு", "வளைவு",
                             "காலம்", "நிலைமை", "ரகசிய", "புதுப்பி", "வலைதளம்", "நிகழ்நேர.தரவுபடி"}) {
        EXPECT_TRUE(refusedAt(1, "பொழில்-201", word)) << word;
    }
}

TEST(Primary, EndOfTextIsRefused) {
    EXPECT_TRUE(refusedAt(1, "பொழில்-201", ""));
    EXPECT_TRUE(refusedAt(1, "பொழில்-201", ";a"));
}

}  // namespace
