#include "driver/live_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "driver/workplace.h"

namespace {

void redirect(const std::filesystem::path& file, int descriptor) {
    dup2(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644), descriptor);
}

}  // namespace

bool within(double seconds, const std::function<bool()>& holds) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::duration<double>(seconds);
    while (!holds()) {
        if (Clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

LiveProcess::LiveProcess(const std::vector<std::string>& command,
                         const std::filesystem::path& directory,
                         const std::vector<std::string>& environment,
                         const std::filesystem::path& notes)
    : notes(notes) {
    std::vector<char*> arguments;
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);

    // The child may be ended before it has come to empty what another process has left there.
    for (const char* channel : {"out", "err"}) writeFileText(notes / channel, "");
    process = fork();
    if (process != 0) return;
    redirect(notes / "out", STDOUT_FILENO);
    redirect(notes / "err", STDERR_FILENO);
    setpgid(0, 0);
    signal(SIGINT, SIG_DFL);  // a shell that runs the tests in the background has it ignored
    if (chdir(directory.c_str()) != 0) _exit(126);
    for (const std::string& setting : environment) {
        const std::size_t equals = setting.find('=');
        setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
    }
    execv(arguments[0], arguments.data());
    _exit(127);
}

LiveProcess::~LiveProcess() {
    if (ended) return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

std::string LiveProcess::out() const { return readFileText(notes / "out"); }
std::string LiveProcess::err() const { return readFileText(notes / "err"); }

bool LiveProcess::waitForOut(const std::string& text, double seconds) const {
    return within(seconds, [&] { return out() == text; });
}

bool LiveProcess::waitForErr(const std::string& text, double seconds) const {
    return within(seconds, [&] { return err().find(text) != std::string::npos; });
}

void LiveProcess::interrupt() const { kill(process, SIGINT); }
void LiveProcess::pressCtrlC() const { kill(-process, SIGINT); }
void LiveProcess::crash() const { kill(process, SIGKILL); }

bool LiveProcess::waitForEnd(double seconds) {
    if (!ended) {
        ended = within(seconds, [&] { return waitpid(process, &status, WNOHANG) == process; });
    }
    return ended;
}
