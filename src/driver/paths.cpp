#include "driver/paths.h"

#include <string_view>

namespace {

/// What a shell doesn't leave alone between double quotes.
constexpr std::string_view kReadInQuotes = "\"\\$`";
constexpr std::string_view kReadOutsideQuotes = " \t\n\"\\$`'|&;<>()*?[";

/// Says whether bash makes words of several or other texts of `text`: "a{b,c}", "{1..3}".
bool hasBraceExpansion(const std::string& text) {
    const std::size_t open = text.find('{');
    const std::size_t close = text.rfind('}');
    if (open == std::string::npos || close == std::string::npos || close < open) return false;
    const std::string inside = text.substr(open, close - open);
    return inside.find(',') != std::string::npos || inside.find("..") != std::string::npos;
}

/// A tilde stands for a home directory at the beginning and behind what looks like an assignment.
bool hasTildeExpansion(const std::string& text) {
    return text.rfind('~', 0) == 0 || text.find("=~") != std::string::npos ||
           text.find(":~") != std::string::npos;
}

/// Says whether bash reads `text`, as it stands, as one word that is `text`.
bool isOneWord(const std::string& text) {
    return !text.empty() && text.front() != '#' &&
           text.find_first_of(kReadOutsideQuotes) == std::string::npos &&
           !hasBraceExpansion(text) && !hasTildeExpansion(text);
}

}  // namespace

std::string getAppDirectory() { return executableDirectory(); }

std::string getSafeMinGWPath(const std::string& path) { return path; }

void injectEmscriptenEnvironment(const std::string&) {}

std::string inQuotes(const std::string& text) {
    std::string quoted = "\"";
    for (const char byte : text) {
        if (kReadInQuotes.find(byte) != std::string_view::npos) quoted += '\\';
        quoted += byte;
    }
    return quoted + '"';
}

std::string asOneWord(const std::string& text) { return isOneWord(text) ? text : inQuotes(text); }
