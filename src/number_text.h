// Numbers of the source that the compiler itself reads.
#pragma once

#include <string>

/// The number that the text begins with, with a dot for its point wherever the process runs.
/// Throws std::invalid_argument for a text without one (Tamil digits, say), std::out_of_range for
/// one that doesn't fit.
float floatOf(const std::string& text);
