#include "mistakes/outcome.h"

#include <filesystem>
#include <fstream>

#include "companion/refusal.h"
#include "support/case_files.h"
#include "support/generated_text.h"
#include "support/subprocess.h"

namespace fs = std::filesystem;

namespace {

// Every source is compiled under this name, so that all texts begin alike.
const char* const kSourceName = "நிரல்.பொழில்";
const std::string kProgramsDirectory = POZHIL_BUILD_DIR "/programs/";
const char* const kWarmedHeader = "-I" POZHIL_ROOT "/உள்ளடக்கம்/nanovg";
const char* const kBrowserStandIn = "-I" POZHIL_ROOT "/tests/emitted/widgets/stand_in";
const char* const kTests = "-I" POZHIL_ROOT "/tests";

ProcessResult runNativeCompiler(const std::vector<std::string>& arguments) {
    ProcessOptions options;
    options.timeoutSeconds = 200;
    options.environment = {"LC_ALL=C.UTF-8"};  // else Tamil names come out as numbers
    std::vector<std::string> command = {"g++", "-std=c++17", "-I" POZHIL_ROOT "/உள்ளடக்கம்"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return runCommand(command, options);
}

void writeText(const std::string& path, const std::string& text) {
    std::ofstream(fs::u8path(path)) << text;
}

std::string between(const std::string& text, const std::string& from, const std::string& to) {
    const std::size_t begin = text.find(from);
    if (begin == std::string::npos) return "";
    const std::size_t end = text.find(to, begin + from.size());
    return text.substr(begin + from.size(), end - begin - from.size());
}

/// The code and the line that a running program's report shows; no code if there is none.
Truth readReport(const std::string& output) {
    const std::size_t report = output.rfind("🚨 [ ");
    if (report == std::string::npos) return {"runs"};
    const std::string text = output.substr(report);
    const std::string line = between(text, ": வரி ", "\n");
    return {"reported",
            "பொழில்-" + between(text, "பொழில்-", "\033"),
            line.empty() ? 0 : std::stoi(line),
            {}};
}

}  // namespace

FrontEndOutcome compileMistake(const Mistake& mistake) {
    const CurrentDirectory here(mistake.folder);
    try {
        return {{"taken"}, generate(readText(mistake.source), kSourceName)};
    } catch (const companion::CompilerRefusal& refusal) {
        // Without a file's name it is a module's line.
        return {{"refused", refusal.code, refusal.file.empty() ? 0 : refusal.line, {}}, ""};
    } catch (const std::exception&) {
        return {{"hidden"}, ""};
    }
}

bool nativeCompilerTakes(const Mistake& mistake, const std::string& text, const std::string& name) {
    const std::string folder = kProgramsDirectory + "mistakes/";
    fs::create_directories(fs::u8path(folder));
    const std::string path = folder + name + ".cpp";
    writeText(path, text);
    const std::vector<std::string> arguments =
        mistake.isApplication()
            ? std::vector<std::string>{kBrowserStandIn, kTests, "-D__EMSCRIPTEN__", "-fsyntax-only",
                                       path}
            : std::vector<std::string>{kWarmedHeader, "-fsyntax-only", path};
    return runNativeCompiler(arguments).exitCode == 0;
}

ProgramsInOne::ProgramsInOne(const std::string& name)
    : folder(kProgramsDirectory + "mistakes_" + name + "/") {
    fs::remove_all(fs::u8path(folder));
    fs::create_directories(fs::u8path(folder));
    const std::string text = generate("", kSourceName);
    common = text.substr(0, text.find("void init_globals()"));
}

int ProgramsInOne::add(const Mistake& mistake, const std::string& text) {
    const std::string number = std::to_string(count);
    if (text.compare(0, common.size(), common) != 0) {
        throw std::logic_error(mistake.name + " begins otherwise than the other programs");
    }
    programs +=
        "namespace program_" + number + " {\n" + text.substr(common.size()) + "\n}  // namespace\n";
    const std::string runDirectory = folder + number + "/";
    fs::create_directories(fs::u8path(runDirectory));
    fs::copy_file(fs::u8path(mistake.source), fs::u8path(runDirectory + kSourceName));
    return count++;
}

std::string ProgramsInOne::build() const {
    std::string text = common + programs + "int main(int, char** words) {\n";
    text += "    switch (std::atoi(words[1])) {\n";
    for (int number = 0; number < count; number++) {
        const std::string written = std::to_string(number);
        text += "        case " + written + ": return program_" + written + "::main();\n";
    }
    writeText(folder + "programs.cpp", text + "    }\n    return 99;\n}\n");
    const ProcessResult built = runNativeCompiler(
        {kWarmedHeader, folder + "programs.cpp",
         kProgramsDirectory + "error_handler_native_linux.o", "-o", folder + "programs", "-static",
         "-static-libstdc++", "-static-libgcc", "-lm"});
    return built.exitCode == 0 ? "" : "g++: " + built.err;
}

Truth ProgramsInOne::run(int number, const std::string& input, double seconds) const {
    ProcessOptions options;
    options.input = input;
    options.timeoutSeconds = seconds;
    options.directory = folder + std::to_string(number);
    const ProcessResult ran = runCommand({folder + "programs", std::to_string(number)}, options);
    output = ran.out;
    if (ran.timedOut) return {"endless"};
    if (ran.signal != 0) return {"stops"};
    return readReport(ran.out);
}
