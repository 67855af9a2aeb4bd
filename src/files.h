// Files by their names, for every room that reads one. Names are Tamil, so paths are built with
// u8path.
#pragma once

#include <string>

/// True if `text` ends in `ending`, byte by byte.
bool hasEnding(const std::string& text, const std::string& ending);

/// Directory of the running executable, links followed, without a trailing separator.
std::string executableDirectory();

bool fileExists(const std::string& name);

/// The whole file `path` into `text`. False if it can't be opened for reading; a directory can't.
bool readFile(const std::string& path, std::string& text);
