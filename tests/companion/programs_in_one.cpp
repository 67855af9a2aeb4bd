#include "programs_in_one.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "support/generated_text.h"

namespace fs = std::filesystem;

const char* const kProgramName = "நிரல்.பொழில்";

namespace {

const std::string kAllPrograms = POZHIL_BUILD_DIR "/programs/";
const std::string kNamespace = "program_";

void writeTo(const std::string& path, const std::string& text) {
    std::ofstream(fs::u8path(path)) << text;
}

/// The program in whose text g++ stands in this line of its messages: "program_7:12:3: ...". -1 if
/// it is none's.
int numberOf(const std::string& line) {
    const std::size_t digits = kNamespace.size();
    const std::size_t colon = line.find(':');
    if (line.rfind(kNamespace, 0) != 0 || colon == std::string::npos) return -1;
    return std::stoi(line.substr(digits, colon - digits));
}

/// g++ writes the bytes of Tamil texts as numbers: "\37777777740" is E0.
std::string withBytes(const std::string& message) {
    static const std::string mark = "\\37777777";
    std::string text;
    std::size_t at = 0;
    for (std::size_t next = 0; (next = message.find(mark, at)) != std::string::npos;) {
        const std::size_t digits = next + mark.size();
        text += message.substr(at, next - at);
        text += static_cast<char>(std::stoi(message.substr(digits, 3), nullptr, 8));
        at = digits + 3;
    }
    return text + message.substr(at);
}

/// An error inside the library's text is that of the program which asked for it: the line before
/// tells.
std::map<int, std::string> errorsByProgram(const std::string& messages) {
    std::map<int, std::string> errors;
    std::istringstream lines(messages);
    int asking = -1;
    for (std::string line; std::getline(lines, line);) {
        const int own = numberOf(line);
        if (line.find("required from") != std::string::npos) asking = own;
        const std::size_t error = line.find("error: ");
        if (error == std::string::npos) continue;
        const int number = own >= 0 ? own : asking;
        if (number >= 0) errors.emplace(number, withBytes(line.substr(error)));
    }
    return errors;
}

/// What a line at file scope defines or declares: the function before its bracket, the structure
/// behind its word. Empty if it is neither.
std::string nameIn(const std::string& line) {
    static const std::string structure = "struct ";
    if (line.rfind(structure, 0) == 0) {
        return line.substr(structure.size(),
                           line.find_first_of(" {:;", structure.size()) - structure.size());
    }
    const std::string head = line.substr(0, line.find('('));
    const std::size_t blank = head.rfind(' ');
    if (head.size() == line.size() || blank == std::string::npos || head[0] == ' ') return "";
    return head.substr(blank + 1);
}

std::set<std::string> namesAtFileScope(const std::string& text) {
    std::set<std::string> names;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) names.insert(nameIn(line));
    names.erase("");
    return names;
}

}  // namespace

std::string withOwnName(std::string printed, const std::string& name) {
    const std::string common = kProgramName;
    for (std::size_t at = 0; (at = printed.find(common, at)) != std::string::npos;) {
        printed.replace(at, common.size(), name);
        at += name.size();
    }
    return printed;
}

ProcessResult runNativeCompiler(const std::vector<std::string>& arguments) {
    ProcessOptions options;
    options.timeoutSeconds = 200;
    options.environment = {"LC_ALL=C.UTF-8"};
    std::vector<std::string> command = {"g++", "-std=c++17", "-I" POZHIL_ROOT "/உள்ளடக்கம்"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return runCommand(command, options);
}

ProgramsInOne::ProgramsInOne(const std::string& name, Build build)
    : folder(kAllPrograms + name + "/"), kind(build) {
    fs::remove_all(fs::u8path(folder));
    fs::create_directories(fs::u8path(folder));
    const std::string text = generate("", kProgramName);
    common = text.substr(0, text.find("void init_globals()"));
    commonNames = namesAtFileScope(common);
}

bool ProgramsInOne::meetsCommonName(const std::string& text) const {
    const auto names = namesAtFileScope(text.substr(common.size()));
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return commonNames.count(name) != 0; });
}

int ProgramsInOne::add(const std::string& source, const std::string& text) {
    if (text.compare(0, common.size(), common) != 0) {
        throw std::logic_error("a program that begins otherwise than the others: " + source);
    }
    programs[count] = text.substr(common.size());
    fs::create_directories(fs::u8path(runFolder(count)));
    writeTo(runFolder(count) + kProgramName, source);
    return count++;
}

std::string ProgramsInOne::nameInMessages(int number) {
    return kNamespace + std::to_string(number);
}

/// The names of lines tell the programs apart in messages.
std::string ProgramsInOne::wholeText() const {
    std::ostringstream text;
    text << common;
    for (const auto& [number, program] : programs) {
        const std::string name = nameInMessages(number);
        text << "#line 1 \"" << name << "\"\nnamespace " << name << " {\n" << program << "\n}\n";
    }
    text
        << "#line 1 \"choice\"\nint main(int, char** words) {\n    switch (std::atoi(words[1])) {\n";
    for (const auto& [number, program] : programs) {
        text << "        case " << number << ": return program_" << number << "::main();\n";
    }
    text << "    }\n    return 99;\n}\n";
    return text.str();
}

/// What two programs ask of the library in the same words is refused once: so again without those
/// that are known, until nothing is left to refuse.
std::map<int, std::string> ProgramsInOne::leaveOutRefused() {
    std::map<int, std::string> refused;
    while (true) {
        writeTo(folder + "programs.cpp", wholeText());
        const ProcessResult read = runNativeCompiler(
            {"-I" POZHIL_ROOT "/உள்ளடக்கம்/nanovg", "-w", "-fsyntax-only", folder + "programs.cpp"});
        if (read.exitCode == 0) return refused;
        const auto found = errorsByProgram(read.err);
        if (found.empty()) throw std::logic_error("an error that is no program's: " + read.err);
        for (const auto& [number, error] : found) programs.erase(number);
        refused.insert(found.begin(), found.end());
    }
}

std::string ProgramsInOne::build(const std::vector<std::string>& furtherOptions) const {
    writeTo(folder + "programs.cpp", wholeText());
    ProcessOptions options;
    options.timeoutSeconds = 250;
    auto command = buildCommand(folder + "programs.cpp", folder + "programs", kind);
    command.insert(command.end(), furtherOptions.begin(), furtherOptions.end());
    const ProcessResult built = runCommand(command, options);
    return built.exitCode == 0 ? "" : "g++: " + built.err;
}

ProcessResult ProgramsInOne::run(int number, const std::string& input, double seconds,
                                 const std::vector<std::string>& environment) const {
    ProcessOptions options;
    options.input = input;
    options.timeoutSeconds = seconds;
    options.environment = environment;
    options.directory = runFolder(number);
    return runCommand({folder + "programs", std::to_string(number)}, options);
}

std::string ProgramsInOne::runFolder(int number) const {
    return folder + std::to_string(number) + "/";
}
