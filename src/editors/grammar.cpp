#include "editors/grammar.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "editors/word_groups.h"

namespace editors {

namespace {

using WordList = std::vector<std::string>;

constexpr std::string_view kOpen = "⟨";
constexpr std::string_view kClose = "⟩";

// WordList end where no letter, sign, digit or underscore follows: \b knows nothing of vowel signs.
constexpr struct {
    Notation notation;
    std::string_view mark;
    std::string_view text;
} kPatterns[] = {
    {Notation::Json, "starts", R"((?<![\\p{L}\\p{M}\\p{N}_]))"},
    {Notation::Json, "ends", R"((?![\\p{L}\\p{M}\\p{N}_]))"},
    {Notation::Json, "name", R"([\\p{L}\\p{M}_][\\p{L}\\p{M}\\p{N}_]*)"},
    {Notation::Xml, "starts", R"((?&lt;![\p{L}\p{M}\p{N}_]))"},
    {Notation::Xml, "ends", R"((?![\p{L}\p{M}\p{N}_]))"},
    {Notation::Xml, "name", R"([\p{L}\p{M}_][\p{L}\p{M}\p{N}_]*)"},
};

constexpr struct {
    std::string_view mark;
    Group group;
} kWordMarks[] = {
    {"keywords", Group::Keyword},
    {"operators", Group::Operator},
    {"truths", Group::Truth},
    {"built-ins", Group::BuiltIn},
    {"members", Group::Member},
    {"receivers", Group::Receiver},
    {"widgets", Group::Widget},
    {"sections", Group::Section},
    {"code-sections", Group::CodeSection},
    {"properties", Group::Property},
    {"reserved-properties", Group::ReservedProperty},
    {"values", Group::Value},
};

/// A pattern for any of the words. No word has a mark of regular expressions but the dot.
std::string anyOf(const WordList& words, std::string_view separator, std::string_view dot) {
    std::string pattern;
    for (const std::string& word : words) {
        if (!pattern.empty()) pattern += separator;
        for (const char byte : word) {
            if (byte == '.') {
                pattern += dot;
            } else {
                pattern += byte;
            }
        }
    }
    return pattern;
}

std::string anyInJson(const WordList& words) { return anyOf(words, "|", R"(\\.)"); }
std::string anyInVim(const WordList& words) { return anyOf(words, R"(\|)", R"(\.)"); }
std::string anyInXml(const WordList& words) { return anyOf(words, "|", R"(\.)"); }

/// WordList of `syntax keyword`, a line of source for each. Vim passes over words that aren't made
/// of its letters alone, and over longer ones.
std::string listInVim(const WordList& words) {
    constexpr std::size_t kLongest = 80;
    std::string list;
    for (const std::string& word : words) {
        if (word.size() > kLongest || word.find('.') != std::string::npos) {
            throw std::invalid_argument("no keyword of Vim: " + word);
        }
        list += "\n    \\ " + word;
    }
    return list;
}

std::string listInXml(const WordList& words) {
    std::string list;
    for (const std::string& word : words) list += "\n      <item>" + word + "</item>";
    return list;
}

constexpr struct {
    Notation notation;
    std::string_view prefix;
    std::string (*text)(const WordList&);
} kForms[] = {
    {Notation::Json, "", anyInJson},    {Notation::Vim, "any ", anyInVim},
    {Notation::Vim, "all ", listInVim}, {Notation::Xml, "any ", anyInXml},
    {Notation::Xml, "all ", listInXml},
};

struct Meaning {
    std::string text;
    std::string_view wordMark;  ///< Empty where no words stand.
};

Meaning meaningOf(std::string_view mark, Notation notation) {
    for (const auto& row : kPatterns) {
        if (row.notation == notation && row.mark == mark) return {std::string(row.text), {}};
    }
    for (const auto& form : kForms) {
        if (form.notation != notation || mark.substr(0, form.prefix.size()) != form.prefix)
            continue;
        for (const auto& row : kWordMarks) {
            if (row.mark == mark.substr(form.prefix.size())) {
                return {form.text(wordsOf(row.group)), row.mark};
            }
        }
    }
    throw std::invalid_argument("unknown mark: " + std::string(mark));
}

void checkEachIsPlaced(const std::set<std::string_view>& placed) {
    for (const auto& row : kWordMarks) {
        if (placed.count(row.mark) == 0) {
            throw std::invalid_argument("mark without a place: " + std::string(row.mark));
        }
    }
}

}  // namespace

std::string grammarOf(std::string_view frame, Notation notation) {
    std::string text;
    std::set<std::string_view> placed;
    for (std::size_t at = 0; at < frame.size();) {
        const std::size_t open = std::min(frame.find(kOpen, at), frame.size());
        text += frame.substr(at, open - at);
        if (open == frame.size()) break;
        const std::size_t start = open + kOpen.size();
        const std::size_t close = frame.find(kClose, start);
        if (close == std::string_view::npos) throw std::invalid_argument("mark without an end");
        const std::string_view mark = frame.substr(start, close - start);
        const Meaning meaning = meaningOf(mark, notation);
        text += meaning.text;
        placed.insert(meaning.wordMark);
        at = close + kClose.size();
    }
    checkEachIsPlaced(placed);
    return text;
}

}  // namespace editors
