// Words: runs of non-ASCII characters, ASCII letters, digits and underscores, looked up in the
// word tables. What is wrong with a word as Tamil is found by the checks called here.
#include "lexer/characters.h"
#include "lexer/lexer.h"

Token Lexer::scanWord() {
    std::string word = collectWord();
    if (word == "நிகழ்நேர" && peek() == '.') appendCompoundTail(word);

    if (word.empty()) {
        if (peek() == 0) return make(TokenType::END_OF_FILE, "");
        advance();
        பிழை("பொழில்-101");
    }

    const TokenType kind = lookupKeyword(word);
    if (kind == TokenType::IDENTIFIER) {
        checkKeywordSpacing(word);
        checkKeywordTypo(word);
    }
    return make(kind, std::move(word));
}

std::string Lexer::collectWord() {
    std::string word;
    while (peek() != 0 && !isWhiteSpace(peek()) && !isTerminator(peek())) {
        checkInvisibleMark();
        if (isAsciiMark(peek())) break;
        const std::string_view letter = takeCharacter();
        checkLetter(word, letter);
        word += letter;
    }
    return word;
}

/// The database words hold a dot (`நிகழ்நேர.தரவுசேர்`) and are single tokens; any other tail makes
/// an identifier with a dot in it. The tail goes unchecked.
void Lexer::appendCompoundTail(std::string& word) {
    word += takeCharacter();
    while (peek() != 0 && !isWhiteSpace(peek()) && !isTerminator(peek())) word += takeCharacter();
}
