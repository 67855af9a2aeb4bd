// Watching the source and building again when it changes. Both loops poll its modification time
// every 500 milliseconds and end only with the process; they throw
// std::filesystem::filesystem_error if the source vanishes.
#pragma once

#include <string>

#include "driver/native_build.h"
#include "driver/web_build.h"

/// On each change translates, builds and runs the program. Nothing is built before the first.
[[noreturn]] void watchConsoleProgram(const std::string& sourcePath, const NativeBuild& build);

/// On each change translates and builds the application.
[[noreturn]] void watchWebApplication(const std::string& sourcePath, const WebBuild& build);
