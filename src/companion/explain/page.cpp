#include "companion/explain/page.h"

#include <algorithm>

#include "companion/display_width.h"

namespace companion {

namespace {

constexpr int kIndent = 2;
constexpr int kProgramIndent = 4;
constexpr const char* kStrongText = "\033[1m";
constexpr const char* kHeadingText = "\033[1;36m";
constexpr const char* kPlainText = "\033[0m";

void writeMarked(std::ostream& out, std::string_view text, const char* mark, bool inColour) {
    if (inColour) out << mark;
    out << text;
    if (inColour) out << kPlainText;
}

std::string blankColumns(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

/// Calls `write` with each line of `text`.
template <typename Write>
void eachLine(std::string_view text, Write write) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        write(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

}  // namespace

void Page::addProse(std::string_view heading, std::string_view text) {
    if (!text.empty()) sections.push_back({std::string(heading), std::string(text), false});
}

void Page::addProgram(std::string_view heading, std::string_view text) {
    if (!text.empty()) sections.push_back({std::string(heading), std::string(text), true});
}

void writeWrapped(std::ostream& out, std::string_view text, int width, int indent) {
    int used = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty()) continue;
        const int wordWidth = displayWidth(word);
        if (used == 0) {
            out << blankColumns(indent);
            used = indent;
        } else if (used + 1 + wordWidth > width) {
            out << "\n" << blankColumns(indent);
            used = indent;
        } else {
            out << ' ';
            used++;
        }
        out << word;
        used += wordWidth;
    }
    out << "\n";
}

void writePage(std::ostream& out, const Page& page, const PageStyle& style) {
    writeMarked(out, page.title, kStrongText, style.inColour);
    out << "  (" << page.kind << ")\n";
    for (const PageSection& section : page.sections) {
        if (!section.heading.empty()) {
            out << "\n";
            writeMarked(out, section.heading, kHeadingText, style.inColour);
            out << "\n";
        }
        eachLine(section.text, [&](std::string_view line) {
            if (section.isProgram) {
                out << blankColumns(kProgramIndent) << line << "\n";
            } else {
                writeWrapped(out, line, style.width, kIndent);
            }
        });
    }
}

}  // namespace companion
