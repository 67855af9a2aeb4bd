// The process: finds the command by its name and runs it.
#include <iostream>
#include <string>

#include "companion/commands.h"
#include "kept_memory.h"

namespace {

using companion::Command;

const Command kCommands[] = {
    {"சரிபார்", "check", "கோப்பு...", "நிரலைப் படித்து, பிழைகளையும் தீர்வுகளையும் சொல்லும்",
     companion::runCheck},
    {"வடிவமை", "format", "[--check] கோப்பு...", "நிரலின் இடைவெளிகளையும் வரிகளையும் சீராக்கும்",
     companion::runFormat},
    {"இயக்கு", "run", "[--quiet] கோப்பு",
     "நிரலைச் சரிபார்த்து, தொகுத்து இயக்கும்; --quiet: நிரலின் சொற்கள் மட்டும்", companion::runRun},
    {"புதிது", "new", "[--web] பெயர்", "புதிய நிரலுக்கான கோப்புறையை உருவாக்கும்; --web: வலைதளம்",
     companion::runNew},
    {"விளக்கு", "explain", "[சொல் அல்லது பிழை எண்]", "ஒரு சொல்லையோ பிழையையோ எடுத்துக்காட்டோடு விளக்கும்",
     companion::runExplain},
    {"வெளியிடு", "publish", "கோப்பு கோப்புறை", "வலைதளத்தை எந்த வழங்கியிலும் இயங்கும் கோப்புறையாக எழுதும்",
     companion::runPublish},
    {"மொழிவழங்கி", "lsp", "[--stdio]", "நிரல் எழுதும் செயலிகளுக்குப் பிழைகளையும் விளக்கங்களையும் சொல்லும்",
     companion::runLanguageServer},
};

void printUsage(std::ostream& out) {
    out << "பயன்பாடு: பொழில்-துணை கட்டளை ...\n\n";
    for (const Command& command : kCommands) {
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
    for (const Command& command : kCommands) {
        if (name != command.name && name != command.latinName) continue;
        return command.run({argv + 2, argv + argc});
    }
    if (!name.empty()) std::cerr << "'" << name << "' என்ற கட்டளை இல்லை.\n";
    printUsage(std::cerr);
    return 2;
}
