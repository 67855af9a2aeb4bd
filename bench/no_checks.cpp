// The scanner's checks of the text as Tamil, left empty: what the scanner costs without them.
#include <cstdlib>

#include "lexer/lexer.h"

void Lexer::checkMixedIndentation() {}
void Lexer::checkIndentationMatches(int) {}
void Lexer::checkInvisibleMark() {}
void Lexer::checkLetter(std::string_view, std::string_view) {}
void Lexer::checkKeywordSpacing(const std::string&) {}
void Lexer::checkKeywordTypo(const std::string&) {}

// Never reached by a correct source.
void Lexer::refuseGluedToWesternNumber() { std::abort(); }
void Lexer::refuseGluedToTamilNumber() { std::abort(); }
void Lexer::refuseOpenComment() { std::abort(); }
