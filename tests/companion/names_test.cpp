// How names are compared, and that the tables of words agree with the compiler.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "companion/check/calls_builtins.h"
#include "companion/check/check.h"
#include "companion/check/compiled_source.h"
#include "companion/check/names_english.h"
#include "companion/check/names_letters.h"
#include "companion/check/names_uses.h"
#include "lexer/word_tables.h"
#include "support/case_files.h"
#include "support/pattern.h"

namespace {

std::string lettersText(std::string_view text) {
    std::string letters;
    for (const companion::Letter& letter : companion::lettersOf(text)) {
        letters += std::string(letter.base) + "+" + std::string(letter.sign) + " ";
    }
    return letters;
}

TEST(Letters, HoldTheirSigns) {
    EXPECT_EQ(lettersText("கொட்டில்"), "க+ொ ட+் ட+ி ல+் ");
    EXPECT_EQ(lettersText("அஃகு1"), "அ+ ஃ+ க+ு 1+ ");
    EXPECT_EQ(lettersText("\xE0\xAE\xBEக"), "\xE0\xAE\xBE+ க+ ");
    EXPECT_EQ(lettersText(""), "");
}

TEST(Letters, AreCountedAsTheyAreRead) {
    EXPECT_EQ(companion::distanceBetween("மலர்", "மலர்"), 0);
    EXPECT_EQ(companion::distanceBetween("மலர்", "மளர்"), 1) << "sounds alike";
    EXPECT_EQ(companion::distanceBetween("மலர்", "மலார்"), 1) << "another sign";
    EXPECT_EQ(companion::distanceBetween("மலர்", "மகர்"), 2) << "another letter";
    EXPECT_EQ(companion::distanceBetween("மலர்", "மலர்கள்"), 4) << "two more";
    EXPECT_EQ(companion::distanceBetween("", "மலர்"), 6);
}

TEST(Letters, FindTheNearestName) {
    const std::set<std::string> known = {"மதிப்பெண்", "மொத்தம்", "அ"};
    EXPECT_EQ(companion::nearestName("மதிப்பென்", known).value_or(""), "மதிப்பெண்");
    EXPECT_EQ(companion::nearestName("மொதம்", known).value_or(""), "மொத்தம்");
    EXPECT_FALSE(companion::nearestName("குவளை", known));
    EXPECT_FALSE(companion::nearestName("ஆ", known)) << "a single letter is near to many";
    EXPECT_FALSE(companion::nearestName("மொத்தம்", {"மொத்தம்"})) << "the name itself";
}

// ---- Built-ins ----

/// The names in the compiler's own table.
std::set<std::string> compilersBuiltins() {
    const Pattern row("^    \\{\"([^\"]+)\", (exactly|kOptional|kAny)");
    std::ifstream file(POZHIL_ROOT "/src/generator/builtins.cpp");
    std::set<std::string> names;
    for (std::string line; std::getline(file, line);) {
        if (const auto match = row.first(line)) names.insert((*match)[1]);
    }
    return names;
}

bool isTaken(const std::string& name, int count) {
    std::string call = name + "(";
    for (int i = 0; i < count; i++) call += i == 0 ? "அ" : ", அ";
    const companion::SourceText source("test.பொழில்", "அ = 1\n" + call + ")\n");
    return !companion::CompiledSource(source, readFile).refused;
}

TEST(Builtins, AreThoseOfTheCompiler) {
    std::set<std::string> names;
    for (const companion::BuiltinCall& row : companion::builtinCalls()) {
        names.insert(std::string(row.name));
    }
    names.erase("காஸ்");  // the scanner refuses its letter
    auto expected = compilersBuiltins();
    expected.erase("காஸ்");
    EXPECT_EQ(names, expected);
    EXPECT_GT(names.size(), 30U);
}

TEST(Builtins, TakeWhatTheCompilerTakes) {
    for (const companion::BuiltinCall& row : companion::builtinCalls()) {
        if (row.name == "காஸ்") continue;
        for (int count = 0; count < 5; count++) {
            EXPECT_EQ(isTaken(std::string(row.name), count),
                      count >= row.least && count <= row.most)
                << row.name << " with " << count;
        }
    }
}

TEST(Builtins, HaveExamplesThatAreRight) {
    for (const companion::BuiltinCall& row : companion::builtinCalls()) {
        const std::string line(row.example);
        const bool opens = line.back() == ':';
        const companion::SourceText source(
            "test.பொழில்", "எண்கள் = [1]\n" + (opens ? line + "\n    விடு\n" : "அ = " + line + "\n"));
        const companion::CompiledSource compiled(source, readFile);
        EXPECT_TRUE(compiled.isParsed() && !compiled.refused) << line;
    }
}

// ---- Words of other languages ----

TEST(EnglishWords, LeadToWordsOfTheLanguage) {
    const char* const words[] = {"print", "if",     "while", "for",   "def",    "return", "class",
                                 "input", "append", "len",   "range", "str",    "int",    "import",
                                 "try",   "except", "break", "else",  "switch", "random", "sqrt"};
    for (const char* word : words) {
        const companion::EnglishWord* row = companion::englishWord(word);
        ASSERT_NE(row, nullptr) << word;
        const std::string tamil(row->tamil);
        EXPECT_TRUE(companion::builtinCall(tamil) != nullptr || tamil == "சேர்" ||
                    lookUpWord(tamil) != TokenType::IDENTIFIER)
            << word;
        EXPECT_NE(std::string(row->form).find(tamil), std::string::npos) << word;
    }
    EXPECT_EQ(companion::englishWord("மலர்"), nullptr);
}

// ---- Colours ----

/// The colour that is advised for `name`; "" if nothing is said of it.
std::string advisedColour(const std::string& name) {
    const companion::SourceText source(
        "test.பொழில்", "வலைதளம்(தலைமை() வரையறை() குமரி(பெட்டி(நிறம்: \"" + name + "\")))\n");
    const auto findings = companion::checkSource(source, readFile);
    if (findings.empty()) return "";
    std::vector<std::string> parts;
    std::istringstream message(findings[0].message);
    for (std::string part; std::getline(message, part, '"');) parts.push_back(part);
    return findings[0].code == "துணை-537" ? parts.at(3) : findings[0].code;
}

TEST(Colours, OfOtherLanguagesLeadToThoseOfThisOne) {
    EXPECT_EQ(advisedColour("black"), "கருப்பு");
    EXPECT_EQ(advisedColour("பச்சே"), "பச்சை");
    std::set<std::string> advised;
    for (const char* name :
         {"white", "red", "green", "blue", "yellow", "orange", "purple", "pink", "grey", "gray",
          "brown", "skyblue", "gold", "silver", "lime", "navy"}) {
        EXPECT_EQ(advisedColour(advisedColour(name)), "") << name;
        advised.insert(advisedColour(name));
    }
    EXPECT_EQ(advised.size(), 15U) << "grey is written in two ways";
}

// ---- Input members ----

TEST(InputMembers, AreThoseOfTheCompiler) {
    for (const char* member : {"வெறுமை", "நீளம்", "உரைதரவு", "சுத்தம்"}) {
        EXPECT_TRUE(companion::isInputMember(member)) << member;
    }
    const Pattern row("^    \\{\"([^\"]+)\", ?\"?[^}]*g_input|^    \\{\"([^\"]+)\",$");
    int found = 0;
    for (const char* path : {"/src/generator/access.cpp", "/src/generator/calls.cpp"}) {
        std::ifstream file(std::string(POZHIL_ROOT) + path);
        for (std::string line; std::getline(file, line);) {
            const auto match = row.first(line);
            if (!match) continue;
            const std::string member = (*match)[1] + (*match)[2];  // one of them is empty
            EXPECT_TRUE(companion::isInputMember(member)) << member;
            found++;
        }
    }
    EXPECT_EQ(found, 12);
}

}  // namespace
