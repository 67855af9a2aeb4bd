// The process: finds the command by its name and runs it.
#include <iostream>
#include <string>

#include "companion/commands.h"
#include "kept_memory.h"

namespace {

using companion::Command;
using companion::commands;

void printUsage(std::ostream& out) {
    out << "பயன்பாடு: பொழில்-துணை கட்டளை ...\n\n";
    for (const Command& command : commands()) {
        out << "  " << command.name << " (" << command.latinName << ") " << command.parameters
            << "\n      " << command.summary << "\n";
    }
}

}  // namespace

int main(int argc, char** argv) {
    keepFreedMemory();
    std::ios_base::sync_with_stdio(false);
    const std::string name = argc > 1 ? argv[1] : "";
    if (name == "--help" || name == "-h" || name == "--உதவி") {
        printUsage(std::cout);
        return 0;
    }
    for (const Command& command : commands()) {
        if (name != command.name && name != command.latinName) continue;
        return command.run({argv + 2, argv + argc});
    }
    if (!name.empty()) std::cerr << "'" << name << "' என்ற கட்டளை இல்லை.\n";
    printUsage(std::cerr);
    return 2;
}
