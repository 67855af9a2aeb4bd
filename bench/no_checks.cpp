// The scanner's checks of the text as Tamil, left empty: what the scanner costs without them.
#include <cstdlib>

#include "lexer/lexer.h"

void Lexer::checkMixedIndentation() {}
void Lexer::checkIndentationMatches(int) {}
void Lexer::checkLetter(int) {}
void Lexer::checkKeywordSpacing(std::string_view) {}
void Lexer::checkKeywordTypo(std::string_view) {}

// Never reached by a correct source.
void Lexer::refuseGluedToWesternNumber() { std::abort(); }
void Lexer::refuseGluedToTamilNumber() { std::abort(); }
void Lexer::refuseOpenComment() { std::abort(); }
