// Words that look right and are written with other characters: signs in two parts, two signs on one
// letter, letters that look alike.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// What is odd about the Tamil of one word.
struct Spelling {
    bool isSplit = false;      ///< A vowel sign or ஔ stands in its two parts.
    bool isLookAlike = false;  ///< A digit or ள stands where another letter may be meant.
    /// Offset of a sign that sits on another sign, or on nothing; npos if there is none.
    std::size_t strayAt = std::string_view::npos;

    bool isOdd() const { return isSplit || isLookAlike || strayAt != std::string_view::npos; }
};

Spelling spellingOf(std::string_view word);

/// `word` with each two-part sign as the one character that it is.
std::string composed(std::string_view word);

/// `word` with the letters that its look-alikes stand for: "௧ண்" is "கண்".
std::string withUsualLetters(std::string_view word);

}  // namespace companion
