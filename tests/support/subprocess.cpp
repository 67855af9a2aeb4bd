#include "support/subprocess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace {

constexpr int kUncaught = 125;

struct Pipe {
    int read = -1;
    int write = -1;
    Pipe() {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) == 0) {
            read = ends[0];
            write = ends[1];
        }
    }
};

void enterChild(const Pipe& input, const Pipe& out, const Pipe& err,
                const ProcessOptions& options) {
    dup2(input.read, STDIN_FILENO);
    dup2(out.write, STDOUT_FILENO);
    dup2(err.write, STDERR_FILENO);
    // A body that runs on without exec would otherwise hold its own input open for ever.
    for (const Pipe& ends : {input, out, err}) {
        if (ends.read > STDERR_FILENO) close(ends.read);
        if (ends.write > STDERR_FILENO) close(ends.write);
    }
    setpgid(0, 0);
    if (!options.directory.empty() && chdir(options.directory.c_str()) != 0) _exit(126);
    for (const std::string& setting : options.environment) {
        const std::size_t equals = setting.find('=');
        setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
    }
}

void feed(int descriptor, const std::string& text) {
    std::size_t written = 0;
    while (written < text.size()) {
        const ssize_t step = write(descriptor, text.data() + written, text.size() - written);
        if (step <= 0) break;
        written += static_cast<std::size_t>(step);
    }
    close(descriptor);
}

/// Reads both ends until they close or the time is up.
bool drain(int out, int err, double seconds, ProcessResult& result) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::duration<double>(seconds);
    pollfd ends[] = {{out, POLLIN, 0}, {err, POLLIN, 0}};
    std::string* texts[] = {&result.out, &result.err};
    int open = 2;
    while (open > 0) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0 || poll(ends, 2, static_cast<int>(left)) == 0) return false;
        for (int i = 0; i < 2; i++) {
            if (ends[i].fd < 0 || (ends[i].revents & (POLLIN | POLLHUP | POLLERR)) == 0) continue;
            char buffer[65536];
            const ssize_t count = read(ends[i].fd, buffer, sizeof(buffer));
            if (count > 0) {
                texts[i]->append(buffer, static_cast<std::size_t>(count));
            } else {
                ends[i].fd = -1;
                open--;
            }
        }
    }
    return true;
}

bool isForked = false;

}  // namespace

/// Asked by the leak sanitizer at the end of a process. What a child ends in the midst of is never
/// given back, and to look for it takes longer than most children live.
extern "C" int __lsan_is_turned_off() { return isForked ? 1 : 0; }

ProcessResult runForked(const std::function<int()>& body, const ProcessOptions& options) {
    ProcessResult result;
    const Pipe input;
    const Pipe out;
    const Pipe err;
    std::cout.flush();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        isForked = true;
        enterChild(input, out, err, options);
        try {
            std::exit(body());
        } catch (...) {
            _exit(kUncaught);  // or the child would go on with the parent's other tests
        }
    }
    close(input.read);
    close(out.write);
    close(err.write);
    signal(SIGPIPE, SIG_IGN);
    feed(input.write, options.input);
    result.timedOut = !drain(out.read, err.read, options.timeoutSeconds, result);
    if (result.timedOut) kill(-child, SIGKILL);
    close(out.read);
    close(err.read);

    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) result.signal = WTERMSIG(status);
    return result;
}

ProcessResult runCommand(const std::vector<std::string>& arguments, const ProcessOptions& options) {
    return runForked(
        [&]() -> int {
            std::vector<char*> argv;
            for (const std::string& argument : arguments) {
                argv.push_back(const_cast<char*>(argument.c_str()));
            }
            argv.push_back(nullptr);
            execvp(argv[0], argv.data());
            _exit(127);
        },
        options);
}
