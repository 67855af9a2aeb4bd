#include "companion/run/quiet_build.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "companion/run/watched_process.h"
#include "driver/cache.h"
#include "driver/processes.h"
#include "files.h"

namespace fs = std::filesystem;

namespace companion {

namespace {

constexpr const char* kBuildPrefix = "தொகுப்பு-";

void removeLeftovers(const std::string& folder) {
    std::error_code problem;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::u8path(folder), problem)) {
        if (entry.path().filename().u8string().rfind(kBuildPrefix, 0) == 0) {
            fs::remove_all(entry.path(), problem);
        }
    }
}

/// Runs a command found by PATH, with all that it prints in the file `words`. Its raw status.
int runInto(const std::string& words, const std::vector<std::string>& command) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, words.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    pid_t child = -1;
    const int problem = posix_spawnp(&child, command[0].c_str(), &files, nullptr,
                                     argumentsOf(command).data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (problem != 0) return -1;
    int status = -1;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGINT) endByInterrupt();
    return status;
}

/// The diagnostics object: set-up's, or one made here if it is missing.
std::string reportObject(const std::string& place, const std::string& appDirectory,
                         const std::string& include) {
    std::string lasting = appDirectory + "/திரட்டு/error_handler_native_linux.o";
    if (fileExists(lasting)) return lasting;
    std::string made = place + "/error_handler.o";
    runInto(place + "/words", {"g++", "-c", appDirectory + "/src/error_handler.cpp", "-o", made,
                               "-std=c++17", "-I" + include});
    return rename(made.c_str(), lasting.c_str()) == 0 ? lasting : made;
}

}  // namespace

BuildPlace::BuildPlace(const ProjectFolder& folder)
    : lock(open((folder.path() + "/பூட்டு").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    bool isAlone = false;
    while (lock >= 0 && !(isAlone = flock(lock, LOCK_EX) == 0) && errno == EINTR) {
    }
    if (isAlone) removeLeftovers(folder.path());
    place = folder.path() + "/" + kBuildPrefix + std::to_string(getpid());
    std::error_code ignored;
    fs::create_directory(fs::u8path(place), ignored);
}

BuildPlace::~BuildPlace() {
    std::error_code ignored;
    fs::remove_all(fs::u8path(place), ignored);
    if (lock >= 0) close(lock);
}

QuietBuild buildQuietly(const std::string& text, const std::string& place,
                        const std::string& appDirectory) {
    QuietBuild build;
    if (!isInstalled("g++")) {
        build.isCompilerMissing = true;
        return build;
    }
    const std::string source = place + "/generated.cpp";
    const std::string program = place + "/program";
    const std::string words = place + "/words";
    const std::string include = appDirectory + "/உள்ளடக்கம்";
    if (!writeWhole(source, text)) return build;
    const std::string object = reportObject(place, appDirectory, include);
    std::vector<std::string> command = {"g++",
                                        source,
                                        object,
                                        "-o",
                                        program,
                                        "-std=c++17",
                                        "-I" + include,
                                        "-I" + include + "/nanovg",
                                        "-static",
                                        "-static-libstdc++",
                                        "-static-libgcc",
                                        "-lm",
                                        "-lpthread"};
    if (isatty(STDERR_FILENO) != 0) command.push_back("-fdiagnostics-color=always");
    if (runInto(words, command) == 0) {
        build.program = program;
    } else {
        readFile(words, build.words);
        tellOfFullDisk({place});
    }
    return build;
}

}  // namespace companion
