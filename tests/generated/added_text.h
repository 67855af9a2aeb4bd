// What a source adds to the text that every generated program carries.
#pragma once

#include <string>

/// The generated text of `source`, with each stretch of lines that the generated text of an empty
/// program (of an empty application, if it is one) holds in the same place shown as one line "⋯".
/// Fails the running test if the fixed text isn't where it belongs.
std::string addedText(const std::string& source);
