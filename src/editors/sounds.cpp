#include "editors/sounds.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

#include "companion/explain/spelling.h"
#include "editors/word_groups.h"

namespace editors {

namespace {

constexpr struct {
    const char* key;
    companion::SoundRows (*rows)();
} kTables[] = {
    {"consonants", companion::consonantSounds},
    {"vowels", companion::vowelSounds},
    {"signs", companion::signSounds},
    {"latin", companion::latinSounds},
};

/// Spellings of newcomers, which hold the rows of Latin letters.
constexpr const char* kSpellings[] = {"achchidu", "acchitu",       "enil",     "illai",
                                      "chutru",   "suttru",        "pattiyal", "ulleedu",
                                      "neelam",   "poththaan",     "thirumbu", "nool-irakki",
                                      "vazhi",    "kaatchi_nilai", "print"};

void writePair(std::ostream& out, std::string_view one, std::string_view other, bool& isFirst) {
    out << (isFirst ? "" : ",") << "\n        [\"" << one << "\", \"" << other << "\"]";
    isFirst = false;
}

void writeTable(std::ostream& out, const char* key, const companion::SoundRows& rows) {
    out << "    \"" << key << "\": [";
    bool isFirst = true;
    for (const companion::SoundRow& row : rows) writePair(out, row.letter, row.sound, isFirst);
    out << "\n    ],\n";
}

/// Capital letters are made small before a word sounds.
bool hasCapital(const std::string& word) {
    return std::any_of(word.begin(), word.end(),
                       [](char byte) { return byte >= 'A' && byte <= 'Z'; });
}

std::set<std::string> exampleWords() {
    std::set<std::string> words(std::begin(kSpellings), std::end(kSpellings));
    for (const Group group : {Group::Keyword, Group::Operator, Group::BuiltIn, Group::Member,
                              Group::Widget, Group::Property, Group::Value}) {
        const auto& more = wordsOf(group);
        std::copy_if(more.begin(), more.end(), std::inserter(words, words.end()),
                     [](const std::string& word) { return !hasCapital(word); });
    }
    return words;
}

}  // namespace

std::string soundRows() {
    std::ostringstream out;
    out << "{\n";
    for (const auto& table : kTables) writeTable(out, table.key, table.rows());
    out << "    \"examples\": [";
    bool isFirst = true;
    for (const std::string& word : exampleWords()) {
        writePair(out, word, companion::soundOf(word), isFirst);
    }
    out << "\n    ]\n}\n";
    return out.str();
}

}  // namespace editors
