#include "driver/workplace.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

const std::string kBanner =
    "\033[1;34m ┌──────────────────────────────────────────────────────────┐\n"
    " │                                                          │\n"
    " │                    \033[1;36mபொ ழி ல்                       │\n"
    " │                                                          │\n"
    " └──────────────────────────────────────────────────────────┘\n"
    "\033[1;32m    [ பதிப்பு: 0.2-முதல்_பதிப்பு | படைப்பாளி: Velanar ]\033[0m\n\n";

const std::string kShareTooLarge =
    "வலைதளம் கணக்கி(\n    குமரி(\n        நெகிழ்வு(பங்கு: 99999999999)\n    )\n)\n";

std::string titleOf(const std::string& source) {
    return "\033[1;36m✨ பொழில் -> " + source + " தொகுக்கப்படுகிறது...\033[0m\n";
}

std::string readFileText(const fs::path& path) {
    std::ifstream stream(path);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

void writeFileText(const fs::path& path, const std::string& text) {
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    if (!stream.flush()) throw std::runtime_error("cannot write " + path.u8string());
}

void makeExecutable(const fs::path& path) { fs::permissions(path, static_cast<fs::perms>(0755)); }

namespace {

const char* const kQuickTitle = "libquick_title.so";

}  // namespace

Workplace::Workplace() {
    std::string pattern = (fs::temp_directory_path() / "pozhil driver XXXXXX").u8string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    root = fs::canonical(fs::u8path(pattern));
    makeExecutable(root);  // other users may enter

    home = root / "home";
    work = root / "work";
    cache = root / "tmp" / "Pozhil_Cache";
    object = home / "திரட்டு" / "error_handler_native_linux.o";
    compiler = home / "பொழில்";
    for (const fs::path& directory : {home / "உள்ளடக்கம்", home / "திரட்டு", work, root / "tmp"}) {
        fs::create_directories(directory);
    }
    const fs::path tree = fs::u8path(POZHIL_ROOT);
    fs::copy_file(fs::u8path(POZHIL_EXECUTABLE_DIR) / "பொழில்", compiler);
    for (const char* header : {"error_codes.h", "error_handler.h"}) {
        fs::copy_file(tree / "உள்ளடக்கம்" / header, home / "உள்ளடக்கம்" / header);
    }
    fs::create_directory_symlink(tree / "src", home / "src");
    fs::copy_file(fs::u8path(POZHIL_BUILD_DIR) / "quick_title" / kQuickTitle, root / kQuickTitle);
}

Workplace::~Workplace() {
    std::error_code ignored;
    fs::remove_all(root, ignored);
}

void Workplace::write(const std::string& name, const std::string& text) const {
    writeFileText(work / fs::u8path(name), text);
}

void Workplace::fakeCompiler(const std::string& program, int status) const {
    fs::create_directories(root / "bin");
    writeFileText(root / "bin" / "program", "#!/bin/sh\n" + program + "\n");
    writeFileText(root / "bin" / "g++",
                  "#!/bin/sh\n"
                  "bin=$(dirname \"$0\")\n"
                  "{ printf '[%s]' \"$@\"; echo; } >>\"$bin/calls\"\n"
                  "[ " +
                      std::to_string(status) + " = 0 ] || exit " + std::to_string(status) +
                      "\n"
                      "while [ \"$1\" != -o ]; do shift; done\n"
                      "cp \"$bin/program\" \"$2\" && chmod +x \"$2\"\n");
    makeExecutable(root / "bin" / "g++");
}

void Workplace::script(const std::string& name, const std::string& text) const {
    fs::create_directories(root / "bin");
    writeFileText(root / "new", "#!/bin/sh\n" + text + "\n");
    makeExecutable(root / "new");
    fs::rename(root / "new", root / "bin" / name);  // never seen half written
}

std::vector<std::string> Workplace::compilerCalls() const {
    std::istringstream text(readFileText(root / "bin" / "calls"));
    std::vector<std::string> calls;
    for (std::string call; std::getline(text, call);) calls.push_back(call);
    return calls;
}

std::vector<std::string> Workplace::environment() const {
    return {"TMPDIR=" + (root / "tmp").u8string(),
            "PATH=" + (root / "bin").u8string() + ":" + std::getenv("PATH")};
}

// By a name without a path, which could hold a blank.
std::vector<std::string> Workplace::withQuickTitle(std::vector<std::string> environment) const {
    environment.push_back("LD_LIBRARY_PATH=" + root.u8string());
    environment.push_back(std::string("LD_PRELOAD=") + kQuickTitle);
    return environment;
}

ProcessResult Workplace::compile(const std::vector<std::string>& arguments,
                                 ProcessOptions options) const {
    std::vector<std::string> command = {compiler.u8string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    std::vector<std::string> settings = withQuickTitle(environment());
    settings.insert(settings.end(), options.environment.begin(), options.environment.end());
    options.environment = settings;
    options.directory = work.u8string();
    return runCommand(command, options);
}
