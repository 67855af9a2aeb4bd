#include "support/native_program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/generated_text.h"
#include "support/saying.h"

namespace fs = std::filesystem;

namespace {

const std::string kBuildDirectory = POZHIL_BUILD_DIR "/programs/";
const std::string kInclude = POZHIL_ROOT "/உள்ளடக்கம்";

/// Makes `directory` the working directory for as long as it lives.
class WorkingDirectory {
public:
    explicit WorkingDirectory(const fs::path& directory) : before(fs::current_path()) {
        fs::current_path(directory);
    }
    ~WorkingDirectory() { fs::current_path(before); }

private:
    fs::path before;
};

std::vector<std::string> includeOptions(Build build) {
    std::vector<std::string> options = {"-std=c++17"};
    if (build == Build::Sanitized) {
        // Its own warmed header stands in front of that of plain programs.
        options.push_back("-I" + kBuildDirectory + "sanitized");
        for (const char* option : {POZHIL_PROGRAM_SANITIZERS}) options.emplace_back(option);
    }
    options.push_back("-I" + kInclude);
    options.push_back("-I" + kInclude + "/nanovg");
    return options;
}

std::vector<std::string> linkOptions(Build build) {
    // The sanitizers' runtime can't be linked into a static program.
    if (build == Build::Sanitized) return {"-lm", "-lpthread"};
    return {"-static", "-static-libstdc++", "-static-libgcc", "-lm", "-lpthread"};
}

std::string besides(const CaseFile& file, const std::string& extension) {
    return fs::u8path(file.source).replace_extension(extension).u8string();
}

std::string readOptional(const std::string& path, const std::string& otherwise) {
    return fs::exists(fs::u8path(path)) ? readText(path) : otherwise;
}

int statusAsAShellTells(const ProcessResult& ran) {
    return ran.signal != 0 ? 128 + ran.signal : ran.exitCode;
}

}  // namespace

std::string generateFile(const std::string& sourcePath, const std::string& name) {
    const fs::path path = fs::absolute(fs::u8path(sourcePath));
    const WorkingDirectory here(path.parent_path());
    return generate(readText(path.u8string()), name.empty() ? path.filename().u8string() : name);
}

std::vector<std::string> buildCommand(const std::string& text, const std::string& program,
                                      Build build) {
    const std::string report =
        build == Build::Sanitized ? "sanitized/error_handler.o" : "error_handler_native_linux.o";
    std::vector<std::string> command = {"g++", text, kBuildDirectory + report, "-o", program};
    for (const std::string& option : includeOptions(build)) command.push_back(option);
    for (const std::string& option : linkOptions(build)) command.push_back(option);
    return command;
}

// An object with a method owns itself and lives to the end of its program: a leak that is meant.
// Programs without objects must free all they take.
std::vector<std::string> programEnvironment(const std::string& text) {
    const bool makesObjects = text.find("std::make_shared<") != std::string::npos;
    return {makesObjects ? "ASAN_OPTIONS=detect_leaks=0" : "ASAN_OPTIONS=detect_leaks=1"};
}

NativeProgram::NativeProgram(const std::string& name, const std::string& sourcePath, Build build)
    : folder(kBuildDirectory + name + (build == Build::Sanitized ? ".sanitized/" : "/")),
      build(build) {
    fs::remove_all(fs::u8path(folder));
    fs::create_directories(fs::u8path(runDirectory()));
    const fs::path source = fs::u8path(sourcePath);
    fs::copy_file(source, fs::u8path(runDirectory()) / source.filename());
    const std::string text = generateFile(sourcePath);
    environment = programEnvironment(text);
    std::ofstream(fs::u8path(folder + "generated.cpp")) << text;
}

ProcessResult NativeProgram::compile(const std::vector<std::string>& furtherOptions) const {
    auto command = buildCommand(folder + "generated.cpp", folder + "program", build);
    command.insert(command.end(), furtherOptions.begin(), furtherOptions.end());
    ProcessOptions options;
    options.timeoutSeconds = 200;
    return runCommand(command, options);
}

ProcessResult NativeProgram::checkSyntax() const {
    std::vector<std::string> command = {"g++", "-fsyntax-only", folder + "generated.cpp"};
    for (const std::string& option : includeOptions(build)) command.push_back(option);
    ProcessOptions options;
    options.timeoutSeconds = 200;
    options.environment = {"LC_ALL=C.UTF-8"};  // else Tamil names come out as numbers
    return runCommand(command, options);
}

ProcessResult NativeProgram::run(const std::string& input,
                                 const std::vector<std::string>& wrapper) const {
    std::vector<std::string> command = wrapper;
    command.push_back(folder + "program");
    ProcessOptions options;
    options.input = input;
    options.directory = runDirectory();
    options.environment = environment;
    return runCommand(command, options);
}

std::string inputOf(const CaseFile& file) { return readOptional(besides(file, ".in"), ""); }

void expectOutcome(const CaseFile& file, const ProcessResult& ran) {
    EXPECT_FALSE(ran.timedOut) << file.source;
    EXPECT_EQ(statusAsAShellTells(ran), std::stoi(readOptional(besides(file, ".status"), "0")));
    EXPECT_EQ(ran.err, readOptional(besides(file, ".err"), ""));
    expectGolden(file, maskSaying(ran.out));
}
