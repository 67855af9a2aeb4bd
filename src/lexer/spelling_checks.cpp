// The checks of a plain word's spelling: a keyword split by a blank, a keyword off by one letter.
#include <algorithm>
#include <iterator>

#include "lexer/characters.h"
#include "lexer/lexer.h"
#include "lexer/spelling.h"
#include "lexer/utf8.h"
#include "lexer/word_tables.h"

namespace {

using CodePoints = std::vector<std::string_view>;

/// The words that the typo check knows: deliberately far fewer than the word tables.
const char* const kSpelledWords[] = {
    "அச்சிடு",   "சுற்று",  "எனில்",  "இல்லைஎனில்", "இல்லை",     "செயல்",      "திரும்பு",
    "ஒவ்வொன்றாக", "தேர்வு",  "நிலை",  "மற்றவை",    "கட்டமைப்பு", "வடிவமைப்பு", "முயற்சி",
    "பிடி",     "வலைதளம்", "தலைமை", "குமரி",    "வரையறை",
};

const std::vector<CodePoints>& spelledWords() {
    static const std::vector<CodePoints> words = [] {
        std::vector<CodePoints> split;
        for (const char* word : kSpelledWords) split.push_back(splitCodePoints(word));
        return split;
    }();
    return words;
}

/// True if one insertion, deletion or substitution, and no fewer, turns `a` into `b`. A
/// transposition is two.
bool isOneEditApart(const CodePoints& a, const CodePoints& b) {
    if (a.size() > b.size()) return isOneEditApart(b, a);
    if (b.size() - a.size() > 1) return false;
    const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin());
    if (a.size() == b.size()) return inA != a.end() && std::equal(inA + 1, a.end(), inB + 1);
    return std::equal(inA, a.end(), inB + 1);
}

}  // namespace

std::vector<std::string_view> spelledKeywords() {
    return {std::begin(kSpelledWords), std::end(kSpelledWords)};
}

std::string_view misspeltKeyword(std::string_view word) {
    const CodePoints letters = splitCodePoints(word);
    if (letters.size() <= kFreeLength) return {};
    const std::vector<CodePoints>& keywords = spelledWords();
    for (std::size_t at = 0; at < keywords.size(); at++) {
        if (isOneEditApart(letters, keywords[at])) return kSpelledWords[at];
    }
    return {};
}

/// The cursor stands behind `word` and stays there. A line end between the halves ends the look.
void Lexer::checkKeywordSpacing(std::string_view word) {
    int at = position;
    while (byteAt(at) == ' ' || byteAt(at) == '\t') at++;
    const int start = at;
    while (!isAsciiMark(byteAt(at))) {  // white space and the end of the text count as marks
        at += getUTF8SequenceLength(static_cast<char>(byteAt(at)));
    }
    if (at == start) return;
    const auto from = static_cast<std::size_t>(start);
    std::string joined(word);
    joined.append(source, from, static_cast<std::size_t>(at) - from);
    if (lookUpWord(joined) != TokenType::IDENTIFIER) பிழை("பொழில்-112");
}

/// A name within one edit of a spelled word is refused, with no way around it. Meant.
void Lexer::checkKeywordTypo(std::string_view word) {
    if (!misspeltKeyword(word).empty()) பிழை("பொழில்-113");
}
