#include "driver/watch.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "driver/console_texts.h"
#include "driver/paths.h"
#include "driver/phases.h"

namespace fs = std::filesystem;

namespace {

constexpr auto kPollPeriod = std::chrono::milliseconds(500);

/// What a watch loop prints for an exception of each phase.
struct WatchTexts {
    const char* scan;
    const char* parse;
    const char* generate;
    bool withReason;  ///< The exception's own text and a line end stand behind it.
};

const WatchTexts kConsoleTexts = {"லெக்சர் பிழை: ", "பார்சர் பிழை: ", "ஜெனரேட்டர் பிழை: ", true};

const WatchTexts kWebTexts = {
    "\033[1;31m🚨 லெக்சர் பிழை (சொல் பகுப்பாய்வு): "
    "உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!\033[0m\n",
    "\033[1;31m🚨 பார்சர் பிழை (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!\033[0m\n",
    "\033[1;31m🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!\033[0m\n",
    false,
};

template <typename Phase>
bool runWatchedPhase(Phase phase, const char* text, bool withReason) {
    try {
        phase();
        return true;
    } catch (const std::exception& failure) {
        std::cerr << text;
        if (withReason) std::cerr << failure.what() << std::endl;
        return false;
    }
}

/// Source to tree and generated text; false if a phase threw. A diagnostic ends the process.
bool translate(const std::string& sourcePath, const WatchTexts& texts, Program& program,
               std::string& code) {
    std::string text;
    readFile(sourcePath, text);

    const auto run = [&](auto phase, const char* failure) {
        return runWatchedPhase(phase, failure, texts.withReason);
    };
    std::vector<Token> tokens;
    if (!run([&] { tokens = Lexer(text, sourcePath).tokenize(); }, texts.scan)) return false;
    Parser parser(tokens, text, sourcePath);
    if (!run([&] { program = parser.parse(); }, texts.parse)) return false;
    const auto generate = [&] {
        Generator generator(program, parser.functionParameters, parser.structDefinitions,
                            parser.abstractStructDefinitions, text, sourcePath);
        code = generator.generate();
    };
    return run(generate, texts.generate);
}

/// Calls `rebuild` whenever the source's time is another than before; an older one counts too.
template <typename Rebuild>
[[noreturn]] void watch(const std::string& sourcePath, Rebuild rebuild) {
    const fs::path source = fs::u8path(sourcePath);
    auto lastWrite = fs::last_write_time(source);
    while (true) {
        const auto write = fs::last_write_time(source);
        if (write != lastWrite) {
            lastWrite = write;
            rebuild();
        }
        std::this_thread::sleep_for(kPollPeriod);
    }
}

}  // namespace

void watchConsoleProgram(const std::string& sourcePath, const NativeBuild& build) {
    watch(sourcePath, [&] {
        std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது..." << std::endl;
        Program program;
        std::string code;
        if (!translate(sourcePath, kConsoleTexts, program, code)) return;
        std::ofstream(fs::u8path(build.generatedPath)) << code;
        buildNativeProgram(build);
    });
}

void watchWebApplication(const std::string& sourcePath, const WebBuild& build) {
    watch(sourcePath, [&] {
        std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது..." << std::endl;
        Program program;
        std::string code;
        if (!translate(sourcePath, kWebTexts, program, code)) return;
        if (!buildWebApplication(program, code, build)) return;
        std::cout << "✅ தளம் புதுப்பிக்கப்பட்டது! பிரவுசரில் பார்க்கவும்." << std::endl;
    });
}
