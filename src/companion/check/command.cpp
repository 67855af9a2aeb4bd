// check FILE...: reads sources and tells what is wrong in them.
#include <iostream>
#include <memory>

#include "companion/check/check.h"
#include "companion/check/finding_texts.h"
#include "companion/commands.h"
#include "companion/terminal.h"
#include "files.h"

namespace companion {

namespace {

bool isWrong(const Finding& finding) { return finding.severity != Severity::Hint; }

}  // namespace

int runCheck(const Arguments& arguments) {
    bool asJson = false;
    std::vector<std::string> paths;
    for (const std::string& argument : arguments) {
        if (argument == "--json") {
            asJson = true;
        } else if (argument.rfind("--", 0) == 0) {
            std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை.\n";
            return 2;
        } else {
            paths.push_back(argument);
        }
    }
    if (paths.empty()) {
        std::cerr << "எந்த நிரலைச் சரிபார்க்க வேண்டும்? பயன்பாடு: பொழில்-துணை சரிபார் கோப்பு.பொழில்\n";
        return 2;
    }

    bool isUnreadable = false;
    bool hasFound = false;
    std::vector<std::unique_ptr<SourceText>> sources;
    std::vector<FileFindings> files;
    for (const std::string& path : paths) {
        std::string text;
        if (!readFile(path, text)) {
            std::cerr << "'" << path << "' என்ற கோப்பைப் படிக்க முடியவில்லை.\n";
            isUnreadable = true;
            continue;
        }
        sources.push_back(std::make_unique<SourceText>(path, std::move(text)));
        files.push_back({sources.back().get(), checkSource(*sources.back(), readFile)});
        for (const Finding& finding : files.back().findings) hasFound |= isWrong(finding);
        if (!asJson) printForPeople(std::cout, files.back(), wantsColour());
    }
    if (asJson) printAsJson(std::cout, files);
    if (isUnreadable) return 2;
    return hasFound ? 1 : 0;
}

}  // namespace companion
