// Runs at the same time: each runs its own program, and none waits longer than it must.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <memory>
#include <thread>

#include "driver/live_process.h"
#include "driver/processes.h"
#include "driver/workplace.h"

namespace fs = std::filesystem;

namespace {

const std::string kWaiting =
    "⏳ இன்னொரு நிரல் இப்போது தொகுக்கப்படுகிறது. அது முடிந்ததும் உமது நிரல் தொகுக்கப்படும்...\n";

class Turns : public Workplace {
protected:
    Turns() {
        writeFileText(object, "");
        write("a.பொழில்", "அச்சிடு(1)\n");
    }

    /// A run that writes its output to a folder of its own.
    std::unique_ptr<LiveProcess> start(const std::string& source, const std::string& notes) const {
        return start(source, notes, withQuickTitle(environment()));
    }

    std::unique_ptr<LiveProcess> start(const std::string& source, const std::string& notes,
                                       const std::vector<std::string>& settings) const {
        fs::create_directories(root / notes);
        const std::vector<std::string> command = {compiler.u8string(), source};
        return std::make_unique<LiveProcess>(command, work, settings, root / notes);
    }

    int openLock() const {
        fs::create_directories(cache);
        return open((cache / "தொகுப்பு_பூட்டு").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    }

    /// Takes the turn as another run would; the descriptor is to be closed.
    int takeTurn() const {
        const int file = openLock();
        EXPECT_EQ(flock(file, LOCK_EX | LOCK_NB), 0);
        return file;
    }

    /// Whether the turn is free within seconds: a busy machine lets a run go on late.
    bool isTurnFreeSoon() const {
        const int file = openLock();
        bool isFree = false;
        for (int tries = 0; tries < 1000 && !isFree; tries++) {
            isFree = flock(file, LOCK_EX | LOCK_NB) == 0;
            if (!isFree) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        close(file);
        return isFree;
    }

    void writeProgramsThatSayTheirMark() const;
};

/// A g++ whose programs are real executables that print the mark in their source. It takes its time
/// between reading and writing, so that whoever gets in between is noticed.
void Turns::writeProgramsThatSayTheirMark() const {
    write("says.cpp",
          "#include <fstream>\n#include <iostream>\n#include <sstream>\nint main() {\n"
          "    std::stringstream text;\n"
          "    text << std::ifstream(\"/proc/self/exe\").rdbuf();\n"
          "    std::cout << text.str().substr(text.str().rfind(\"குறி_\"));\n}\n");
    const std::string says = (work / "says").u8string();
    ASSERT_EQ(runCommand({"g++", (work / "says.cpp").u8string(), "-o", says}).exitCode, 0);
    script("g++",
           "source=$1; while [ \"$1\" != -o ]; do shift; done\n"
           "cat '" +
               says +
               "' >\"$2\"\n"
               "sleep 0.02; grep -a -o -m 1 'குறி_[0-9]*' \"$source\" | head -n 1 >>\"$2\"\n"
               "sleep 0.02; chmod +x \"$2\"");
}

TEST_F(Turns, RunsAtOnceEachRunTheirOwnProgram) {
    writeProgramsThatSayTheirMark();
    std::vector<std::unique_ptr<LiveProcess>> runs;
    for (int i = 0; i < 8; i++) {
        const std::string name = std::to_string(i);
        write("a" + name + ".பொழில்", "அச்சிடு(\"குறி_" + name + "\")\n");
        runs.push_back(start("a" + name + ".பொழில்", name));
    }
    for (int i = 0; i < 8; i++) {
        const std::string name = std::to_string(i);
        ASSERT_TRUE(runs[i]->waitForEnd(60));
        EXPECT_EQ(runs[i]->out(), kBanner + titleOf("a" + name + ".பொழில்") + "குறி_" + name + "\n");
        EXPECT_TRUE(runs[i]->err().empty() || runs[i]->err() == kWaiting) << runs[i]->err();
    }
}

TEST_F(Turns, ProgramThatRunsOnBlocksNobody) {
    const fs::path go = root / "go";
    fakeCompiler("[ -e \"" + (root / "second").u8string() +
                 "\" ] && exec echo இரண்டாவது\n"
                 "echo முதல்; while [ ! -e '" +
                 go.u8string() + "' ]; do sleep 0.05; done");
    const auto first = start("a.பொழில்", "first");
    const std::string opening = kBanner + titleOf("a.பொழில்");
    ASSERT_TRUE(first->waitForOut(opening + "முதல்\n")) << first->out() << first->err();
    ASSERT_TRUE(isTurnFreeSoon());
    const auto second = start("a.பொழில்", "second");
    EXPECT_TRUE(second->waitForOut(opening + "இரண்டாவது\n")) << second->out() << second->err();
    EXPECT_TRUE(second->waitForEnd());
    EXPECT_EQ(second->err(), "");
    writeFileText(go, "");
    EXPECT_TRUE(first->waitForEnd());
}

TEST_F(Turns, ProgramMayStartTheCompiler) {
    fakeCompiler("[ \"$nested\" ] && exec echo உள்ளே\nnested=1 \"" + compiler.u8string() +
                 "\" b.பொழில் | tail -n 1");
    write("b.பொழில்", "அச்சிடு(2)\n");
    const ProcessResult run = compile({"a.பொழில்"}, {"", {}, "", 30});
    EXPECT_FALSE(run.timedOut);
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + "உள்ளே\n");
    EXPECT_EQ(run.err, "");
}

TEST_F(Turns, LongWaitIsSaidOnce) {
    fakeCompiler("echo ஓடியது");
    const int turn = takeTurn();
    const auto run = start("a.பொழில்", "notes");
    ASSERT_TRUE(run->waitForErr(kWaiting)) << run->err();
    EXPECT_FALSE(fs::exists(cache / "generated.cpp")) << "the text is another's to change";
    EXPECT_TRUE(compilerCalls().empty());
    close(turn);
    EXPECT_TRUE(run->waitForOut(kBanner + titleOf("a.பொழில்") + "ஓடியது\n")) << run->out();
    EXPECT_TRUE(run->waitForEnd());
    EXPECT_EQ(run->err(), kWaiting);
}

TEST_F(Turns, NoneIsHeldDuringTheTitle) {
    fakeCompiler("echo ஓடியது");
    const auto run = start("a.பொழில்", "notes", environment());
    ASSERT_TRUE(within(20, [&] { return run->out().find("✨") != std::string::npos; }));
    const int turn = takeTurn();
    writeFileText(cache / "generated.cpp", "இன்னொருவரின் உரை");
    close(turn);
    ASSERT_TRUE(run->waitForEnd());
    EXPECT_NE(readFileText(cache / "generated.cpp").find("int main() {"), std::string::npos);
}

TEST_F(Turns, CrashedRunLeavesNone) {
    script("g++", "echo >'" + (root / "compiling").u8string() + "'; exec sleep 4");
    const auto crashed = start("a.பொழில்", "crashed");
    ASSERT_TRUE(within(20, [&] { return fs::exists(root / "compiling"); }));
    crashed->crash();
    ASSERT_TRUE(crashed->waitForEnd());
    close(takeTurn());
}

TEST_F(Turns, LockThatCannotBeHadStopsNothing) {
    fakeCompiler("echo ஓடியது");
    fs::create_directories(cache / "தொகுப்பு_பூட்டு");
    const ProcessResult run = compile({"a.பொழில்"});
    EXPECT_EQ(run.out, kBanner + titleOf("a.பொழில்") + "ஓடியது\n");
    EXPECT_EQ(run.err, "");
}

// What is put in the program's place as soon as that is allowed doesn't run.
TEST_F(Turns, ProgramIsStartedBeforeAnotherTakesItsPlace) {
    for (int i = 0; i < 20; i++) {
        fs::copy_file("/bin/true", work / "program", fs::copy_options::overwrite_existing);
        fs::copy_file("/bin/false", work / "other", fs::copy_options::overwrite_existing);
        const auto replace = [&] { fs::rename(work / "other", work / "program"); };
        ASSERT_EQ(runProgram((work / "program").u8string(), replace), 0) << i;
    }
    releaseInterrupts();
}

}  // namespace
