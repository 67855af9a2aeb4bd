#include "companion/publish/fonts.h"

#include <cstdlib>

#include "files.h"

namespace companion {

namespace {

struct PageFontRow {
    int weight;
    const char* name;
};
constexpr PageFontRow kPageFonts[] = {
    {400, "NotoSansTamil-Regular.ttf"},
    {700, "NotoSansTamil-Bold.ttf"},
};

/// Where systems and their users put fonts.
constexpr const char* kSystemFolders[] = {
    "/usr/share/fonts/truetype/noto", "/usr/share/fonts/noto",  "/usr/share/fonts/google-noto",
    "/usr/share/fonts/opentype/noto", "/usr/local/share/fonts",
};
constexpr const char* kUserFolders[] = {"/.local/share/fonts", "/.fonts"};

/// A font of the program: its file, and the file of the system that is the same.
struct ProgramFontRow {
    const char* name;
    const char* likeness;
};
constexpr ProgramFontRow kProgramFonts[] = {
    {"Coiny-Regular.ttf", nullptr},
    {"Tamil-Regular.ttf", "NotoSansTamil-Regular.ttf"},
};

/// The path of `name` in the first folder that has it; empty if none has.
std::string find(const char* name, const std::vector<std::string>& folders) {
    if (name == nullptr) return "";
    for (const std::string& folder : folders) {
        std::string path = folder + "/" + name;
        if (fileExists(path)) return path;
    }
    return "";
}

}  // namespace

std::vector<std::string> fontFolders() {
    std::vector<std::string> folders(std::begin(kSystemFolders), std::end(kSystemFolders));
    const char* home = std::getenv("HOME");
    for (const char* folder : kUserFolders) {
        if (home != nullptr) folders.push_back(std::string(home) + folder);
    }
    return folders;
}

std::vector<PageFont> findPageFonts(const std::vector<std::string>& folders) {
    std::vector<PageFont> fonts;
    for (const PageFontRow& row : kPageFonts) {
        PageFont font{row.weight, row.name, ""};
        if (!readFile(find(row.name, folders), font.content)) return {};
        fonts.push_back(std::move(font));
    }
    return fonts;
}

std::vector<ProgramFont> lackingProgramFonts(const std::vector<std::string>& stores) {
    std::vector<ProgramFont> lacking;
    for (const ProgramFontRow& row : kProgramFonts) {
        const std::string name = std::string("assets/font/") + row.name;
        if (fileExists(name)) continue;
        const std::string path = find(row.name, stores);
        lacking.push_back({name, path.empty() ? find(row.likeness, stores) : path});
    }
    return lacking;
}

}  // namespace companion
