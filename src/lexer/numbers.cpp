// Numbers and percentages, in western and in Tamil digits. The text keeps the digits as written:
// nothing is converted here, and a sign is no part of a number.
#include "lexer/characters.h"
#include "lexer/lexer.h"

/// Digits with at most one dot; a dot at the end stays part of the number ("1.").
Token Lexer::scanWesternNumber() {
    const int start = position;
    bool hasDot = false;
    while (isAsciiDigit(peek()) || peek() == '.') {
        if (peek() == '.') {
            if (hasDot) பிழை("பொழில்-104");
            hasDot = true;
        }
        advance();
    }
    if (peek() == '%') return scanPercentage(start);
    if (!endsNumber(peek())) refuseGluedToWesternNumber();
    return make(TokenType::NUMBER, textFrom(start));
}

/// Tamil digits know no decimal point: a dot behind them is a token of its own.
Token Lexer::scanTamilNumber() {
    const int start = position;
    while (atTamilDigit()) advance();
    if (peek() == '%') return scanPercentage(start);
    if (!endsNumber(peek())) refuseGluedToTamilNumber();
    return make(TokenType::NUMBER, textFrom(start));
}

/// The cursor stands at the sign behind digits that begin at `start`.
Token Lexer::scanPercentage(int start) {
    advance();
    return make(TokenType::PERCENTAGE, textFrom(start));
}

/// ௦ to ௯: the bytes E0 AF A6 to E0 AF AF.
bool Lexer::atTamilDigit() {
    return byteAt(position) == 0xE0 && byteAt(position + 1) == 0xAF &&
           byteAt(position + 2) >= 0xA6 && byteAt(position + 2) <= 0xAF;
}
