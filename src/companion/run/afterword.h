// What is said behind g++'s words, and behind those of a program that broke down: where and why, in
// Tamil. It never stands instead of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "companion/check/source_text.h"
#include "companion/run/generated_text.h"

namespace companion {

/// A known way to fail, told by what it leaves on standard error.
struct Pattern {
    std::string_view mark;     ///< Stands somewhere in the words.
    std::string_view message;  ///< What, why and what to write. $0 is the name that g++ quotes.
    std::string_view with{};   ///< Stands in the words as well.
};

/// True if g++ refuses a text in these words, rather than being missing or out of room.
bool holdsRefusal(const std::string& words);

/// Behind a refusal of g++, from its words.
std::string afterRefusal(const std::string& words, const GeneratedText& generated,
                         const SourceText& source);

/// How a program ended, from what stands on standard error behind it.
struct Breakdown {
    std::string_view message;
    int signal;
};

/// Nothing for a program that came to its own end.
std::optional<Breakdown> findBreakdown(const std::string& words);

/// Behind a program that broke down.
std::string afterBreakdown(const Breakdown& breakdown);

/// `words` without what colours them on a terminal.
std::string withoutColours(std::string_view words);

}  // namespace companion
