// Characters that a program is not written with: which kind each is, and what was meant by it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace companion {

enum class SignKind {
    Plain,        ///< May stand in a name, or nobody knows what was meant.
    Invisible,    ///< Joiners, direction marks, marks of byte order.
    Blank,        ///< Looks like a blank and is a letter to the scanner.
    Punctuation,  ///< Looks like a mark of the language.
    Digit,
    Quote,
    Operator,     ///< A sign for what the language has a word for.
    OtherScript,  ///< A letter of a script that isn't Tamil or Latin.
};

struct Sign {
    SignKind kind;
    std::string meant;  ///< What the language writes; empty if there is nothing.
};

/// The character at `at` and how many bytes it takes; broken UTF-8 gives U+FFFD of one byte.
struct CodePoint {
    char32_t value;
    std::size_t width;
};
CodePoint codePointAt(std::string_view text, std::size_t at);

/// What a character beyond ASCII and Tamil is.
Sign signOf(char32_t character);

/// The sign of other languages at the head of `text`, an ASCII one, and its word here.
struct AsciiOperator {
    std::string_view sign;  ///< Empty if there is none.
    std::string_view word;  ///< Empty for a sign that stays as it is.
};
AsciiOperator asciiOperatorAt(std::string_view text);

/// The word for a sign in front of its only value: "-" is குறை there. Else `word`.
std::string_view wordInFrontOf(std::string_view word);

}  // namespace companion
