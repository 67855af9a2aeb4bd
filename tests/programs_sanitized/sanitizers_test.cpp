// The sanitizers see what programs of the language can do wrong: so their silence over the others
// says something.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/native_program.h"

namespace fs = std::filesystem;

namespace {

NativeProgram sanitized(const std::string& name, const std::string& source) {
    const fs::path directory = fs::u8path(POZHIL_BUILD_DIR "/programs/sources");
    fs::create_directories(directory);
    const fs::path path = directory / fs::u8path(name + ".பொழில்");
    std::ofstream(path) << source;
    NativeProgram program("behaviour_" + name, path.u8string(), Build::Sanitized);
    const ProcessResult built = program.compile();
    EXPECT_EQ(built.exitCode, 0) << built.err;
    return program;
}

TEST(Sanitizers, SeeAWholeNumberThatOverflows) {
    const ProcessResult ran =
        sanitized("overflow", "அ = 9223372036854775807\nஅச்சிடு(அ பெருக்கு 2)\n").run();
    EXPECT_NE(ran.exitCode, 0);
    EXPECT_NE(ran.err.find("signed integer overflow"), std::string::npos) << ran.err;
}

TEST(Sanitizers, SeeAListThatGrowsUnderItsOwnWalk) {
    const ProcessResult ran =
        sanitized("growing_walk", "அ = [1, 2]\nஒவ்வொன்றாக உ இல் அ:\n    அ.சேர்(உ)\n").run();
    EXPECT_NE(ran.exitCode, 0);
    EXPECT_NE(ran.err.find("heap-use-after-free"), std::string::npos) << ran.err;
}

// Meant: a method holds the object that holds it. So the lane looks for leaks in other programs
// only.
TEST(Sanitizers, SeeAnObjectThatOwnsItself) {
    const std::string source =
        "கட்டமைப்பு புள்ளி:\n    x = 1\n    செயல் எடு(தான்):\n        திரும்பு தான்.x\n"
        "ப = புள்ளி()\nஅச்சிடு(ப.எடு())\n";
    const NativeProgram program = sanitized("own_object", source);
    const ProcessResult ran = program.run("", {"env", "ASAN_OPTIONS=detect_leaks=1"});
    EXPECT_EQ(ran.out, "1\n");
    EXPECT_NE(ran.err.find("detected memory leaks"), std::string::npos) << ran.err;
    EXPECT_EQ(program.run().err, "");
}

}  // namespace
