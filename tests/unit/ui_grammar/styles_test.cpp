// Alignment, text style and style blocks: every word, every kind of value.
#include <gtest/gtest.h>

#include <algorithm>

#include "unit/parser_frame/handmade.h"
#include "unit/ui_grammar/widget_sources.h"

namespace {

const char* const kAlignments[] = {"மேல்_இடது", "மேல்_மையம்", "மேல்_வலது", "மைய_இடது", "மையம்",
                                   "மைய_வலது", "கீழ்_இடது",  "கீழ்_மையம்",  "கீழ்_வலது"};

int alignmentOf(const std::string& source) {
    return static_cast<int>(WidgetSource(source).node().alignment);
}

std::string alignedTo(const std::string& word) { return "சீரமைப்பு: " + word; }

TEST(Alignment, HasNineWordsInOrder) {
    int value = 0;
    for (const std::string word : kAlignments) {
        EXPECT_EQ(alignmentOf("உரை(" + alignedTo(word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("உரை(" + alignedTo("இடம்." + word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("நெடுவரிசை(" + alignedTo(word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("கிடைவரிசை(" + alignedTo(word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("அடுக்கி(" + alignedTo(word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("பெட்டி(" + alignedTo(word) + ")()"), value) << word;
        EXPECT_EQ(alignmentOf("அட்டை(" + alignedTo(word) + ")"), value) << word;
        EXPECT_EQ(alignmentOf("எச்சரிக்கை(" + alignedTo(word) + ")"), value) << word;
        value++;
    }
}

TEST(Alignment, KeepsItsValueBehindAnythingElse) {
    const char* const others[] = {"\"மையம்\"", "4", "நடு", "மையம்()", "[மையம்]", "(மையம்)", "மெய்"};
    for (const std::string other : others) {
        EXPECT_EQ(alignmentOf("உரை(" + alignedTo(other) + ")"), 0) << other;
        EXPECT_EQ(alignmentOf("எச்சரிக்கை(" + alignedTo(other) + ")"), 4) << other;
        EXPECT_EQ(alignmentOf("உரை(" + alignedTo("மையம்") + ", " + alignedTo(other) + ")"), 4)
            << other;
    }
}

TEST(Alignment, IsDropped) {
    EXPECT_EQ(WidgetSource("உரை(சீரமைப்பு: மையம், \"அ\")").keys(), "உரை");
    EXPECT_EQ(WidgetSource("நெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 5)").keys(), "இடைவெளி");
}

TEST(Alignment, OfAMemberOfAnEnumerationIsANumber) {
    const Parsed parsed =
        parse("செயல் f():\n    வகை இடம்:\n        மையம்\n    உரை(சீரமைப்பு: இடம்.மையம்)\n");
    const auto& function =
        dynamic_cast<const FunctionDefinitionStatement&>(*parsed.program.statements.at(0));
    const auto& text = dynamic_cast<const WidgetNode&>(*function.body->statements.at(0));
    EXPECT_EQ(static_cast<int>(text.alignment), 0);
}

TEST(Alignment, MayBeWrittenAsAKeyword) {
    Parser parser = parserOver(
        scanAs(TokenType::KEYWORD, {"சீரமைப்பு"}, "நெடுவரிசை(சீரமைப்பு: மையம்)(உரை(சீரமைப்பு: கீழ்_வலது))"));
    const auto widget = parser.parseWidget();
    const auto& column = dynamic_cast<const ColumnNode&>(*widget);
    EXPECT_EQ(static_cast<int>(column.alignment), 4);
    EXPECT_EQ(static_cast<int>(dynamic_cast<WidgetNode&>(*column.children.at(0)).alignment), 8);
}

TEST(TextStyleWord, MayBeAPlainWordOrAKeyword) {
    for (const TokenType kind : {TokenType::IDENTIFIER, TokenType::KEYWORD}) {
        Parser parser = parserOver(scanAs(kind, {"உரைபாணி"}, "உரை(உரைபாணி(அளவு: 20))"));
        const auto widget = parser.parseWidget();
        EXPECT_EQ(dynamic_cast<const WidgetNode&>(*widget).textStyle.fontSize, 20.0F);
    }
}

TextStyle styleOf(const std::string& entry) {
    return WidgetSource("உரை(உரைபாணி(" + entry + "))").node().textStyle;
}

TEST(TextStyleEntry, Colour) {
    EXPECT_EQ(styleOf("நிறம்: \"சிவப்பு\"").color, "சிவப்பு");
    EXPECT_EQ(styleOf("நிறம்: சிவப்பு").color, "சிவப்பு");
    EXPECT_EQ(styleOf("நிறம்: \"#FF0000\"").color, "#FF0000");
    EXPECT_EQ(styleOf("நிறம்: வண்ணம்.சிவப்பு").color, "#000000");
    EXPECT_EQ(styleOf("நிறம்: 5").color, "#000000");
}

TEST(TextStyleEntry, Size) {
    EXPECT_EQ(styleOf("அளவு: 20").fontSize, 20.0F);
    EXPECT_EQ(styleOf("அளவு: 20.5").fontSize, 20.5F);
    EXPECT_EQ(styleOf("அளவு: 20.").fontSize, 20.0F);
    EXPECT_EQ(styleOf("அளவு: \"20\"").fontSize, 16.0F);
    EXPECT_EQ(styleOf("அளவு: 50%").fontSize, 16.0F);
    EXPECT_EQ(styleOf("அளவு: கழி 5").fontSize, 16.0F);
    EXPECT_EQ(styleOf("உயரம்: 20").fontSize, 16.0F);
}

TEST(TextStyleEntry, Weight) {
    EXPECT_EQ(styleOf("தடிமன்: \"தடிமனான\"").fontWeight, "700");
    EXPECT_EQ(styleOf("தடிமன்: \"bold\"").fontWeight, "700");
    EXPECT_EQ(styleOf("தடிமன்: \"Bold\"").fontWeight, "400");
    EXPECT_EQ(styleOf("தடிமன்: \"900\"").fontWeight, "400");
    EXPECT_EQ(styleOf("தடிமன்: 900").fontWeight, "900");
    EXPECT_EQ(styleOf("தடிமன்: 1.5").fontWeight, "normal");
    EXPECT_EQ(styleOf("தடிமன்: bold").fontWeight, "normal");
}

TEST(TextStyleEntry, Align) {
    EXPECT_EQ(styleOf("சீரமைப்பு: \"center\"").textAlign, "center");
    EXPECT_EQ(styleOf("சீரமைப்பு: \"\"").textAlign, "");
    EXPECT_EQ(styleOf("சீரமைப்பு: மையம்").textAlign, "மையம்");
    EXPECT_EQ(styleOf("சீரமைப்பு: இடம்.வலது").textAlign, "வலது");
    EXPECT_EQ(styleOf("உரைசீரமைப்பு: மையம்").textAlign, "மையம்");
    EXPECT_EQ(styleOf("சீரமைப்பு: 5").textAlign, "left");
}

TEST(TextStyleEntry, Family) {
    EXPECT_EQ(styleOf("எழுத்துரு: \"அ.ttf\"").fontFamily, "அ.ttf");
    EXPECT_EQ(styleOf("எழுத்துரு: அழகு").fontFamily, "");
}

TEST(TextStyleEntry, Underline) {
    EXPECT_TRUE(styleOf("அடிக்குறிப்பு: மெய்").underline);
    EXPECT_FALSE(styleOf("அடிக்குறிப்பு: பொய்").underline);
    EXPECT_FALSE(styleOf("அடிக்குறிப்பு: மெய், அடிக்குறிப்பு: பொய்").underline);
    EXPECT_FALSE(styleOf("அடிக்குறிப்பு: 1").underline);
}

TEST(TextStyleEntry, OfABoxGoesToTheProperties) {
    for (const std::string key : {"அகலம்", "உயரம்", "வளைவு", "பின்னணி", "நிழல்"}) {
        const WidgetSource source("உரை(உரைபாணி(" + key + ": அ(1)))");
        EXPECT_EQ(source.keys(), "style_" + key);
    }
}

TEST(TextStyleEntry, OfAnotherWordIsIgnored) {
    for (const std::string key : {"மொழி", "style_அகலம்", "5", "பாணி", "style"}) {
        const WidgetSource source("உரை(உரைபாணி(" + key + ": அ(1)))");
        EXPECT_EQ(source.keys(), "") << key;
        EXPECT_EQ(source.node().textStyle.color, "#000000");
    }
}

/// A SOURCE comes from the scanner for `எழுத்துரு` alone; a `மூலம்` made one is an unknown key.
TEST(TextStyleEntry, MayBeAnyWordOfItsKinds) {
    const TokenType kinds[] = {TokenType::IDENTIFIER, TokenType::STYLE,        TokenType::NUMBER,
                               TokenType::BACKGROUND, TokenType::HEIGHT,       TokenType::SOURCE,
                               TokenType::WIDTH,      TokenType::CORNER_CURVE, TokenType::SHADOW};
    int accepted = 0;
    for (int kind = 0; kind < 144; kind++) {
        const auto type = static_cast<TokenType>(kind);
        if (type == TokenType::RIGHT_PAREN || type == TokenType::NEWLINE ||
            type == TokenType::INDENT || type == TokenType::DEDENT) {
            continue;  // these aren't taken for an item
        }
        Parser parser = parserOver(scanAs(type, {"abc"}, "உரை(பாணி(abc: 5))"));
        const bool isKey = std::find(std::begin(kinds), std::end(kinds), type) != std::end(kinds);
        if (isKey) {
            EXPECT_NE(parser.parseWidget(), nullptr) << kind;
            accepted++;
        } else {
            EXPECT_TRUE(refuses("பொழில்-252", 1, [&] { parser.parseWidget(); })) << kind;
        }
    }
    EXPECT_EQ(accepted, 9);
}

TEST(StyleBlock, OfAButtonKnowsNineWords) {
    const std::pair<const char*, const char*> rows[] = {
        {"பொபின்னணி", "style_பின்னணி"},
        {"எழுத்து_நிறம்", "style_எழுத்து_நிறம்"},
        {"வளைவு", "style_வளைவு"},
        {"நிழல்", "style_நிழல்"},
        {"அகலம்", "style_அகலம்"},
        {"உயரம்", "style_உயரம்"},
        {"மேம்படுத்தப்பட்ட_நிறம்", "style_மேம்படுத்தப்பட்ட_நிறம்"},
        {"கரை_நிறம்", "style_கரை_நிறம்"},
        {"கரை_அளவு", "style_கரை_அளவு"},
    };
    for (const auto& [word, key] : rows) {
        const std::string source = "பொத்தான்(பொ_பாணி(" + std::string(word);
        EXPECT_EQ(WidgetSource(source + ": 5))").keys(), key);
        EXPECT_EQ(refusalOf(source + " 5))"), "பொழில்-202") << word;
    }
    for (const char* word : {"நிறம்", "பின்னணி", "அளவு", "மொழி", "\"வளைவு\"", "எழுத்தளவு"}) {
        const std::string source = "பொத்தான்(பொ_பாணி(" + std::string(word);
        EXPECT_EQ(WidgetSource(source + ": 5))").keys(), "") << word;
        EXPECT_EQ(WidgetSource(source + "))").keys(), "") << word;
    }
}

struct BlockRow {
    const char* opening;
    TokenType kinds[7];  ///< Filled up with UNKNOWN.
};
const BlockRow kBlocks[] = {
    {"உரை(தேடல்_பாணி(",
     {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::FIELD_BACKGROUND,
      TokenType::FONT_SIZE, TokenType::CORNER_CURVE, TokenType::UNKNOWN}},
    {"உரை(எச்சரிக்கை_பாணி(",
     {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND,
      TokenType::CORNER_CURVE, TokenType::SHADOW, TokenType::UNKNOWN}},
    {"அட்டை(அட்டை_பாணி(",
     {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::ELEVATION,
      TokenType::BACKGROUND, TokenType::CORNER_CURVE, TokenType::SHADOW}},
    {"எச்சரிக்கை(எச்சரிக்கை_பாணி(",
     {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND,
      TokenType::UNKNOWN, TokenType::UNKNOWN, TokenType::UNKNOWN}},
};

TEST(StyleBlock, StoresItsKindsOfKeysWithAPrefix) {
    for (const BlockRow& row : kBlocks) {
        SCOPED_TRACE(row.opening);
        for (int kind = 0; kind < 144; kind++) {
            const auto type = static_cast<TokenType>(kind);
            if (type == TokenType::RIGHT_PAREN || type == TokenType::NEWLINE ||
                type == TokenType::INDENT || type == TokenType::DEDENT ||
                type == TokenType::UNKNOWN) {
                continue;
            }
            Parser parser =
                parserOver(scanAs(type, {"abc"}, row.opening + std::string("abc: 5))")));
            const auto widget = parser.parseWidget();
            const auto& node = dynamic_cast<const WidgetNode&>(*widget);
            const bool isKey =
                std::find(std::begin(row.kinds), std::end(row.kinds), type) != std::end(row.kinds);
            EXPECT_EQ(node.properties.count("style_abc"), isKey ? 1U : 0U) << kind;
            EXPECT_EQ(node.properties.size(), isKey ? 1U : 0U) << kind;
        }
    }
}

TEST(StyleBlock, PassesOverAKeyWithoutColon) {
    for (const BlockRow& row : kBlocks) {
        EXPECT_EQ(WidgetSource(row.opening + std::string("மொழி, அகலம் 5, உயரம்: 6))")).keys(),
                  "style_உயரம்");
    }
}

/// The first step takes the word as a child, so this step is met by no source.
TEST(StyleBlock, OfABoxIsAChild) {
    const WidgetSource source("பெட்டி(பெட்டி_பாணி(அகலம்: 5))");
    EXPECT_EQ(source.keys(), "");
    EXPECT_EQ(source.child().name, "பெட்டி_பாணி");
}

TEST(StyleBlock, OfATextButtonTakesAnyWord) {
    for (const std::string word : {"நிறம்", "அளவு", "\"அ\"", "5", "எனில்", "=>", "பாணி"}) {
        const std::string key = word == "\"அ\"" ? "அ" : word;
        EXPECT_EQ(WidgetSource("உரைபொத்தான்(உரைபொ_பாணி(" + word + ": 5))").keys(), "style_" + key);
        EXPECT_EQ(WidgetSource("உரைபொத்தான்(பாணி(" + word + "))").keys(), "") << word;
    }
    EXPECT_EQ(refusalOf("உரைபொத்தான்(உரைபொ_பாணி(\"\": 5))"), "பொழில்-291");
}

}  // namespace
