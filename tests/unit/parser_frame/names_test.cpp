// What a token may stand for: a widget, a variable's name.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "parser/token_predicates.h"
#include "support/front_end.h"
#include "support/token_names.h"

namespace {

const std::set<TokenType> kWidgets = {
    TokenType::TEXT,        TokenType::BUTTON,     TokenType::CHECK_BOX,   TokenType::TOGGLE,
    TokenType::RADIO,       TokenType::SLIDER,     TokenType::UNDERLINE,   TokenType::IMAGE,
    TokenType::COLUMN,      TokenType::ROW,        TokenType::BOX,         TokenType::BOTTOM_BAR,
    TokenType::BOTTOM_ITEM, TokenType::ALERT,      TokenType::ROUND_IMAGE, TokenType::TEXT_FIELD,
    TokenType::TAB_BAR,     TokenType::TAB_ITEM,   TokenType::EXPANDED,    TokenType::FLEXIBLE,
    TokenType::EMPTY_SPACE, TokenType::LIST_VIEW,  TokenType::GRID_VIEW,   TokenType::STACK,
    TokenType::RESERVED_28, TokenType::PADDING,    TokenType::SPACING,     TokenType::TEXT_BUTTON,
    TokenType::BOX_STYLE,   TokenType::NOTICE_BAR, TokenType::CARD,        TokenType::CARD_STYLE,
    TokenType::LIST_ITEM,   TokenType::SEARCH_BAR,
};

const std::set<std::string> kWidgetNames = {
    "பெட்டி",          "மடிப்பு",        "விரிவாக்கம்",    "நெகிழ்வு",    "அட்டை",
    "அட்டை_பாணி",      "வெற்றிடம்",       "பட்டியல்_காட்சி", "கட்டம்_காட்சி", "தேடுபொறி",
    "பட்டியல்_உருப்படி", "உரைபொத்தான்",     "உரை",          "உள்_இவெ",     "உள்_இவே",
    "பெட்டி_பாணி",     "அறிவிப்பு_பட்டை", "தேடல்_பட்டை",    "தேடல்_பாணி",
};

const std::set<TokenType> kNames = {
    TokenType::IDENTIFIER, TokenType::KEYWORD, TokenType::PAGE,     TokenType::WIDTH,
    TokenType::HEIGHT,     TokenType::STYLE,   TokenType::ON_PRESS, TokenType::BACKGROUND,
};

Token of(int kind, const std::string& text) { return {static_cast<TokenType>(kind), text, 1}; }

TEST(WidgetToken, IsKnownByItsKind) {
    ASSERT_EQ(kWidgets.size(), 34U);
    for (int kind = 0; kind <= 144; kind++) {
        const bool expected = kWidgets.count(static_cast<TokenType>(kind)) > 0;
        EXPECT_EQ(isWidgetToken(of(kind, "abc")), expected) << kTokenNames[kind];
    }
}

TEST(WidgetToken, IsKnownByItsTextOnlyAsAnIdentifier) {
    ASSERT_EQ(kWidgetNames.size(), 19U);
    for (const std::string& name : kWidgetNames) {
        for (int kind = 0; kind <= 144; kind++) {
            const bool expected = kind == 1 || kWidgets.count(static_cast<TokenType>(kind)) > 0;
            EXPECT_EQ(isWidgetToken(of(kind, name)), expected) << kTokenNames[kind] << name;
        }
    }
}

TEST(WidgetToken, IsNoOtherWord) {
    for (const char* name : {"", "பொத்தான்", "படம்", "நெடுவரிசை", "பெட்டி ", "மடிப்ப"}) {
        EXPECT_FALSE(isWidgetToken(of(1, name))) << name;
    }
}

TEST(WidgetToken, ComesFromTheScannerByKindButForOneWord) {
    for (const std::string& name : kWidgetNames) {
        const Token token = scan(name)[0];
        EXPECT_EQ(token.type == TokenType::IDENTIFIER, name == "மடிப்பு") << name;
        EXPECT_EQ(isWidgetToken(token), name != "தேடல்_பாணி") << name;
    }
}

TEST(VariableName, IsKnownByItsKind) {
    for (int kind = 0; kind <= 144; kind++) {
        const auto type = static_cast<TokenType>(kind);
        const bool expected = kNames.count(type) > 0 || kWidgets.count(type) > 0;
        EXPECT_EQ(isValidVariableName(of(kind, "abc")), expected) << kTokenNames[kind];
    }
}

TEST(VariableName, MayBeAnyKeyword) {
    for (const char* name : {"அச்சிடு", "சுற்று", "எனில்", "இல்", "செயல்", "மூலம்"}) {
        EXPECT_TRUE(isValidVariableName(scan(name)[0])) << name;
    }
}

TEST(VariableName, MayBeAnyWidgetWord) {
    for (const std::string& name : kWidgetNames) {
        EXPECT_TRUE(isValidVariableName(of(1, name))) << name;
    }
}

}  // namespace
