// Where words of the language stand, and how common they are.
#pragma once

#include <string_view>

namespace companion::completion {

/// True for a word that can be the first of a statement.
bool beginsStatement(std::string_view word);
/// True for a keyword that is a value or begins one.
bool isOperand(std::string_view word);
/// True for an operator that can stand ahead of a value.
bool isUnary(std::string_view word);
/// True for an operator that can stand nowhere else.
bool isSignAlone(std::string_view word);

/// How many words are more common in programs.
int rankOf(std::string_view word);

}  // namespace companion::completion
