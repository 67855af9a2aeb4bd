// Built programs, found again by all that they were built from.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/check/compiled_source.h"

namespace companion {

/// What an import asked for, and what it got.
struct AskedModule {
    std::string path;
    std::optional<std::string> text;  ///< Nothing if there is no such file.
};

/// Reads modules and notes which were asked for. Whoever asks again gets what was there before.
class NotingReader {
public:
    bool operator()(const std::string& path, std::string& text);

    std::vector<AskedModule> asked;
};

/// The programs of one project, in its folder. Any number of runs may use it at once: a program
/// appears whole or not at all, under a name that says what it was built from.
class ProgramStore {
public:
    /// `appDirectory` is the compiler's with its companions; `source` is the path as the user gave
    /// it, since a program carries it.
    ProgramStore(std::string folder, const std::string& appDirectory, std::string source);

    /// The program of `sourceText` as it stands, with all that it was built from as it stands now.
    std::optional<std::string> find(const std::string& sourceText) const;

    /// Takes the executable `built`, by a rename, as the program of `sourceText` with `modules`,
    /// and forgets what it replaces. Returns where it lies then; where it lay, if it can't be kept.
    std::string keep(const std::string& built, const std::string& sourceText,
                     const std::vector<AskedModule>& modules) const;

private:
    std::string nameOf(const std::string& sourceText,
                       const std::vector<AskedModule>& modules) const;
    std::string modulesFile() const;
    void forgetOthers(const std::string& current) const;

    std::string folder;
    std::string source;
    std::string id;     ///< Tells the project's programs apart.
    std::string tools;  ///< What builds them, as it was when this was made.
};

}  // namespace companion
