// Holds what stands beside each mistake against what really comes of it: the compiler's library,
// the real g++, the running program. With POZHIL_REWRITE=1 in the environment the kinds are written
// anew; which line is to blame for what has no report stays as it was written.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>

#include "mistakes/mistake.h"
#include "mistakes/outcome.h"
#include "programs_in_one.h"
#include "support/case_files.h"

namespace {

const bool kRewritesTruths = std::getenv("POZHIL_REWRITE") != nullptr;
constexpr double kSecondsOfEndless = 0.3;
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

/// What really comes of each mistake, by its path. They are read, built and run in a few steps for
/// all of them.
class Outcomes {
public:
    Outcomes() {
        for (const Mistake& mistake : findMistakes()) compile(mistake);
        askNativeCompiler();
        build();
        for (const auto& [number, mistake] : running)
            outcomes[mistake.source] = run(number, mistake);
    }

    const Truth& of(const Mistake& mistake) const { return outcomes.at(mistake.source); }

private:
    struct Compiled {
        Mistake mistake;
        std::string text;
    };

    void compile(const Mistake& mistake) {
        const CurrentDirectory here(mistake.folder);
        const FrontEndOutcome compiled = compileSource(readText(mistake.source));
        if (compiled.truth.kind != "taken") {
            outcomes[mistake.source] = compiled.truth;
        } else if (mistake.isApplication()) {
            const bool isTaken =
                !mustAskNativeCompiler(mistake) || nativeCompilerTakes(mistake, compiled.text);
            outcomes[mistake.source] = {isTaken ? "runs" : "native"};
        } else if (programs.meetsCommonName(compiled.text) &&
                   !nativeCompilerTakes(mistake, compiled.text)) {
            outcomes[mistake.source] = {"native"};
        } else if (mustAskNativeCompiler(mistake)) {
            const int number = doubtedTexts.add(readText(mistake.source), compiled.text);
            doubted.emplace(number, Compiled{mistake, compiled.text});
        } else {
            add({mistake, compiled.text});
        }
    }

    void askNativeCompiler() {
        const auto refused = doubtedTexts.leaveOutRefused();
        for (const auto& [number, asked] : doubted) {
            if (refused.count(number) == 0) {
                add(asked);
            } else {
                outcomes[asked.mistake.source] = {"native"};
            }
        }
    }

    void add(const Compiled& taken) {
        running.emplace(programs.add(readText(taken.mistake.source), taken.text), taken.mistake);
    }

    /// Leaves out those of the running ones that g++ refuses after all.
    void build() {
        if (programs.build().empty()) return;
        for (const auto& [number, error] : programs.leaveOutRefused()) {
            outcomes[running.at(number).source] = {"native"};
            running.erase(number);
        }
        const std::string said = programs.build();
        if (!said.empty()) throw std::runtime_error(said);
    }

    Truth run(int number, const Mistake& mistake) const {
        const double seconds =
            mistake.truth.kind == "endless" ? kSecondsOfEndless : kSecondsOfOthers;
        const ProcessResult ran =
            programs.run(number, mistake.input, kRewritesTruths ? 2 : seconds);
        if (kRewritesTruths) {
            std::cout << "-- " << mistake.name << "\n" << ran.out.substr(0, 600) << "\n";
        }
        return outcomeOf(ran);
    }

    ProgramsInOne doubtedTexts{"doubted_mistakes"};
    ProgramsInOne programs{"mistakes"};
    std::map<int, Compiled> doubted;
    std::map<int, Mistake> running;
    std::map<std::string, Truth> outcomes;
};

class MistakesOf : public testing::TestWithParam<std::string> {};

TEST_P(MistakesOf, AreWhatTheirTruthsSay) {
    static const Outcomes outcomes;
    const auto mistakes = findMistakes(GetParam());
    EXPECT_FALSE(mistakes.empty());
    for (const Mistake& mistake : mistakes) holdAgainst(mistake, outcomes.of(mistake));
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
