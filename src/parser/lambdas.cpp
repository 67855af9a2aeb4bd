// The two forms of a lambda: by arrow, and by the word வினை.
#include <algorithm>
#include <string_view>

#include "parser/parser.h"
#include "parser/token_predicates.h"

namespace {

constexpr std::string_view kArrow = "=>";

bool endsParameterLook(TokenType kind) {
    return kind == TokenType::RIGHT_PAREN || kind == TokenType::NEWLINE ||
           kind == TokenType::END_OF_FILE;
}

}  // namespace

/// `=>`, or `=` with `பெரிது` (or a `>` that the scanner never makes) behind it. So x = பெரிது y is
/// read as a lambda and not as an assignment. Meant.
bool Parser::isArrowAt(int index) const {
    if (tokenAt(index).text == kArrow) return true;
    if (tokenAt(index).type != TokenType::EQUALS) return false;
    const std::string& behind = tokenAt(index + 1).text;
    return behind == ">" || behind == "பெரிது";
}

/// Looks ahead for `name =>` or `( ... ) =>`. The look stops at the first closing parenthesis and
/// doesn't count nested ones.
bool Parser::startsArrowLambda() {
    if (isArrowAt(current + 1) && isValidVariableName(peek())) return true;
    if (!check(TokenType::LEFT_PAREN)) return false;
    // One look serves all parentheses that open before the same end.
    if (current < closeScan.start || current >= closeScan.end) {
        closeScan = {current, current + 1};
        while (!endsParameterLook(tokenAt(closeScan.end).type)) closeScan.end++;
    }
    return tokenAt(closeScan.end).type == TokenType::RIGHT_PAREN && isArrowAt(closeScan.end + 1);
}

/// arrow-lambda = ( name | "(" [ name { "," name } ] ")" ) arrow expression
/// Raises 232 for a parameter that can't be a name.
std::unique_ptr<Expression> Parser::parseArrowLambda() {
    const int line = peek().line;
    std::vector<Token> parameters;
    if (check(TokenType::LEFT_PAREN)) {
        advance();
        if (!check(TokenType::RIGHT_PAREN)) {
            do {
                skipNewlines();
                parameters.push_back(expectName("பொழில்-232"));
            } while (takeComma());
        }
        consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    } else {
        parameters.push_back(advance());
    }

    if (advance().text != kArrow) advance();  // the pair form is two tokens
    auto body = parseExpression();
    deepen(expressionDepth, 0);
    auto node = std::make_unique<LambdaExpression>(std::move(parameters), std::move(body));
    node->line = line;
    return node;
}

/// lambda = "வினை" [ "(" ] [ name { [ "," ] name } ] [ ")" ] ":" expression
/// The body is one expression, never a block. The caller sets the line.
std::unique_ptr<Expression> Parser::parseLambdaExpression() {
    advance();
    const bool opened = check(TokenType::LEFT_PAREN);
    const int line = peek().line;
    if (opened) advance();

    std::vector<Token> parameters;
    if (!check(TokenType::RIGHT_PAREN) && !check(TokenType::COLON)) {
        do {
            skipNewlines();
            if (checkName()) parameters.push_back(advance());
            takeComma();
            skipNewlines();
        } while (checkName());
    }
    if (opened) consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    consume(TokenType::COLON, "பொழில்-202");
    auto body = parseExpression();
    deepen(expressionDepth, 0);
    return std::make_unique<LambdaExpression>(std::move(parameters), std::move(body));
}
