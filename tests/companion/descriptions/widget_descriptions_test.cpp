// Whether every word of an application is described, once and whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "companion/descriptions/properties_of.h"
#include "companion/refusal.h"
#include "emitted_text.h"
#include "lexer/lexer.h"
#include "lexer/word_tables.h"
#include "support/pattern.h"
#include "syntax/alignment.h"
#include "ui/colours.h"
#include "ui/widget_frame.h"
#include "widget_templates.h"

namespace {

using companion::Description;
using companion::PropertyDescription;
using companion::ValueDescription;
using companion::ValueGroup;
using companion::WordKind;
using DescribedWords = std::set<std::string, std::less<>>;

DescribedWords widgetsAndSections() {
    DescribedWords words;
    for (const Description& each : companion::widgetDescriptions()) words.emplace(each.word);
    return words;
}

DescribedWords valueWordsOf(ValueGroup group) {
    DescribedWords words;
    for (const ValueDescription& value : companion::valueDescriptions()) {
        if (value.group == group) words.emplace(value.word);
    }
    return words;
}

template <typename Each>
DescribedWords describedSet(const Each& words) {
    return DescribedWords(words.begin(), words.end());
}

bool hasTamil(std::string_view text) {
    return text.find("\xe0\xae") != std::string_view::npos ||
           text.find("\xe0\xaf") != std::string_view::npos;
}

void expectTamilSentences(std::string_view text, std::string_view word) {
    EXPECT_TRUE(hasTamil(text)) << word;
    EXPECT_EQ(text.back(), '.') << word << ": " << text;
    EXPECT_EQ(text.find("  "), std::string_view::npos) << word << ": " << text;
}

// ---- DescribedWords ----

TEST(Widgets, AreAllDescribedAsWidgets) {
    std::map<std::string_view, WordKind> kinds;
    for (const Description& each : companion::widgetDescriptions()) {
        EXPECT_TRUE(kinds.emplace(each.word, each.kind).second) << each.word << " stands twice";
    }
    for (const std::string_view word : widgetWords()) {
        ASSERT_EQ(kinds.count(word), 1U) << word;
        EXPECT_EQ(kinds.at(word), WordKind::Widget) << word;
    }
    EXPECT_GE(widgetWords().size(), 36U);
}

/// DescribedWords of the scanner that need no description, each with its reason.
const std::map<std::string, const char*, std::less<>> kWithoutDescription = {
    {"எலிவேஷன்", "no source can write it: it has a letter that the scanner refuses"},
    {"கிஉருளும்பட்டை", "nothing reads it"},
    {"செல்க", "a function that is built in: described among those"},
    {"மூலம்", "a keyword of the language before it is one of applications"},
    {"தெளிவு", "no target of an animation that is drawn"},
    {"மறைவு", "no target of an animation that is drawn"},
    {"சுருக்கம்", "no target of an animation that is drawn"},
    {"இடது_நழுவு", "no target of an animation that is drawn"},
    {"வலது_நழுவு", "no target of an animation that is drawn"},
    {"மேல்_நழுவு", "no target of an animation that is drawn"},
    {"கீழ்_நழுவு", "no target of an animation that is drawn"},
    {"வலஞ்சுழி", "no target of an animation that is drawn"},
    {"இடஞ்சுழி", "no target of an animation that is drawn"},
    {"பறக்கும்", "no target of an animation that is drawn"},
    {"மெல்ல_மாறு", "nothing reads it"},
    {"தள்ளி_மாறு", "nothing reads it"},
    {"விரிந்து_மாறு", "nothing reads it"},
};

TEST(Widgets, WordsOfTheScannerAreDescribed) {
    DescribedWords described = widgetsAndSections();
    for (const PropertyDescription& row : companion::propertyDescriptions()) {
        described.emplace(row.word);
    }
    for (const ValueDescription& value : companion::valueDescriptions()) {
        described.emplace(value.word);
    }
    for (const auto* table : {&WEB_KEYWORDS, &ANIMATION_KEYWORDS}) {
        ASSERT_FALSE(table->empty());
        for (const auto& row : *table) {
            const bool needsNone = kWithoutDescription.count(row.first) != 0;
            EXPECT_NE(described.count(row.first) != 0, needsNone) << row.first;
        }
    }
}

TEST(Widgets, DescriptionsAreWhole) {
    for (const Description& each : companion::widgetDescriptions()) {
        EXPECT_NE(each.form.find(each.word), std::string_view::npos) << each.word;
        EXPECT_FALSE(each.english.empty()) << each.word;
        EXPECT_TRUE(each.prints.empty()) << each.word;
        expectTamilSentences(each.summary, each.word);
        if (!each.trap.empty()) expectTamilSentences(each.trap, each.word);
    }
}

// ---- Properties ----

TEST(Widgets, PropertiesNameWordsThatAreDescribed) {
    const DescribedWords words = widgetsAndSections();
    for (const PropertyDescription& row : companion::propertyDescriptions()) {
        const bool isBlock = row.block.empty() || row.block == "()";
        EXPECT_TRUE(isBlock || words.count(row.block) != 0) << row.word << ": " << row.block;
        for (const std::string_view widget : companion::listedWords(row.widgets)) {
            EXPECT_EQ(words.count(widget), 1U) << row.word << ": " << widget;
        }
    }
}

TEST(Widgets, PropertiesAreDescribedOnceForEachPlace) {
    std::set<std::string> places;
    for (const PropertyDescription& row : companion::propertyDescriptions()) {
        for (const std::string_view widget : companion::listedWords(row.widgets)) {
            const std::string place =
                std::string(widget) + " " + std::string(row.block) + " " + std::string(row.word);
            EXPECT_TRUE(places.insert(place).second) << place;
        }
        EXPECT_FALSE(row.value.empty()) << row.word;
        EXPECT_FALSE(row.defaultValue.empty()) << row.word;
        EXPECT_FALSE(row.english.empty()) << row.word;
        expectTamilSentences(row.summary, row.word);
        if (!row.trap.empty()) expectTamilSentences(row.trap, row.word);
    }
}

TEST(Widgets, PropertiesAreFoundByTheirWidget) {
    EXPECT_EQ(companion::listedWords("if, when"), (std::vector<std::string_view>{"if", "when"}));
    EXPECT_TRUE(companion::listedWords("").empty());
    for (const Description& each : companion::widgetDescriptions()) {
        for (const PropertyDescription* row : companion::propertiesOf(each.word)) {
            EXPECT_NE(row->widgets.find(each.word), std::string_view::npos) << row->word;
        }
    }
    std::set<std::string_view> words;
    for (const PropertyDescription* row : companion::propertiesOf("சுழல்_காட்டி")) {
        words.insert(row->word);
    }
    EXPECT_EQ(words, (std::set<std::string_view>{"அடையாளம்", "காட்சி_பெயர்", "நகர்வு_X", "நகர்வு_Y",
                                                 "style_அளவு", "style_தடிமன்", "style_நிறம்"}));
}

// ---- Values ----

TEST(Values, OfColoursAndAlignmentsAreThoseOfTheirTables) {
    EXPECT_EQ(valueWordsOf(ValueGroup::Colour), describedSet(colourNames()));
    EXPECT_EQ(valueWordsOf(ValueGroup::Alignment), describedSet(alignmentWords()));
    EXPECT_FALSE(colourNames().empty());
    EXPECT_FALSE(alignmentWords().empty());
}

/// What `pattern` finds in `text`.
DescribedWords foundBy(std::string_view text, const char* pattern) {
    DescribedWords words;
    for (const Match& match : Pattern(pattern).all(std::string(text))) words.insert(match[1]);
    return words;
}

TEST(Values, OfCurvesAreThoseOfTheProgram) {
    const DescribedWords curves = foundBy(emitted::animation, "\\{\"([^\"]+)\",");
    EXPECT_GT(curves.size(), 50U);
    EXPECT_EQ(valueWordsOf(ValueGroup::Curve), curves);
}

bool canBeScanned(const std::string& word) {
    try {
        Lexer(word, "test.பொழில்").tokenize();
        return true;
    } catch (const companion::CompilerRefusal&) {
        return false;
    }
}

/// A trigger is written as a text, so any is read; one that no source can write as a word isn't
/// told of.
TEST(Values, OfTriggersAreThoseOfTheProgram) {
    DescribedWords triggers = foundBy(widget_templates::animation, "aCond == \"([^\"]+)\"");
    triggers.merge(foundBy(emitted::web_boilerplate, "condition == \"([^\"]+)\""));
    for (auto trigger = triggers.begin(); trigger != triggers.end();) {
        trigger = canBeScanned(*trigger) ? std::next(trigger) : triggers.erase(trigger);
    }
    EXPECT_EQ(valueWordsOf(ValueGroup::Trigger), triggers);
}

TEST(Values, AreDescribedWhole) {
    std::set<std::string_view> words;
    for (const ValueDescription& value : companion::valueDescriptions()) {
        EXPECT_TRUE(words.insert(value.word).second) << value.word << " stands twice";
        EXPECT_FALSE(value.english.empty()) << value.word;
        expectTamilSentences(value.summary, value.word);
    }
}

}  // namespace
