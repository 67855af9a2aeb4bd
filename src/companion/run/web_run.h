// Web applications: the compiler's own web road, with what it needs.
#pragma once

#include <string>

#include "companion/check/compiled_source.h"

namespace companion {

/// True if an application stands in the source `path` or in what it imports, from here or from
/// beside it.
bool isApplication(const std::string& path, const std::string& text);

/// Goes to the folder in which an application is built: its own, unless only where we stand are its
/// assets or modules, or nothing may be written there. Returns the source's path from there.
std::string enterApplicationFolder(const std::string& path, const std::string& text);

/// True if the script that prepares web applications stands beside the compiler: it tells of the
/// warnings itself.
bool isRunByScript();

/// Puts the compiler, or the script, in the place of this process, started for the application
/// `path` with `setting` in its environment. Returns a status if something is missing, which it
/// tells.
int startApplication(const std::string& path, const std::string& setting);

}  // namespace companion
