// What a check finds.
#pragma once

#include <string>

namespace companion {

enum class Severity { Error, Warning, Hint };

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
};

}  // namespace companion
