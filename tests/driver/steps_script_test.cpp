// The steps of the tests' script: what they count and tell, also of those that run aside.
#include <sys/wait.h>

#include <map>

#include "driver/live_process.h"
#include "driver/workplace.h"
#include "support/pattern.h"

namespace fs = std::filesystem;

namespace {

class StepsScript : public Workplace {
protected:
    /// A script of these steps.
    std::vector<std::string> script(const std::string& steps) const {
        writeFileText(root / "steps", "set -euo pipefail\n. '" + scripts + "messages.sh'\n. '" +
                                          scripts + "steps.sh'\n" + steps + "\n");
        return {"/bin/bash", (root / "steps").u8string()};
    }

    ProcessResult run(const std::string& steps) const {
        return runCommand(script(steps), {work.u8string(), environment(), "", 60});
    }

    const std::string scripts = POZHIL_ROOT "/scripts/";
};

bool shows(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(StepsScript, CountStepsAsideAndTellHowLongEachTook) {
    const ProcessResult result =
        run("beside() { check a true; check b false; skipped=$((skipped + 3)); }\n"
            "check first sleep 1.1\n"
            "start_aside beside\n"
            "check c true\n"
            "check d false\n"
            "join_aside others\n"
            "check last true\n"
            "summary");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(shows(result.out, "✗ d\n✗ b\n4 passed, 2 failed, 3 skipped\n")) << result.out;
    EXPECT_TRUE(Pattern("\n *[1-9]\\d* s +0\\.\\d s  first\n").isIn(result.out)) << result.out;
    for (const char* row :
         {" s  first\n", " s  c\n", " s  d\n", " s  a (", " s  b (", " s  last\n"}) {
        EXPECT_TRUE(shows(result.out, row)) << row << result.out;
    }
}

/// Tenths of a second of processor time in the row of that step.
int processorTime(const std::string& printed, const std::string& row) {
    const auto found = Pattern("(\\d+)\\.(\\d) s  " + row).first(printed);
    return found ? 10 * std::stoi((*found)[1]) + std::stoi((*found)[2]) : -1;
}

TEST_F(StepsScript, TellTheProcessorTimeOfEachAndOfAll) {
    const std::string counting =  // four tenths of a second
        "bash -c 'until read -ra f </proc/$$/stat && ((f[13] + f[14] >= 41)); do :; done'";
    const ProcessResult result =
        run("beside() { check aside " + counting + "; }\nstart_aside beside\ncheck first " +
            counting + "\ncheck waiting sleep 1\njoin_aside others\nsummary");
    const int first = processorTime(result.out, "first");
    const int aside = processorTime(result.out, "aside");
    EXPECT_GE(first, 4) << result.out;
    EXPECT_GE(aside, 4) << result.out;
    EXPECT_LE(processorTime(result.out, "waiting"), 2) << result.out;
    EXPECT_LE(processorTime(result.out, "others"), 2) << result.out;
    const auto all = Pattern("செயலிகளில் (\\d+)\\.(\\d):").first(result.out);
    ASSERT_TRUE(all);
    EXPECT_GE(10 * std::stoi((*all)[1]) + std::stoi((*all)[2]), first + aside) << result.out;
}

TEST_F(StepsScript, AllThatPassedIsASuccess) {
    const ProcessResult result =
        run("beside() { check a true; }\n"
            "start_aside beside\n"
            "join_aside others\n"
            "summary");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_TRUE(shows(result.out, "\n1 passed, 0 failed\n")) << result.out;
}

TEST_F(StepsScript, TellWhetherAllTookNoLongerThanItShould) {
    const std::map<std::string, std::string> cases = {
        {"''", "^⏱ 5\\d வினாடிகள், "},
        {"100", "^⏱ 5\\d வினாடிகள் \\(இலக்கு 100 ✔\\), "},
        {"49", "^⏱ 5\\d வினாடிகள் \\(இலக்கு 49 ✗\\), "}};
    for (const auto& [aim, told] : cases) {
        const ProcessResult result = run("check a true\nSECONDS=50\nsummary " + aim);
        EXPECT_EQ(result.exitCode, 0) << result.err;
        EXPECT_TRUE(Pattern(told).isIn(result.out)) << result.out;
    }
}

TEST_F(StepsScript, AsideBehindTheOthersPrintsWholeWhenItIsJoined) {
    const ProcessResult result =
        run("nice >&2\n"
            "beside() { check a sh -c 'nice >&2'; lower_priority\n"
            "    check b sh -c 'nice >&2; touch done'; }\n"
            "start_aside beside\n"
            "until [ -e done ]; do sleep 0.05; done\n"
            "echo before >&2\n"
            "join_aside others");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(shows(result.err, "before\n")) << result.err;
    const std::string own = "\n" + result.err.substr(0, result.err.find('\n') + 1);
    const std::string aside = result.err.substr(result.err.find("before"));
    EXPECT_TRUE(shows(aside, own)) << result.err;
    EXPECT_TRUE(shows(aside, "\n19\n")) << result.err;
}

TEST_F(StepsScript, WhatBreaksOffAsideHasFailed) {
    const ProcessResult result =
        run("beside() { check a true; exit 7; }\n"
            "start_aside beside\n"
            "join_aside others\n"
            "check b true\n"
            "summary");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(shows(result.out, "✗ others: 7\n1 passed, 1 failed\n")) << result.out;
}

TEST_F(StepsScript, CtrlCEndsWhatRunsAside) {
    LiveProcess live(
        script("beside() { check a sh -c 'echo $$ >id.new; mv id.new id; exec sleep 600'; }\n"
               "start_aside beside\n"
               "check b sleep 600"),
        work, environment(), root);
    ASSERT_TRUE(within(20, [&] { return fs::exists(work / "id"); })) << live.err();
    const std::string id = readFileText(work / "id");
    const fs::path process = fs::path("/proc") / id.substr(0, id.find('\n'));
    ASSERT_TRUE(fs::exists(process));
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFEXITED(live.status) && WEXITSTATUS(live.status) == 130) << live.status;
    EXPECT_TRUE(within(20, [&] { return !fs::exists(process); }));
}

}  // namespace
