// new [--web] NAME: a folder with a program to begin with.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>

#include "companion/commands.h"
#include "companion/new/project_texts.h"
#include "companion/refusal.h"
#include "driver/cache.h"
#include "driver/paths.h"
#include "lexer/lexer.h"
#include "parser/parser.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

constexpr int kNewMisused = 2;

struct NewRequest {
    std::string path;
    bool isForWeb = false;
};

std::optional<NewRequest> readNewRequest(const Arguments& arguments) {
    NewRequest request;
    for (const std::string& argument : arguments) {
        if (argument == "--web" || argument == "--வலை") {
            request.isForWeb = true;
        } else if (argument.rfind('-', 0) == 0) {
            std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை. பெயர் '-' குறியில் தொடங்கக் கூடாது.\n";
            return std::nullopt;
        } else if (!request.path.empty()) {
            std::cerr << "ஒரு பெயரே தர வேண்டும். பெயரில் இடைவெளி இருந்தால் மேற்கோளுக்குள் எழுது: \""
                      << request.path << " " << argument << "\"\n";
            return std::nullopt;
        } else {
            request.path = argument;
        }
    }
    if (!request.path.empty()) return request;
    std::cerr << "புதிய நிரலுக்கு என்ன பெயர்? பயன்பாடு: பொழில்-துணை புதிது பெயர்\n";
    return std::nullopt;
}

/// What is wrong with a project's name; null if nothing is.
const char* problemOfName(const std::string& name) {
    if (name.empty() || name == "." || name == "..") return "இது ஒரு பெயர் அல்ல";
    if (name.front() == ' ' || name.back() == ' ') return "பெயரின் ஓரத்தில் இடைவெளி இருக்கக் கூடாது";
    if (name.front() == '.') return "புள்ளியில் தொடங்கும் பெயர் மறைந்திருக்கும்";
    const auto isControl = [](char byte) {
        return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
    };
    if (std::any_of(name.begin(), name.end(), isControl))
        return "பெயரில் கண்ணுக்குத் தெரியாத குறி உள்ளது";
    if (name.find_first_of("\\\"`$*?<>|:") != std::string::npos) {
        return "பெயரில் \\ \" ` $ * ? < > | : ஆகிய குறிகள் வரக்கூடாது";
    }
    if (name.size() > 200) return "பெயர் மிக நீளமானது";
    return nullptr;
}

/// The last part of a path, whether or not a slash stands behind it.
std::string nameOfProject(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return fs::u8path(path).filename().u8string();
}

/// True if a project can stand in `folder`: nothing stands there, or an empty folder.
bool isFree(const fs::path& folder) {
    std::error_code problem;
    if (!fs::exists(fs::symlink_status(folder, problem))) return true;
    return fs::is_directory(folder, problem) && fs::is_empty(folder, problem) && !problem;
}

/// True if an import of the library's modules is found from everywhere.
bool isLibraryFound() {
    // With a slash in front it isn't looked for where we stand.
    const std::string text = "நூஇறக்கி \"/தொகுப்புகள்/எண்/எண்\"\n";
    try {
        Parser(Lexer(text, "").tokenize(), text, "").parse();
        return true;
    } catch (const CompilerRefusal&) {
        return false;
    } catch (const std::exception&) {
        return false;
    }
}

std::string withName(std::string_view text, const std::string& name) {
    std::string filled(text);
    const std::size_t mark = filled.find("$0");
    if (mark != std::string::npos) filled.replace(mark, 2, name);
    return filled;
}

template <std::size_t count>
bool writeFiles(const fs::path& folder, const std::string& name,
                const ProjectFile (&files)[count]) {
    for (const ProjectFile& file : files) {
        const fs::path path = folder / fs::u8path(file.path);
        std::error_code problem;
        fs::create_directories(path.parent_path(), problem);
        if (!writeWhole(path.u8string(), withName(file.text, name))) return false;
    }
    return true;
}

bool writeProject(const fs::path& folder, const std::string& name, bool isForWeb) {
    if (!writeFiles(folder, name, kCommonFiles)) return false;
    if (isForWeb) return writeFiles(folder, name, kWebFiles);
    return isLibraryFound() ? writeFiles(folder, name, kLibraryFiles)
                            : writeFiles(folder, name, kConsoleFiles);
}

void tellNextSteps(const std::string& path) {
    std::cout << "✅ '" << path << "' உருவாக்கப்பட்டது. அடுத்து:\n\n  cd " << asOneWord(path)
              << "\n  பொழில்-துணை இயக்கு முதன்மை.பொழில்\n";
}

}  // namespace

int runNew(const Arguments& arguments) {
    const auto request = readNewRequest(arguments);
    if (!request) return kNewMisused;
    const std::string name = nameOfProject(request->path);
    if (const char* problem = problemOfName(name)) {
        std::cerr << "'" << name << "': " << problem << ". வேறு பெயர் கொடு.\n";
        return kNewMisused;
    }
    const fs::path folder = fs::u8path(request->path);
    if (!isFree(folder)) {
        std::cerr << "'" << request->path
                  << "' ஏற்கெனவே உள்ளது, அதில் கோப்புகள் உள்ளன. வேறு பெயர் கொடு.\n";
        return 1;
    }
    std::error_code problem;
    fs::create_directories(folder, problem);
    if (problem) {
        std::cerr << "'" << request->path
                  << "' கோப்புறையை உருவாக்க முடியவில்லை. இங்கே எழுத உனக்கு உரிமை உள்ளதா எனப் பார்.\n";
        return 1;
    }
    if (!writeProject(folder, name, request->isForWeb)) return 1;
    tellNextSteps(request->path);
    return 0;
}

}  // namespace companion
