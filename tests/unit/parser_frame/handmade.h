// Token vectors written by hand, for what no source can show.
#pragma once

#include <string>
#include <vector>

#include "parser/parser.h"

Token word(const std::string& text, int line = 1);
Token number(const std::string& text, int line = 1);
Token mark(TokenType kind, int line = 1);

/// A parser over `tokens` and an END_OF_FILE on `endLine`; its source has three lines.
Parser parserOver(std::vector<Token> tokens, int endLine = 1);
