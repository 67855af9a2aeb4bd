// Lines, indentation and blanks of a source that the scanner takes.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// `text`, a cleaned source, in the usual layout. Its words, marks, texts and comments stay, each
/// in its line; only blanks and empty lines change.
std::string laidOut(std::string_view text);

}  // namespace companion
