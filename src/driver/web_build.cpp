#include "driver/web_build.h"

#include <filesystem>
#include <iostream>

#include "driver/cache.h"
#include "driver/console_texts.h"
#include "driver/media.h"
#include "driver/page.h"
#include "driver/paths.h"
#include "driver/processes.h"
#include "driver/served_page.h"
#include "driver/warmed_web.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kFixedFlags =
    " -std=c++17 -finput-charset=UTF-8 --bind -s USE_GLFW=3 -s FULL_ES2=1 -s WASM=1"
    " -s ALLOW_MEMORY_GROWTH=1 -s EXPORTED_RUNTIME_METHODS=\"['ccall','cwrap']\" ";

constexpr const char* kWebLockName = "வலை_பூட்டு";

constexpr const char* kOutputFiles[] = {
    "வெளியீடு/index.html",
    "வெளியீடு/index.js",
    "வெளியீடு/index.wasm",
    "வெளியீடு/index.data",
};

/// `command` for system(), with nothing printed whatever happens. It passes through two shells.
std::string inSilentBash(const std::string& command) {
    return "bash -c " + inQuotes(command) + " > /dev/null 2>&1";
}

bool readTemplate(const std::string& appDirectory, std::string& page) {
    const std::string path = appDirectory + "/உள்ளடக்கம்/template.html";
    if (readFile(path, page)) return true;
    std::cerr << "பிழை: template.html கோப்பு கிடைக்கவில்லை! '" << path << "' உள்ளதா எனச் சரிபார்க்கவும்.\n";
    return false;
}

/// Throws if one can't be removed; a missing one is no error.
void removeOldOutput() {
    for (const char* file : kOutputFiles) fs::remove(fs::u8path(file));
}

/// What is prepared for em++ may be refused although it looks right. A build never fails for that:
/// it is made again without, and so are the later ones.
int runCompiler(const std::string& command, const std::string& objectDirectory) {
    const std::string setting = g_isWarmedWebRefused ? "" : warmedSetting(objectDirectory);
    const int status = runStoppable(command, setting);
    if (status == 0 || setting.empty()) return status;
    const int bareStatus = runStoppable(command);
    g_isWarmedWebRefused = bareStatus == 0;
    return bareStatus;
}

bool reportFailedBuild(const WebBuild& build) {
    if (isInstalled("em++")) {
        tellOfFullDisk({build.cacheDirectory, "வெளியீடு"});
    } else {
        tellOfMissingTool("em++", "emscripten");
    }
    std::cout << "\n"
              << kRed << "🚨 (பொழில்-404): நிரலைத் தொகுப்பதில் (Compilation) சிக்கல்!" << kReset << "\n";
    std::cout << kYellow << "💡 குறிப்பு: உமது பொழிலின் கட்டமைப்பை (Syntax) ஒருமுறை சரிபார்க்கவும்."
              << kReset << "\n";
    std::cout.flush();
    return false;
}

}  // namespace

std::string webWords(const std::string& source, const std::string& includeDirectory,
                     const std::string& objectDirectory, const std::string& preload,
                     const std::string& output) {
    return "em++ " + inQuotes(source) + " " + inQuotes(objectDirectory + "/error_handler_web.o") +
           " " + inQuotes(objectDirectory + "/nanovg_web.o") + " -I" + inQuotes(includeDirectory) +
           " -I" + inQuotes(includeDirectory + "/nanovg") + kFixedFlags + preload + " -o " +
           inQuotes(output);
}

std::string webCommand(const std::string& source, const std::string& includeDirectory,
                       const std::string& objectDirectory, const std::string& preload,
                       const std::string& output) {
    return inSilentBash(webWords(source, includeDirectory, objectDirectory, preload, output));
}

bool buildWebApplication(const Program& program, const std::string& code, const WebBuild& build) {
    const std::string source = build.cacheDirectory + "/வலை_வெளியீடு.cpp";
    const CacheTurn turn(build.cacheDirectory, kWebLockName);
    if (!writeWhole(source, code)) return false;

    std::string page;
    if (!readTemplate(build.appDirectory, page)) return false;
    const int version = g_appVersion.load() + 1;
    storePage(assemblePage(std::move(page), readPageHead(program), version));

    const std::string preload = preloadFlags(program);
    removeOldOutput();
    const std::string objectDirectory = getSafeMinGWPath(build.appDirectory + "/திரட்டு");
    const std::string command =
        webCommand(source, getSafeMinGWPath(build.appDirectory + "/உள்ளடக்கம்"), objectDirectory,
                   preload, fs::current_path().u8string() + "/வெளியீடு/index.js");
    const int status = runCompiler(command, objectDirectory);
    if (status != 0) return reportFailedBuild(build);
    g_appVersion.exchange(version);
    return true;
}
