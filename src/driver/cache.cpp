#include "driver/cache.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "driver/paths.h"

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kTurnPoll = std::chrono::milliseconds(20);
constexpr auto kSilentWait = std::chrono::seconds(1);

/// More than g++ leaves on the disk at its largest for a program of usual size.
constexpr off_t kRoomOfABuild = off_t{16} * 1024 * 1024;

bool isMine(const struct stat& entry) { return entry.st_uid == geteuid(); }
bool othersWrite(const struct stat& entry) { return (entry.st_mode & S_IWOTH) != 0; }

/// True if nobody else can take away or replace what is ours in the temporary directory.
bool keepsWhatIsOurs(const fs::path& temporary) {
    struct stat entry = {};
    if (stat(temporary.c_str(), &entry) != 0) return true;  // there is nothing to be run
    const bool sticky = (entry.st_mode & S_ISVTX) != 0;
    return (entry.st_uid == 0 || isMine(entry)) && (sticky || !othersWrite(entry));
}

/// True if only we write into the cache. A link is nobody's promise of anything.
bool isOurs(const fs::path& cache) {
    struct stat entry = {};
    return lstat(cache.c_str(), &entry) == 0 && S_ISDIR(entry.st_mode) && isMine(entry) &&
           !othersWrite(entry);
}

std::nullopt_t refuse(const fs::path& directory) {
    std::cerr << "பிழை: '" << directory.u8string()
              << "' என்ற தற்காலிகக் கோப்புறை பிறருடையது, அல்லது பிறரும் மாற்றக்கூடியது. அதிலிருந்து எதையும் "
                 "இயக்குவது பாதுகாப்பல்ல. உமக்கே உரிய கோப்புறை ஒன்றை TMPDIR-ல் குறிப்பிடவும்."
              << std::endl;
    return std::nullopt;
}

bool hasRoom(const std::string& directory) {
    rlimit limit = {};
    if (getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur < kRoomOfABuild) return false;
    std::string name = directory + "/XXXXXX";
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file < 0) return errno != ENOSPC && errno != EDQUOT;
    unlink(name.c_str());
    const int problem = posix_fallocate(file, 0, kRoomOfABuild);
    close(file);
    return problem != ENOSPC && problem != EDQUOT && problem != EFBIG;
}

}  // namespace

std::optional<std::string> prepareCacheDirectory() {
    const fs::path temporary = fs::temp_directory_path();
    if (!keepsWhatIsOurs(temporary)) return refuse(temporary);
    const fs::path cache = fs::u8path(getSafeMinGWPath((temporary / kCacheName).u8string()));
    if (fs::is_symlink(cache)) return refuse(cache);
    if (fs::create_directories(cache)) {
        fs::permissions(cache, fs::perms::others_write, fs::perm_options::remove);
    }
    if (!isOurs(cache)) return refuse(cache);
    return cache.u8string();
}

CacheTurn::CacheTurn(const std::string& cacheDirectory, const char* lockName)
    : file(open((cacheDirectory + "/" + lockName).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    const auto silentUntil = Clock::now() + kSilentWait;
    bool told = false;
    while (file >= 0 && flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (!told && Clock::now() > silentUntil) {
            std::cerr
                << "⏳ இன்னொரு நிரல் இப்போது தொகுக்கப்படுகிறது. அது முடிந்ததும் உமது நிரல் தொகுக்கப்படும்..."
                << std::endl;
            told = true;
        }
        std::this_thread::sleep_for(kTurnPoll);
    }
}

CacheTurn::~CacheTurn() { end(); }

void CacheTurn::end() {
    if (file >= 0) close(file);
    file = -1;
}

bool writeWhole(const std::string& path, const std::string& text) {
    std::ofstream stream(fs::u8path(path));
    if (!stream.is_open()) {
        // Two languages in one line. Meant.
        std::cerr << "Error: " << path << " என்ற கோப்பை உருவாக்க முடியவில்லை!" << std::endl;
        return false;
    }
    stream << text;
    stream.close();
    if (stream) return true;
    std::cerr << "பிழை: '" << path
              << "' என்ற கோப்பை முழுமையாக எழுத முடியவில்லை. வட்டில் இடம் உள்ளதா எனச் சரிபார்க்கவும்."
              << std::endl;
    return false;
}

void tellOfFullDisk(const std::vector<std::string>& directories) {
    for (const std::string& directory : directories) {
        if (hasRoom(directory)) continue;
        std::cerr << "பிழை: '" << directory
                  << "' கோப்புறை உள்ள வட்டில் இடம் போதவில்லை. தேவையற்ற கோப்புகளை நீக்கிவிட்டு மீண்டும் முயலவும்."
                  << std::endl;
        return;
    }
}
