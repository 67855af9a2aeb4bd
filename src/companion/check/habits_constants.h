// What an expression of literals alone comes to.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "syntax/node.h"

namespace companion {

/// A number, a text, or a truth value.
using Constant = std::variant<long double, std::string, bool>;

/// The value of a literal, with or without parentheses; nothing for anything else.
std::optional<Constant> constantOf(const Expression& expression);

/// The answer of a condition that is a truth literal or compares two literals, as the program finds
/// it; nothing for any other.
std::optional<bool> constantAnswer(const Expression& condition);

/// சமம், பெரிது and the other words that compare; "ordering" are the four for more and less.
bool isComparisonWord(const std::string& word);
bool isOrderingWord(const std::string& word);

}  // namespace companion
