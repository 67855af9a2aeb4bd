// A command whose standard error is read along while it goes on to the user.
#pragma once

#include <string>
#include <vector>

namespace companion {

struct WatchedEnd {
    int status = -1;  ///< As waitpid gives it; -1 if the command couldn't be started.
    /// What went to standard error. Of very much the begin and the end.
    std::string words;
    bool wasInterrupted = false;  ///< Ctrl+C came meanwhile.
};

/// Runs `command`, whose first word is the path of a program, to its end. Standard input, standard
/// output and Ctrl+C are the command's. Standard error reaches the user as it comes, unchanged, and
/// is a terminal for the command where it is one here. `settings` are NAME=value, in the place of
/// what the environment holds under these names.
WatchedEnd runWatched(const std::vector<std::string>& command,
                      const std::vector<std::string>& settings);

/// Ends this process as Ctrl+C ends one that doesn't mind it.
[[noreturn]] void endByInterrupt();

/// This process's environment with `settings` in it, as exec takes it. Borrows from both.
std::vector<char*> environmentWithSettings(const std::vector<std::string>& settings);

/// The words as exec takes them. Borrows from `words`.
std::vector<char*> argumentsOf(const std::vector<std::string>& words);

}  // namespace companion
