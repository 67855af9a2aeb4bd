#include "companion/format/written_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "files.h"

namespace companion {

namespace {

namespace fs = std::filesystem;

/// A new file beside another, gone at the end unless it took the other's place.
class FreshFile {
public:
    explicit FreshFile(const fs::path& neighbour)
        : name((neighbour.parent_path() / ".pozhil-XXXXXX").string()), file(mkstemp(name.data())) {}
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;
    ~FreshFile() {
        if (file >= 0) close(file);
        if (wasMade && !hasMoved) unlink(name.c_str());
    }

    bool write(const std::string& text) {
        std::size_t done = 0;
        while (file >= 0 && done < text.size()) {
            const ssize_t count = ::write(file, text.data() + done, text.size() - done);
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) return false;
            done += static_cast<std::size_t>(count);
        }
        return file >= 0;
    }

    /// Gives it owner and mode of the other file; the owner only if that is allowed.
    bool takeModeOf(const struct stat& other) {
        const int ignored = fchown(file, other.st_uid, other.st_gid);
        (void)ignored;
        return fchmod(file, other.st_mode & 07777U) == 0;
    }

    /// All of it is on the disk before it takes the other's place.
    bool moveTo(const fs::path& target) {
        if (fsync(file) != 0 || close(std::exchange(file, -1)) != 0) return false;
        hasMoved = rename(name.c_str(), target.c_str()) == 0;
        return hasMoved;
    }

private:
    std::string name;
    int file;
    bool wasMade = file >= 0;
    bool hasMoved = false;
};

}  // namespace

Written replaceFile(const std::string& path, const std::string& former, const std::string& text) {
    std::error_code failed;
    const fs::path target = fs::canonical(fs::u8path(path), failed);
    struct stat state {};
    if (failed || stat(target.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return Written::No;
    if (access(target.c_str(), W_OK) != 0) return Written::No;

    FreshFile fresh(target);
    if (!fresh.write(text) || !fresh.takeModeOf(state)) return Written::No;
    std::string present;
    if (!readFile(target.u8string(), present) || present != former) return Written::IsChanged;
    return fresh.moveTo(target) ? Written::Yes : Written::No;
}

}  // namespace companion
