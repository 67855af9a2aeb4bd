// How many of the mistakes that beginners make the check tells, at the very line. Those that it
// doesn't tell stand in mistakes/known_misses.txt, each with the reason; one that is told by now
// fails there as stale. With POZHIL_REWRITE=1 in the environment the list is written anew, and the
// reasons of what stays are kept.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>

#include "companion/check/check.h"
#include "files.h"
#include "mistakes/mistake.h"
#include "support/case_files.h"

namespace {

using companion::Finding;
using companion::Severity;

const char* const kKnownMisses = POZHIL_ROOT "/tests/companion/mistakes/known_misses.txt";

/// "names/misspelt_variable 2" to why it isn't told.
using Misses = std::map<std::string, std::string>;

Misses readKnownMisses() {
    Misses misses;
    std::istringstream lines(readText(kKnownMisses));
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(": ");
        misses[line.substr(0, colon)] = colon == std::string::npos ? "" : line.substr(colon + 2);
    }
    return misses;
}

void writeKnownMisses(const Misses& misses) {
    std::ofstream list(kKnownMisses);
    for (const auto& [miss, reason] : misses) list << miss << ": " << reason << "\n";
}

/// Errors and warnings; hints are no claim that something is wrong.
std::vector<Finding> claimsOf(const Mistake& mistake) {
    const CurrentDirectory here(mistake.folder);
    const std::string name = std::filesystem::u8path(mistake.source).filename().u8string();
    const companion::SourceText source(name, readText(mistake.source));
    std::vector<Finding> claims;
    for (const Finding& finding : companion::checkSource(source, readFile)) {
        if (finding.severity != Severity::Hint) claims.push_back(finding);
    }
    return claims;
}

bool holdsLine(const std::vector<int>& lines, int line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

/// For each mistake in a program the lines where it may be told, the blamed one first.
std::vector<std::vector<int>> blamedLines(const Truth& truth) {
    std::vector<std::vector<int>> blamed = {{truth.line}};
    if (truth.otherLine != 0) blamed[0].push_back(truth.otherLine);
    for (const int line : truth.furtherLines) blamed.push_back({line});
    return blamed;
}

struct ToldCount {
    int told = 0;
    int all = 0;
};

/// What was told, by kind.
class ToldNumbers {
public:
    void add(const Truth& truth, bool isTold) {
        ToldCount& count = counts[truth.kind];
        count.told += isTold ? 1 : 0;
        count.all++;
    }
    void addElsewhere(const Mistake& mistake, const Finding& finding) {
        elsewhere.push_back(mistake.name + ":" + std::to_string(finding.line) + " " + finding.code);
    }

    std::string asTable() const {
        std::ostringstream table;
        for (const auto& [kind, count] : counts) {
            table << std::left << std::setw(10) << kind << std::right << std::setw(4) << count.told
                  << " of " << std::setw(3) << count.all << "\n";
        }
        table << "errors and warnings at other lines: " << elsewhere.size() << "\n";
        for (const std::string& finding : elsewhere) table << "  " << finding << "\n";
        return table.str();
    }

private:
    std::map<std::string, ToldCount> counts;
    std::vector<std::string> elsewhere;
};

/// The mistakes that the check doesn't tell, each with a first reason.
Misses findMisses(ToldNumbers& numbers) {
    Misses misses;
    for (const Mistake& mistake : findMistakes()) {
        if (mistake.truth.kind == "right") continue;
        auto claims = claimsOf(mistake);
        bool isWhole = true;
        for (const std::vector<int>& lines : blamedLines(mistake.truth)) {
            const auto told = std::stable_partition(
                claims.begin(), claims.end(),
                [&](const Finding& claim) { return !holdsLine(lines, claim.line); });
            if (told == claims.end()) {
                misses[mistake.name + " " + std::to_string(lines[0])] = "no rule looks for it yet";
                isWhole = false;
            }
            claims.erase(told, claims.end());
        }
        numbers.add(mistake.truth, isWhole);
        for (const Finding& claim : claims) numbers.addElsewhere(mistake, claim);
    }
    return misses;
}

TEST(Mistakes, AreToldAtTheirLine) {
    ToldNumbers numbers;
    Misses misses = findMisses(numbers);
    std::cout << numbers.asTable();
    const Misses known = readKnownMisses();
    if (std::getenv("POZHIL_REWRITE") != nullptr) {
        for (auto& [miss, reason] : misses) {
            if (known.count(miss) != 0) reason = known.at(miss);
        }
        writeKnownMisses(misses);
        return;
    }
    for (const auto& [miss, reason] : misses) {
        if (known.count(miss) == 0) ADD_FAILURE() << miss << " isn't told";
    }
    for (const auto& [miss, reason] : known) {
        EXPECT_NE(reason, "") << miss << " has no reason";
        if (misses.count(miss) == 0) ADD_FAILURE() << miss << " is told by now: " << kKnownMisses;
    }
}

TEST(Mistakes, RightProgramsAreLeftAlone) {
    int count = 0;
    for (const Mistake& mistake : findMistakes()) {
        if (mistake.truth.kind != "right") continue;
        count++;
        for (const Finding& claim : claimsOf(mistake)) {
            ADD_FAILURE() << mistake.source << ":" << claim.line << " " << claim.code << "\n  "
                          << claim.message;
        }
    }
    EXPECT_GT(count, 0);
}

}  // namespace
