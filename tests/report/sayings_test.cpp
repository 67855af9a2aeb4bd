// The sayings under the reports. They are always drawn in a process of their own: a forked child
// would otherwise inherit the state of its parent's generator.
#include <gtest/gtest.h>

#include <iostream>
#include <iterator>
#include <set>
#include <sstream>

#include "error_handler.h"
#include "support/case_files.h"
#include "support/saying.h"
#include "support/subprocess.h"

namespace {

using Texts = std::set<std::string>;

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// A second copy of the sayings, one a line.
Texts listed() {
    const auto lines = linesOf(readText(POZHIL_ROOT "/tests/report/sayings.txt"));
    return {lines.begin(), lines.end()};
}

std::vector<std::string> draw(int count) {
    const ProcessResult result = runForked([&] {
        for (int i = 0; i < count; i++) std::cout << ErrorHandler::பொன்மொழி_பெறு() << "\n";
        std::cout.flush();
        return 0;
    });
    EXPECT_EQ(result.exitCode, 0);
    return linesOf(result.out);
}

TEST(Sayings, AreExactlyTheFifty) {
    const Texts expected = listed();
    ASSERT_EQ(expected.size(), 50U);
    const auto drawn = draw(20000);  // missing one of fifty by chance: one in 10^174
    ASSERT_EQ(drawn.size(), 20000U);
    const Texts actual(drawn.begin(), drawn.end());
    for (const std::string& saying : actual) EXPECT_EQ(expected.count(saying), 1U) << saying;
    for (const std::string& saying : expected) EXPECT_EQ(actual.count(saying), 1U) << saying;
}

TEST(Sayings, DifferBetweenRuns) {
    Texts firsts;
    for (int run = 0; run < 20; run++) firsts.insert(draw(1).at(0));
    EXPECT_GT(firsts.size(), 1U);
}

TEST(Sayings, DifferWithinARun) {
    const auto drawn = draw(50);
    EXPECT_GT(Texts(drawn.begin(), drawn.end()).size(), 1U);
}

TEST(Sayings, StandInTheReport) {
    const Texts expected = listed();
    for (int run = 0; run < 20; run++) {
        const ProcessResult result =
            runForked([]() -> int { ErrorHandler::அறிக்கை(LEXICAL_ERROR, "", "", "", 1, "", ""); });
        EXPECT_EQ(expected.count(sayingOf(result.out)), 1U) << result.out;
    }
}

TEST(Sayings, WithQuotesAreMaskedWhole) {
    const std::string report = "x\n  ✨ \"\"யாதும்\" - ஊரே.\"\033[0m\ny\n";
    EXPECT_EQ(maskSaying(report), "x\n  ✨ \"…\"\033[0m\ny\n");
    EXPECT_EQ(sayingOf(report), "\"யாதும்\" - ஊரே.");
    EXPECT_EQ(maskSaying("no saying"), "no saying");
}

TEST(VisualWidth, CountsAColumnACharacter) {
    EXPECT_EQ(ErrorHandler::visualWidth(""), 0);
    EXPECT_EQ(ErrorHandler::visualWidth("abc 1"), 5);
    EXPECT_EQ(ErrorHandler::visualWidth("éa"), 2);
    EXPECT_EQ(ErrorHandler::visualWidth("தமிழ்"), 5);
    EXPECT_EQ(ErrorHandler::visualWidth("▲"), 1);
}

TEST(VisualWidth, CountsTwoColumnsForFourBytes) {
    EXPECT_EQ(ErrorHandler::visualWidth("😀"), 2);
    EXPECT_EQ(ErrorHandler::visualWidth("a😀அ"), 4);
}

TEST(VisualWidth, FollowsLeadBytesAlone) {
    EXPECT_EQ(ErrorHandler::visualWidth("\x80"), 1);  // steps two
    EXPECT_EQ(ErrorHandler::visualWidth("\x80"
                                        "ab"),
              2);
    EXPECT_EQ(ErrorHandler::visualWidth("\xE0"
                                        "abc"),
              2);
    EXPECT_EQ(ErrorHandler::visualWidth("\xFF"
                                        "abcd"),
              3);
}

}  // namespace
