// What a misspelt word was meant to be.
#pragma once

#include <string_view>

/// The keyword that one letter more, less or changed makes of `word`; empty if there is none.
std::string_view misspeltKeyword(std::string_view word);
