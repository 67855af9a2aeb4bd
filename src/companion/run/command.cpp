// run [--quiet] FILE: checks a source, then has it built and run.
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "companion/check/check.h"
#include "companion/check/finding_texts.h"
#include "companion/commands.h"
#include "companion/run/run.h"
#include "companion/run/web_run.h"
#include "files.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

constexpr const char* kUsualSource = "முதன்மை.பொழில்";
constexpr const char* kSourceEnding = ".பொழில்";
constexpr int kMisused = 2;

struct RunRequest {
    std::string path;
    bool isQuiet = false;
};

/// What is asked for; nothing, behind a line on standard error, if it can't be understood.
std::optional<RunRequest> readRequest(const Arguments& arguments) {
    RunRequest request;
    for (const std::string& argument : arguments) {
        if (argument == "--quiet" || argument == "--அமைதி") {
            request.isQuiet = true;
        } else if (argument.rfind("--", 0) == 0 && !hasEnding(argument, kSourceEnding)) {
            std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை.\n";
            return std::nullopt;
        } else if (!request.path.empty()) {
            std::cerr << "ஒரு நேரத்தில் ஒரு நிரலையே இயக்கலாம்: '" << request.path << "', '" << argument
                      << "'.\n";
            return std::nullopt;
        } else {
            request.path = argument;
        }
    }
    if (request.path.empty() && fileExists(kUsualSource)) request.path = kUsualSource;
    if (!request.path.empty()) return request;
    std::cerr << "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: பொழில்-துணை இயக்கு கோப்பு.பொழில்\n";
    return std::nullopt;
}

/// Reads the source; false, behind a line on standard error, for what is no program.
bool readProgram(const std::string& path, std::string& text) {
    std::error_code ignored;
    if (fs::is_directory(fs::u8path(path), ignored)) {
        std::cerr << "'" << path << "' ஒரு கோப்புறை, நிரல் அல்ல.\n";
    } else if (!fileExists(path)) {
        std::cerr << "'" << path << "' என்ற கோப்பு இல்லை.\n";
    } else if (!hasEnding(path, kSourceEnding)) {
        std::cerr << "'" << path << "': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்.\n";
    } else if (!readFile(path, text)) {
        std::cerr << "'" << path << "' என்ற கோப்பைப் படிக்க முடியவில்லை.\n";
    } else {
        return true;
    }
    return false;
}

bool isColourWanted() {
    const char* refused = std::getenv("NO_COLOR");
    return isatty(STDERR_FILENO) != 0 && (refused == nullptr || *refused == '\0');
}

int runConsoleProgram(const SourceText& source, ProjectFolder& folder, bool isQuiet) {
    if (isQuiet) return buildAndStart(source, folder);
    if (tellFindings(source, readFile, Telling::WarningsToo)) return 1;
    return runByCompiler(source, folder);
}

int runWebApplication(const SourceText& source, const ProjectFolder& folder, bool isQuiet) {
    if (isQuiet) {
        std::cerr << "வலைதளத்தை அமைதியாக இயக்க முடியாது: அதன் முகவரியைச் சொல்ல வேண்டும். --quiet இல்லாமல் "
                     "இயக்கு.\n";
        return kMisused;
    }
    const std::string path = enterApplicationFolder(source.path, source.text);
    const SourceText there(path, source.text);
    const Telling telling = isRunByScript() ? Telling::ErrorsAlone : Telling::WarningsToo;
    if (tellFindings(there, readFile, telling)) return 1;
    return startApplication(path, "TMPDIR=" + folder.path());
}

}  // namespace

bool tellFindings(const SourceText& source, const ModuleReader& readModule, Telling telling) {
    FileFindings file{&source, {}};
    bool isStopped = false;
    for (const Finding& finding : checkSource(source, readModule)) {
        isStopped |= finding.severity == Severity::Error;
        if (finding.severity != Severity::Hint) file.findings.push_back(finding);
    }
    if (isStopped || telling == Telling::WarningsToo) {
        printForPeople(std::cerr, file, isColourWanted());
        std::cerr.flush();
    }
    return isStopped;
}

int runRun(const Arguments& arguments) {
    const auto request = readRequest(arguments);
    std::string text;
    if (!request || !readProgram(request->path, text)) return kMisused;

    std::error_code ignored;  // where we stand may be gone: then the path as it is serves
    const fs::path whole = fs::absolute(fs::u8path(request->path), ignored);
    auto folder = ProjectFolder::of(whole.parent_path().u8string());
    if (!folder) {
        std::cerr
            << "நிரலைத் தொகுக்க ஒரு கோப்புறையை உருவாக்க முடியவில்லை. எழுதக்கூடிய கோப்புறை ஒன்றை TMPDIR-ல் "
               "குறிப்பிடு.\n";
        return 1;
    }
    const SourceText source(request->path, std::move(text));
    if (request->isQuiet) startKept(source, *folder);
    if (isApplication(source.path, source.text)) {
        return runWebApplication(source, *folder, request->isQuiet);
    }
    return runConsoleProgram(source, *folder, request->isQuiet);
}

}  // namespace companion
