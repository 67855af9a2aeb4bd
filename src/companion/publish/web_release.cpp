#include "companion/publish/web_release.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string_view>

#include "companion/publish/content_name.h"
#include "companion/publish/ending.h"
#include "companion/publish/failure.h"
#include "companion/publish/fonts.h"
#include "companion/publish/published_page.h"
#include "companion/publish/release_text.h"
#include "driver/cache.h"
#include "driver/console_texts.h"
#include "driver/media.h"
#include "driver/paths.h"
#include "driver/processes.h"
#include "driver/web_build.h"

namespace companion {

namespace fs = std::filesystem;

namespace {

/// Optimised, and without the names and checks that serve who looks for a mistake. The closure
/// compiler would shorten names by which page and program find each other.
constexpr const char* kReleaseFlags =
    " -O2 -fwrapv -g0 -DNDEBUG -s ASSERTIONS=0 -s ENVIRONMENT=web";

/// Debian's packages for node lie here; a node from elsewhere doesn't look.
constexpr const char* kNodePackages = "/usr/share/nodejs";

constexpr int kLinesOfCompiler = 8;

constexpr const char* kProgramFiles[] = {"index.js", "index.wasm", "index.data"};

std::string companionFile(const BuildPlaces& places, const char* name) {
    return places.appDirectory + "/உள்ளடக்கம்/" + name;
}

std::string readCompanionFile(const BuildPlaces& places, const char* name) {
    std::string text;
    if (!readFile(companionFile(places, name), text)) {
        throw PublishFailure("பிழை: '" + companionFile(places, name) +
                             "' கிடைக்கவில்லை. பொழிலை மீண்டும் நிறுவு.");
    }
    return text;
}

void refuseWithoutObjects(const BuildPlaces& places) {
    for (const char* name : {"error_handler_web.o", "nanovg_web.o"}) {
        if (fileExists(places.appDirectory + "/திரட்டு/" + name)) continue;
        throw PublishFailure(
            "பிழை: வலைதளங்களுக்கான துணைக் கோப்புகள் இல்லை. முதலில் இதை இயக்கு: "
            "scripts/setup_web.sh");
    }
}

/// The flags that pack what the program opens, with the fonts that its folder lacks.
std::string packingFlags(const Program& program, const BuildPlaces& places) {
    std::vector<std::string> stores = {places.appDirectory + "/build/fonts"};
    for (const std::string& folder : fontFolders()) stores.push_back(folder);
    std::string flags = preloadFlags(program);
    for (const ProgramFont& font : lackingProgramFonts(stores)) {
        if (font.path.empty()) {
            std::cout << "▷ '" << font.name << "' இல்லை: பொத்தான்களின் அகலம் பொருந்தாமல் போகலாம்.\n";
        } else {
            flags += preloadFlag(font.path, font.name);
        }
    }
    return flags;
}

std::string nodeSetting() {
    const char* own = std::getenv("NODE_PATH");
    const std::string others = own != nullptr && *own != '\0' ? std::string(own) + ":" : "";
    return "NODE_PATH=" + others + kNodePackages;
}

/// The last of what em++ said, for who can make use of it.
std::string endOf(const std::string& path) {
    std::string text;
    readFile(path, text);
    std::size_t from = text.size();
    for (int line = 0; line <= kLinesOfCompiler && from != 0; line++) {
        const std::size_t end = text.rfind('\n', from - 1);
        if (end == std::string::npos) return text;
        from = end;
    }
    return text.substr(std::min(from + 1, text.size()));
}

[[noreturn]] void refuseBuild(const BuildPlaces& places, const std::string& log) {
    letEndCome();
    if (!isInstalled("em++")) {
        tellOfMissingTool("em++", "emscripten");
        throw PublishFailure("");
    }
    tellOfFullDisk({places.workDirectory, fs::temp_directory_path().u8string()});
    throw PublishFailure("பிழை: வலைதளத்தைத் தொகுக்க முடியவில்லை. em++ சொன்னது:\n" + endOf(log));
}

void compile(const Program& program, const std::string& code, const BuildPlaces& places) {
    const std::string source = places.workDirectory + "/application.cpp";
    const std::string log = places.workDirectory + "/said";
    if (!writeWhole(source, code)) throw PublishFailure("");
    const std::string words =
        webWords(source, getSafeMinGWPath(places.appDirectory + "/உள்ளடக்கம்"),
                 getSafeMinGWPath(places.appDirectory + "/திரட்டு"), packingFlags(program, places),
                 places.workDirectory + "/index.js") +
        kReleaseFlags + " --js-library " + inQuotes(companionFile(places, "published_library.js"));
    std::cout << "🔨 தளம் தொகுக்கப்படுகிறது: வேகமாகவும் சிறிதாகவும் ஆக்க அரை நிமிடம்வரை ஆகலாம்...\n";
    const std::string command = "bash -c " + inQuotes(words) + " > " + inQuotes(log) + " 2>&1";
    if (runStoppable(command, nodeSetting()) != 0) refuseBuild(places, log);
}

/// Adds `content` under a name of its own; returns that name.
std::string add(std::vector<PublishedFile>& files, const std::string& name, std::string content) {
    std::string address = contentName(name, content);
    files.push_back({address, std::move(content)});
    return address;
}

std::vector<ProgramFile> addProgram(std::vector<PublishedFile>& files, const BuildPlaces& places) {
    std::vector<ProgramFile> program;
    for (const char* name : kProgramFiles) {
        std::string content;
        if (!readFile(places.workDirectory + "/" + name, content)) continue;  // nothing to pack
        if (hasEnding(name, ".js")) content = withoutTraces(std::move(content));
        const std::size_t bytes = content.size();
        program.push_back({name, add(files, name, std::move(content)), bytes});
    }
    return program;
}

std::vector<FontFile> addFonts(std::vector<PublishedFile>& files, std::vector<PageFont> fonts) {
    std::vector<FontFile> added;
    added.reserve(fonts.size());
    for (PageFont& font : fonts) {
        added.push_back({font.weight, add(files, font.name, std::move(font.content))});
    }
    return added;
}

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// What stands in quotes behind `name` in the script; empty if it isn't there.
std::string quotedBehind(const std::string& script, std::string_view name) {
    const std::size_t at = script.find(name);
    if (at == std::string::npos) return "";
    const std::size_t open = at + name.size();
    const std::size_t end = script.find(script[open], open + 1);
    return end == std::string::npos ? "" : script.substr(open + 1, end - open - 1);
}

}  // namespace

std::string withoutTraces(std::string script) {
    const std::string package = quotedBehind(script, "PACKAGE_NAME=");
    if (!package.empty()) replaceAll(script, package, "index.data");
    const std::string number = quotedBehind(script, "\"package_uuid\":");
    if (!number.empty()) replaceAll(script, number, "index.data");
    return script;
}

std::vector<PublishedFile> buildWebRelease(const Program& program, const std::string& code,
                                           const BuildPlaces& places) {
    refuseWithoutObjects(places);
    const std::string page = readCompanionFile(places, "template.html");
    const std::string visitors = readCompanionFile(places, "published.js");
    std::vector<PageFont> fonts = findPageFonts(fontFolders());
    if (fonts.empty()) {
        std::cout
            << "▷ Noto Sans Tamil எழுத்துரு இந்தக் கணினியில் இல்லை: தளம் அதை இணையத்திலிருந்து எடுக்கும். "
               "தளத்துடனேயே வர, நிறுவு: sudo apt install fonts-noto-core\n";
    }
    compile(program, releaseText(code, fonts.empty() ? TamilFont::OfNet : TamilFont::OfPage),
            places);

    std::vector<PublishedFile> files;
    const std::vector<ProgramFile> programFiles = addProgram(files, places);
    const std::vector<FontFile> fontFiles = addFonts(files, std::move(fonts));
    files.push_back({"index.html", publishedPage(page, visitors, readPageHead(program),
                                                 programFiles, fontFiles)});
    return files;
}

}  // namespace companion
