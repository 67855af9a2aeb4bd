// Reads what stands around the reference: the guide's chapters with their programs, the pictures.
#include <algorithm>
#include <filesystem>

#include "companion/reference/reference.h"
#include "files.h"

namespace companion::reference {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNumberDigits = 2;
const std::string kFenceMarks = "```";

std::vector<fs::path> filesIn(const fs::path& folder, const char* extension) {
    std::vector<fs::path> files;
    if (!fs::is_directory(folder)) return files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == fs::u8path(extension)) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string textOf(const fs::path& path) {
    std::string text;
    readFile(path.u8string(), text);
    return text;
}

std::string titleIn(const std::string& page) {
    const std::size_t begin = page.find("# ");
    if (begin == std::string::npos) return "";
    return page.substr(begin + 2, page.find('\n', begin) - begin - 2);
}

/// What a line of prose holds between backticks, each in a line.
std::string spansIn(const std::string& line) {
    std::string spans;
    std::size_t open = line.find('`');
    while (open != std::string::npos) {
        const std::size_t close = line.find('`', open + 1);
        if (close == std::string::npos) break;
        spans += line.substr(open + 1, close - open - 1) + "\n";
        open = line.find('`', close + 1);
    }
    return spans;
}

/// Spans, and fences that show programs: what a report or an output says is no use of a word.
std::string codeIn(const std::string& page) {
    std::string code;
    bool isInside = false;
    bool isProgram = false;
    for (std::size_t at = 0; at < page.size();) {
        const std::size_t end = std::min(page.find('\n', at), page.size());
        const std::string line = page.substr(at, end - at);
        at = end + 1;
        if (line.rfind(kFenceMarks, 0) == 0) {
            isInside = !isInside;
            isProgram = isInside && line.rfind(kFenceMarks + "பொழில்", 0) == 0;
        } else if (isProgram) {
            code += line + "\n";
        } else if (!isInside) {
            code += spansIn(line);
        }
    }
    return code;
}

bool isChapter(const fs::path& page) {
    const std::string name = page.filename().u8string();
    return name.size() > kNumberDigits && name[kNumberDigits] == '_' &&
           name.find_first_not_of("0123456789") == kNumberDigits;
}

Chapter readChapter(const fs::path& page, const fs::path& programs) {
    const std::string file = page.filename().u8string();
    const std::string text = textOf(page);
    std::string code = codeIn(text);
    const fs::path own = programs / fs::u8path(file.substr(0, kNumberDigits));
    for (const fs::path& program : filesIn(own, ".பொழில்")) code += textOf(program) + "\n";
    return {file, titleIn(text), code, text};
}

}  // namespace

Surroundings readSurroundings(const std::string& root) {
    const fs::path docs = fs::u8path(root) / "docs";
    Surroundings around;
    for (const fs::path& page : filesIn(docs / fs::u8path("வழிகாட்டி"), ".md")) {
        if (!isChapter(page)) continue;
        around.chapters.push_back(readChapter(page, docs / fs::u8path("நிரல்கள்")));
    }
    for (const fs::path& picture : filesIn(docs / fs::u8path("படங்கள்"), ".png")) {
        around.pictures.insert(picture.stem().u8string());
    }
    return around;
}

}  // namespace companion::reference
