// The words: each that the compiler's tables hold is described, no other is, and what is told of
// it is whole.
#include "companion/descriptions/words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <set>

#include "generator/known_words.h"
#include "lexer/word_tables.h"
#include "shown.h"
#include "support/case_files.h"

namespace fs = std::filesystem;

namespace {

using companion::Description;
using companion::wordDescriptions;
using companion::WordKind;

/// Early words that only applications use: told with the widgets.
const std::set<std::string> kOfWidgets = {"புதுப்பி", "சுட்டி_மேல்", "மூலம்", "உரைசீரமைப்பு", "அடையாளம்"};

/// Words of no table that mean something by their text alone. Each program is taken or refused, and
/// with `ஒன்று` in the word's place it is the other way round.
struct TextWord {
    WordKind kind;
    const char* word;
    const char* program;
};

const TextWord kKnownByText[] = {
    {WordKind::Keyword, "தான்", "அச்சிடு(தான்)\n"},
    {WordKind::Keyword, "self", "அச்சிடு(self)\n"},
    {WordKind::Keyword, "துவக்கம்",
     "கட்டமைப்பு அ:\n    செயல் துவக்கம்(தான், ஆ):\n        விடு\nஇ = அ(5)\n"},
    {WordKind::Keyword, "மாறிலி", "மாறிலி_அ = 1\nமாறிலி_அ = 2\n"},
    {WordKind::Keyword, "காட்சி_நிலை", "காட்சி_நிலை.அ : 5\n"},
    {WordKind::Member, "சேர்", "அ = [1]\nஅ.சேர்(2)\n"},
    {WordKind::Member, "வினாடிகள்", "அ = நேரம்.வினாடிகள்()\n"},
};

/// Known to the inference of kinds, and refused wherever it is called.
const char* const kAlwaysRefused = "உருவாக்கு";

/// Words that no program can use, so their form shows another way.
const std::set<std::string> kUnusable = {"காஸ்", "எடு"};

template <typename Table>
void addKeys(std::set<std::string>& words, const Table& table) {
    for (const auto& row : table) words.insert(row.first);
}

std::set<std::string> wordsOfTables() {
    std::set<std::string> words;
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS}) {
        addKeys(words, *table);
    }
    for (const std::string& word : kOfWidgets) words.erase(word);
    return words;
}

std::set<std::string> namesOf(const std::vector<std::string_view>& names) {
    return {names.begin(), names.end()};
}

std::set<std::string> memberNames() {
    std::set<std::string> names;
    for (const auto& table : {inputCallNames(), inputPropertyNames(), timeFieldNames()}) {
        names.insert(table.begin(), table.end());
    }
    return names;
}

bool isKnownByText(const Description& description) {
    for (const TextWord& known : kKnownByText) {
        if (known.kind == description.kind && known.word == description.word) return true;
    }
    return description.word == kAlwaysRefused;
}

std::set<std::string> describedAs(std::initializer_list<WordKind> kinds) {
    std::set<std::string> words;
    for (const Description& description : wordDescriptions()) {
        const bool fits = std::find(kinds.begin(), kinds.end(), description.kind) != kinds.end();
        if (fits && !isKnownByText(description)) words.insert(std::string(description.word));
    }
    return words;
}

TEST(Words, AreThoseOfTheScanner) {
    auto expected = wordsOfTables();
    auto described = describedAs({WordKind::Keyword, WordKind::Operator});
    // Keywords to the scanner and calls to the grammar.
    for (const char* word : {"இப்போதுநேரம்"}) described.insert(word);
    EXPECT_EQ(described, expected);
    EXPECT_GT(expected.size(), 60U);
}

TEST(Words, OfBuiltInsAreThoseOfTheGenerator) {
    auto expected = namesOf(builtinNames());
    EXPECT_EQ(expected.erase("வரம்பு"), 1U) << "a keyword";
    EXPECT_EQ(describedAs({WordKind::BuiltIn}), expected);
    EXPECT_GT(expected.size(), 25U);
}

TEST(Words, OfMembersAreThoseOfTheGenerator) {
    EXPECT_EQ(describedAs({WordKind::Member}), memberNames());
    EXPECT_GT(memberNames().size(), 15U);
}

TEST(Words, ThatTheirTextTellsMeanSomething) {
    for (const TextWord& known : kKnownByText) {
        std::string plain = known.program;
        const std::string word = known.word;
        for (auto at = plain.find(word); at != std::string::npos; at = plain.find(word)) {
            plain.replace(at, word.size(), "ஒன்று");
        }
        EXPECT_NE(errorsOfCheck(known.program).empty(), errorsOfCheck(plain).empty()) << known.word;
        bool isDescribed = false;
        for (const Description& description : wordDescriptions()) {
            isDescribed |= description.kind == known.kind && description.word == known.word;
        }
        EXPECT_TRUE(isDescribed) << known.word;
    }
}

TEST(Words, StandOnceAndDifferInWhatTheyTell) {
    std::set<std::pair<WordKind, std::string_view>> words;
    std::map<std::string_view, std::string_view> summaries;
    for (const Description& description : wordDescriptions()) {
        EXPECT_TRUE(words.insert({description.kind, description.word}).second) << description.word;
        const auto [row, isNew] = summaries.insert({description.summary, description.word});
        EXPECT_TRUE(isNew) << description.word << " reads like " << row->second;
    }
}

TEST(Words, HaveTheirTexts) {
    for (const Description& description : wordDescriptions()) {
        EXPECT_FALSE(description.form.empty()) << description.word;
        EXPECT_FALSE(description.summary.empty()) << description.word;
        EXPECT_FALSE(description.english.empty()) << description.word;
        const bool showsWord = description.form.find(description.word) != std::string_view::npos;
        EXPECT_NE(showsWord, kUnusable.count(std::string(description.word)) != 0)
            << description.word;
    }
}

/// A run of Latin letters, but for those behind a backslash.
bool hasLatinWord(std::string_view text) {
    int run = 0;
    for (const char byte : text) {
        run = std::isalpha(static_cast<unsigned char>(byte)) != 0 ? run + 1 : 0;
        if (run > 1) return true;
    }
    return false;
}

TEST(Words, AreToldInTamil) {
    for (const Description& description : wordDescriptions()) {
        EXPECT_FALSE(hasLatinWord(description.summary)) << description.summary;
        for (const char byte : description.english) {
            EXPECT_LT(static_cast<unsigned char>(byte), 0x80U) << description.english;
            EXPECT_FALSE(byte >= 'A' && byte <= 'Z') << description.english;
        }
    }
}

TEST(Words, StandInTheirExamples) {
    int without = 0;
    for (const Description& description : wordDescriptions()) {
        if (description.example.empty()) {
            without++;
            EXPECT_FALSE(description.trap.empty()) << description.word << ": nothing to go by";
            continue;
        }
        if (description.word == "எடு") continue;  // shown by the brackets in its place
        EXPECT_NE(description.example.find(description.word), std::string_view::npos)
            << description.word;
    }
    EXPECT_LT(without, 6);
}

/// The examples, each once, with the words that they show.
std::map<std::string_view, const Description*> wordExamples() {
    std::map<std::string_view, const Description*> all;
    for (const Description& description : wordDescriptions()) {
        if (!description.example.empty()) all.insert({description.example, &description});
    }
    return all;
}

TEST(Words, HaveExamplesWithoutErrors) {
    for (const auto& [example, description] : wordExamples()) {
        EXPECT_EQ(errorsOfCheck(example), "") << description->word << "\n" << example;
    }
    EXPECT_GT(wordExamples().size(), 40U);
    EXPECT_LT(wordExamples().size(), 60U);
}

TEST(Words, ShowAllProgramsThatStandAsFiles) {
    const fs::path folder = fs::u8path(POZHIL_ROOT "/src/companion/descriptions");
    const auto all = wordExamples();
    for (const char* room : {"programs", "unprinted"}) {
        int files = 0;
        for (const auto& entry : fs::directory_iterator(folder / room)) {
            if (entry.path().extension() != fs::u8path(".பொழில்")) continue;
            files++;
            const std::string text = readText(entry.path().u8string());
            const auto shown = all.find(text);
            ASSERT_NE(shown, all.end()) << entry.path().u8string();
            fs::path out = entry.path();
            out.replace_extension(".out");
            const std::string prints = fs::exists(out) ? readText(out.u8string()) : "";
            EXPECT_EQ(shown->second->prints, prints) << entry.path().u8string();
            EXPECT_EQ(prints.empty(), std::string(room) == "unprinted") << out.u8string();
        }
        EXPECT_GT(files, 3);
    }
}

TEST(Words, StandUnderTopics) {
    std::size_t count = 0;
    std::set<std::string_view> titles;
    for (const companion::WordTopic& topic : companion::wordTopics()) {
        EXPECT_FALSE(topic.words.empty()) << topic.title;
        EXPECT_TRUE(titles.insert(topic.title).second) << topic.title;
        count += topic.words.size();
    }
    EXPECT_EQ(count, wordDescriptions().size());
}

}  // namespace
