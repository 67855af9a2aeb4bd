// What the scanner makes of a source's words, for tests of the grammar.
#pragma once

#include <ostream>
#include <string_view>

namespace editors {

/// A line for each piece of `source` that an editor colours: its kind and the bytes at which it
/// begins and ends, as in `keyword 0 12`.
void tellWords(std::ostream& out, std::string_view source);

}  // namespace editors
