// Paths and commands of the outside world. Names are Tamil, so paths are built with u8path.
#pragma once

#include <string>

/// Directory of the running compiler, without a trailing separator.
std::string getAppDirectory();

/// Returns its argument. A seam: every path that goes into a compiler command passes through it.
std::string getSafeMinGWPath(const std::string& path);

/// Does nothing on Linux. A seam for platforms that must be told where em++ lives.
void injectEmscriptenEnvironment(const std::string& appDirectory);

/// The compiler's cache in the system's temporary directory. Made if it isn't there; throws
/// std::filesystem::filesystem_error if it can't be.
std::string prepareCacheDirectory();

/// Runs `command` in a shell and waits. Returns the raw status of system(). What was printed
/// before is flushed first, so that it stands before what the command prints.
int run_command(const std::string& command);

/// True if `text` ends in `ending`, byte by byte.
bool hasEnding(const std::string& text, const std::string& ending);

bool fileExists(const std::string& name);

/// The whole file `path` into `text`. False if it can't be opened for reading; a directory can't.
bool readFile(const std::string& path, std::string& text);
