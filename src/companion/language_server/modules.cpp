#include "companion/language_server/modules.h"

#include <cstdint>
#include <filesystem>

#include "companion/language_server/uris.h"
#include "files.h"

namespace companion::language_server {

namespace {

std::string startFolder() {
    std::error_code problem;
    return std::filesystem::current_path(problem).u8string();
}

/// A pipe would be waited for, and nobody writes a module of such a size.
bool isOrdinaryFile(const std::string& path) {
    constexpr std::uintmax_t kLargest = std::uintmax_t{64} * 1024 * 1024;
    std::error_code problem;
    const std::filesystem::path file = std::filesystem::u8path(path);
    return std::filesystem::is_regular_file(file, problem) &&
           std::filesystem::file_size(file, problem) <= kLargest && !problem;
}

}  // namespace

ModuleReader Modules::readerFor(const std::string& path, std::set<std::string>* asked,
                                std::vector<FoundModule>* found) const {
    std::vector<std::string> places;
    if (!path.empty()) places.push_back(folderOf(path));
    places.insert(places.end(), folders.begin(), folders.end());
    places.push_back(startFolder());
    return [this, places, asked, found](const std::string& name, std::string& text) {
        const bool isAbsolute = !name.empty() && name.front() == '/';
        for (const std::string& place : places) {
            const std::string candidate = tidyPath(name, place);
            if (asked != nullptr) asked->insert(candidate);
            if (read(candidate, text)) {
                if (found != nullptr) found->push_back({candidate, text, isAbsolute});
                return true;
            }
            if (isAbsolute) break;
        }
        return false;
    };
}

bool Modules::read(const std::string& path, std::string& text) const {
    if (const Document* open = documents.findByPath(path)) {
        text = *open->text();
        return true;
    }
    return isOrdinaryFile(path) && readFile(path, text);
}

}  // namespace companion::language_server
