// A refusal of the compiler, thrown instead of printed: the companion looks at it and goes on.
#pragma once

#include <string>

#include "error_handler.h"

namespace companion {

/// The fields of a report. Not a std::exception: those that the phases let through mean other
/// things.
struct CompilerRefusal {
    பிழைவகை kind;
    std::string code;
    std::string message;
    std::string file;  ///< As the phase was told; empty inside a module.
    int line;          ///< Counted from 1; 0 where the compiler knows none.
    std::string lineText;
    std::string fix;
};

}  // namespace companion
