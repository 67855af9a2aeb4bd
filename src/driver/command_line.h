// What the user asked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct RunState {
    std::string sourcePath;
    bool webMode = false;
    bool watchMode = false;
};

/// Reads the arguments (without the command's own name), first to last, into `run`, and finds the
/// source: a path ending in `.பொழில்`, or the default file of the current directory.
/// Returns the status to end with if there is nothing to compile.
std::optional<int> readCommandLine(const std::vector<std::string>& arguments, RunState& run);
