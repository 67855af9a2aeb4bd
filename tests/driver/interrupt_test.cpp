// Ctrl+C on the console road, as a terminal sends it: to the compiler and to what it runs.
#include <signal.h>
#include <sys/wait.h>

#include "driver/live_process.h"
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kChanged = "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது...\n";

class Interrupt : public Workplace {
protected:
    Interrupt() {
        writeFileText(object, "");
        write("a.பொழில்", "அச்சிடு(1)\n");
    }

    LiveProcess start(const std::vector<std::string>& arguments) const {
        std::vector<std::string> command = {compiler.u8string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return {command, work, withQuickTitle(environment()), root};
    }

    static void expectEndByInterrupt(LiveProcess& live) {
        ASSERT_TRUE(live.waitForEnd()) << live.out() << live.err();
        EXPECT_TRUE(WIFSIGNALED(live.status));
        EXPECT_EQ(WTERMSIG(live.status), SIGINT);
    }

    const std::string opening = kBanner + titleOf("a.பொழில்");
};

TEST_F(Interrupt, WhileTheCompilerRunsBlamesNobody) {
    script("g++", "echo >'" + (root / "compiling").u8string() + "'; exec sleep 100");
    LiveProcess live = start({"a.பொழில்"});
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); })) << live.out();
    live.pressCtrlC();
    expectEndByInterrupt(live);
    EXPECT_EQ(live.out(), opening);
    EXPECT_EQ(live.err(), "");
}

TEST_F(Interrupt, WaitsForTheCompilerToTidyUp) {
    script("g++", "trap 'sleep 0.3; echo >\"" + (root / "tidied").u8string() +
                      "\"; exit 1' INT; echo >'" + (root / "compiling").u8string() +
                      "'; sleep 100 & wait");
    LiveProcess live = start({"a.பொழில்"});
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); })) << live.out();
    live.pressCtrlC();
    expectEndByInterrupt(live);
    EXPECT_TRUE(fs::exists(root / "tidied"));
    EXPECT_EQ(live.err(), "");
}

TEST_F(Interrupt, WhileTheObjectIsMadeStartsNoBuild) {
    fs::remove(object);
    script("g++", "echo \"$1\" >>'" + (root / "compiling").u8string() + "'; exec sleep 100");
    LiveProcess live = start({"a.பொழில்"});
    // It stands there a moment before its line does.
    ASSERT_TRUE(within(20, [&] { return readFileText(root / "compiling") == "-c\n"; }))
        << live.out();
    live.pressCtrlC();
    expectEndByInterrupt(live);
    EXPECT_EQ(readFileText(root / "compiling"), "-c\n");
    EXPECT_EQ(live.err(), "");
}

TEST_F(Interrupt, EndsTheProgramAndTheRunAsEver) {
    fakeCompiler("echo ஓடுகிறது; exec sleep 100");
    LiveProcess live = start({"a.பொழில்"});
    ASSERT_TRUE(live.waitForOut(opening + "ஓடுகிறது\n")) << live.out();
    live.pressCtrlC();
    ASSERT_TRUE(live.waitForEnd());
    EXPECT_TRUE(WIFEXITED(live.status));
    EXPECT_EQ(WEXITSTATUS(live.status), 0) << "whatever became of the program";
    EXPECT_EQ(live.err(), "");
}

TEST_F(Interrupt, EndsTheWatchOnceTheProgramHasTidiedUp) {
    fakeCompiler(
        "trap 'echo முடிகிறது; exit 3' INT; echo ஓடுகிறது; sleep 100 & wait; kill $!; exit");
    LiveProcess live = start({"--கண்காணி", "a.பொழில்"});
    ASSERT_TRUE(live.waitForOut(opening)) << live.out();
    fs::last_write_time(work / "a.பொழில்", fs::file_time_type::clock::now() + std::chrono::hours(1));
    const std::string running = opening + kChanged + "ஓடுகிறது\n";
    ASSERT_TRUE(live.waitForOut(running)) << live.out();
    live.pressCtrlC();
    expectEndByInterrupt(live);
    EXPECT_EQ(live.out(), running + "முடிகிறது\n");
    EXPECT_EQ(live.err(), "");
}

}  // namespace
