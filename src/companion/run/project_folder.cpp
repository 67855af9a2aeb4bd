#include "companion/run/project_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "companion/run/digest.h"
#include "files.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

/// The file that tells whose folder it is.
constexpr const char* kOwnerNote = "திட்டம்";

bool isOwn(const struct stat& entry) { return entry.st_uid == geteuid(); }

/// True if nobody else can take away or replace what is ours in `directory`.
bool keepsOurs(const fs::path& directory) {
    struct stat entry = {};
    if (stat(directory.c_str(), &entry) != 0) return false;
    const bool othersWrite = (entry.st_mode & S_IWOTH) != 0;
    const bool isSticky = (entry.st_mode & S_ISVTX) != 0;
    return (entry.st_uid == 0 || isOwn(entry)) && (isSticky || !othersWrite);
}

/// Makes `directory`, or takes it over if only we have written into it. A link is nobody's promise.
bool makeOwn(const fs::path& directory) {
    if (mkdir(directory.c_str(), S_IRWXU) == 0) return true;
    struct stat entry = {};
    if (lstat(directory.c_str(), &entry) != 0 || !S_ISDIR(entry.st_mode) || !isOwn(entry) ||
        (entry.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        return false;
    }
    return chmod(directory.c_str(), S_IRWXU) == 0 && access(directory.c_str(), W_OK) == 0;
}

std::string settingOf(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

fs::path temporaryDirectory() {
    std::error_code problem;
    const fs::path directory = fs::temp_directory_path(problem);
    return problem ? fs::path("/tmp") : directory;
}

/// The directories in which all projects' folders may lie, the better first.
std::vector<fs::path> placesOfProjects() {
    std::vector<fs::path> places;
    const fs::path wanted = fs::u8path(settingOf("XDG_CACHE_HOME"));
    const fs::path home = fs::u8path(settingOf("HOME"));
    if (wanted.is_absolute()) {
        places.push_back(wanted / "pozhil");
    } else if (home.is_absolute()) {
        places.push_back(home / ".cache" / "pozhil");
    }
    places.push_back(temporaryDirectory() / ("pozhil-" + std::to_string(geteuid())));
    return places;
}

bool prepare(const fs::path& place) {
    std::error_code ignored;
    fs::create_directories(place.parent_path(), ignored);
    return keepsOurs(place.parent_path()) && makeOwn(place) && makeOwn(place / "projects");
}

/// Folders of projects that stand no more where they stood: moved ones get new folders.
void removeForsaken(const fs::path& projects) {
    std::error_code problem;
    for (const fs::directory_entry& entry : fs::directory_iterator(projects, problem)) {
        std::string owner;
        if (!readFile((entry.path() / fs::u8path(kOwnerNote)).u8string(), owner)) continue;
        if (fs::exists(fs::u8path(owner), problem) || problem) continue;
        fs::remove_all(entry.path(), problem);
    }
}

bool prepareFolder(const fs::path& folder, const std::string& directory) {
    const bool isNew = !fileExists(folder.u8string());
    if (!makeOwn(folder)) return false;
    if (!isNew) return true;
    removeForsaken(folder.parent_path());
    std::ofstream note(folder / fs::u8path(kOwnerNote));
    return static_cast<bool>(note << directory << std::flush);
}

}  // namespace

std::optional<ProjectFolder> ProjectFolder::of(const std::string& directory) {
    std::error_code problem;
    const std::string project = fs::weakly_canonical(fs::u8path(directory), problem).u8string();
    const std::string name = Digest().add(problem ? directory : project).text();
    for (const fs::path& place : placesOfProjects()) {
        const fs::path folder = place / "projects" / name;
        if (prepare(place) && prepareFolder(folder, project)) {
            return ProjectFolder(folder.u8string(), false);
        }
    }
    std::string pattern = (temporaryDirectory() / "pozhil-XXXXXX").u8string();
    if (mkdtemp(pattern.data()) == nullptr) return std::nullopt;
    return ProjectFolder(pattern, true);
}

ProjectFolder::ProjectFolder(ProjectFolder&& other) noexcept
    : place(std::move(other.place)), passing(other.passing) {
    other.passing = false;
}

ProjectFolder::~ProjectFolder() { remove(); }

void ProjectFolder::remove() {
    if (!passing) return;
    std::error_code ignored;
    fs::remove_all(fs::u8path(place), ignored);
    passing = false;
}

}  // namespace companion
