// A process that runs on while a test looks at what it has printed so far.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Polls until `holds` does; false after `seconds`.
bool within(double seconds, const std::function<bool()>& holds);

class LiveProcess {
public:
    /// Starts it in `directory` with NAME=value settings; its output goes to files in `notes`.
    LiveProcess(const std::vector<std::string>& command, const std::filesystem::path& directory,
                const std::vector<std::string>& environment, const std::filesystem::path& notes);
    ~LiveProcess();  ///< Kills it if it still runs.
    LiveProcess(const LiveProcess&) = delete;
    LiveProcess& operator=(const LiveProcess&) = delete;

    std::string out() const;
    std::string err() const;

    /// Waits until everything printed on that channel is exactly `text`; false after `seconds`.
    bool waitForOut(const std::string& text, double seconds = 20) const;
    /// Waits until standard error holds `text`; false after `seconds`.
    bool waitForErr(const std::string& text, double seconds = 20) const;
    /// Sends SIGINT to the process alone.
    void interrupt() const;
    /// Sends SIGINT to the process and all of its group, as a terminal does for Ctrl+C.
    void pressCtrlC() const;
    /// Ends it at once, with nothing tidied up.
    void crash() const;
    pid_t id() const { return process; }
    /// Waits for its end; false after `seconds`. Then status is that of waitpid.
    bool waitForEnd(double seconds = 20);

    int status = 0;

private:
    std::filesystem::path notes;
    pid_t process = -1;
    bool ended = false;
};
