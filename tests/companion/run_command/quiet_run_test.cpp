// run --quiet FILE: the program alone, and at once if nothing was changed.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "companion/run_command/companion_place.h"

namespace fs = std::filesystem;

namespace {

class QuietRun : public CompanionPlace {
protected:
    QuietRun() { write("a.பொழில்", "அச்சிடு(1)\n"); }

    ProcessResult run(const std::string& input = "") const {
        return companion({"run", "--quiet", "a.பொழில்"}, {"", {}, input});
    }

    /// From here on a build fails.
    void forbidBuilds() const { script("g++", "echo no build >&2; exit 1"); }

    void expectBuild() const {
        const ProcessResult result = run();
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.err, "no build\n");
    }
};

TEST_F(QuietRun, IsTheProgramAlone) {
    fakeCompiler("cat; echo தவறு >&2; exit 7");
    for (int time = 0; time < 2; time++) {
        const ProcessResult result = run("ஒன்று\n");
        EXPECT_EQ(result.out, "ஒன்று\n");
        EXPECT_EQ(result.err, "தவறு\n");
        EXPECT_EQ(result.exitCode, 7);
    }
    EXPECT_EQ(compilerCalls().size(), 1U);
}

TEST_F(QuietRun, HasATamilName) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(companion({"இயக்கு", "--அமைதி", "a.பொழில்"}).out, "இயங்கியது\n");
}

TEST_F(QuietRun, EndsByTheSignalThatEndsTheProgram) {
    fakeCompiler("kill -SEGV $$");
    const ProcessResult result = run();
    EXPECT_EQ(result.signal, SIGSEGV);
    EXPECT_EQ(result.err, "");
}

TEST_F(QuietRun, IsTheProgramForSignalsToo) {
    fakeCompiler("trap 'echo முடிந்தது; exit 5' TERM; echo ஓடுகிறது; sleep 100 & wait");
    LiveProcess live = startCompanion({"run", "--quiet", "a.பொழில்"});
    ASSERT_TRUE(live.waitForOut("ஓடுகிறது\n")) << live.err();
    kill(live.id(), SIGTERM);
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_EQ(WEXITSTATUS(live.status), 5);
    EXPECT_EQ(live.out(), "ஓடுகிறது\nமுடிந்தது\n");
    kill(-live.id(), SIGKILL);  // the sleeper
}

TEST_F(QuietRun, StartsAtOnceIfNothingChanged) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().out, "இயங்கியது\n");
    forbidBuilds();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(run().out, "இயங்கியது\n");
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin);
    RecordProperty("milliseconds", static_cast<int>(took.count()));
    EXPECT_LT(took, std::chrono::seconds(1)) << "a few milliseconds on a machine with time for it";
}

TEST_F(QuietRun, BuildsAgainForAnotherText) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().exitCode, 0);
    forbidBuilds();
    write("a.பொழில்", "அச்சிடு(2)\n");
    expectBuild();
    write("a.பொழில்", "அச்சிடு(1)\n");
    EXPECT_EQ(run().out, "இயங்கியது\n") << "a build that failed took nothing away";
}

TEST_F(QuietRun, BuildsAgainForAnotherModule) {
    write("a.பொழில்", "நூஇறக்கி \"நூல்\"\nஅச்சிடு(1)\n");
    write("நூல்.பொழில்", "நூஇறக்கி \"உள்நூல்\"\n");
    write("உள்நூல்.பொழில்", "x = 1\n");
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().exitCode, 0) << run().err;
    forbidBuilds();
    EXPECT_EQ(run().out, "இயங்கியது\n");
    write("உள்நூல்.பொழில்", "x = 2\n");
    expectBuild();
}

TEST_F(QuietRun, BuildsAgainForAnotherCompiler) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().exitCode, 0);
    forbidBuilds();
    for (const fs::path& part : {compiler, object, home / "உள்ளடக்கம்" / "error_codes.h"}) {
        const auto before = fs::last_write_time(part);
        fs::last_write_time(part, before - std::chrono::hours(1));
        expectBuild();
        fs::last_write_time(part, before);
    }
    EXPECT_EQ(run().out, "இயங்கியது\n");
}

TEST_F(QuietRun, RunsTheRealProgramOfARealBuild) {
    useRealCompiler();
    write("a.பொழில்", "பெயர் = உள்ளீடு(\"\")\nஅச்சிடு(\"வணக்கம், \", பெயர்)\n");
    const ProcessResult result = run("கபிலர்\n");
    EXPECT_TRUE(holds(result.out, "வணக்கம், கபிலர்\n")) << result.out << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST_F(QuietRun, TellsWhatTheCheckFindsAndBuildsNothing) {
    fakeCompiler("echo இயங்கியது");
    write("a.பொழில்", "எனில் மெய்\n    அச்சிடு(2)\n");
    const ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(holds(result.err, "பொழில்-202")) << result.err;
    EXPECT_FALSE(fs::exists(root / "bin" / "calls"));
}

TEST_F(QuietRun, TellsWhatGppRefuses) {
    const std::string words = "x/generated.cpp:1:1: error: invalid digit \"8\" in octal constant\n";
    script("g++", "cat >&2 <<'E'\n" + words + "E\nexit 1");
    const ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind(words + "\n💡 0-இல் தொடங்கும்", 0), 0U) << result.err;
}

TEST_F(QuietRun, TellsOfAMissingGpp) {
    fs::create_directory(root / "bin");
    settings.push_back("PATH=" + (root / "bin").u8string());
    const ProcessResult result = run();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(holds(result.err, "sudo apt install g++")) << result.err;
}

TEST_F(QuietRun, TwoAtOnceBuildOnce) {
    fakeCompiler("echo இயங்கியது");
    const std::string slow = readFileText(root / "bin" / "g++");
    script("g++", "sleep 0.5\n" + slow.substr(slow.find('\n') + 1));
    fs::create_directory(root / "first");
    fs::create_directory(root / "second");
    const std::vector<std::string> command = {executable.u8string(), "run", "--quiet", "a.பொழில்"};
    LiveProcess first(command, work, settings, root / "first");
    LiveProcess second(command, work, settings, root / "second");
    ASSERT_TRUE(first.waitForEnd() && second.waitForEnd());
    EXPECT_EQ(first.out() + first.err(), "இயங்கியது\n");
    EXPECT_EQ(second.out() + second.err(), "இயங்கியது\n");
    EXPECT_EQ(compilerCalls().size(), 1U);
}

TEST_F(QuietRun, NothingOfAKilledBuildIsUsed) {
    script("g++",
           "while [ \"$1\" != -o ]; do shift; done\necho half >\"$2\"; chmod +x \"$2\"\n"
           "echo >'" +
               (root / "compiling").u8string() + "'; exec sleep 100");
    LiveProcess live = startCompanion({"run", "--quiet", "a.பொழில்"});
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); })) << live.err();
    live.crash();
    ASSERT_TRUE(live.waitForEnd());
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().out, "இயங்கியது\n");
    for (const auto& entry : fs::recursive_directory_iterator(ownCache)) {
        EXPECT_FALSE(entry.is_regular_file() && readFileText(entry.path()) == "half\n")
            << entry.path();
    }
    kill(-live.id(), SIGKILL);  // the sleeper
}

TEST_F(QuietRun, BuildsAgainWhatCannotBeStarted) {
    fakeCompiler("echo இயங்கியது");
    EXPECT_EQ(run().exitCode, 0);
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(projectFolders().at(0))) {
        if (entry.path().filename().u8string().rfind("நிரல்-", 0) != 0) continue;
        writeFileText(entry.path(), "");
        count++;
    }
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(run().out, "இயங்கியது\n");
    EXPECT_EQ(compilerCalls().size(), 2U);
}

TEST_F(QuietRun, CtrlCWhileItBuildsEndsIt) {
    script("g++", "echo >'" + (root / "compiling").u8string() + "'; exec sleep 100");
    LiveProcess live = startCompanion({"run", "--quiet", "a.பொழில்"});
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); })) << live.err();
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_EQ(WTERMSIG(live.status), SIGINT);
    EXPECT_EQ(live.err(), "");
}

TEST_F(QuietRun, LeavesNothingWhereNoFolderIsSafe) {
    useRealCompiler();
    writeFileText(ownCache, "no directory");
    const fs::path taken = root / "tmp" / ("pozhil-" + std::to_string(geteuid()));
    writeFileText(taken, "no directory");
    const ProcessResult result = run();
    EXPECT_EQ(result.out, "1\n") << result.err;
    for (const auto& entry : fs::directory_iterator(root / "tmp")) {
        EXPECT_EQ(entry.path(), taken);
    }
}

}  // namespace
