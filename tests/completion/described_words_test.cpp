// Each described word is found, at a place of its own, by its plain romanisation: letter by letter,
// as a Tamil speaker would spell it out.
#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <set>

#include "companion/descriptions/properties_of.h"
#include "companion/refusal.h"
#include "lexer/lexer.h"
#include "lexer/utf8.h"
#include "offered.h"

namespace {

using companion::Description;
using companion::WordKind;
using completion_test::labelsAt;
using completion_test::listed;
using completion_test::rankIn;

const std::map<std::string_view, std::string_view>& consonants() {
    static const std::map<std::string_view, std::string_view> rows = {
        {"க", "k"},  {"ங", "n"}, {"ச", "s"}, {"ஞ", "n"}, {"ட", "d"}, {"ண", "n"},  {"த", "th"},
        {"ந", "n"},  {"ப", "p"}, {"ம", "m"}, {"ய", "y"}, {"ர", "r"}, {"ல", "l"},  {"வ", "v"},
        {"ழ", "zh"}, {"ள", "l"}, {"ற", "r"}, {"ன", "n"}, {"ஸ", "s"}, {"ஷ", "sh"}, {"ஜ", "j"},
    };
    return rows;
}

const std::map<std::string_view, std::string_view>& vowels() {
    static const std::map<std::string_view, std::string_view> rows = {
        {"அ", "a"},  {"ஆ", "aa"}, {"இ", "i"},  {"ஈ", "ee"}, {"உ", "u"},  {"ஊ", "oo"},
        {"எ", "e"},  {"ஏ", "ea"}, {"ஐ", "ai"}, {"ஒ", "o"},  {"ஓ", "oa"}, {"ஔ", "au"},
        {"ா", "aa"}, {"ி", "i"},  {"ீ", "ee"},  {"ு", "u"},  {"ூ", "oo"}, {"ெ", "e"},
        {"ே", "ea"}, {"ை", "ai"}, {"ொ", "o"},  {"ோ", "oa"}, {"ௌ", "au"}, {"்", ""},
    };
    return rows;
}

/// அச்சிடு  ->  assidu
std::string romanised(std::string_view word) {
    std::string text;
    bool isOpen = false;
    for (const std::string_view letter : splitCodePoints(word)) {
        const auto consonant = consonants().find(letter);
        const auto vowel = vowels().find(letter);
        if (isOpen && (consonant != consonants().end() || letter.size() == 1)) text += 'a';
        isOpen = consonant != consonants().end();
        if (isOpen) {
            text += consonant->second;
        } else if (vowel != vowels().end()) {
            text += vowel->second;
        } else {
            text += letter;
        }
    }
    return isOpen ? text + 'a' : text;
}

struct Found {
    int words = 0;
    int first = 0;
    int amongThree = 0;

    void look(const std::string& before, std::string_view word, const std::string& after) {
        const std::string typed = romanised(word);
        const auto labels = labelsAt(before + typed + "¦" + after);
        const int rank = rankIn(labels, word);
        words++;
        first += rank == 0 ? 1 : 0;
        amongThree += rank >= 0 && rank < 3 ? 1 : 0;
        EXPECT_TRUE(rank >= 0 && rank < 3) << typed << " " << word << listed(labels);
    }
};

const std::string kPage = "வலைதளம் ஒன்று(\n    குமரி(\n        ";

/// A place where the word stands in programs.
std::pair<std::string, std::string> placeOf(const Description& row) {
    if (row.word == "இல்") return {"ஒவ்வொன்றாக அ ", ""};
    if (row.word == "துவக்கம்") return {"செயல் ", ""};
    if (row.word == "மாற்று") return {"செயல் அ(", ""};
    if (row.word == "வரம்பு") return {"ஒவ்வொன்றாக அ இல் ", ""};
    if (row.word == "மெய்" || row.word == "பொய்" || row.word == "வினை") return {"அ = ", ""};
    const bool isSign =
        row.kind == WordKind::Operator && (row.form.substr(0, row.word.size()) == row.word);
    if (isSign) return {"அ = ", ""};
    switch (row.kind) {
        case WordKind::Operator: return {"அ = ஆ ", ""};
        case WordKind::BuiltIn: return {"அ = ", ""};
        case WordKind::Member: {
            const bool isOfInput = row.form.find("அடையாளம்.") == 0;
            if (!isOfInput) return {"அ.", ""};
            return {
                "வலைதளம் ஒன்று(\n    குமரி(\n        உரைபெட்டி(அடையாளம்: \"அ\")\n    )\n"
                "    வரையறை(\n        ஆ = அ.",
                "\n    )\n)\n"};
        }
        case WordKind::Widget: return {kPage, "\n    )\n)\n"};
        default: return {"", ""};
    }
}

TEST(DescribedWords, AreFoundByTheirSound) {
    Found found;
    for (const Description& row : companion::wordDescriptions()) {
        if (row.kind == WordKind::Mark) continue;
        const auto [before, after] = placeOf(row);
        found.look(before, row.word, after);
    }
    for (const Description& row : companion::widgetDescriptions()) {
        if (row.kind != WordKind::Widget) continue;
        const auto [before, after] = placeOf(row);
        found.look(before, row.word, after);
    }
    std::cout << found.words << " words: " << found.first << " first\n";
    EXPECT_GT(found.words, 140);
    EXPECT_GE(found.first * 100, found.words * 98);
}

TEST(DescribedWords, OfApplicationsAreFoundByTheirSound) {
    Found found;
    for (const std::string_view word : {"தலைமை", "குமரி", "வரையறை", "தரவுத்தளமேலாண்மை"}) {
        found.look("வலைதளம் ஒன்று(\n    ", word, "\n)\n");
    }
    found.look("", "வலைதளம்", "");
    found.look("", "புதுப்பி", "");
    found.look("வலைதளம் ஒன்று(\n    தரவுத்தளமேலாண்மை(\n        ", "பயர்பேசு_அமைப்பு", ")\n)\n");
    EXPECT_EQ(found.first, found.words);
}

TEST(DescribedWords, PropertiesAreFoundInTheirWidget) {
    Found found;
    for (const companion::PropertyDescription& row : companion::propertyDescriptions()) {
        for (const std::string_view widget : companion::listedWords(row.widgets)) {
            std::string before = kPage;
            if (widget == "தலைமை" || widget == "பயர்பேசு_அமைப்பு") before = "வலைதளம் ஒன்று(\n    ";
            before += std::string(widget) + "(";
            if (row.block == "இலக்கு") before += "அசைவூட்டம்(";
            if (!row.block.empty() && row.block != "()") before += std::string(row.block) + "(";
            found.look(before, row.word, "");
        }
    }
    std::cout << found.words << " properties: " << found.first << " first\n";
    EXPECT_GT(found.words, 300);
    EXPECT_GE(found.first * 100, found.words * 98);
}

TEST(DescribedWords, ValuesAreFoundInTheirProperty) {
    Found found;
    const auto opening = [](companion::ValueGroup group) -> std::string {
        switch (group) {
            case companion::ValueGroup::Colour: return "உரை(\"அ\", உரைபாணி(நிறம்: \"";
            case companion::ValueGroup::Alignment: return "நெடுவரிசை(சீரமைப்பு: ";
            case companion::ValueGroup::Curve: return "உரை(\"அ\", அசைவூட்டம்(வகை: \"";
            case companion::ValueGroup::Trigger: return "உரை(\"அ\", அசைவூட்டம்(நிலைமை: \"";
        }
        return "";
    };
    for (const companion::ValueDescription& row : companion::valueDescriptions()) {
        found.look(kPage + opening(row.group), row.word, "");
    }
    std::cout << found.words << " values: " << found.first << " first\n";
    EXPECT_GT(found.words, 70);
    EXPECT_GE(found.first * 100, found.words * 98);
}

}  // namespace
