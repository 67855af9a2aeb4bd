// Words: runs of non-ASCII characters, ASCII letters, digits and underscores, looked up in the
// word tables. What is wrong with a word as Tamil is found by the checks called here.
#include "lexer/characters.h"
#include "lexer/lexer.h"
#include "lexer/word_tables.h"

Token Lexer::scanWord() {
    const int start = position;
    std::string_view word = collectWord();
    if (word == "நிகழ்நேர" && peek() == '.') {
        passCompoundTail();
        word = textFrom(start);
    }

    if (word.empty()) {
        if (peek() == 0) return make(TokenType::END_OF_FILE, "");
        advance();
        பிழை("பொழில்-101");
    }

    WordFacts& facts = factsOf(word);
    if (facts.kind == TokenType::IDENTIFIER) {
        if (facts.beginsKeyword) checkKeywordSpacing(word);
        if (!facts.isSpelledRight) checkKeywordTypo(word);
        facts.isSpelledRight = true;
    }
    return make(facts.kind, word);
}

/// What the spelling checks need of a word doesn't change from one place to the next.
Lexer::WordFacts& Lexer::factsOf(std::string_view word) {
    const auto known = knownWords.find(word);
    if (known != knownWords.end()) return known->second;
    return knownWords.emplace(word, WordFacts{lookUpWord(word), beginsLongerWord(word)})
        .first->second;
}

std::string_view Lexer::collectWord() {
    const int start = position;
    while (!isAsciiMark(peek())) {  // white space and the end of the text count as marks
        checkLetter(start);
        advance();
    }
    return textFrom(start);
}

/// The database words hold a dot (`நிகழ்நேர.தரவுசேர்`) and are single tokens; any other tail makes
/// an identifier with a dot in it. The tail goes unchecked.
void Lexer::passCompoundTail() {
    advance();
    while (peek() != 0 && !isWhiteSpace(peek()) && !isTerminator(peek())) advance();
}
