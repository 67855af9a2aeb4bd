// Holds what stands beside each mistake against what really comes of it: the compiler's library,
// the real g++, the running program. With POZHIL_REWRITE=1 in the environment the kinds are written
// anew; which line is to blame for what has no report stays as it was written.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>

#include "mistakes/mistake.h"
#include "mistakes/outcome.h"
#include "programs_in_one.h"
#include "support/case_files.h"

namespace {

const bool kRewritesTruths = std::getenv("POZHIL_REWRITE") != nullptr;
constexpr double kSecondsOfEndless = 1;
constexpr double kSecondsOfOthers = 30;

/// Whether a program that ran did what was wanted, its truth alone knows; and a running program
/// often reports a call where what is called is to blame.
bool agrees(const Truth& truth, const Truth& outcome) {
    if (outcome.kind == "runs") return truth.kind == "wrong" || truth.kind == "right";
    const bool isPlaced = outcome.kind == "refused" && outcome.line > 0;
    return truth.kind == outcome.kind && truth.code == outcome.code &&
           (!isPlaced || truth.line == outcome.line);
}

void rewrite(const Mistake& mistake, Truth outcome) {
    if (outcome.kind == "runs") outcome.kind = "wrong";
    if (outcome.kind != "refused" || outcome.line == 0) outcome.line = mistake.truth.line;
    outcome.otherLine = mistake.truth.otherLine;
    outcome.furtherLines = mistake.truth.furtherLines;
    std::ofstream(mistake.truthPath) << describe(outcome) << "\n";
}

void holdAgainst(const Mistake& mistake, const Truth& outcome) {
    if (agrees(mistake.truth, outcome)) return;
    if (kRewritesTruths) return rewrite(mistake, outcome);
    ADD_FAILURE() << mistake.source << "\n  is told to be: " << describe(mistake.truth)
                  << "\n  and is: " << describe(outcome);
}

/// Programs that run were taken by g++: all of them together is enough.
bool mustAskNativeCompiler(const Mistake& mistake) {
    return kRewritesTruths || !runs(mistake.truth);
}

/// Names those of the running ones that g++ refuses after all, and leaves them out.
void buildThose(std::map<int, Mistake>& running, ProgramsInOne& programs) {
    if (programs.build().empty()) return;
    for (const auto& [number, error] : programs.leaveOutRefused()) {
        holdAgainst(running.at(number), {"native"});
        running.erase(number);
    }
    EXPECT_EQ(programs.build(), "");
}

class MistakesOf : public testing::TestWithParam<std::string> {};

TEST_P(MistakesOf, AreWhatTheirTruthsSay) {
    ProgramsInOne programs("mistakes_" + GetParam());
    std::map<int, Mistake> running;
    const auto mistakes = findMistakes(GetParam());
    EXPECT_FALSE(mistakes.empty());
    for (const Mistake& mistake : mistakes) {
        const CurrentDirectory here(mistake.folder);
        const std::string source = readText(mistake.source);
        const FrontEndOutcome compiled = compileSource(source);
        if (compiled.truth.kind != "taken") {
            holdAgainst(mistake, compiled.truth);
        } else if (mustAskNativeCompiler(mistake) &&
                   !nativeCompilerTakes(mistake, compiled.text, GetParam())) {
            holdAgainst(mistake, {"native"});
        } else if (mistake.isApplication()) {
            holdAgainst(mistake, {"runs"});
        } else {
            running.emplace(programs.add(source, compiled.text), mistake);
        }
    }
    buildThose(running, programs);
    for (const auto& [number, mistake] : running) {
        const double seconds =
            mistake.truth.kind == "endless" ? kSecondsOfEndless : kSecondsOfOthers;
        const ProcessResult ran =
            programs.run(number, mistake.input, kRewritesTruths ? 2 : seconds);
        holdAgainst(mistake, outcomeOf(ran));
        if (kRewritesTruths) {
            std::cout << "-- " << mistake.name << "\n" << ran.out.substr(0, 600) << "\n";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, MistakesOf, testing::ValuesIn(mistakeTopics()),
                         [](const auto& topic) { return topic.param; });

TEST(MistakeTruths, StandBesideEachMistakeAndNothingElseDoes) {
    for (const Mistake& mistake : findMistakes()) {
        EXPECT_FALSE(mistake.truth.kind.empty()) << mistake.source;
        EXPECT_EQ(mistake.truth.kind == "right", mistake.truth.line == 0) << mistake.source;
    }
    for (const std::string& path : findStrayMistakeFiles()) ADD_FAILURE() << path;
}

}  // namespace
