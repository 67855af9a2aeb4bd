// What a program does that its output alone doesn't show.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "support/native_program.h"

namespace fs = std::filesystem;

namespace {

/// The program of a source text; its folder is named `name`.
NativeProgram build(const std::string& name, const std::string& source) {
    const fs::path directory = fs::u8path(POZHIL_BUILD_DIR "/programs/sources");
    fs::create_directories(directory);
    const fs::path path = directory / fs::u8path(name + ".பொழில்");
    std::ofstream(path) << source;
    NativeProgram program("behaviour_" + name, path.u8string());
    const ProcessResult built = program.compile();
    EXPECT_EQ(built.exitCode, 0) << built.err;
    return program;
}

TEST(Behaviour, AWaitIsGivenInSecondsAndFractions) {
    const NativeProgram program = build("wait", "காத்திரு 0.25\nகாத்திரு 0.25\n");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(program.run().exitCode, 0);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    EXPECT_GE(took.count(), 0.5);
    EXPECT_LT(took.count(), 10.0);
}

TEST(Behaviour, RandomNumbersRepeatFromRunToRun) {
    const NativeProgram program =
        build("random", "ஒவ்வொன்றாக இ இல் வரம்பு(20):\n    அச்சிடு(சீரற்ற_எண்(1, 1000000))\n");
    const ProcessResult first = program.run();
    EXPECT_GT(first.out.size(), 40U);
    EXPECT_EQ(program.run().out, first.out);
}

TEST(Behaviour, TheOutputOfALineIsThereBeforeTheNextOneRuns) {
    const NativeProgram program = build("flush", "அச்சிடு(1)\nx = 1\nஎனில் x:\n    விடு\n");
    const ProcessResult ran = program.run();
    EXPECT_EQ(ran.out, "1\n");
    EXPECT_NE(ran.signal, 0);
}

// With a copy of the list at each reading this takes seven seconds, without a hundredth of one.
TEST(Behaviour, ReadingAnElementCopiesNoList) {
    const NativeProgram program =
        build("long_list",
              "அ = []\nஒவ்வொன்றாக இ இல் வரம்பு(200000):\n    அ.சேர்(இ)\nதொகை = 0\n"
              "ஒவ்வொன்றாக இ இல் வரம்பு(8000):\n    தொகை = தொகை கூட்டு அ[இ]\nஅச்சிடு(தொகை)\n");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(program.run().out, "31996000\n");
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took.count(), 3.0);
}

const std::vector<std::string> kInLittleMemory = {"sh", "-c", "ulimit -v 131072; exec \"$0\""};

TEST(Behaviour, SplittingByTheEmptyTextFillsTheMemory) {
    const NativeProgram program = build("split", "அச்சிடு(பிளவு(\"a\", \"\"))\n");
    const ProcessResult ran = program.run("", kInLittleMemory);
    EXPECT_EQ(ran.signal, SIGABRT);
    EXPECT_EQ(ran.out, "");
    EXPECT_NE(ran.err.find("std::bad_alloc"), std::string::npos) << ran.err;
}

TEST(Behaviour, AListThatFillsTheMemoryIsReported) {
    const NativeProgram program = build("memory", "அ = []\nசுற்று மெய்:\n    அ.சேர்(1)\n");
    const ProcessResult ran = program.run("", kInLittleMemory);
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_NE(ran.out.find("பொழில்-382"), std::string::npos) << ran.out;
    EXPECT_NE(ran.out.find("    03 |      அ.சேர்(1)\n"), std::string::npos) << ran.out;
}

}  // namespace
