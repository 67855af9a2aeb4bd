// The companion's commands: each takes the arguments behind its name and returns the status of the
// process.
#pragma once

#include <string>
#include <vector>

namespace companion {

using Arguments = std::vector<std::string>;

/// One command: its Tamil name, the Latin one, what stands behind it, and what it does in a line.
struct Command {
    const char* name;
    const char* latinName;
    const char* parameters;
    const char* summary;
    int (*run)(const Arguments& arguments);
};

/// All commands, in the order in which they are shown.
const std::vector<Command>& commands();

int runCheck(const Arguments& arguments);
int runFormat(const Arguments& arguments);
int runRun(const Arguments& arguments);
int runNew(const Arguments& arguments);
int runExplain(const Arguments& arguments);
int runPublish(const Arguments& arguments);
int runLanguageServer(const Arguments& arguments);

}  // namespace companion
