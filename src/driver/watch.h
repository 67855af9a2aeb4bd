// Watching the source and building again when it changes.
#pragma once

#include <string>

#include "driver/native_build.h"

/// Polls the source's modification time every 500 milliseconds and, when it differs, translates,
/// builds and runs the program. Nothing is built before the first change. Ends only with the
/// process; throws std::filesystem::filesystem_error if the source vanishes.
[[noreturn]] void watchConsoleProgram(const std::string& sourcePath, const NativeBuild& build);
