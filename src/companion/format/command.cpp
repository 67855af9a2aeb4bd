// format FILE...: writes sources in the usual layout.
#include <algorithm>
#include <iostream>
#include <iterator>
#include <vector>

#include "companion/commands.h"
#include "companion/format/format.h"
#include "companion/format/written_file.h"
#include "files.h"

namespace companion {

namespace {

constexpr int kLeftAlone = 1;
constexpr int kFailed = 2;

void tellUnreadable(const std::string& name) {
    std::cerr << "'" << name
              << "' என்ற நிரலில் பிழை உள்ளதால் அதை மாற்றவில்லை; 'பொழில்-துணை சரிபார்' காரணம் சொல்லும்.\n";
}

/// For editors: from standard input to standard output, nothing where nothing can be done.
int formatInput(bool onlyLooks) {
    const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
    const auto result = formatted(text);
    if (!result) {
        tellUnreadable("-");
        return kLeftAlone;
    }
    if (onlyLooks) return *result == text ? 0 : kLeftAlone;
    std::cout << *result << std::flush;
    return std::cout ? 0 : kFailed;
}

int formatFile(const std::string& path, bool onlyLooks) {
    std::string text;
    if (!readFile(path, text)) {
        std::cerr << "'" << path << "' என்ற கோப்பைப் படிக்க முடியவில்லை.\n";
        return kFailed;
    }
    const auto result = formatted(text);
    if (!result) {
        tellUnreadable(path);
        return kLeftAlone;
    }
    if (*result == text) return 0;
    std::cout << path << "\n";
    if (onlyLooks) return kLeftAlone;
    switch (replaceFile(path, text, *result)) {
        case Written::Yes: return 0;
        case Written::IsChanged:
            std::cerr << "'" << path << "' இதற்கிடையில் மாறிவிட்டது; மீண்டும் இயக்கு.\n";
            return kFailed;
        default:
            std::cerr << "'" << path << "' என்ற கோப்பை எழுத முடியவில்லை; அது முன்பிருந்தபடியே உள்ளது.\n";
            return kFailed;
    }
}

}  // namespace

int runFormat(const Arguments& arguments) {
    bool onlyLooks = false;
    std::vector<std::string> paths;
    for (const std::string& argument : arguments) {
        if (argument == "--check") {
            onlyLooks = true;
        } else if (argument.rfind("--", 0) == 0) {
            std::cerr << "'" << argument << "' என்ற விருப்பம் இல்லை.\n";
            return kFailed;
        } else {
            paths.push_back(argument);
        }
    }
    if (paths.empty()) {
        std::cerr << "எந்த நிரலை வடிவமைக்க வேண்டும்? பயன்பாடு: பொழில்-துணை வடிவமை கோப்பு.பொழில்\n";
        return kFailed;
    }
    int status = 0;
    for (const std::string& path : paths) {
        status =
            std::max(status, path == "-" ? formatInput(onlyLooks) : formatFile(path, onlyLooks));
    }
    return status;
}

}  // namespace companion
