// The expression grammar.
#include "parser/parser.h"

std::unique_ptr<Expression> Parser::parseExpression() { return parsePrimary(); }

std::unique_ptr<Expression> Parser::parsePrimary() {
    const Token token = peek();
    std::unique_ptr<Expression> literal;
    switch (token.type) {
        case TokenType::BOOLEAN: literal = std::make_unique<BooleanLiteral>(token.text); break;
        case TokenType::CHARACTER: literal = std::make_unique<CharLiteral>(token.text); break;
        case TokenType::NUMBER:
            if (token.text.find('.') != std::string::npos) {
                literal = std::make_unique<DoubleLiteral>(token.text);
            } else {
                literal = std::make_unique<NumberLiteral>(token.text);
            }
            break;
        case TokenType::STRING: literal = std::make_unique<StringLiteral>(token.text); break;
        default: பிழை("பொழில்-201", token.line);
    }
    advance();
    literal->line = token.line;
    return literal;
}
