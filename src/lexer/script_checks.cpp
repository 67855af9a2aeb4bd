// The checks of the text as Tamil script: the blanks a line begins with, the letters of a word,
// what may follow a number. Each refuses or returns. Quoted text and comments never come here.
#include "lexer/characters.h"
#include "lexer/lexer.h"

namespace {

unsigned char byteOf(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

// A Tamil letter is three bytes, E0 and two that tell it: those are asked about here.

/// U+0BBE (ா) to U+0BCD (்): a vowel sign, or the virama.
bool isDependentSign(int second, int third) {
    return (second == 0xAE && (third == 0xBE || third == 0xBF)) ||
           (second == 0xAF && third >= 0x80 && third <= 0x8D);
}

/// U+0BBE (ா)
bool isLongSign(int second, int third) { return second == 0xAE && third == 0xBE; }

/// ஜ, ஷ, ஸ, ஹ. The letter ஶ isn't in the set. Meant.
bool isGranthaLetter(int second, int third) {
    return second == 0xAE && (third == 0x9C || third == 0xB7 || third == 0xB8 || third == 0xB9);
}

/// True if `word` ends in an independent vowel, அ to ஔ.
bool endsInVowel(std::string_view word) {
    if (word.size() < 3) return false;
    const std::string_view last = word.substr(word.size() - 3);
    return byteOf(last, 0) == 0xE0 && byteOf(last, 1) == 0xAE && byteOf(last, 2) >= 0x85 &&
           byteOf(last, 2) <= 0x94;
}

}  // namespace

/// A line's leading run may hold blanks or tabs, not both. Blank and comment lines count too.
void Lexer::checkMixedIndentation() {
    bool blank = false;
    bool tab = false;
    for (int at = lineStart; byteAt(at) == ' ' || byteAt(at) == '\t'; at++) {
        (byteAt(at) == ' ' ? blank : tab) = true;
    }
    if (blank && tab) பிழை("பொழில்-110");
}

/// Behind the pops of a smaller indentation: a width that no open block has.
void Lexer::checkIndentationMatches(int indent) {
    if (indentStack.back() < indent) பிழை("பொழில்-111");
}

void Lexer::refuseGluedToWesternNumber() { பிழை(atTamilDigit() ? "பொழில்-109" : "பொழில்-108"); }

void Lexer::refuseGluedToTamilNumber() { பிழை(isAsciiDigit(peek()) ? "பொழில்-109" : "பொழில்-108"); }

/// The letter at the cursor, of the word that begins at `wordStart`.
void Lexer::checkLetter(int wordStart) {
    const int byte = peek();
    if (byte == 0xE0) return checkTamilLetter(wordStart);
    if (byte == 0xE2) checkInvisibleMark();
}

/// U+200C to U+200F at the cursor: joiners and direction marks. U+200B and U+FEFF pass. Meant.
void Lexer::checkInvisibleMark() {
    if (byteAt(position + 1) != 0x80) return;
    if (byteAt(position + 2) >= 0x8C && byteAt(position + 2) <= 0x8F) பிழை("பொழில்-117");
}

void Lexer::checkTamilLetter(int wordStart) {
    const int second = byteAt(position + 1);
    const int third = byteAt(position + 2);
    if (position == wordStart && isDependentSign(second, third)) பிழை("பொழில்-106");
    if (isGranthaLetter(second, third)) பிழை("பொழில்-115");
    if (isLongSign(second, third) && endsInVowel(textFrom(wordStart))) பிழை("பொழில்-114");
}

void Lexer::refuseOpenComment() { பிழை("பொழில்-118"); }
