// Running code and commands in a process of their own.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct ProcessResult {
    std::string out;
    std::string err;
    int exitCode = -1;  ///< -1 if a signal ended the process.
    int signal = 0;
    bool timedOut = false;
};

struct ProcessOptions {
    std::string directory;                 ///< Working directory; the caller's if empty.
    std::vector<std::string> environment;  ///< NAME=value, added to the caller's.
    std::string input;                     ///< Standard input.
    double timeoutSeconds = 60;
};

/// Runs `arguments[0]` (found by PATH) with its arguments, to its end.
ProcessResult runCommand(const std::vector<std::string>& arguments, const ProcessOptions& = {});

/// Forks and runs `body`; the child's status is what `body` returns, or what it exits with.
ProcessResult runForked(const std::function<int()>& body, const ProcessOptions& = {});
