#include "companion/run/web_run.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "companion/refusal.h"
#include "companion/run/program_store.h"
#include "companion/run/watched_process.h"
#include "driver/paths.h"
#include "driver/phases.h"
#include "driver/processes.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

/// What the compiler links and includes for the web, and what makes it.
const char* const kWebParts[] = {
    "திரட்டு/error_handler_web.o",
    "திரட்டு/nanovg_web.o",
    "உள்ளடக்கம்/nanovg/nanovg.h",
    "உள்ளடக்கம்/template.html",
};

std::string runScript() { return getAppDirectory() + "/scripts/run.sh"; }

fs::path folderOf(const std::string& path) {
    const fs::path folder = fs::u8path(path).parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

bool standsOnlyHere(const fs::path& name, const fs::path& beside) {
    std::error_code ignored;
    return name.is_relative() && fs::exists(name, ignored) && !fs::exists(beside / name, ignored);
}

/// The modules that the application asks for and finds where we stand.
std::vector<AskedModule> modulesOf(const std::string& path, const std::string& text) {
    NotingReader reader;
    const SourceText source(path, text);
    const CompiledSource compiled(source, std::ref(reader));
    return std::move(reader.asked);
}

bool needsThisFolder(const std::string& path, const std::string& text, const fs::path& beside) {
    if (standsOnlyHere("assets", beside)) return true;
    for (const AskedModule& module : modulesOf(path, text)) {
        if (standsOnlyHere(fs::u8path(module.path), beside)) return true;
    }
    return access(beside.c_str(), W_OK) != 0;
}

/// Tells what an installed compiler lacks for the web; false if that is nothing.
bool tellOfMissingWebParts(const std::string& appDirectory) {
    if (!isInstalled("em++")) {
        std::cerr << "வலைதளத்தைத் தொகுக்கத் தேவையான em++ இந்தக் கணினியில் இல்லை. நிறுவ: sudo apt install "
                     "emscripten\n";
        return true;
    }
    for (const char* part : kWebParts) {
        if (fileExists(appDirectory + "/" + part)) continue;
        std::cerr << "வலைதளத்தைத் தொகுக்கத் தேவையான '" << appDirectory << "/" << part
                  << "' இல்லை. பொழிலின் மூலக் கோப்புறையில் scripts/setup_web.sh இயக்கி, பிறகு "
                     "scripts/install.sh இயக்கு.\n";
        return true;
    }
    return false;
}

}  // namespace

bool isApplication(const std::string& path, const std::string& text) {
    const SourceText source(path, text);
    const fs::path beside = folderOf(path);
    const ModuleReader readHereOrBeside = [&](const std::string& module, std::string& content) {
        return readFile(module, content) ||
               readFile((beside / fs::u8path(module)).u8string(), content);
    };
    Lexer lexer(text, path);
    try {
        Parser parser(lexer.tokenize(), text, path);
        parser.readModuleText = readHereOrBeside;
        return holdsWebApp(parser.parse());
    } catch (const CompilerRefusal&) {
        return false;  // the check tells what is wrong
    } catch (const std::exception&) {
        return false;
    }
}

std::string enterApplicationFolder(const std::string& path, const std::string& text) {
    const fs::path beside = folderOf(path);
    std::error_code problem;
    if (fs::equivalent(beside, ".", problem) || needsThisFolder(path, text, beside)) return path;
    fs::current_path(beside, problem);
    return problem ? path : fs::u8path(path).filename().u8string();
}

bool isRunByScript() { return access(runScript().c_str(), X_OK) == 0; }

int startApplication(const std::string& path, const std::string& setting) {
    std::vector<std::string> command = {runScript(), path};
    if (!isRunByScript()) {
        const std::string appDirectory = getAppDirectory();
        if (tellOfMissingWebParts(appDirectory)) return 1;
        command[0] = appDirectory + "/பொழில்";
    }
    execve(command[0].c_str(), argumentsOf(command).data(),
           environmentWithSettings({setting}).data());
    std::cerr << "'" << command[0] << "' என்ற நிரலை இயக்க முடியவில்லை.\n";
    return 1;
}

}  // namespace companion
