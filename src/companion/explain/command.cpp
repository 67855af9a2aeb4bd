// explain [WORD|CODE]: tells what a word, a property or a code means; without one, what there is.
#include <iostream>

#include "companion/commands.h"
#include "companion/explain/contents.h"
#include "companion/explain/lookup.h"
#include "companion/terminal.h"

namespace companion {

namespace {

int refuseUnknown(const std::string& asked) {
    std::cerr << "'" << asked << "' என்ற சொல்லோ எண்ணோ இல்லை.\n";
    const auto near = nearestTo(asked);
    if (near.empty()) {
        std::cerr << "எல்லாச் சொற்களையும் காண: பொழில்-துணை விளக்கு\n";
        return 1;
    }
    std::cerr << "இதைத் தேடினாயா?";
    const char* separator = " ";
    for (const std::string& word : near) {
        std::cerr << separator << word;
        separator = ", ";
    }
    std::cerr << "\n";
    return 1;
}

}  // namespace

int runExplain(const Arguments& arguments) {
    const PageStyle style{terminalWidth(), wantsColour()};
    if (arguments.empty()) {
        writeContents(std::cout, style);
        return 0;
    }
    std::string asked;
    for (const std::string& argument : arguments) {
        if (argument.rfind("--", 0) == 0) {
            std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை.\n";
            return 2;
        }
        if (!asked.empty()) asked += ' ';
        asked += argument;
    }
    const auto pages = pagesFor(asked);
    if (pages.empty()) return refuseUnknown(asked);
    const char* separator = "";
    for (const Page& page : pages) {
        std::cout << separator;
        writePage(std::cout, page, style);
        separator = "\n";
    }
    return 0;
}

}  // namespace companion
