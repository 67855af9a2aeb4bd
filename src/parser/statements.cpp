// The statement grammar.
#include "parser/parser.h"

std::unique_ptr<Statement> Parser::parseStatement(bool) {
    if (checkKeyword("அச்சிடு")) return parsePrintStatement();
    if (check(TokenType::DEDENT) || check(TokenType::NEWLINE)) return nullptr;
    if (check(TokenType::INDENT)) பிழை("பொழில்-111", peek().line);
    பிழை("பொழில்-201", peek().line);
}

/// print-statement = "அச்சிடு" [ "(" ] [ expression { "," expression } ] [ ")" ]
/// The parenthesis belongs to the statement: அச்சிடு(1) கூட்டு 2 leaves கூட்டு to the next one.
/// Raises 204 at the parenthesis's line.
std::unique_ptr<Statement> Parser::parsePrintStatement() {
    advance();
    const bool opened = check(TokenType::LEFT_PAREN);
    const int line = peek().line;
    if (opened) advance();

    std::vector<std::unique_ptr<Expression>> expressions;
    if (!opened || !check(TokenType::RIGHT_PAREN)) {
        expressions.push_back(parseExpression());
        while (check(TokenType::COMMA)) {
            advance();
            expressions.push_back(parseExpression());
        }
    }
    if (opened) consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    return std::make_unique<PrintStatement>(std::move(expressions));
}
