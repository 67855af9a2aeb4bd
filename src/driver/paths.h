// Paths, and how they stand in commands.
#pragma once

#include <string>

#include "files.h"  // the driver has them from here

/// Directory of the running compiler, without a trailing separator.
std::string getAppDirectory();

/// Returns its argument. A seam: every path that goes into a compiler command passes through it.
std::string getSafeMinGWPath(const std::string& path);

/// Does nothing on Linux. A seam for platforms that must be told where em++ lives.
void injectEmscriptenEnvironment(const std::string& appDirectory);

/// `text` in double quotes, as one word of a command, whatever it holds.
std::string inQuotes(const std::string& text);

/// `text` as one word of a command: as it stands if bash reads it so, else in quotes.
std::string asOneWord(const std::string& text);
