// The C++ text that a source becomes, and which line of the source each of its lines comes from.
#pragma once

#include <string>
#include <vector>

#include "companion/check/compiled_source.h"

namespace companion {

struct GeneratedText {
    std::string text;
    /// For each line of `text` the source's line, counted from 1; 0 for what no line of it brought:
    /// the runtime text, and what was imported.
    std::vector<int> sourceLines;

    /// The source's line for line `line` of the text, counted from 1.
    int sourceLineOf(int line) const;
};

/// The text of a source that was parsed, to the letter as the compiler writes it. Lets the
/// generator's refusals through.
GeneratedText generateText(const CompiledSource& compiled);

}  // namespace companion
