#include "companion/run/watched_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace companion {

namespace {

constexpr std::size_t kKeptBegin = std::size_t{256} * 1024;
constexpr std::size_t kKeptEnd = std::size_t{16} * 1024;

/// How long a channel is read that something left behind keeps open.
constexpr int kSilenceMilliseconds = 100;

volatile sig_atomic_t g_interrupted = 0;

void noteInterrupt(int) { g_interrupted = 1; }

/// While it lives, Ctrl+C is only noted here. A command that is started has its usual meaning.
class NotedInterrupts {
public:
    NotedInterrupts() {
        g_interrupted = 0;
        struct sigaction noted = {};
        noted.sa_handler = noteInterrupt;
        sigaction(SIGINT, nullptr, &beforeInterrupt);
        sigaction(SIGQUIT, nullptr, &beforeQuit);
        if (beforeInterrupt.sa_handler != SIG_IGN) sigaction(SIGINT, &noted, nullptr);
        if (beforeQuit.sa_handler != SIG_IGN) sigaction(SIGQUIT, &noted, nullptr);
    }
    ~NotedInterrupts() {
        sigaction(SIGINT, &beforeInterrupt, nullptr);
        sigaction(SIGQUIT, &beforeQuit, nullptr);
    }
    NotedInterrupts(const NotedInterrupts&) = delete;
    NotedInterrupts& operator=(const NotedInterrupts&) = delete;

private:
    struct sigaction beforeInterrupt;
    struct sigaction beforeQuit;
};

/// The two ends of what the command writes its standard error into.
struct Channel {
    int reading = -1;
    int writing = -1;
};

/// A terminal that changes no byte, as wide as the one that standard error is.
Channel openTerminal() {
    Channel channel;
    channel.reading = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (channel.reading < 0) return {};
    char name[256];
    if (grantpt(channel.reading) == 0 && unlockpt(channel.reading) == 0 &&
        ptsname_r(channel.reading, name, sizeof(name)) == 0) {
        channel.writing = open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    }
    termios settings = {};
    if (channel.writing < 0 || tcgetattr(channel.writing, &settings) != 0) {
        close(channel.reading);
        if (channel.writing >= 0) close(channel.writing);
        return {};
    }
    cfmakeraw(&settings);
    tcsetattr(channel.writing, TCSANOW, &settings);
    winsize size = {};
    if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0) ioctl(channel.writing, TIOCSWINSZ, &size);
    return channel;
}

Channel openChannel() {
    Channel channel;
    if (isatty(STDERR_FILENO) != 0) channel = openTerminal();
    if (channel.reading >= 0) return channel;
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) == 0) channel = {ends[0], ends[1]};
    return channel;
}

pid_t startCommand(const std::vector<std::string>& command,
                   const std::vector<std::string>& settings, int errors) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    if (errors >= 0) posix_spawn_file_actions_adddup2(&files, errors, STDERR_FILENO);
    pid_t child = -1;
    const int problem =
        posix_spawn(&child, command[0].c_str(), &files, nullptr, argumentsOf(command).data(),
                    environmentWithSettings(settings).data());
    posix_spawn_file_actions_destroy(&files);
    return problem == 0 ? child : -1;
}

void passOn(std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(STDERR_FILENO, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return;  // nobody reads it: the command doesn't wait for them
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

void keep(std::string& words, std::string_view text) {
    words += text;
    if (words.size() > kKeptBegin + 2 * kKeptEnd) {
        words.erase(kKeptBegin, words.size() - kKeptBegin - kKeptEnd);
    }
}

bool hasEndedBy(pid_t child, int& status) { return waitpid(child, &status, WNOHANG) == child; }

/// Reads until every writer has gone, or until the command has and nothing comes any more. True if
/// the command's status was taken.
bool passAllOn(int channel, pid_t child, WatchedEnd& end) {
    bool hasEnded = false;
    while (true) {
        pollfd event = {channel, POLLIN, 0};
        const int ready = poll(&event, 1, kSilenceMilliseconds);
        if (ready == 0 && hasEnded) return true;
        if (ready == 0) hasEnded = hasEndedBy(child, end.status);
        if (ready <= 0) continue;
        char buffer[16 * 1024];
        const ssize_t count = read(channel, buffer, sizeof(buffer));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return hasEnded;  // a terminal ends with an error
        const std::string_view text(buffer, static_cast<std::size_t>(count));
        passOn(text);
        keep(end.words, text);
    }
}

}  // namespace

WatchedEnd runWatched(const std::vector<std::string>& command,
                      const std::vector<std::string>& settings) {
    WatchedEnd end;
    const NotedInterrupts noted;
    const Channel channel = openChannel();
    const pid_t child = startCommand(command, settings, channel.writing);
    if (channel.writing >= 0) close(channel.writing);
    bool isTaken = child < 0;
    if (child >= 0 && channel.reading >= 0) isTaken = passAllOn(channel.reading, child, end);
    while (!isTaken) {
        isTaken = waitpid(child, &end.status, 0) == child || errno != EINTR;
    }
    if (channel.reading >= 0) close(channel.reading);
    end.wasInterrupted = g_interrupted != 0;
    return end;
}

void endByInterrupt() {
    signal(SIGINT, SIG_DFL);
    raise(SIGINT);
    _exit(128 + SIGINT);
}

std::vector<char*> environmentWithSettings(const std::vector<std::string>& settings) {
    const auto isReplaced = [&](std::string_view present) {
        for (const std::string& setting : settings) {
            const std::size_t name = setting.find('=') + 1;
            if (present.substr(0, name) == std::string_view(setting).substr(0, name)) return true;
        }
        return false;
    };
    std::vector<char*> all;
    for (char** one = environ; *one != nullptr; one++) {
        if (!isReplaced(*one)) all.push_back(*one);
    }
    for (const std::string& setting : settings) all.push_back(const_cast<char*>(setting.c_str()));
    all.push_back(nullptr);
    return all;
}

std::vector<char*> argumentsOf(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    return arguments;
}

}  // namespace companion
