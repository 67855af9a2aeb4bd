// What stands between a widget's parentheses, whichever widget it is: the bracket loop, properties,
// children, animation, press handler. Alignment and styles stand in widget_styles.cpp.
#include <utility>

#include "lexer/holds.h"
#include "parser/parser.h"
#include "parser/token_predicates.h"

bool Parser::checkAny(const Kinds& kinds) { return !is_at_end() && holds(kinds, peek().type); }

/// A word of one of these kinds with a colon behind it.
bool Parser::checkKey(const Kinds& kinds) {
    return checkAny(kinds) && next().type == TokenType::COLON;
}

/// A word that has no kind of its own.
bool Parser::checkWord(const char* word) {
    return (check(TokenType::IDENTIFIER) || check(TokenType::KEYWORD)) && peek().text == word;
}

/// A word by its kind, or as a plain word.
bool Parser::checkWord(TokenType kind, const char* word) {
    return check(kind) || (check(TokenType::IDENTIFIER) && peek().text == word);
}

/// Where a widget is expected such a word tells that a `)` is missing before it.
bool Parser::checkSectionWord() {
    return check(TokenType::BODY) || check(TokenType::HEADER) || check(TokenType::DEFINITIONS);
}

/// Passes line ends and indentation; true if an item of the brackets stands there.
bool Parser::nextItem(int& depth) {
    if (check(TokenType::RIGHT_PAREN) || is_at_end()) return false;
    skipNewlines();
    handleIndentation(depth);
    return !check(TokenType::RIGHT_PAREN) && !is_at_end();
}

void Parser::openParenthesis(int line) { consume(TokenType::LEFT_PAREN, "பொழில்-203", line); }

/// value = ":" expression
std::unique_ptr<Expression> Parser::parseValue() {
    expectColon();
    return parseExpression();
}

/// A key written twice keeps the later value.
void Parser::setProperty(PropertyMap& properties, const std::string& key,
                         std::unique_ptr<Expression> value) {
    drop(std::exchange(properties[key], std::move(value)));
}

void Parser::parseValueOf(PropertyMap& properties, const std::string& key) {
    setProperty(properties, key, parseValue());
}

/// property = word ":" expression
bool Parser::parsePropertyItem(PropertyMap& properties, const Kinds& kinds) {
    if (!checkKey(kinds)) return false;
    const std::string key = advance().text;
    parseValueOf(properties, key);
    return true;
}

/// child = widget, if a widget word or a word of one of the further kinds opens it
bool Parser::parseChildItem(WidgetParts& parts, const Kinds& furtherKinds) {
    if (!isWidgetToken(peek()) && !checkAny(furtherKinds)) return false;
    parts.children.push_back(parseWidget());
    return true;
}

/// animation-item = "அசைவூட்டம்" animation
bool Parser::parseAnimationItem(std::unique_ptr<AnimationNode>& animation) {
    if (!check(TokenType::ANIMATION) && !checkWord("அசைவூட்டம்")) return false;
    advance();
    animation = parseAnimation();
    return true;
}

/// share = "பங்கு" ":" expression
bool Parser::parseShareItem(WidgetParts& parts) {
    if (!checkWord(TokenType::SHARE, "பங்கு")) return false;
    advance();
    parseValueOf(parts.properties, "flex");
    return true;
}

/// press = "அழுத்தினால்" ( ":" expression | "(" expression ")" | "(" { statement } ")" )
/// Raises 202 if neither colon nor parenthesis follows, 204 at the parenthesis's line.
bool Parser::parsePressItem(WidgetParts& parts, PressForm form) {
    static const char* const key = "அழுத்தினால்";
    if (!checkWord(TokenType::ON_PRESS, key)) return false;
    advance();
    if (!check(TokenType::LEFT_PAREN)) {
        parseValueOf(parts.properties, key);
        return true;
    }

    const int line = advance().line;
    int depth = 0;
    const auto skipLines = [&] {
        if (form == PressForm::ExpressionInFreeLayout) return skipLayout();
        skipNewlines();
        handleIndentation(depth);
    };
    skipLines();
    if (opensPressStatements(form)) {
        bracketLoop(line, depth, [&] {
            if (auto statement = parseStatement(false)) {
                parts.onTapStatements.push_back(std::move(statement));
            }
            skipNewlines();
        });
        return true;
    }
    setProperty(parts.properties, key, parseExpression());
    skipLines();
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return true;
}

/// A keyword opens statements, `வினை` too; `செல்க` is none. Meant.
bool Parser::opensPressStatements(PressForm form) {
    static const Kinds database = {TokenType::RTDB_INSERT, TokenType::RTDB_UPDATE,
                                   TokenType::RTDB_READ, TokenType::RTDB_DELETE};
    switch (form) {
        case PressForm::Statements: return check(TokenType::KEYWORD) || checkAny(database);
        case PressForm::KeywordStatements: return check(TokenType::KEYWORD);
        default: return false;
    }
}

/// Puts into a node what its constructor didn't take.
std::unique_ptr<Statement> Parser::finishWidget(std::unique_ptr<WidgetNode> node,
                                                WidgetParts parts) {
    node->properties = std::move(parts.properties);
    node->onTapStatements = std::move(parts.onTapStatements);
    node->textStyle = std::move(parts.textStyle);
    node->animation = std::move(parts.animation);
    return node;
}
