// What formatting holds for every program: its meaning, a result that stays, its time.
#include "companion/format/format.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "companion/refusal.h"
#include "files.h"
#include "lexer/lexer.h"
#include "support/case_files.h"

namespace {

namespace fs = std::filesystem;

/// All programs of the checkout below `folder`.
std::vector<std::string> programsBelow(const std::string& folder) {
    std::vector<std::string> programs;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(POZHIL_ROOT) / folder)) {
        const std::string path = entry.path().u8string();
        if (entry.is_regular_file() && hasEnding(path, ".பொழில்")) programs.push_back(path);
    }
    return programs;
}

std::string kindsOf(const std::string& text) {
    std::string kinds;
    try {
        for (const Token& token : Lexer(text, "").tokenize()) {
            kinds += std::to_string(static_cast<int>(token.type)) + " ";
        }
    } catch (const companion::CompilerRefusal&) {
        return "refused";
    }
    return kinds;
}

TEST(Format, KeepsExamplesAndLibraryAsTheyAre) {
    int count = 0;
    for (const char* folder : {"examples", "தொகுப்புகள்"}) {
        for (const std::string& path : programsBelow(folder)) {
            const std::string text = readText(path);
            EXPECT_EQ(companion::formatted(text), text) << path;
            count++;
        }
    }
    EXPECT_GT(count, 30);
}

TEST(Format, KeepsTheTokensOfEveryTestProgram) {
    int changed = 0;
    for (const std::string& path : programsBelow("tests/trees")) {
        const std::string text = readText(path);
        const auto result = companion::formatted(text);
        ASSERT_TRUE(result) << path;
        EXPECT_EQ(companion::formatted(*result), result) << path;
        // A line end at the end is a token more.
        const bool isWhole = !text.empty() && text.back() == '\n';
        if (isWhole) {
            EXPECT_EQ(kindsOf(*result), kindsOf(text)) << path;
        }
        changed += *result != text ? 1 : 0;
    }
    EXPECT_GT(changed, 5);
}

TEST(Format, LeavesAloneWhatTheScannerRefuses) {
    EXPECT_EQ(companion::formatted("அ = \"மூடாத\n"), std::nullopt);
    EXPECT_EQ(companion::formatted("ஃஃ மூடாத\n"), std::nullopt);
    EXPECT_EQ(companion::formatted("அ = 1 + 2\n"), std::nullopt);
    EXPECT_EQ(companion::formatted("எனில் மெய்:\n    அ()\n  ஆ()\n"), std::nullopt);
}

/// The words of the database swallow a sign behind them: parted from it they are other words.
TEST(Format, LeavesAloneWhatItWouldChange) {
    EXPECT_EQ(companion::formatted("நிகழ்நேர.அ+ஆ\n"), std::nullopt);
}

TEST(Format, LeavesAloneWhatANulByteCutsOff) {
    using namespace std::string_literals;
    EXPECT_EQ(companion::formatted("அ = 1\n\0ஆ = 2\n"s), std::nullopt);
    EXPECT_EQ(companion::formatted("அ = 1 ஃ \0 ஆ\n"s), std::nullopt);
}

/// A letter that lacks its last byte takes the line end with it.
TEST(Format, LeavesAloneBrokenLetters) {
    EXPECT_EQ(companion::formatted("அ = \xE0\xAE\nஆ = 1\n"), std::nullopt);
    EXPECT_EQ(companion::formatted("அ = 1 ஃ \xFF\n"), std::nullopt);
}

TEST(Format, MakesNothingOfNothing) {
    EXPECT_EQ(companion::formatted(""), "");
    EXPECT_EQ(companion::formatted("\n\n  \n"), "");
    EXPECT_EQ(companion::formatted("\xEF\xBB\xBF"), "");
    EXPECT_EQ(companion::formatted("\n\xEF\xBB\xBFஅ = 1\n"), std::nullopt);
}

/// Twenty times what it takes: a step that is taken anew for each line shows all the same.
TEST(Format, IsQuickOnALongSource) {
    std::string text;
    for (int line = 0; line < 5000; line++) {
        text += "எனில் அ  சமம் {\"ஒன்று\":[1,2,3],\"இரண்டு\":(அ ? 1 : 2)}:\n";
        text += "  அச்சிடு( \"வணக்கம் உலகம்\",அ ) ஃ குறிப்பு\n";
    }
    const std::clock_t start = std::clock();
    EXPECT_TRUE(companion::formatted(text));
    EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC);
}

}  // namespace
