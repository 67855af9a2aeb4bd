// The checks of the text as Tamil: indentation, numbers, letters, keywords.
#include "lexer/lexer.h"

void Lexer::checkMixedIndentation() {}
void Lexer::checkIndentationMatches(int) {}
void Lexer::refuseGluedToWesternNumber() {}
void Lexer::refuseGluedToTamilNumber() {}
void Lexer::checkInvisibleMark() {}
void Lexer::checkLetter(const std::string&, std::string_view) {}
void Lexer::checkKeywordSpacing(const std::string&) {}
void Lexer::checkKeywordTypo(const std::string&) {}
void Lexer::refuseOpenComment() {}
