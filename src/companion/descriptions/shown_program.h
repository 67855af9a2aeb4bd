// Programs that stand as files beside the descriptions and are shown with them.
#pragma once

#include <string_view>

namespace companion {

/// A whole program and what it prints; nothing for an application and for one that asks.
struct ShownProgram {
    std::string_view text;
    std::string_view prints;
};

/// A program that is refused with a code, or stops with it, and the same program put right.
struct CodePrograms {
    std::string_view digits;  ///< "101"
    std::string_view wrong;
    std::string_view right;
    std::string_view report;  ///< What the wrong one meets, without colours and saying.
};

}  // namespace companion
