// Programs, and beside each what it prints: generated in process, built by the command of the
// driver, run. Beside a source may stand its standard input (.in) and its exit status (.status).
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/case_files.h"
#include "support/front_end.h"
#include "support/subprocess.h"

namespace fs = std::filesystem;

namespace {

const std::string kBuildDirectory = POZHIL_BUILD_DIR "/programs/";

std::string besides(const CaseFile& file, const std::string& extension) {
    return fs::u8path(file.source).replace_extension(extension).u8string();
}

std::string readOptional(const std::string& path, const std::string& otherwise) {
    return fs::exists(fs::u8path(path)) ? readText(path) : otherwise;
}

/// The driver's command line, with a source and an executable of the case's own.
std::vector<std::string> compileCommand(const std::string& source, const std::string& executable) {
    const std::string include = POZHIL_ROOT "/உள்ளடக்கம்";
    return {"g++",
            source,
            kBuildDirectory + "error_handler_native_linux.o",
            "-o",
            executable,
            "-std=c++17",
            "-I" + include,
            "-I" + include + "/nanovg",
            "-static",
            "-static-libstdc++",
            "-static-libgcc",
            "-lm",
            "-lpthread"};
}

void runProgram(const CaseFile& file) {
    const std::string source = kBuildDirectory + file.name + ".cpp";
    const std::string executable = kBuildDirectory + file.name;
    const std::string filename = fs::u8path(file.source).filename().u8string();
    std::ofstream(fs::u8path(source)) << generate(readText(file.source), filename);

    ProcessOptions building;
    building.timeoutSeconds = 200;
    const ProcessResult built = runCommand(compileCommand(source, executable), building);
    ASSERT_EQ(built.exitCode, 0) << file.source << "\n" << built.err;

    ProcessOptions running;
    running.input = readOptional(besides(file, ".in"), "");
    running.directory = kBuildDirectory;
    const ProcessResult ran = runCommand({executable}, running);
    EXPECT_FALSE(ran.timedOut) << file.source;
    EXPECT_EQ(ran.exitCode, std::stoi(readOptional(besides(file, ".status"), "0"))) << ran.err;
    expectGolden(file, ran.out);
}

const bool registered = [] {
    registerCases("programs", ".out", runProgram);
    return true;
}();

}  // namespace
