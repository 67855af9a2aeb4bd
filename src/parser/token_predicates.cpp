#include "parser/token_predicates.h"

#include <array>
#include <string>

#include "lexer/holds.h"

namespace {

constexpr TokenType kWidgetKinds[] = {
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

/// Plain words that are widgets. Only `மடிப்பு` gets here: the scanner gives the others a kind.
const char* const kWidgetWords[] = {
    "பெட்டி",          "மடிப்பு",        "விரிவாக்கம்",    "நெகிழ்வு",    "அட்டை",
    "அட்டை_பாணி",      "வெற்றிடம்",       "பட்டியல்_காட்சி", "கட்டம்_காட்சி", "தேடுபொறி",
    "பட்டியல்_உருப்படி", "உரைபொத்தான்",     "உரை",          "உள்_இவெ",     "உள்_இவே",
    "பெட்டி_பாணி",     "அறிவிப்பு_பட்டை", "தேடல்_பட்டை",    "தேடல்_பாணி",
};

constexpr TokenType kNameKinds[] = {
    TokenType::IDENTIFIER, TokenType::KEYWORD, TokenType::PAGE,     TokenType::WIDTH,
    TokenType::HEIGHT,     TokenType::STYLE,   TokenType::ON_PRESS, TokenType::BACKGROUND,
};

constexpr auto kKindCount = static_cast<std::size_t>(TokenType::END_OF_FILE) + 1;

/// For each kind, whether `kinds` holds it.
template <std::size_t Count>
constexpr std::array<bool, kKindCount> marked(const TokenType (&kinds)[Count]) {
    std::array<bool, kKindCount> marks{};
    for (const TokenType kind : kinds) marks[static_cast<std::size_t>(kind)] = true;
    return marks;
}

constexpr auto kAreWidgets = marked(kWidgetKinds);
constexpr auto kAreNames = marked(kNameKinds);

}  // namespace

bool isWidgetToken(const Token& token) {
    if (token.type == TokenType::IDENTIFIER) return holds(kWidgetWords, token.text);
    return kAreWidgets[static_cast<std::size_t>(token.type)];
}

bool isValidVariableName(const Token& token) {
    return kAreNames[static_cast<std::size_t>(token.type)] || isWidgetToken(token);
}
