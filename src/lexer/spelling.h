// What the check of spelling goes by.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// Words of up to this many code points are free, whatever they look like.
constexpr std::size_t kFreeLength = 3;

/// The words that a longer name may not be one edit away from.
std::vector<std::string_view> spelledKeywords();

/// The keyword that one letter more, less or changed makes of `word`; empty if there is none.
std::string_view misspeltKeyword(std::string_view word);
