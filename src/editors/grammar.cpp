#include "editors/grammar.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "editors/word_groups.h"

namespace editors {

namespace {

constexpr std::string_view kOpen = "⟨";
constexpr std::string_view kClose = "⟩";

// Words end where no letter, sign, digit or underscore follows: \b knows nothing of vowel signs.
constexpr struct {
    std::string_view mark;
    std::string_view text;
} kPatterns[] = {
    {"starts", R"((?<![\\p{L}\\p{M}\\p{N}_]))"},
    {"ends", R"((?![\\p{L}\\p{M}\\p{N}_]))"},
    {"name", R"([\\p{L}\\p{M}_][\\p{L}\\p{M}\\p{N}_]*)"},
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

/// A pattern for any of the words, as it stands in a string of JSON. No word has a mark of regular
/// expressions but the dot.
std::string anyOf(const std::vector<std::string>& words) {
    std::string pattern;
    for (const std::string& word : words) {
        if (!pattern.empty()) pattern += '|';
        for (const char byte : word) {
            if (byte == '.') pattern += R"(\\)";
            pattern += byte;
        }
    }
    return pattern;
}

std::string meaningOf(std::string_view mark) {
    for (const auto& row : kPatterns) {
        if (row.mark == mark) return std::string(row.text);
    }
    for (const auto& row : kWordMarks) {
        if (row.mark == mark) return anyOf(wordsOf(row.group));
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

std::string grammarOf(std::string_view frame) {
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
        text += meaningOf(mark);
        placed.insert(mark);
        at = close + kClose.size();
    }
    checkEachIsPlaced(placed);
    return text;
}

}  // namespace editors
