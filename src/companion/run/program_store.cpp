#include "companion/run/program_store.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "companion/run/digest.h"
#include "files.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

/// A program has some three million bytes: the last used of a project are kept.
constexpr std::size_t kKeptPrograms = 8;

/// What a build reads beside source and modules, and what makes its text.
const char* const kTools[] = {
    "பொழில்",
    "பொழில்-துணை",
    "உள்ளடக்கம்/error_codes.h",
    "உள்ளடக்கம்/error_handler.h",
    "உள்ளடக்கம்/nanovg/iostream.gch",
    "திரட்டு/error_handler_native_linux.o",
};

/// Size and time of a file tell that it was changed.
std::string identityOf(const std::string& path) {
    struct stat entry = {};
    if (stat(path.c_str(), &entry) != 0) return "";
    return std::to_string(entry.st_size) + " " + std::to_string(entry.st_mtim.tv_sec) + " " +
           std::to_string(entry.st_mtim.tv_nsec);
}

bool isExecutable(const std::string& path) { return access(path.c_str(), X_OK) == 0; }

std::optional<std::string> readModuleText(const std::string& path) {
    std::string text;
    if (!readFile(path, text)) return std::nullopt;
    return text;
}

}  // namespace

bool NotingReader::operator()(const std::string& path, std::string& text) {
    auto known = std::find_if(asked.begin(), asked.end(),
                              [&](const AskedModule& module) { return module.path == path; });
    if (known == asked.end()) known = asked.insert(asked.end(), {path, readModuleText(path)});
    if (known->text) text = *known->text;
    return known->text.has_value();
}

ProgramStore::ProgramStore(std::string folder, const std::string& appDirectory, std::string source)
    : folder(std::move(folder)), source(std::move(source)) {
    std::error_code ignored;
    const std::string place = fs::absolute(fs::u8path(this->source), ignored).u8string();
    id = Digest().add(place).add(this->source).text().substr(0, 16);
    for (const char* tool : kTools) tools += identityOf(appDirectory + "/" + tool) + "\n";
}

std::optional<std::string> ProgramStore::find(const std::string& sourceText) const {
    std::string list;
    if (!readFile(modulesFile(), list)) return std::nullopt;
    std::vector<AskedModule> modules;
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        modules.push_back({line, readModuleText(line)});
    }
    std::string program = folder + "/" + nameOf(sourceText, modules);
    if (!isExecutable(program)) return std::nullopt;
    std::error_code ignored;
    fs::last_write_time(fs::u8path(program), fs::file_time_type::clock::now(), ignored);
    return program;
}

std::string ProgramStore::keep(const std::string& built, const std::string& sourceText,
                               const std::vector<AskedModule>& modules) const {
    std::string list;
    for (const AskedModule& module : modules) {
        if (module.path.find('\n') != std::string::npos) return built;
        list += module.path + "\n";
    }
    const std::string name = nameOf(sourceText, modules);
    std::string program = folder + "/" + name;
    const std::string fresh = built + ".modules";
    std::ofstream stream(fs::u8path(fresh));
    if (!(stream << list << std::flush)) return built;
    if (rename(built.c_str(), program.c_str()) != 0) return built;
    if (rename(fresh.c_str(), modulesFile().c_str()) == 0) forgetOthers(name);
    return program;
}

std::string ProgramStore::nameOf(const std::string& sourceText,
                                 const std::vector<AskedModule>& modules) const {
    Digest digest;
    digest.add(tools).add(source).add(sourceText);
    for (const AskedModule& module : modules) {
        digest.add(module.path).add(module.text ? "+" : "-").add(module.text.value_or(""));
    }
    return "நிரல்-" + id + "-" + digest.text();
}

std::string ProgramStore::modulesFile() const { return folder + "/நூல்கள்-" + id; }

/// What this source was before, and the programs that were used longest ago. Who is about to start
/// one of them finds it gone and builds it again.
void ProgramStore::forgetOthers(const std::string& current) const {
    struct Kept {
        fs::file_time_type used;
        fs::path path;
    };
    std::vector<Kept> others;
    std::error_code problem;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::u8path(folder), problem)) {
        const std::string name = entry.path().filename().u8string();
        if (name == current || name.rfind("நிரல்-", 0) != 0) continue;
        if (name.find(id) != std::string::npos) {
            fs::remove(entry.path(), problem);
        } else {
            others.push_back({entry.last_write_time(problem), entry.path()});
        }
    }
    std::sort(others.begin(), others.end(),
              [](const Kept& a, const Kept& b) { return a.used > b.used; });
    for (std::size_t i = kKeptPrograms - 1; i < others.size(); i++) {
        fs::remove(others[i].path, problem);
    }
}

}  // namespace companion
