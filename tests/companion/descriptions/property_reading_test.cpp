// Which properties a widget reads, and which values of them: found out by writing each into an
// application and looking whether its text changes. What is described is read, what is read is
// described.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

#include "companion/descriptions/properties_of.h"
#include "companion/descriptions/widget_probe.h"
#include "lexer/word_tables.h"
#include "support/case_files.h"
#include "support/pattern.h"
#include "ui/widget_frame.h"

namespace {

namespace fs = std::filesystem;
using companion::PropertyDescription;
using companion::ValueKind;
using PropertyWords = std::vector<std::string>;

// ---- What is written behind a colon ----

struct ValueForm {
    const char* name;
    const char* value;
    const char* other;
};
const ValueForm kForms[] = {
    {"number", "37", "41"},
    {"decimal", "2.5", "3.5"},
    {"percentage", "37%", "41%"},
    {"text", "\"அம்மா\"", "\"அப்பா\""},
    {"hexadecimal", "\"#123456\"", "\"#654321\""},
    {"colour", "\"சிவப்பு\"", "\"பச்சை\""},
    {"truth", "மெய்", "பொய்"},
    {"name", "மையம்", "கீழ்_வலது"},
    {"colour name", "சிவப்பு", "பச்சை"},
    {"choice", "(திரை_அகலம் சிறிது 600 ? 1 : 2)", "(திரை_அகலம் சிறிது 600 ? 3 : 4)"},
    {"list", "[\"அ\"]", "[\"ஆ\"]"},
    {"action", "வினை(): செல்க(\"அ\")", "வினை(): செல்க(\"ஆ\")"},
    {"widget", "உரை(\"கா\")", "உரை(\"கீ\")"},
};

/// The forms whose value counts, in the order of the table.
const std::map<ValueKind, std::string> kCounts = {
    {ValueKind::Any,
     "number decimal text hexadecimal colour truth name colour name choice list action widget "},
    {ValueKind::Number, "number "},
    {ValueKind::Decimal, "number decimal "},
    {ValueKind::Size, "number percentage name colour name choice "},
    {ValueKind::Text, "text colour "},
    {ValueKind::Colour, "hexadecimal colour "},
    {ValueKind::NamedColour, "hexadecimal colour colour name "},
    // The page around the frame takes whatever text there is: see Head.
    {ValueKind::PageColour, "text hexadecimal colour "},
    {ValueKind::Truth, "truth "},
    {ValueKind::Flag, ""},
    {ValueKind::Texts, "list "},
    {ValueKind::Widget, "widget "},
    {ValueKind::Alignment, "name "},
    {ValueKind::Weight, "number "},
    {ValueKind::Word, "text hexadecimal colour name colour name "},
};

std::string itemText(const std::string& word, const char* value) { return word + ": " + value; }

// ---- What is read and isn't described, each with its reason ----

struct Undescribed {
    const char* widget;
    const char* block;
    const char* word;
    const char* reason;
};
const Undescribed kUndescribed[] = {
    {"உரை", "உரைபாணி", "அகலம்", "the first text among the properties is what is measured"},
    {"உரை", "உரைபாணி", "உயரம்", "the first text among the properties is what is measured"},
    {"உரை", "உரைபாணி", "வளைவு", "the first text among the properties is what is measured"},
    {"உரை", "உரைபாணி", "பின்னணி", "the first text among the properties is what is measured"},
    {"உரை", "உரைபாணி", "நிழல்", "the first text among the properties is what is measured"},
    {"கட்டம்_காட்சி", "இவெ", "அளவு", "the same kind of word as உயரம்"},
    {"வெற்றிடம்", "", "உயரம்", "it takes its share whatever its height"},
    {"வெற்றிடம்", "", "அளவு", "the same kind of word as உயரம்"},
    {"வெற்றிடம்", "", "அடையாளம்", "nothing of it is written in a column or row, where it belongs"},
    {"வெற்றிடம்", "", "காட்சி_பெயர்", "nothing of it is written in a column or row"},
    {"வெற்றிடம்", "", "நகர்வு_X", "it has no look to be moved"},
    {"வெற்றிடம்", "", "நகர்வு_Y", "it has no look to be moved"},
    {"இவெ", "", "அடையாளம்", "nothing of it is written in a column or row, where it belongs"},
    {"இவெ", "", "காட்சி_பெயர்", "nothing of it is written in a column or row"},
    {"இவெ", "", "நகர்வு_X", "it has no look to be moved"},
    {"இவெ", "", "நகர்வு_Y", "it has no look to be moved"},
    {"எச்சரிக்கை", "", "நகர்வு_X", "it is drawn in the middle of the window"},
    {"எச்சரிக்கை", "", "நகர்வு_Y", "it is drawn in the middle of the window"},
    {"அடிப்பகுதி", "", "நகர்வு_X", "it is drawn at the foot of the window"},
    {"அடிப்பகுதி", "", "நகர்வு_Y", "it is drawn at the foot of the window"},
};

// ---- Which words there are ----

/// Tamil, or as keys are in English: cols, h_gap, api_key.
bool isPropertyKey(const std::string& word) {
    const bool isTamil = word.find('\xe0') != std::string::npos;
    return std::all_of(word.begin(), word.end(), [&](unsigned char byte) {
        return byte >= 0x80 || byte == '_' || (byte >= 'a' && byte <= 'z') ||
               (isTamil && std::isupper(byte) != 0);
    });
}

/// What stands in quotes in a source and may be a key: no text, no path.
void addQuotedWords(const fs::path& file, std::set<std::string>& words) {
    static const Pattern quoted("\"([^\\s\"]+)\"");
    for (const Match& match : quoted.all(readText(file.string()))) {
        if (isPropertyKey(match[1])) words.insert(match[1]);
    }
}

/// Every word that could be a property: those that the scanner and the web form know.
const PropertyWords& possibleWords() {
    static const PropertyWords all = [] {
        std::set<std::string> words;
        for (const auto* table : {&WEB_KEYWORDS, &ANIMATION_KEYWORDS}) {
            for (const auto& row : *table) words.insert(row.first);
        }
        const fs::path sources = fs::path(POZHIL_ROOT) / "src";
        for (const char* folder : {"ui", "ui/widgets", "parser"}) {
            for (const auto& entry : fs::directory_iterator(sources / folder)) {
                if (entry.path().extension() == ".cpp") addQuotedWords(entry.path(), words);
            }
        }
        addQuotedWords(sources / "generator/database.cpp", words);
        words.insert({"style_அகலம்", "style_உயரம்"});
        return PropertyWords(words.begin(), words.end());
    }();
    return all;
}

/// The rows of a widget, looked for once.
const std::vector<const PropertyDescription*>& rowsOf(const std::string& widget) {
    static std::map<std::string, std::vector<const PropertyDescription*>> known;
    const auto [row, isNew] = known.try_emplace(widget);
    if (isNew) row->second = companion::propertiesOf(widget);
    return row->second;
}

/// A word with the style's prefix stands for the same word in any block of the widget, and
/// `style_பின்னணி` for the button's own word too.
bool hasDescription(const Shape& shape, const std::string& word) {
    const std::string plain = word.rfind("style_", 0) == 0 ? word.substr(6) : "";
    const auto& rows = rowsOf(shape.widget);
    return std::any_of(rows.begin(), rows.end(), [&](const PropertyDescription* row) {
        if (!plain.empty() && row->word == plain) return true;
        if (plain == "பின்னணி" && row->word == "பொபின்னணி") return true;
        return row->word == word && row->block == shape.block;
    });
}

bool isUndescribed(const Shape& shape, const std::string& word) {
    return std::any_of(std::begin(kUndescribed), std::end(kUndescribed), [&](const auto& row) {
        return shape.widget == row.widget && shape.block == row.block && word == row.word;
    });
}

const Shape* shapeOf(std::string_view widget, std::string_view block) {
    for (const Shape& shape : allShapes()) {
        if (shape.widget == widget && shape.block == block) return &shape;
    }
    return nullptr;
}

// ---- Nothing else is read ----

PropertyWords wordsWithout(const PropertyWords& words, const std::set<std::string>& others) {
    PropertyWords rest;
    std::copy_if(words.begin(), words.end(), std::back_inserter(rest),
                 [&](const std::string& word) { return others.count(word) == 0; });
    return rest;
}

/// For each value the words that alone showed something in the last shape where they were tried.
using Conspicuous = std::map<std::string, std::set<std::string>>;

/// Looks for words that change what a shape becomes. All are written at once, and only where that
/// shows something they are taken apart.
class Suspects {
public:
    Suspects(const Shape& shape, std::string plain, const char* value)
        : shape(shape), plain(std::move(plain)), value(value) {}

    /// `before` are words that most likely show something here too: tried apart, they cost least.
    void lookFor(const PropertyWords& words, std::set<std::string>& before) {
        takeApart(wordsWithout(words, before));
        for (const std::string& word : words) {
            if (before.count(word) != 0) takeApart({word});
        }
        for (const std::string& word : words) before.erase(word);
        before.insert(shown.begin(), shown.end());
    }

    std::set<std::string> refused;
    std::set<std::string> read;

private:
    void takeApart(const PropertyWords& words) {
        if (words.empty()) return;
        std::string items;
        for (const std::string& word : words) items += itemText(word, value) + ", ";
        const auto text = becomes(shape, items);
        if (text == plain) return;
        if (words.size() == 1) {
            shown.insert(words.front());
            if (!text) refused.insert(words.front());
            if (text && !isNoProperty(words.front(), *text)) read.insert(words.front());
            return;
        }
        const auto middle = words.begin() + static_cast<std::ptrdiff_t>(words.size() / 2);
        takeApart(PropertyWords(words.begin(), middle));
        takeApart(PropertyWords(middle, words.end()));
    }

    /// A word that is passed over, or that is a widget itself, changes what its value does, or it
    /// alone.
    bool isNoProperty(const std::string& word, const std::string& text) {
        if (!valueAlone) valueAlone = becomes(shape, value);
        return text == *valueAlone || text == becomes(shape, word) ||
               text == becomes(shape, word + " " + value);
    }

    const Shape& shape;
    std::string plain;
    const char* value;
    std::set<std::string> shown;
    std::optional<std::optional<std::string>> valueAlone;  ///< Once it was asked for.
};

/// Words that are read in `shape` with a number or another value.
std::set<std::string> readWords(const Shape& shape, const std::string& plain,
                                const PropertyWords& words, Conspicuous& before) {
    Suspects withNumber(shape, plain, "37");
    withNumber.lookFor(words, before["37"]);

    std::set<std::string> read = withNumber.read;
    const PropertyWords writable = wordsWithout(words, withNumber.refused);
    for (const char* value : {"\"அம்மா\"", "\"#123456\"", "மெய்", "மையம்", "[\"அ\"]", "உரை(\"கா\")"}) {
        if (!becomes(shape, itemText("வேறுசொல்", value))) continue;  // nothing takes such a value
        Suspects suspects(shape, plain, value);
        suspects.lookFor(writable, before[value]);
        read.insert(suspects.read.begin(), suspects.read.end());
    }
    return read;
}

TEST(Properties, AreLookedForInEveryWidget) {
    for (const std::string_view word : widgetWords()) {
        EXPECT_NE(shapeOf(word, ""), nullptr) << word;
    }
    for (const Shape& shape : allShapes()) {
        EXPECT_NE(shape.source.find(shape.widget), std::string::npos) << shape.widget;
    }
}

TEST(Properties, HoldWhateverAWidgetReads) {
    Conspicuous before;
    EXPECT_GT(possibleWords().size(), 120U);
    for (const Shape& shape : allShapes()) {
        const auto plain = becomes(shape, "");
        if (!becomes(shape,
                     itemText("வேறுசொல்", "37"))) {  // Such a place takes one property, or none.
            EXPECT_TRUE(shape.block == "()" || shape.widget == "உள்_இவெ") << shape.source;
            continue;
        }
        PropertyWords open;
        for (const std::string& word : possibleWords()) {
            if (!hasDescription(shape, word) && !isUndescribed(shape, word)) open.push_back(word);
        }
        for (const std::string& word : readWords(shape, *plain, open, before)) {
            ADD_FAILURE() << shape.widget << " " << shape.block << ": " << word;
        }
    }
}

TEST(Properties, AreMissingOnlyWhereTheyAreRead) {
    for (const Undescribed& row : kUndescribed) {
        const Shape* shape = shapeOf(row.widget, row.block);
        ASSERT_NE(shape, nullptr) << row.widget;
        EXPECT_FALSE(hasDescription(*shape, row.word)) << row.widget << " " << row.word;
        const auto plain = becomes(*shape, "");
        const bool isRead =
            std::any_of(std::begin(kForms), std::end(kForms), [&](const ValueForm& form) {
                const auto text = becomes(*shape, itemText(row.word, form.value));
                return text && text != plain;
            });
        EXPECT_TRUE(isRead) << row.widget << " " << row.word << ": " << row.reason;
    }
}

// ---- What is described is read ----

struct PropertyPlace {
    const PropertyDescription* row;
    const Shape* shape;
};

constexpr const char* kVideo = "பின்னணிகாணொளி";  ///< Read only of a file that is there: see Head.

/// Every property in every place.
std::vector<PropertyPlace> allPlaces() {
    std::vector<PropertyPlace> probes;
    for (const PropertyDescription& row : companion::propertyDescriptions()) {
        for (const std::string_view widget : companion::listedWords(row.widgets)) {
            const Shape* shape = shapeOf(widget, row.block);
            if (shape == nullptr) {
                ADD_FAILURE() << "no application of " << widget << " " << row.block;
                continue;
            }
            probes.push_back({&row, shape});
        }
    }
    return probes;
}

/// The names of the forms whose value counts, as in kCounts.
std::string countingForms(const Shape& shape, const std::string& word) {
    std::string names;
    for (const ValueForm& form : kForms) {
        const auto text = becomes(shape, itemText(word, form.value));
        if (text && text != becomes(shape, itemText(word, form.other)) &&
            text != becomes(shape, form.value)) {
            names += std::string(form.name) + " ";
        }
    }
    return names;
}

TEST(Properties, AreReadWithTheValuesOfTheirKind) {
    std::set<std::string> common;
    for (const auto& [row, shape] : allPlaces()) {
        const std::string word(row->word);
        if (word == kVideo) continue;
        // What all widgets share is read by one function: its values are looked at once.
        const bool isCommon = companion::listedWords(row->widgets).size() > 20;
        if (isCommon && !common.insert(word).second) {
            EXPECT_NE(becomes(*shape, itemText(word, "37")),
                      becomes(*shape, itemText(word, "\"அ\"")))
                << shape->widget << " " << word;
            continue;
        }
        EXPECT_EQ(countingForms(*shape, word), kCounts.at(row->kind))
            << shape->widget << " " << shape->block << ": " << word;
        if (row->kind == ValueKind::Flag) {
            const auto one = becomes(*shape, itemText(word, "1"));
            EXPECT_TRUE(one && one != becomes(*shape, "")) << shape->widget << " " << word;
        }
    }
}

TEST(Properties, OfAWeightReadTwoTexts) {
    const Shape* shape = shapeOf("உரை", "உரைபாணி");
    ASSERT_NE(shape, nullptr);
    const auto heavy = becomes(*shape, "தடிமன்: 700");
    EXPECT_EQ(becomes(*shape, "தடிமன்: \"தடிமனான\""), heavy);
    EXPECT_EQ(becomes(*shape, "தடிமன்: \"bold\""), heavy);
    EXPECT_EQ(becomes(*shape, "தடிமன்: \"வேறு\""), becomes(*shape, "தடிமன்: 400"));
}

TEST(Properties, OfAStyleAreReadUnderItsShortNameToo) {
    for (const char* block : {"உரைபாணி", "உரைபொ_பாணி"}) {
        const Shape* shape = shapeOf(block == std::string("உரைபாணி") ? "உரை" : "உரைபொத்தான்", block);
        ASSERT_NE(shape, nullptr) << block;
        Shape renamed = *shape;
        renamed.source.replace(renamed.source.find(block), std::string(block).size(), "பாணி");
        EXPECT_EQ(becomes(renamed, "அளவு: 37"), becomes(*shape, "அளவு: 37")) << block;
        EXPECT_NE(becomes(renamed, "அளவு: 37"), becomes(*shape, "")) << block;
    }
}

/// Without its last line, the colour of the page around the frame.
std::string drawnHead(const std::string& items) {
    const auto text = becomes(*shapeOf("தலைமை", ""), items);
    if (!text) return "refused";
    return text->substr(0, text->rfind('\n'));
}

TEST(Head, DrawsABackgroundByItsNumberAlone) {
    EXPECT_EQ(drawnHead("பின்னணி: \"சிவப்பு\""), drawnHead(""));
    EXPECT_NE(drawnHead("பின்னணி: \"#FF0000\""), drawnHead(""));
}

TEST(Head, ReadsAVideoThatIsThere) {
    const std::string path = std::string(POZHIL_ROOT) + "/README.md";
    EXPECT_NE(drawnHead(std::string(kVideo) + ": \"" + path + "\"").find(path), std::string::npos);
    EXPECT_EQ(drawnHead(std::string(kVideo) + ": \"இல்லாத.mp4\""), "refused");
}

}  // namespace
