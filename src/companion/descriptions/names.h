// What descriptions call themselves: kinds of words, groups of values, moments of codes.
#pragma once

#include <string>

#include "companion/descriptions/codes.h"
#include "companion/descriptions/description.h"

namespace companion {

const char* nameOf(WordKind kind);
const char* nameOf(ValueGroup group);
const char* momentOf(CodeMoment moment);

/// Where a property stands, if not in the widget's own parentheses.
std::string placeOf(const PropertyDescription& property);

/// True for an operator that stands before its one side.
bool isPrefixOperator(const Description& word);

}  // namespace companion
