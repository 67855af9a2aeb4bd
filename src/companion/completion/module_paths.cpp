#include "companion/completion/module_paths.h"

#include <algorithm>
#include <filesystem>

#include "files.h"
#include "parser/module_files.h"

namespace companion::completion {

namespace {

namespace fs = std::filesystem;

constexpr int kDeepest = 3;  ///< Folders within folders that are looked into.
constexpr std::size_t kMostFiles =
    2000;  ///< Files that are looked at: a folder may be a whole disk.
constexpr const char* kEnding = ".பொழில்";
constexpr const char* kLatinEnding = ".pozhil";

bool isHidden(const fs::path& path) { return path.filename().u8string().front() == '.'; }

/// An ending of Tamil letters is added by the import itself.
std::string importedAs(std::string path) {
    if (hasEnding(path, kEnding)) path.resize(path.size() - std::string(kEnding).size());
    return path;
}

}  // namespace

std::vector<std::string> modulePathsIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code problem;
    const fs::path root = fs::u8path(folder);
    fs::recursive_directory_iterator file(root, fs::directory_options::skip_permission_denied,
                                          problem);
    for (std::size_t count = 0; !problem && file != fs::end(file) && count < kMostFiles; count++) {
        const std::string name = file->path().u8string();
        if (isHidden(file->path()) || file.depth() >= kDeepest) file.disable_recursion_pending();
        const bool isModule = hasEnding(name, kEnding) || hasEnding(name, kLatinEnding);
        std::error_code unknown;
        if (isModule && !isHidden(file->path()) && file->is_regular_file(unknown)) {
            paths.push_back(importedAs(file->path().lexically_relative(root).generic_u8string()));
        }
        file.increment(problem);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string moduleLibraryFolder() {
    const std::string file = moduleFilesOf("").back();
    return file.substr(0, file.rfind('/') + 1);
}

}  // namespace companion::completion
