// The descriptions of words by topic: each table stands in the file of its topic.
#pragma once

#include <string_view>
#include <vector>

#include "companion/descriptions/description.h"
#include "companion/descriptions/shown_program.h"

namespace companion {

using Words = std::vector<Description>;

/// A topic as a reader looks for it, and its words in the order in which one learns them.
struct WordTopic {
    std::string_view title;
    const Words& words;
};

/// All topics; their words together are wordDescriptions().
const std::vector<WordTopic>& wordTopics();

const Words& talkingWords();     ///< Printing and asking.
const Words& literalWords();     ///< Values and marks as they are written.
const Words& flowWords();        ///< What runs, and how often.
const Words& definitionWords();  ///< Functions, structures, modules.
const Words& operatorWords();    ///< Operators with two sides, and signs.
const Words& assignmentWords();  ///< Words that change a variable.
const Words& numberWords();
const Words& textWords();
const Words& listWords();  ///< Lists and dictionaries.
const Words& fileWords();
const Words& timeWords();
const Words& applicationWords();  ///< What functions of an application call and read.

/// A word that a program shows; `program` may be one without words of its own.
constexpr Description described(WordKind kind, std::string_view word, std::string_view form,
                                std::string_view summary, std::string_view english,
                                const ShownProgram& program, std::string_view trap = {}) {
    return {kind, word, form, summary, english, program.text, program.prints, trap};
}

/// In the place of a program, for a word that none can show.
inline constexpr ShownProgram kNoProgram = {};

}  // namespace companion
