// Scanning, parsing and generating take time in proportion to the source: ten times the source
// takes about ten times as long, and not many times what reading its words takes. Processor time is
// measured.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <sstream>
#include <string>

#include "sources.h"
#include "support/generated_text.h"
#include "support/repeated.h"

namespace {

constexpr int kRounds = 15;

/// A source and how many pieces it has: lines, or terms.
struct Sized {
    std::string source;
    int pieces;
};

double secondsAPiece(const Sized& sized) {
    std::string text;
    const double seconds = secondsOf([&] { text = generate(sized.source); });
    EXPECT_FALSE(text.empty());
    return seconds / sized.pieces;
}

/// How much longer a piece of the large source takes than one of the small, which is run `repeats`
/// times in each round: too short a time couldn't be measured. A round compares what ran side by
/// side, since a busy machine slows both; the best round counts, and the first that meets `limit`
/// is the last.
double growth(const Sized& small, const Sized& large, int repeats, double limit) {
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round < kRounds && best > limit; round++) {
        double seconds = 0;
        for (int run = 0; run < repeats; run++) seconds += secondsAPiece(small);
        best = std::min(best, secondsAPiece(large) / (seconds / repeats));
    }
    testing::Test::RecordProperty("growth", std::to_string(best));
    return best;
}

/// Each word of the source entered into a table: what a machine that is as busy takes for work of
/// that size.
double secondsOfCountingWords(const std::string& source) {
    std::map<std::string, int> counts;
    const double seconds = secondsOf([&] {
        std::istringstream words(source);
        for (std::string word; words >> word;) counts[word]++;
    });
    EXPECT_FALSE(counts.empty());
    return seconds;
}

/// How many times as long as the words of `source` its translation takes. The best round counts,
/// and the first that meets `limit` is the last.
double timesItsWords(const std::string& source, double limit) {
    double best = std::numeric_limits<double>::infinity();
    for (int round = 0; round < kRounds && best > limit; round++) {
        const double words = secondsOfCountingWords(source);
        best = std::min(best, secondsAPiece({source, 1}) / words);
    }
    testing::Test::RecordProperty("times", std::to_string(best));
    return best;
}

// About 1.6, on a busy machine too.
constexpr double kMaxTimesWords = 2.6;

TEST(FrontEnd, PrintsTakeFewTimesWhatTheirWordsTake) {
    EXPECT_LE(timesItsWords(printLines(10'000), kMaxTimesWords), kMaxTimesWords);
}

TEST(FrontEnd, MixedStatementsTakeFewTimesWhatTheirWordsTake) {
    EXPECT_LE(timesItsWords(mixedLines(10'000), kMaxTimesWords), kMaxTimesWords);
}

// Larger sources leave the processor's caches, which costs something for each line: the more, the
// less the line itself costs. Up to 1.7 were seen.
constexpr double kMaxGrowthOfLines = 2;

TEST(FrontEnd, TimeALineOfPrintsDoesNotGrow) {
    EXPECT_LE(
        growth({printLines(10'000), 10'000}, {printLines(100'000), 100'000}, 5, kMaxGrowthOfLines),
        kMaxGrowthOfLines);
}

TEST(FrontEnd, TimeALineOfMixedStatementsDoesNotGrow) {
    EXPECT_LE(
        growth({mixedLines(10'000), 10'000}, {mixedLines(100'000), 100'000}, 5, kMaxGrowthOfLines),
        kMaxGrowthOfLines);
}

/// A line of so many times the statement, below what it needs.
Sized oneLine(const char* head, const char* statement, int times) {
    return {head + repeated(statement, times) + "\n", times};
}

TEST(FrontEnd, TimeAStatementOfOneLongLineDoesNotGrow) {
    constexpr double kMaxGrowthOfStatements = 3;
    constexpr const char* kStatements[][2] = {{"செயல் அ():\n    விடு\n", "அ()"},
                                              {"", "அ = 1 "},
                                              {"", "அச்சிடு(1)"},
                                              {"அ = [0]\n", "அ[0] = [1]"}};
    for (const auto& [head, statement] : kStatements) {
        EXPECT_LE(growth(oneLine(head, statement, 3'000), oneLine(head, statement, 24'000), 8,
                         kMaxGrowthOfStatements),
                  kMaxGrowthOfStatements)
            << statement;
    }
}

TEST(FrontEnd, TimeATermOfAChainDoesNotGrow) {
    constexpr double kMaxGrowthOfTerms = 3;
    EXPECT_LE(growth({chainOfSums(390), 390}, {chainOfSums(3'900), 3'900}, 20, kMaxGrowthOfTerms),
              kMaxGrowthOfTerms);
}

TEST(FrontEnd, TimeABoxOfAColumnDoesNotGrow) {
    EXPECT_LE(
        growth({columnOfBoxes(100), 100}, {columnOfBoxes(1'000), 1'000}, 10, kMaxGrowthOfLines),
        kMaxGrowthOfLines);
}

}  // namespace
