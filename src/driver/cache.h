// The compiler's cache: its directory, the lock on what lies in it, and writing that notices a full
// disk.
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The cache's name in the temporary directory.
constexpr const char* kCacheName = "Pozhil_Cache";

/// The compiler's cache in the system's temporary directory, made if it isn't there. What lies in
/// it is run: so nothing, behind a line on standard error, if others could put something there.
/// Throws std::filesystem::filesystem_error if it can't be made.
std::optional<std::string> prepareCacheDirectory();

/// The names in the cache are fixed, so runs at the same time take turns: from the writing of a
/// text until what came of it is done with. The kernel ends the turn of a process that ends. Where
/// no lock can be had there are no turns.
class CacheTurn {
public:
    /// Waits for the turn, and says so on standard error if that takes a while. `lockName` is a
    /// file in the cache.
    CacheTurn(const std::string& cacheDirectory, const char* lockName);
    ~CacheTurn();
    CacheTurn(const CacheTurn&) = delete;
    CacheTurn& operator=(const CacheTurn&) = delete;

    void end();

private:
    int file;
};

/// Makes `text` the whole of the file `path`. False, behind a line on standard error, if the file
/// can't be made or doesn't take all of it.
bool writeWhole(const std::string& path, const std::string& text);

/// Behind a build that failed: tells on standard error of the first of `directories` that hasn't
/// the room that a build takes. A full disk isn't the program's fault.
void tellOfFullDisk(const std::vector<std::string>& directories);
