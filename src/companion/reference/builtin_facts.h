// What a built-in call takes, gives and fails with, as the text that it becomes tells it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "syntax/var_type.h"

namespace companion::reference {

/// What an argument must be: the cast that its place in the text holds; "" where anything is taken.
struct ArgumentFact {
    char letter;  ///< 'A' for the first.
    std::string cast;
};

struct BuiltinFacts {
    int least;
    int most;  ///< kAnyCount where everything is taken.
    std::vector<ArgumentFact> arguments;
    VarType result;
    std::vector<std::string> codes;  ///< Of the diagnostics that it raises, in order: "பொழில்-341".
};

/// The facts of the built-in `name`. Throws std::logic_error for what is none, or calls what no
/// emitted text defines.
BuiltinFacts factsOf(std::string_view name);

}  // namespace companion::reference
