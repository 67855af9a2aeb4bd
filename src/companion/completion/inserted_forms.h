// What is written for a chosen word: with its parentheses, its block, what it is given.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/descriptions/description.h"

namespace companion::completion {

/// The snippet of a word; empty if the word alone is written. `indent` is one level.
std::string snippetOf(const Description& word, std::string_view indent);
/// `அகலம்: ${1:100}`
std::string snippetOf(const PropertyDescription& property);
/// `உரைபாணி($1)`
std::string snippetOfBlock(std::string_view block);
/// `பெயர்(${1:அ}, ${2:ஆ})`
std::string snippetOfCall(std::string_view name, const std::vector<std::string>& parameters);

/// The snippet's text without its tab stops.
std::string withoutStops(std::string_view snippet);

/// One level of indentation as `text` has it: a tab, or blanks.
std::string indentationOf(std::string_view text);

}  // namespace companion::completion
