#include "mistakes/outcome.h"

#include <filesystem>
#include <fstream>

#include "companion/refusal.h"
#include "programs_in_one.h"
#include "support/generated_text.h"

namespace fs = std::filesystem;

namespace {

const std::string kSingleTexts = POZHIL_BUILD_DIR "/programs/single_mistakes/";
const char* const kWarmedHeader = "-I" POZHIL_ROOT "/உள்ளடக்கம்/nanovg";
const char* const kBrowserStandIn = "-I" POZHIL_ROOT "/tests/emitted/widgets/stand_in";
const char* const kTests = "-I" POZHIL_ROOT "/tests";

std::string between(const std::string& text, const std::string& from, const std::string& to) {
    const std::size_t begin = text.find(from);
    if (begin == std::string::npos) return "";
    const std::size_t end = text.find(to, begin + from.size());
    return text.substr(begin + from.size(), end - begin - from.size());
}

}  // namespace

FrontEndOutcome compileSource(const std::string& source) {
    try {
        return {{"taken"}, generate(source, kProgramName)};
    } catch (const companion::CompilerRefusal& refusal) {
        // Without a file's name it is a module's line.
        return {{"refused", refusal.code, refusal.file.empty() ? 0 : refusal.line}, ""};
    } catch (const std::exception&) {
        return {{"hidden"}, ""};
    }
}

bool nativeCompilerTakes(const Mistake& mistake, const std::string& text) {
    fs::create_directories(fs::u8path(kSingleTexts));
    const std::string path = kSingleTexts + "single.cpp";
    std::ofstream(fs::u8path(path)) << text;
    const std::vector<std::string> forBrowser = {kBrowserStandIn, kTests, "-D__EMSCRIPTEN__",
                                                 "-fsyntax-only", path};
    const std::vector<std::string> forConsole = {kWarmedHeader, "-fsyntax-only", path};
    return runNativeCompiler(mistake.isApplication() ? forBrowser : forConsole).exitCode == 0;
}

Truth outcomeOf(const ProcessResult& ran) {
    if (ran.timedOut) return {"endless"};
    if (ran.signal != 0) return {"stops"};
    const std::size_t begin = ran.out.rfind("🚨 [ ");
    if (begin == std::string::npos) return {"runs"};
    const std::string report = ran.out.substr(begin);
    const std::string line = between(report, ": வரி ", "\n");
    return {"reported", "பொழில்-" + between(report, "பொழில்-", "\033"),
            line.empty() ? 0 : std::stoi(line)};
}
