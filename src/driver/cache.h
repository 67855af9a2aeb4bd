// The compiler's cache directory.
#pragma once

#include <optional>
#include <string>

/// The compiler's cache in the system's temporary directory, made if it isn't there. What lies in
/// it is run: so nothing, behind a line on standard error, if others could put something there.
/// Throws std::filesystem::filesystem_error if it can't be made.
std::optional<std::string> prepareCacheDirectory();
