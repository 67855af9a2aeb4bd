// Commands of the outside world, and what Ctrl+C makes of them.
#pragma once

#include <signal.h>

#include <functional>
#include <string>

/// While it lives, Ctrl+C and Ctrl+\ wait, for the thread that made it.
class HeldInterrupts {
public:
    HeldInterrupts();
    ~HeldInterrupts();
    HeldInterrupts(const HeldInterrupts&) = delete;
    HeldInterrupts& operator=(const HeldInterrupts&) = delete;

    /// What was held before, without the two: the mask of a command that is started meanwhile.
    sigset_t maskOfCommands() const;

private:
    sigset_t before;
};

/// Lets what waits behind a hold through, and all that comes later.
void releaseInterrupts();

/// Runs `command` in a shell and waits. Returns the raw status of system(). What was printed
/// before is flushed first, so that it stands before what the command prints. Ctrl+C, which a
/// terminal sends to the command too, reaches this process when the command has ended.
int run_command(const std::string& command);

/// Runs the file `path` as run_command does; afterwards a Ctrl+C that came meanwhile still waits,
/// as a HeldInterrupts that nobody ends. Calls `started` as soon as the file may be replaced
/// without becoming another program.
int runProgram(const std::string& path, const std::function<void()>& started);

/// As run_command, but Ctrl+C reaches this process at once and the command not at all: it and all
/// that it starts are a process group of their own, for endCommands to end. `setting`, a
/// "NAME=value" for the environment of the command alone, takes the place of one of that name.
int runStoppable(const std::string& command, const std::string& setting = "");

/// Begins the end of this process: from here on runStoppable doesn't return. False if it has
/// begun. This and endCommands are for a signal handler, on whichever thread.
bool startEnding();

/// Ends what runStoppable runs, with all that it started: gently, and after a second by force.
void endCommands();

/// Where the shell would find `program` by PATH; empty if it wouldn't.
std::string findProgram(const std::string& program);

/// True if the shell would find `program` by PATH.
bool isInstalled(const std::string& program);
