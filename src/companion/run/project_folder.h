// Where the programs of one project are built and kept: a folder of the user's own.
#pragma once

#include <optional>
#include <string>

namespace companion {

/// What lies in it is run, so nobody else may write into it. The programs of one directory share
/// one, which stays from run to run: in XDG_CACHE_HOME, in ~/.cache, or, where nothing may be
/// written there, in the temporary directory. Where even that isn't safe it is a passing one,
/// removed at its end.
class ProjectFolder {
public:
    /// That of the programs in `directory`. Nothing if no folder can be made anywhere.
    static std::optional<ProjectFolder> of(const std::string& directory);

    ~ProjectFolder();
    ProjectFolder(ProjectFolder&& other) noexcept;
    ProjectFolder(const ProjectFolder&) = delete;
    ProjectFolder& operator=(const ProjectFolder&) = delete;

    const std::string& path() const { return place; }
    bool isPassing() const { return passing; }
    /// Ends a passing folder now; any other stays.
    void remove();

private:
    ProjectFolder(std::string place, bool passing) : place(std::move(place)), passing(passing) {}

    std::string place;
    bool passing;
};

}  // namespace companion
