#include "unit/parser_frame/handmade.h"

Token word(const std::string& text, int line) { return {TokenType::KEYWORD, text, line}; }

Token number(const std::string& text, int line) { return {TokenType::NUMBER, text, line}; }

Token mark(TokenType kind, int line) { return {kind, "", line}; }

Parser parserOver(std::vector<Token> tokens, int endLine) {
    tokens.push_back(mark(TokenType::END_OF_FILE, endLine));
    return Parser(tokens, "முதல்\nஇரண்டு\nமூன்று\n", "test.பொழில்");
}
