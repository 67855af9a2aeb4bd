// The layout of sources: how a program is written, never what it does.
#pragma once

#include <optional>
#include <string>

namespace companion {

/// `text` in the usual layout: four blanks a level, one blank where words and marks want one, whole
/// vowel signs. Nothing if the scanner refuses the text, or would read the result otherwise.
/// Formatting the result changes nothing.
std::optional<std::string> formatted(const std::string& text);

}  // namespace companion
