// What each built-in call takes.
#pragma once

#include <string_view>
#include <vector>

namespace companion {

struct BuiltinCall {
    std::string_view name;
    int least;
    int most;  ///< kAnyCount where everything is taken.
    std::string_view example;
};

constexpr int kAnyCount = 1000;

/// All that are called by a name alone.
const std::vector<BuiltinCall>& builtinCalls();

/// The row of `name`; null for what is no built-in.
const BuiltinCall* builtinCall(std::string_view name);

}  // namespace companion
