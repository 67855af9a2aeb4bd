// Words that newcomers bring from other languages, and what they are called here.
#pragma once

#include <string_view>

namespace companion {

struct EnglishWord {
    std::string_view english;
    std::string_view tamil;
    std::string_view form;  ///< How the Tamil word is written.
    bool isStatement;       ///< Begins a statement: "if", "for".
};

/// The row of `word`; null if nobody brings it.
const EnglishWord* englishWord(std::string_view word);

}  // namespace companion
