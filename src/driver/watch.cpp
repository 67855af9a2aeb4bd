#include "driver/watch.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "driver/paths.h"
#include "driver/phases.h"

namespace fs = std::filesystem;

namespace {

constexpr auto kPollPeriod = std::chrono::milliseconds(500);

/// Runs one phase; on an exception prints `prefix` and the exception's text.
template <typename Phase>
bool runWatchedPhase(Phase phase, const char* prefix) {
    try {
        phase();
        return true;
    } catch (const std::exception& failure) {
        std::cerr << prefix << failure.what() << std::endl;
        return false;
    }
}

/// Source to generated text; false if a phase threw. A diagnostic ends the process.
bool translate(const std::string& sourcePath, std::string& code) {
    std::string text;
    readFile(sourcePath, text);

    std::vector<Token> tokens;
    if (!runWatchedPhase([&] { tokens = Lexer(text, sourcePath).tokenize(); }, "லெக்சர் பிழை: ")) {
        return false;
    }
    Program program;
    Parser parser(tokens, text, sourcePath);
    if (!runWatchedPhase([&] { program = parser.parse(); }, "பார்சர் பிழை: ")) return false;
    return runWatchedPhase(
        [&] {
            Generator generator(program, parser.functionParameters, parser.structDefinitions,
                                parser.abstractStructDefinitions, text, sourcePath);
            code = generator.generate();
        },
        "ஜெனரேட்டர் பிழை: ");
}

}  // namespace

void watchConsoleProgram(const std::string& sourcePath, const NativeBuild& build) {
    const fs::path source = fs::u8path(sourcePath);
    auto lastWrite = fs::last_write_time(source);
    while (true) {
        const auto write = fs::last_write_time(source);
        if (write != lastWrite) {  // an older time counts too
            lastWrite = write;
            std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது..." << std::endl;
            std::string code;
            if (translate(sourcePath, code)) {
                std::ofstream(fs::u8path(build.generatedPath)) << code;
                buildNativeProgram(build);
            }
        }
        std::this_thread::sleep_for(kPollPeriod);
    }
}
