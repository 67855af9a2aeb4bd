// The layout widgets. Columns, rows, stacks, wraps and lists share one shape: a group of children,
// or a group of properties and, if wanted, one of children behind it. A grid always has both; the
// others take everything in one group. Every missing parenthesis is told at the widget's word.
#include <utility>

#include "number_text.h"
#include "parser/parser.h"
#include "parser/token_predicates.h"

namespace {

std::string boxStyleKey(const std::string& key) { return key == "பெட்டிபின்னணி" ? "பின்னணி" : key; }

}  // namespace

// ---- Children, or properties and children ----

std::unique_ptr<Statement> Parser::parseColumn(int line) {
    WidgetParts parts = parseGroups(line, kLikeColumn);
    auto node = std::make_unique<ColumnNode>(std::move(parts.children), parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

std::unique_ptr<Statement> Parser::parseRow(int line) {
    WidgetParts parts = parseGroups(line, kLikeColumn);
    auto node = std::make_unique<RowNode>(std::move(parts.children), parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

std::unique_ptr<Statement> Parser::parseStack(int line) {
    WidgetParts parts = parseGroups(line, kLikeColumn);
    auto node = std::make_unique<WidgetNode>("அடுக்கி", PropertyMap(), std::move(parts.children),
                                             parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

std::unique_ptr<Statement> Parser::parseWrap(int line) {
    WidgetParts parts = parseGroups(line, kLikeColumn);
    auto node = std::make_unique<WidgetNode>("மடிப்பு", PropertyMap(), std::move(parts.children),
                                             parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

/// A list has no alignment, and takes a section word for a child.
std::unique_ptr<Statement> Parser::parseListView(int line) {
    WidgetParts parts = parseGroups(line, {/*hasAlignment=*/false, /*refusesSections=*/false});
    auto node = std::make_unique<ListViewNode>(std::move(parts.children));
    return finishWidget(std::move(node), std::move(parts));
}

/// groups = "(" children ")" | "(" properties ")" [ "(" children ")" ]
WidgetParts Parser::parseGroups(int line, const GroupRules& rules) {
    WidgetParts parts;
    skipNewlines();
    openParenthesis(line);
    if (!opensPropertyGroup(rules)) {
        parseChildGroup(parts, line, rules);
        return parts;
    }
    parsePropertyGroup(parts, line, rules);
    skipBetweenGroups();
    if (check(TokenType::LEFT_PAREN)) {
        const int childLine = advance().line;
        parseChildGroup(parts, childLine, rules);
    }
    return parts;
}

/// Only what stands directly behind the parenthesis tells: behind a line break it is no property
/// group.
bool Parser::opensPropertyGroup(const GroupRules& rules) {
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::HEIGHT, TokenType::WIDTH};
    return (rules.hasAlignment && checkWord("சீரமைப்பு")) || check(TokenType::ANIMATION) ||
           checkWord("அசைவூட்டம்") || checkKey(keys);
}

/// properties = { alignment | animation-item | key ":" expression }
/// Raises 202 for a key without a colon; anything but a key is passed over, a child too.
void Parser::parsePropertyGroup(WidgetParts& parts, int line, const GroupRules& rules) {
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::HEIGHT, TokenType::WIDTH};
    bracketLoop(line, [&] {
        if (rules.hasAlignment && parseAlignmentItem(parts)) return;
        if (parseAnimationItem(parts.animation)) return;
        const bool isKey = checkAny(keys);
        const std::string key = advance().text;
        if (isKey) parseValueOf(parts.properties, key);
    });
}

/// children = { widget [ "," ] }
/// Any word is a widget. Raises 204 at the last child's line for a section word.
void Parser::parseChildGroup(WidgetParts& parts, int line, const GroupRules& rules) {
    int lastLine = line;
    bracketLoop(line, [&] {
        if (rules.refusesSections && checkSectionWord()) பிழை("பொழில்-204", lastLine);
        if (takeComma()) return;
        if (auto child = parseWidget()) {
            lastLine = child->line;  // 0 behind a layout widget, which carries no line
            parts.children.push_back(std::move(child));
        }
    });
}

void Parser::skipBetweenGroups() {
    skipNewlines();
    while (check(TokenType::INDENT) || check(TokenType::DEDENT)) advance();
}

// ---- Grid: properties and children, always both ----

/// grid = "(" { grid-item } ")" "(" children ")"
std::unique_ptr<Statement> Parser::parseGridView(int line) {
    WidgetParts parts;
    skipNewlines();
    openParenthesis(line);
    bracketLoop(line, [&] { parseGridItem(parts); });
    skipBetweenGroups();
    const int childLine = consume(TokenType::LEFT_PAREN, "பொழில்-203", line).line;
    parseChildGroup(parts, childLine, kLikeColumn);
    auto node = std::make_unique<GridViewNode>(std::move(parts.children));
    return finishWidget(std::move(node), std::move(parts));
}

/// Both spellings of the column count land under `cols`; width and height take English keys.
void Parser::parseGridItem(WidgetParts& parts) {
    if (parseAnimationItem(parts.animation)) return;
    const char* key = nullptr;
    if (check(TokenType::CROSS_AXIS_COUNT) || checkWord("cols")) {
        key = "cols";
    } else if (check(TokenType::SPACING)) {
        return parseGridGaps(parts);
    } else if (checkWord(TokenType::WIDTH, "அகலம்")) {
        key = "width";
    } else if (checkWord(TokenType::HEIGHT, "உயரம்")) {
        key = "height";
    }
    if (key == nullptr && parsePropertyItem(parts.properties, {TokenType::IDENTIFIER})) return;
    advance();
    if (key != nullptr) parseValueOf(parts.properties, key);
}

/// grid-gaps = "இவெ" "(" { ( "உயரம்" | "அகலம்" ) ":" expression } ")"
void Parser::parseGridGaps(WidgetParts& parts) {
    const int line = advance().line;
    openParenthesis();
    bracketLoop(line, [&] {
        const bool isHeight = checkWord(TokenType::HEIGHT, "உயரம்");
        const bool isWidth = checkWord(TokenType::WIDTH, "அகலம்");
        advance();
        if (isHeight) parseValueOf(parts.properties, "v_gap");
        if (isWidth) parseValueOf(parts.properties, "h_gap");
    });
}

// ---- Everything in one group ----

/// container = [ "(" alignment ")" ] "(" { container-item } ")"
/// An alignment has a group of its own, and only as the very first word.
std::unique_ptr<Statement> Parser::parseContainer(int line) {
    WidgetParts parts;
    skipNewlines();
    openParenthesis(line);
    if (parseAlignmentItem(parts)) {
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
        openParenthesis(line);
    }
    bracketLoop(line, [&] { parseContainerItem(parts); });
    auto node = std::make_unique<ContainerNode>(std::move(parts.children), parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

/// The word of a style block is a widget word too, so it makes a child and the block's own step
/// isn't reached. Meant: the child is what drawing reads.
void Parser::parseContainerItem(WidgetParts& parts) {
    static const Kinds styleKeys = {TokenType::IDENTIFIER,
                                    TokenType::WIDTH,
                                    TokenType::HEIGHT,
                                    TokenType::BOX_BACKGROUND,
                                    TokenType::BACKGROUND_IMAGE,
                                    TokenType::CORNER_CURVE,
                                    TokenType::SHADOW};
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT};
    if (parseChildItem(parts, {TokenType::PAGE}) ||
        parseStyleItem(parts, TokenType::BOX_STYLE, "பெட்டி_பாணி", styleKeys, boxStyleKey)) {
        return;
    }
    if (checkWord(TokenType::ASPECT_RATIO, "விகிதம்")) {
        advance();
        return parseValueOf(parts.properties, "ratio");
    }
    if (parseAnimationItem(parts.animation) ||
        parsePressItem(parts, PressForm::ExpressionInFreeLayout) ||
        parsePropertyItem(parts.properties, keys)) {
        return;
    }
    advance();
}

/// expanded = "(" { animation-item | share | property | child } ")"
std::unique_ptr<Statement> Parser::parseExpanded(int line) {
    WidgetParts parts;
    skipNewlines();
    openParenthesis(line);
    bracketLoop(line, [&] {
        if (parseAnimationItem(parts.animation) || parseShareItem(parts) ||
            parsePropertyItem(parts.properties, {TokenType::IDENTIFIER}) ||
            parseChildItem(parts, {TokenType::PAGE})) {
            return;
        }
        advance();
    });
    auto node = std::make_unique<ExpandedNode>(std::move(parts.children));
    return finishWidget(std::move(node), std::move(parts));
}

/// flexible = "(" { animation-item | flex | property | child } ")"
/// The share is the node's own field; all properties are dropped. Meant.
std::unique_ptr<Statement> Parser::parseFlexible(int line) {
    WidgetParts parts;
    int flex = 1;
    skipNewlines();
    openParenthesis(line);
    bracketLoop(line, [&] {
        if (parseAnimationItem(parts.animation) || parseFlexItem(flex) ||
            parsePropertyItem(parts.properties, {TokenType::IDENTIFIER}) ||
            parseChildItem(parts, {TokenType::PAGE})) {
            return;
        }
        advance();
    });
    drop(std::exchange(parts.properties, {}));
    auto node = std::make_unique<FlexibleNode>(flex, std::move(parts.children));
    return finishWidget(std::move(node), std::move(parts));
}

/// flex = ( "பங்கு" | "விகிதம்" ) ":" expression
/// Only a whole number changes the share.
bool Parser::parseFlexItem(int& flex) {
    if (!checkWord(TokenType::SHARE, "பங்கு") && !check(TokenType::ASPECT_RATIO)) return false;
    advance();
    auto value = parseValue();
    if (const auto* number = nodeAs<NumberLiteral>(value.get())) {
        flex = std::stoi(number->value);
    }
    drop(std::move(value));
    return true;
}

/// spacer = [ "(" { spacer-item } ")" ]
std::unique_ptr<Statement> Parser::parseSpacer(int line) {
    WidgetParts parts;
    skipNewlines();
    if (check(TokenType::LEFT_PAREN)) {
        advance();
        bracketLoop(line, [&] { parseSpacerItem(parts, line); });
    }
    auto node =
        std::make_unique<WidgetNode>("வெற்றிடம்", PropertyMap(), WidgetList(), parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

void Parser::parseSpacerItem(WidgetParts& parts, int line) {
    if (parseAnimationItem(parts.animation) || parseShareItem(parts)) return;
    if (checkSectionWord()) பிழை("பொழில்-204", line);
    const bool isHeight = checkWord(TokenType::HEIGHT, "உயரம்");
    const bool isWidth = checkWord(TokenType::WIDTH, "அகலம்");
    if (!isHeight && !isWidth && parsePropertyItem(parts.properties, {TokenType::IDENTIFIER})) {
        return;
    }
    advance();
    if (isHeight) parseValueOf(parts.properties, "உயரம்");
    if (isWidth) parseValueOf(parts.properties, "அகலம்");
}

/// padding = "(" [ "அளவு" ":" expression ] ")" [ "(" { widget } ")" ]
/// The first parenthesis stands on the word's line. The scanner makes `அளவு` a HEIGHT, so from a
/// source the first group is always empty. The second counts no indentation and knows no comma.
/// Meant.
std::unique_ptr<Statement> Parser::parsePadding(int line) {
    auto node = std::make_unique<PaddingNode>();
    openParenthesis(line);
    if (check(TokenType::IDENTIFIER) && peek().text == "அளவு") {
        const std::string key = advance().text;
        auto value = parseValue();
        if (const auto* number = nodeAs<NumberLiteral>(value.get())) {
            node->padding = floatOf(number->value);
        }
        node->properties[key] = std::move(value);
    }
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);

    skipNewlines();
    if (check(TokenType::LEFT_PAREN)) {
        const int childLine = advance().line;
        while (!check(TokenType::RIGHT_PAREN) && !is_at_end()) {
            skipNewlines();
            if (is_at_end()) break;
            node->children.push_back(parseWidget());
            skipNewlines();
        }
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", childLine);
    }
    return node;
}

/// text-button = "(" { text-button-item } ")"
std::unique_ptr<Statement> Parser::parseTextButton(int line) {
    WidgetParts parts;
    skipNewlines();
    openParenthesis(line);
    bracketLoop(line, [&] { parseTextButtonItem(parts, line); });
    auto node =
        std::make_unique<WidgetNode>("உரைபொத்தான்", PropertyMap(), WidgetList(), parts.alignment);
    return finishWidget(std::move(node), std::move(parts));
}

void Parser::parseTextButtonItem(WidgetParts& parts, int line) {
    if (parseAnimationItem(parts.animation) || parsePressItem(parts, PressForm::Expression) ||
        parseTextButtonLabel(parts) || parseTextButtonStyle(parts) ||
        parsePropertyItem(parts.properties, {TokenType::IDENTIFIER})) {
        return;
    }
    if (checkSectionWord()) பிழை("பொழில்-204", line);
    advance();
}

/// label = "உரை" ( "(" expression ")" | string )
/// Behind a colon there is no label: the word, the colon and the text are passed over. Meant.
bool Parser::parseTextButtonLabel(WidgetParts& parts) {
    if (!checkWord(TokenType::TEXT, "உரை")) return false;
    advance();
    if (check(TokenType::LEFT_PAREN)) {
        advance();
        setProperty(parts.properties, "உரை", parseExpression());
        consume(TokenType::RIGHT_PAREN, "பொழில்-204");
    } else if (check(TokenType::STRING)) {
        setProperty(parts.properties, "உரை", parseExpression());
    }
    return true;
}

/// text-button-style = ( "உரைபொ_பாணி" | style word ) "(" { any-word [ ":" expression ] } ")"
/// A token without text isn't taken: an empty string here would be looked at for ever.
bool Parser::parseTextButtonStyle(WidgetParts& parts) {
    if (!check(TokenType::STYLE) && !checkWord(TokenType::TEXT_BUTTON_STYLE, "உரைபொ_பாணி")) {
        return false;
    }
    const int line = advance().line;
    openParenthesis();
    bracketLoop(line, [&] {
        if (!peek().text.empty()) {
            const std::string key = advance().text;
            if (check(TokenType::COLON)) parseValueOf(parts.properties, "style_" + key);
        }
        skipNewlines();
        takeComma();
    });
    return true;
}

/// snack-bar = "(" { animation-item | key ":" value } ")"
std::unique_ptr<Statement> Parser::parseSnackBar(int line) {
    int depth = 0;
    skipNewlines();
    handleIndentation(depth);
    openParenthesis(line);
    auto node = std::make_unique<SnackBarNode>(WidgetList());
    bracketLoop(line, depth, [&] {
        if (!parseAnimationItem(node->animation)) parseSnackBarItem(*node, line);
        skipNewlines();
        takeComma();
    });
    return node;
}

/// Some values are kept in a field besides. `காலம்` is a DURATION to the scanner, so from a source
/// the duration stays as it is. Meant.
void Parser::parseSnackBarItem(SnackBarNode& node, int line) {
    static const Kinds keys = {TokenType::IDENTIFIER, TokenType::TEXT, TokenType::BACKGROUND};
    const bool isKey = checkAny(keys);
    const std::string key = advance().text;
    if (!isKey) return;
    skipLayout();
    if (!check(TokenType::COLON)) return;
    advance();
    skipLayout();
    if (key == "செய்தி") return parseSnackBarMessage(node, line);

    auto value = parseExpression();
    const auto* text = nodeAs<StringLiteral>(value.get());
    const auto* number = nodeAs<NumberLiteral>(value.get());
    if (key == "பின்னணி" && text != nullptr) node.backgroundColor = text->value;
    if (key == "காலம்" && number != nullptr) node.durationMs = std::stoi(number->value);
    setProperty(node.properties, key, std::move(value));
}

/// A message is a widget or a value. No section word is a widget word, so the refusal isn't met.
void Parser::parseSnackBarMessage(SnackBarNode& node, int line) {
    if (!isWidgetToken(peek())) {
        setProperty(node.properties, "செய்தி", parseExpression());
        return;
    }
    if (checkSectionWord()) பிழை("பொழில்-204", line);
    node.children.push_back(parseWidget());
    node.content = node.children.back().get();
}
