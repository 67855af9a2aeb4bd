// Refusals of the generator where no line is at hand.
#pragma once

#include <string>

/// Throws std::runtime_error with the code, its meaning, its fix and, if not empty, `detail` in
/// brackets. The driver catches it and shows its own line instead of the text.
[[noreturn]] void throw_static_error(const std::string& code, const std::string& detail);
