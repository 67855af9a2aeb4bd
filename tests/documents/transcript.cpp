#include "transcript.h"

#include <sstream>

#include "support/pattern.h"
#include "support/saying.h"

namespace {

const std::string kTyped = "⌨ ";
const std::string kAnything = "⋯";

std::string withoutColours(const std::string& text) {
    static const Pattern colour("\033\\[[0-9;]*m");
    return colour.replaced(text, "");
}

std::string withoutEmptyLinesAround(const std::string& text) {
    const std::size_t first = text.find_first_not_of('\n');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of('\n') + 1 - first) + "\n";
}

/// A line against a pattern's parts, which follow each other.
bool lineIsLike(const std::string& line, const std::string& pattern) {
    std::size_t at = 0;
    std::size_t begin = 0;
    while (true) {
        const std::size_t mark = pattern.find(kAnything, begin);
        const std::string part = pattern.substr(begin, mark - begin);
        if (mark == std::string::npos) {
            if (begin == 0) return line == part;
            return line.size() >= at + part.size() &&
                   line.compare(line.size() - part.size(), part.size(), part) == 0;
        }
        const std::size_t found = line.find(part, at);
        if (found == std::string::npos || (begin == 0 && found != 0)) return false;
        at = found + part.size();
        begin = mark + kAnything.size();
    }
}

}  // namespace

Transcript readTranscript(const std::string& text) {
    Transcript parts;
    std::size_t at = 0;
    for (std::size_t mark = 0; (mark = text.find(kTyped, at)) != std::string::npos;) {
        parts.printed += text.substr(at, mark - at);
        const std::size_t begin = mark + kTyped.size();
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        parts.typed += text.substr(begin, end - begin) + "\n";
        at = std::min(end + 1, text.size());
    }
    parts.printed += text.substr(at);
    return parts;
}

bool isLike(const std::string& text, const std::string& pattern) {
    std::istringstream lines(text);
    std::istringstream patterns(pattern);
    std::string line;
    std::string expected;
    while (true) {
        const bool isLine = static_cast<bool>(std::getline(lines, line));
        const bool isExpected = static_cast<bool>(std::getline(patterns, expected));
        if (!isLine || !isExpected) return isLine == isExpected;
        if (!lineIsLike(line, expected)) return false;
    }
}

std::string plainReport(const std::string& report) {
    return withoutEmptyLinesAround(withoutColours(maskSaying(report)));
}

RunText splitAtReport(const std::string& output) {
    static const Pattern opening("\033\\[1;31m-+\033\\[0m\n  🚨 \\[ ");
    const auto match = opening.first(output);
    if (!match) return {output, ""};
    std::string printed = output.substr(0, match->position);
    while (!printed.empty() && printed.back() == '\n') printed.pop_back();
    if (!printed.empty()) printed += '\n';
    return {printed, plainReport(output.substr(match->position))};
}
