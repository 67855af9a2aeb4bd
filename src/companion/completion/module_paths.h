// What an import can name: the modules in a folder.
#pragma once

#include <string>
#include <vector>

namespace companion::completion {

/// The modules in `folder` and the folders in it, as imports name them from there, in order.
std::vector<std::string> modulePathsIn(const std::string& folder);

/// The folder of the modules that come with the compiler.
std::string moduleLibraryFolder();

}  // namespace companion::completion
