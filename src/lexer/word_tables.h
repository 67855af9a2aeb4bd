// The words of the language that have a kind of their own, and the order in which they are tried.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "lexer/token.h"

/// Words whose kind is decided before any other table is asked.
extern const std::unordered_map<std::string, TokenType> kFirstWords;
extern const std::unordered_map<std::string, TokenType> IF_KEYWORDS;
extern const std::unordered_map<std::string, TokenType> WEB_KEYWORDS;
extern const std::unordered_map<std::string, TokenType> ANIMATION_KEYWORDS;
extern const std::unordered_map<std::string, TokenType> OPERATOR_KEYWORDS;
extern const std::unordered_map<std::string, TokenType> ASSIGN_KEYWORDS;
extern const std::unordered_map<std::string, TokenType> INC_DEC_KEYWORDS;

/// Kind of `word`; IDENTIFIER for a word that no table holds.
TokenType lookUpWord(std::string_view word);

/// True if a longer word of the tables that has a kind of its own begins with `word`.
bool beginsLongerWord(std::string_view word);
