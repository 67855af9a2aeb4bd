#include "support/side_by_side.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// Code points of `text`: near enough to columns for a left side that lines up.
std::size_t columns(const std::string& text) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); i++) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80) count++;
    }
    return count;
}

}  // namespace

std::string sideBySide(const std::string& expected, const std::string& actual) {
    const std::vector<std::string> left = splitLines(expected);
    const std::vector<std::string> right = splitLines(actual);
    std::size_t width = columns("expected");
    for (const std::string& line : left) width = std::max(width, columns(line));

    std::ostringstream text;
    const auto row = [&](const std::string& a, const std::string& mark, const std::string& b) {
        text << a << std::string(width - columns(a), ' ') << " " << mark << " " << b << "\n";
    };
    row("expected", " ", "actual");
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); i++) {
        const std::string a = i < left.size() ? left[i] : "";
        const std::string b = i < right.size() ? right[i] : "";
        row(a, a == b ? " " : "|", b);
    }
    return text.str();
}
