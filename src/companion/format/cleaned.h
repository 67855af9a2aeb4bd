// A source without what nobody sees: what stands there is what a person reads.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// `text` without a mark of byte order and carriage returns, with blanks in the place of tabs that
/// a line begins with, whole vowel signs in names, and a line end at its end. Texts in quotes stay
/// as they are to the byte, comments but for their line ends.
std::string cleaned(std::string_view text);

}  // namespace companion
