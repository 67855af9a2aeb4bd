// Where an import's module is looked for.
#pragma once

#include <string>
#include <vector>

/// The files that an import of `path` means, in the order in which they are tried.
std::vector<std::string> moduleFilesOf(const std::string& path);
