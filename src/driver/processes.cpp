#include "driver/processes.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string_view>
#include <vector>

#include "driver/paths.h"

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

/// How long a file that is started is waited for, where nothing tells that it was opened.
constexpr auto kStartPatience = std::chrono::seconds(2);
constexpr int kStartPollMilliseconds = 10;

/// How long a command may take to tidy up after a Ctrl+C before it is killed.
constexpr int kTidyMilliseconds = 1000;
constexpr int kTidyPollMilliseconds = 5;

constexpr const char* kDefaultSearchPath =
    "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";

// The group of the command that runStoppable runs: read by the handler of a signal.
constexpr pid_t kNoGroup = 0;
constexpr pid_t kGroupIsStarting = -1;
std::atomic<pid_t> g_group{kNoGroup};
std::atomic<bool> g_ending{false};
static_assert(std::atomic<pid_t>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

sigset_t interrupts() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGQUIT);
    return set;
}

/// The terminal as it stands, or a process group of its own, which may not read from it.
enum class Place { kTerminal, kOwnGroup };

/// This process's environment, with `setting` in the place of what it holds under that name. What
/// comes back is borrowed from both.
std::vector<char*> environmentWith(std::string& setting) {
    const std::string name = setting.substr(0, setting.find('=') + 1);
    std::vector<char*> settings;
    for (char** one = environ; *one != nullptr; one++) {
        if (name.empty() || std::string_view(*one).substr(0, name.size()) != name) {
            settings.push_back(*one);
        }
    }
    if (!setting.empty()) settings.push_back(setting.data());
    settings.push_back(nullptr);
    return settings;
}

/// A shell that runs `command`; -1 if there can't be one.
pid_t startShell(const std::string& command, Place place, const sigset_t& mask,
                 std::string setting = "") {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    short flags = POSIX_SPAWN_SETSIGMASK;
    posix_spawnattr_setsigmask(&attributes, &mask);
    if (place == Place::kOwnGroup) {
        flags |= POSIX_SPAWN_SETPGROUP;
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    }
    posix_spawnattr_setflags(&attributes, flags);

    std::string words[] = {"sh", "-c", command};
    char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    pid_t child = -1;
    const std::vector<char*> settings = environmentWith(setting);
    if (posix_spawn(&child, "/bin/sh", &files, &attributes, arguments, settings.data()) != 0) {
        child = -1;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return child;
}

/// The raw status of `child`, or -1.
int waitFor(pid_t child) {
    if (child < 0) return -1;
    int status = -1;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return -1;
    }
    return status;
}

bool hasEnded(pid_t child) {
    siginfo_t info = {};
    return waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           info.si_pid != 0;
}

/// Tells when a file is opened, which the kernel does when it is run.
class OpeningWatch {
public:
    explicit OpeningWatch(const std::string& path) : notes(inotify_init1(IN_CLOEXEC)) {
        if (notes >= 0) inotify_add_watch(notes, path.c_str(), IN_OPEN);
    }
    ~OpeningWatch() {
        if (notes >= 0) close(notes);
    }
    OpeningWatch(const OpeningWatch&) = delete;
    OpeningWatch& operator=(const OpeningWatch&) = delete;

    /// Returns when the file was opened, when `child` has ended, or when patience has.
    void wait(pid_t child) const {
        const auto deadline = Clock::now() + kStartPatience;
        pollfd note = {notes, POLLIN, 0};
        while (Clock::now() < deadline && !hasEnded(child)) {
            if (poll(&note, 1, kStartPollMilliseconds) > 0) return;
        }
    }

private:
    int notes;
};

void endGroup(pid_t group) {
    kill(-group, SIGINT);
    for (int waited = 0; waited < kTidyMilliseconds; waited += kTidyPollMilliseconds) {
        waitpid(group, nullptr, WNOHANG);  // its leader would stay in it as a zombie
        if (kill(-group, 0) != 0) return;
        poll(nullptr, 0, kTidyPollMilliseconds);
    }
    kill(-group, SIGKILL);
}

}  // namespace

HeldInterrupts::HeldInterrupts() : before() {
    const sigset_t held = interrupts();
    pthread_sigmask(SIG_BLOCK, &held, &before);
}

HeldInterrupts::~HeldInterrupts() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }

sigset_t HeldInterrupts::maskOfCommands() const {
    sigset_t mask = before;
    sigdelset(&mask, SIGINT);
    sigdelset(&mask, SIGQUIT);
    return mask;
}

void releaseInterrupts() {
    const sigset_t held = interrupts();
    pthread_sigmask(SIG_UNBLOCK, &held, nullptr);
}

int run_command(const std::string& command) {
    std::cout.flush();
    const HeldInterrupts held;
    return waitFor(startShell(command, Place::kTerminal, held.maskOfCommands()));
}

int runProgram(const std::string& path, const std::function<void()>& started) {
    std::cout.flush();
    const sigset_t held = interrupts();
    pthread_sigmask(SIG_BLOCK, &held, nullptr);
    pid_t child = -1;
    {
        const OpeningWatch opening(path);
        child = startShell(inQuotes(path), Place::kTerminal, HeldInterrupts().maskOfCommands());
        if (child > 0) opening.wait(child);
    }
    started();
    return waitFor(child);
}

int runStoppable(const std::string& command, const std::string& setting) {
    std::cout.flush();
    pid_t child = -1;
    {
        const HeldInterrupts held;  // or the handler would wait for what it interrupts
        g_group = kGroupIsStarting;
        child = startShell(command, Place::kOwnGroup, held.maskOfCommands(), setting);
        g_group = child > 0 ? child : kNoGroup;
    }
    const int status = waitFor(child);
    g_group = kNoGroup;
    while (g_ending) pause();  // a command that was ended has nothing to say
    return status;
}

bool startEnding() { return !g_ending.exchange(true); }

void endCommands() {
    while (g_group == kGroupIsStarting) poll(nullptr, 0, 1);
    if (g_group != kNoGroup) endGroup(g_group);
}

std::string findProgram(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::istringstream directories(path != nullptr ? path : kDefaultSearchPath);
    for (std::string directory; std::getline(directories, directory, ':');) {
        const fs::path file = fs::u8path(directory) / program;  // an empty one is where we stand
        std::error_code ignored;
        if (fs::is_regular_file(file, ignored) && access(file.c_str(), X_OK) == 0) {
            return file.u8string();
        }
    }
    return "";
}

bool isInstalled(const std::string& program) { return !findProgram(program).empty(); }
