// What an expression begins with: the table of primaries, in the order in which they are tried,
// and the literals with brackets.
#include <algorithm>

#include "parser/parser.h"
#include "parser/token_predicates.h"

namespace {

/// Words that open a widget when a parenthesis follows, beside those of isWidgetToken.
bool opensWidgetOrName(const Token& token) {
    switch (token.type) {
        case TokenType::HEADER:
        case TokenType::BODY:
        case TokenType::STYLE:
        case TokenType::ON_PRESS:
        case TokenType::WIDTH:
        case TokenType::HEIGHT: return true;
        default: return isWidgetToken(token);
    }
}

bool isPlainName(const Token& token) {
    return token.type == TokenType::NAVIGATE || token.type == TokenType::PAGE ||
           token.type == TokenType::DEFINITIONS || token.type == TokenType::KEYWORD;
}

}  // namespace

/// The first test that holds decides. Raises 201 for a token that begins no expression.
std::unique_ptr<Expression> Parser::parsePrimary() {
    expressionDepth = 1;
    if (checkKeyword("வினை")) {
        const int line = peek().line;
        auto lambda = parseLambdaExpression();
        lambda->line = line;
        return lambda;
    }
    if (check(TokenType::RTDB_INSERT)) return parseRTDBInsertExpression();
    if (check(TokenType::RTDB_UPDATE)) return parseRTDBUpdateExpression();
    if (check(TokenType::RTDB_DELETE)) return parseRTDBDeleteExpression();
    if (auto literal = parseNameOrColour()) return literal;
    if (auto literal = parseLiteral()) return literal;
    if (auto bracketed = parseBracketed()) return bracketed;
    if (checkKeyword("இப்போதுநேரம்") || checkKeyword("வரம்பு")) return takeVariable(false);
    if (check(TokenType::IDENTIFIER)) return takeVariable(true);
    if (isPlainName(peek())) return takeVariable(false);
    if (opensWidgetOrName(peek())) return parseWidgetOrName();
    if (check(TokenType::LEFT_PAREN)) {
        const int line = advance().line;
        auto inner = parseExpression();
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
        deepen(expressionDepth, 0);
        auto node = std::make_unique<GroupingExpression>(std::move(inner));
        node->line = line;
        return node;
    }
    பிழை("பொழில்-201", peek().line);
}

/// A colour: `நிறம்` with its member, which the scanner never sends this way, or a string that
/// begins with `#`. Null if neither stands here.
std::unique_ptr<Expression> Parser::parseNameOrColour() {
    if (check(TokenType::IDENTIFIER) && peek().text == "நிறம்" &&
        next().type == TokenType::DOT_ALTERNATE) {
        advance();
        advance();
        return std::make_unique<ColorExpression>(consume(TokenType::IDENTIFIER, "பொழில்-210").text,
                                                 false);
    }
    if (check(TokenType::STRING) && peek().text.rfind('#', 0) == 0) {
        return std::make_unique<ColorExpression>(advance().text, true);
    }
    return nullptr;
}

/// A literal of one token; null if none stands here.
std::unique_ptr<Expression> Parser::parseLiteral() {
    Token& token = tokens[static_cast<std::size_t>(current)];
    std::unique_ptr<Expression> literal;
    switch (token.type) {
        case TokenType::BOOLEAN:
            literal = std::make_unique<BooleanLiteral>(std::move(token.text));
            break;
        case TokenType::CHARACTER:
            literal = std::make_unique<CharLiteral>(std::move(token.text));
            break;
        case TokenType::PERCENTAGE:
            literal = std::make_unique<PercentageLiteral>(std::move(token.text));
            break;
        case TokenType::NUMBER:
            if (token.text.find('.') != std::string::npos) {
                literal = std::make_unique<DoubleLiteral>(std::move(token.text));
            } else {
                literal = std::make_unique<NumberLiteral>(std::move(token.text));
            }
            break;
        case TokenType::STRING:
            literal = std::make_unique<StringLiteral>(std::move(token.text));
            break;
        default: return nullptr;
    }
    literal->line = advance().line;
    return literal;
}

/// A list or a map; null if neither bracket stands here.
std::unique_ptr<Expression> Parser::parseBracketed() {
    if (!check(TokenType::LEFT_BRACKET) && !check(TokenType::LEFT_BRACE)) return nullptr;
    const bool isList = check(TokenType::LEFT_BRACKET);
    const int line = advance().line;
    auto literal = isList ? parseListLiteral(line) : parseMapLiteral(line);
    literal->line = line;
    return literal;
}

/// Only a plain word brings its line along; the others keep 0.
std::unique_ptr<Expression> Parser::takeVariable(bool withLine) {
    Token& token = take();
    auto variable = std::make_unique<VariableAccess>(std::move(token.text));
    if (withLine) variable->line = token.line;
    return variable;
}

/// A widget word: with a parenthesis behind it (line ends between don't count) it is a widget,
/// otherwise a name.
std::unique_ptr<Expression> Parser::parseWidgetOrName() {
    int at = current + 1;
    while (tokenAt(at).type == TokenType::NEWLINE) at++;
    if (tokenAt(at).type != TokenType::LEFT_PAREN) return takeVariable(false);
    return std::make_unique<WidgetExpression>(parseWidget());
}

/// list = [ expression { "," expression } [ "," ] ] "]"
/// A list stands on one line. Raises 205 if the line ends first, 207 for a missing comma.
std::unique_ptr<Expression> Parser::parseListLiteral(int line) {
    auto list = std::make_unique<ListLiteral>();
    int depth = 0;
    while (!check(TokenType::RIGHT_BRACKET)) {
        list->elements.push_back(parseExpression());
        depth = std::max(depth, expressionDepth);
        if (takeComma()) {
            if (is_at_end()) break;
            continue;
        }
        if (check(TokenType::NEWLINE) || is_at_end()) பிழை("பொழில்-205", line);
        if (!check(TokenType::RIGHT_BRACKET)) பிழை("பொழில்-207", peek().line);
    }
    consume(TokenType::RIGHT_BRACKET, "பொழில்-205", line);
    deepen(depth, 0);
    list->line = line;
    return list;
}

/// map = entries "}"
/// A map may span lines. Raises 206 for a missing brace.
std::unique_ptr<Expression> Parser::parseMapLiteral(int line) {
    auto entries = parseMapEntries(false);
    consume(TokenType::RIGHT_BRACE, "பொழில்-206", line);
    auto map = std::make_unique<MapLiteral>(std::move(entries));
    map->line = line;
    return map;
}

/// entries = [ entry { "," entry } [ "," ] ]      entry = ( string | identifier ) ":" expression
/// Raises 212 for a key of another kind, 202 for a missing colon.
Parser::MapEntries Parser::parseMapEntries(bool layoutBeforeColon) {
    MapEntries entries;
    int depth = 0;
    skipLayout();
    while (!check(TokenType::RIGHT_BRACE)) {
        if (!check(TokenType::STRING) && !check(TokenType::IDENTIFIER)) {
            பிழை("பொழில்-212", peek().line);
        }
        std::string key = advance().text;
        if (layoutBeforeColon) skipLayout();
        expectColon();
        skipLayout();
        entries.emplace_back(std::move(key), parseExpression());
        depth = std::max(depth, expressionDepth);
        skipLayout();
        if (!takeComma()) break;
        skipLayout();
    }
    deepen(depth, 0);
    return entries;
}
