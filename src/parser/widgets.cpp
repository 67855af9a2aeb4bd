// A widget: the dispatch by its word, the generic form that most widgets have, and card, list item
// and alert. The layout widgets stand in layout_widgets.cpp.
#include <algorithm>

#include "parser/parser.h"

namespace {

std::string withStylePrefix(const std::string& key) { return "style_" + key; }

}  // namespace

std::unique_ptr<Statement> Parser::parseWidget() {
    const Nesting level(*this);
    const int deepestOutside = deepestPart;
    deepestPart = 0;
    const int first = current;
    auto widget = noted(first, parseWidgetByWord());
    // What the widget holds counts for the depth of an expression that the widget stands in.
    deepen(deepestPart, 0);
    deepestPart = std::max(deepestOutside, expressionDepth);
    return widget;
}

/// The first row whose word stands there decides; any other word is the name of a generic widget.
std::unique_ptr<Statement> Parser::parseWidgetByWord() {
    struct Row {
        TokenType kind;
        const char* word;
        std::unique_ptr<Statement> (Parser::*rule)(int line);
    };
    static const Row rows[] = {
        {TokenType::IDENTIFIER, "மடிப்பு", &Parser::parseWrap},
        {TokenType::EXPANDED, "விரிவாக்கம்", &Parser::parseExpanded},
        {TokenType::FLEXIBLE, "நெகிழ்வு", &Parser::parseFlexible},
        {TokenType::SHARE, "பங்கு", &Parser::parseFlexible},
        {TokenType::EMPTY_SPACE, "வெற்றிடம்", &Parser::parseSpacer},
        {TokenType::LIST_VIEW, "பட்டியல்_காட்சி", &Parser::parseListView},
        {TokenType::GRID_VIEW, "கட்டம்_காட்சி", &Parser::parseGridView},
        {TokenType::BOX, "பெட்டி", &Parser::parseContainer},
        {TokenType::PADDING, "உள்_இவெ", &Parser::parsePadding},
        {TokenType::PADDING, "உள்_இவே", &Parser::parsePadding},
        {TokenType::COLUMN, "நெடுவரிசை", &Parser::parseColumn},
        {TokenType::ROW, "கிடைவரிசை", &Parser::parseRow},
        {TokenType::STACK, "அடுக்கி", &Parser::parseStack},
        {TokenType::TEXT_BUTTON, "உரைபொத்தான்", &Parser::parseTextButton},
        {TokenType::NOTICE_BAR, "அறிவிப்பு_பட்டை", &Parser::parseSnackBar},
        {TokenType::CARD, "அட்டை", &Parser::parseCard},
        {TokenType::LIST_ITEM, "பட்டியல்_உருப்படி", &Parser::parseListItem},
        {TokenType::ALERT, "எச்சரிக்கை", &Parser::parseAlert},
    };
    for (const Row& row : rows) {
        const bool isPlainWord = check(TokenType::IDENTIFIER) && peek().text == row.word;
        if (isPlainWord || (row.kind != TokenType::IDENTIFIER && check(row.kind))) {
            const int line = advance().line;
            return (this->*row.rule)(line);
        }
    }
    return parseGenericWidget();
}

/// widget = word "(" { item } ")"
std::unique_ptr<Statement> Parser::parseGenericWidget() {
    const Token name = advance();
    skipNewlines();
    openParenthesis();
    WidgetParts parts;
    int positional = 0;
    bracketLoop(name.line, [&] { parseGenericItem(parts, positional); });

    auto node = std::make_unique<WidgetNode>(name.text, PropertyMap(), std::move(parts.children),
                                             parts.alignment);
    node->line = name.line;
    return finishWidget(std::move(node), std::move(parts));
}

/// item = "," | text-style | button-style | style-block | animation-item | press | alignment
///      | property | child | positional
void Parser::parseGenericItem(WidgetParts& parts, int& positional) {
    static const Kinds searchStyleKeys = {TokenType::IDENTIFIER, TokenType::WIDTH,
                                          TokenType::HEIGHT,     TokenType::FIELD_BACKGROUND,
                                          TokenType::FONT_SIZE,  TokenType::CORNER_CURVE};
    static const Kinds alertStyleKeys = {TokenType::IDENTIFIER,   TokenType::WIDTH,
                                         TokenType::HEIGHT,       TokenType::BACKGROUND,
                                         TokenType::CORNER_CURVE, TokenType::SHADOW};
    static const Kinds propertyKeys = {TokenType::IDENTIFIER,
                                       TokenType::TITLE,
                                       TokenType::ON_PRESS,
                                       TokenType::TEXT,
                                       TokenType::HEIGHT,
                                       TokenType::WIDTH,
                                       TokenType::HINT,
                                       TokenType::TAB_SELECTION,
                                       TokenType::BOTTOM_SELECTION,
                                       TokenType::BACKGROUND,
                                       TokenType::BOX_BACKGROUND,
                                       TokenType::SELECTED_COLOUR,
                                       TokenType::UNSELECTED_COLOUR,
                                       TokenType::CORNER_CURVE,
                                       TokenType::SHADOW,
                                       TokenType::ASPECT_RATIO,
                                       TokenType::BORDER_SIZE,
                                       TokenType::BORDER_COLOUR,
                                       TokenType::PAGE,
                                       TokenType::TEXT_COLOUR,
                                       TokenType::SEARCH_HINT,
                                       TokenType::SEARCH_IMAGE,
                                       TokenType::CLEAR_IMAGE,
                                       TokenType::FIELD_BACKGROUND,
                                       TokenType::FONT_SIZE};
    static const Kinds furtherChildren = {TokenType::HEADER, TokenType::BODY, TokenType::PAGE};

    if (takeComma() || parseTextStyleItem(parts) || parseButtonStyleItem(parts) ||
        parseStyleItem(parts, TokenType::SEARCH_STYLE, "தேடல்_பாணி", searchStyleKeys,
                       withStylePrefix) ||
        parseStyleItem(parts, TokenType::ALERT_STYLE, "எச்சரிக்கை_பாணி", alertStyleKeys,
                       withStylePrefix) ||
        parseAnimationItem(parts.animation) || parsePressItem(parts, PressForm::Statements) ||
        parseAlignmentItem(parts) || parsePropertyItem(parts.properties, propertyKeys)) {
        return;
    }
    if (check(TokenType::IDENTIFIER) && peek().text == "அடையாளம்") {
        advance();
        expectColon();  // it isn't there, or this were a property
    }
    if (parseChildItem(parts, furtherChildren)) return;
    parsePositionalItem(parts, positional);
}

/// The first value is the text, the others are arg1, arg2 and so on. Where the parser itself fails
/// with an exception (a number that it can't convert, say) one token is passed over.
void Parser::parsePositionalItem(WidgetParts& parts, int& positional) {
    const int deepestBefore = deepestPart;
    const int functionDepthBefore = functionDepth;
    const std::size_t structsBefore = structLog.size();
    const std::size_t abstractStructsBefore = abstractStructLog.size();
    try {
        auto value = parseExpression();
        const std::string key = positional == 0 ? "உரை" : "arg" + std::to_string(positional);
        setProperty(parts.properties, key, std::move(value));
        positional++;
    } catch (const std::exception&) {
        deepestPart = std::max(deepestPart, deepestBefore);
        functionDepth = functionDepthBefore;
        structLog.takeBackTo(structsBefore);
        abstractStructLog.takeBackTo(abstractStructsBefore);
        if (!is_at_end()) advance();
    }
}

/// card = "அட்டை" "(" { card-style | alignment | property | child } ")"
std::unique_ptr<Statement> Parser::parseCard(int line) {
    static const Kinds styleKeys = {
        TokenType::IDENTIFIER, TokenType::WIDTH,        TokenType::HEIGHT, TokenType::ELEVATION,
        TokenType::BACKGROUND, TokenType::CORNER_CURVE, TokenType::SHADOW};
    skipNewlines();
    openParenthesis();
    WidgetParts parts;
    bracketLoop(line, [&] {
        if (parseStyleItem(parts, TokenType::CARD_STYLE, "அட்டை_பாணி", styleKeys, withStylePrefix) ||
            parseAlignmentItem(parts) ||
            parsePropertyItem(parts.properties, {TokenType::IDENTIFIER}) ||
            parseChildItem(parts, {TokenType::PAGE})) {
            return;
        }
        advance();
    });
    auto node = std::make_unique<WidgetNode>("அட்டை", PropertyMap(), std::move(parts.children),
                                             parts.alignment);
    node->line = line;
    return finishWidget(std::move(node), std::move(parts));
}

/// list-item = "பட்டியல்_உருப்படி" "(" { press | any-word ":" expression } ")"
/// It has no children: a widget in it is a property's value.
std::unique_ptr<Statement> Parser::parseListItem(int line) {
    const std::string name = tokenAt(current - 1).text;
    skipNewlines();
    openParenthesis();
    WidgetParts parts;
    bracketLoop(line, [&] {
        if (parsePressItem(parts, PressForm::KeywordStatements)) return;
        const Token key = advance();
        if (check(TokenType::COLON)) parseValueOf(parts.properties, key.text);
    });
    auto node = std::make_unique<WidgetNode>(name, PropertyMap(), WidgetList(), parts.alignment);
    node->line = line;
    return finishWidget(std::move(node), std::move(parts));
}

/// alert = "எச்சரிக்கை" "(" { alert-item } ")" [ "(" { alert-item } ")" ]
std::unique_ptr<Statement> Parser::parseAlert(int line) {
    skipNewlines();
    openParenthesis();
    WidgetParts parts;
    parts.alignment = சீரமைப்பு_வகை::மையம்;
    bracketLoop(line, [&] { parseAlertItem(parts); });
    skipBetweenGroups();
    if (check(TokenType::LEFT_PAREN)) {
        advance();
        bracketLoop(line, [&] { parseAlertItem(parts); });
    }
    auto node = std::make_unique<WidgetNode>("எச்சரிக்கை", PropertyMap(), std::move(parts.children),
                                             parts.alignment);
    node->line = line;
    return finishWidget(std::move(node), std::move(parts));
}

void Parser::parseAlertItem(WidgetParts& parts) {
    static const Kinds styleKeys = {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT,
                                    TokenType::BACKGROUND};
    if (parseAlignmentItem(parts) ||
        parseStyleItem(parts, TokenType::ALERT_STYLE, "எச்சரிக்கை_பாணி", styleKeys,
                       withStylePrefix) ||
        parsePropertyItem(parts.properties, {TokenType::IDENTIFIER}) || parseChildItem(parts, {})) {
        return;
    }
    advance();
}
