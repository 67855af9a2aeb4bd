// What editors and the site are given is made from the compiler's tables. POZHIL_REWRITE=1 (or
// scripts/grammar.sh) makes the files anew.
#include "editors/grammar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include "editors/sounds.h"
#include "editors/told_words.h"
#include "editors/word_groups.h"
#include "generator/known_words.h"
#include "lexer/word_tables.h"
#include "support/case_files.h"
#include "ui/widget_frame.h"

namespace {

using editors::Group;
using editors::isOf;

std::string frame() { return readText(POZHIL_ROOT "/src/editors/grammar_frame.json"); }

TEST(EditorGrammar, IsMadeFromTheTables) {
    expectGolden({"grammar", "", POZHIL_ROOT "/editors/textmate/pozhil.tmLanguage.json"},
                 editors::grammarOf(frame()));
}

TEST(EditorGrammar, LeavesNoMark) {
    EXPECT_EQ(editors::grammarOf(frame()).find("⟨"), std::string::npos);
}

TEST(EditorGrammar, RefusesAMarkThatMeansNothing) {
    EXPECT_THROW(editors::grammarOf(frame() + "⟨keyword⟩"), std::invalid_argument);
    EXPECT_THROW(editors::grammarOf(frame() + "⟨keywords"), std::invalid_argument);
}

TEST(EditorGrammar, RefusesAFrameThatLacksAGroup) {
    EXPECT_THROW(editors::grammarOf("⟨keywords⟩"), std::invalid_argument);
}

TEST(SiteSounds, AreMadeFromTheCompanionsRows) {
    expectGolden({"sounds", "", POZHIL_ROOT "/site/sounds.json"}, editors::soundRows());
}

/// A new word of the language is in one of the groups, or the grammar passes over it.
TEST(WordGroups, HoldEachReservedWord) {
    for (const auto* table : {&kFirstWords, &IF_KEYWORDS, &WEB_KEYWORDS, &ANIMATION_KEYWORDS,
                              &OPERATOR_KEYWORDS, &ASSIGN_KEYWORDS, &INC_DEC_KEYWORDS}) {
        for (const auto& [word, kind] : *table) {
            const auto holds = [text = word](Group group) { return isOf(group, text); };
            const Group groups[] = {Group::Keyword,  Group::Operator,   Group::Truth,
                                    Group::BuiltIn,  Group::Widget,     Group::Section,
                                    Group::Property, Group::CodeSection};
            EXPECT_TRUE(std::any_of(std::begin(groups), std::end(groups), holds)) << word;
        }
    }
}

TEST(WordGroups, HoldTheGeneratorsWords) {
    for (const std::string_view word : widgetWords())
        EXPECT_TRUE(isOf(Group::Widget, word)) << word;
    for (const std::string_view word : builtinNames()) {
        EXPECT_TRUE(isOf(Group::BuiltIn, word) || isOf(Group::Keyword, word)) << word;
    }
    for (const std::string_view word : timeFieldNames())
        EXPECT_TRUE(isOf(Group::Member, word)) << word;
}

/// The kind that is told of each word, by the word.
std::map<std::string, std::string> told(const std::string& source) {
    std::ostringstream lines;
    editors::tellWords(lines, source);
    std::istringstream in(lines.str());
    std::map<std::string, std::string> kinds;
    std::string kind;
    for (std::size_t begin = 0, end = 0; in >> kind >> begin >> end;) {
        kinds[source.substr(begin, end - begin)] = kind;
    }
    return kinds;
}

TEST(ToldWords, OfAProgram) {
    const auto kinds = told("செயல் கூடு(அ): ஃ பேச்சு\n    திரும்பு நீளம்(அ) கூட்டு 2 சமம் மெய்\n");
    const std::map<std::string, std::string> expected = {
        {"செயல்", "keyword"},    {"கூடு", "function"}, {"ஃ பேச்சு", "comment"},
        {"திரும்பு", "keyword"}, {"நீளம்", "built-in"},  {"கூட்டு", "operator"},
        {"2", "number"},        {"சமம்", "operator"},  {"மெய்", "truth"}};
    EXPECT_EQ(kinds, expected);
}

TEST(ToldWords, OfWidgets) {
    const auto kinds = told("உரை(\"அ\", உரைபாணி(நிறம்: \"#FFFFFF\"))(அகலம்: 2)\nx = {அகலம்: உயரம்}\n");
    EXPECT_EQ(kinds.at("உரை"), "widget");
    EXPECT_EQ(kinds.at("உரைபாணி"), "section");
    EXPECT_EQ(kinds.at("நிறம்"), "property");
    EXPECT_EQ(kinds.count("உயரம்"), 0U);
}

}  // namespace
