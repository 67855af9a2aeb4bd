#include "driver/watch.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <optional>
#include <thread>

#include "driver/console_texts.h"
#include "driver/phases.h"
#include "driver/processes.h"
#include "files.h"

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPollPeriod = std::chrono::milliseconds(500);

/// Between two looks at a source that changed, and until the last one.
constexpr auto kSavePause = std::chrono::milliseconds(20);
constexpr auto kSavePatience = std::chrono::milliseconds(2000);

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
bool translate(const std::string& sourcePath, const std::string& text, const WatchTexts& texts,
               Program& program, std::string& code) {
    const auto run = [&](auto phase, const char* failure) {
        return runWatchedPhase(phase, failure, texts.withReason);
    };
    std::vector<Token> tokens;
    if (!run([&] { tokens = Lexer(text, sourcePath).tokenize(); }, texts.scan)) return false;
    Parser parser(std::move(tokens), text, sourcePath);
    if (!run([&] { program = parser.parse(); }, texts.parse)) return false;
    const auto generate = [&] {
        Generator generator(program, parser.functionParameters, parser.structDefinitions,
                            parser.abstractStructDefinitions, text, sourcePath);
        code = generator.generate();
    };
    return run(generate, texts.generate);
}

/// What a look at a file tells. One that is gone, or goes meanwhile, is empty.
struct Look {
    std::optional<fs::file_time_type> time;
    std::uintmax_t bytes = 0;

    bool operator==(const Look& other) const { return time == other.time && bytes == other.bytes; }
};

Look lookAt(const fs::path& file) {
    std::error_code problem;
    Look look;
    const auto time = fs::last_write_time(file, problem);
    if (problem) return look;
    const std::uintmax_t bytes = fs::file_size(file, problem);
    if (problem) return look;
    look.time = time;
    look.bytes = bytes;
    return look;
}

/// The source as somebody saved it. Editors empty a file before they write it, or put another in
/// its place: so it is read when two looks agree that it holds something, and a third one that it
/// stayed so. One that stays empty, or never rests, is taken as it is. Throws if it stays away.
fs::file_time_type readSaved(const std::string& sourcePath, std::string& text) {
    const fs::path source = fs::u8path(sourcePath);
    const auto deadline = Clock::now() + kSavePatience;
    Look look = lookAt(source);
    while (Clock::now() < deadline) {
        std::this_thread::sleep_for(kSavePause);
        const Look second = lookAt(source);
        const bool rests = second == look && second.bytes > 0;
        look = second;
        if (!rests || !readFile(sourcePath, text)) continue;
        look = lookAt(source);
        if (look == second) return *look.time;
    }
    const auto time = fs::last_write_time(source);
    readFile(sourcePath, text);
    return time;
}

/// Calls `rebuild` with the source's text whenever its time is another than before; an older one
/// counts too. The time is that of the text: a save during a rebuild is seen by the next look.
template <typename Rebuild>
[[noreturn]] void watch(const std::string& sourcePath, Rebuild rebuild) {
    const fs::path source = fs::u8path(sourcePath);
    auto lastWrite = fs::last_write_time(source);
    while (true) {
        if (lookAt(source).time != lastWrite) {
            std::string text;
            const auto write = readSaved(sourcePath, text);
            if (write != lastWrite) {
                lastWrite = write;
                rebuild(text);
            }
        }
        std::this_thread::sleep_for(kPollPeriod);
    }
}

}  // namespace

void watchConsoleProgram(const std::string& sourcePath, const NativeBuild& build) {
    watch(sourcePath, [&](const std::string& text) {
        std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது..." << std::endl;
        Program program;
        std::string code;
        if (!translate(sourcePath, text, kConsoleTexts, program, code)) return;
        buildNativeProgram(build, code);
        releaseInterrupts();  // a Ctrl+C during the run ends the watch too
    });
}

void watchWebApplication(const std::string& sourcePath, const WebBuild& build) {
    watch(sourcePath, [&](const std::string& text) {
        std::cout << "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது..." << std::endl;
        Program program;
        std::string code;
        if (!translate(sourcePath, text, kWebTexts, program, code)) return;
        if (!buildWebApplication(program, code, build)) return;
        std::cout << "✅ தளம் புதுப்பிக்கப்பட்டது! பிரவுசரில் பார்க்கவும்." << std::endl;
    });
}
