// What a check finds.
#pragma once

#include <optional>
#include <string>

#include "companion/check/source_text.h"

namespace companion {

enum class Severity { Error, Warning, Hint };

/// What to write in the place of some bytes, where a slip can only have meant one thing.
struct Correction {
    Range range;
    std::string text;
};

/// One finding, for people: lines and columns count from 1, columns in code points, the end is
/// behind the last character.
struct Finding {
    int line;
    int column;
    int endLine;
    int endColumn;
    Severity severity;
    std::string code;
    std::string message;
    Range range = {0, 0};  ///< The same place in bytes.
    std::optional<Correction> correction = std::nullopt;
};

}  // namespace companion
