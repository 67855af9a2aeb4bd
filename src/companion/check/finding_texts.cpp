#include "companion/check/finding_texts.h"

#include <algorithm>
#include <string_view>

#include "companion/display_width.h"

namespace companion {

namespace {

struct SeverityRow {
    const char* name;
    const char* title;
    const char* colour;
};

const SeverityRow& rowOf(Severity severity) {
    static const SeverityRow rows[] = {
        {"error", "பிழை", "\033[1;31m"},
        {"warning", "எச்சரிக்கை", "\033[1;33m"},
        {"hint", "குறிப்பு", "\033[1;36m"},
    };
    return rows[static_cast<int>(severity)];
}

constexpr const char* kFaint = "\033[2m";
constexpr const char* kReset = "\033[0m";

/// The bytes of `line` before the column, which counts from 1.
std::size_t offsetOfColumn(std::string_view line, int column) {
    std::size_t at = 0;
    for (int passed = 1; passed < column && at < line.size(); passed++) {
        at++;
        while (at < line.size() && (static_cast<unsigned char>(line[at]) & 0xC0) == 0x80) at++;
    }
    return at;
}

/// As wide as `text` is on a terminal, with its tabs kept.
std::string blanksFor(std::string_view text) {
    std::string blanks;
    std::string piece;
    const auto flush = [&] {
        blanks.append(static_cast<std::size_t>(displayWidth(piece)), ' ');
        piece.clear();
    };
    for (const char byte : text) {
        if (byte == '\t') {
            flush();
            blanks += '\t';
        } else {
            piece += byte;
        }
    }
    flush();
    return blanks;
}

void printJsonText(std::ostream& out, std::string_view text) {
    static const char* const digits = "0123456789abcdef";
    out << '"';
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            out << '\\' << byte;
        } else if (code < 0x20) {
            out << "\\u00" << digits[code >> 4U] << digits[code & 0xFU];
        } else {
            out << byte;
        }
    }
    out << '"';
}

}  // namespace

std::string nameOf(Severity severity) { return rowOf(severity).name; }

void printForPeople(std::ostream& out, const FileFindings& file, bool inColour) {
    for (const Finding& finding : file.findings) {
        const SeverityRow& row = rowOf(finding.severity);
        const char* strong = inColour ? row.colour : "";
        const char* faint = inColour ? kFaint : "";
        const char* reset = inColour ? kReset : "";
        out << file.source->path << ":" << finding.line << ":" << finding.column << ": " << strong
            << row.title << reset << " " << faint << finding.code << reset << "\n";

        const std::string_view line = file.source->line(finding.line);
        const std::size_t from = offsetOfColumn(line, finding.column);
        const std::size_t to =
            finding.endLine > finding.line ? line.size() : offsetOfColumn(line, finding.endColumn);
        const int width = displayWidth(std::string(line.substr(from, to - from)));
        out << "  " << line << "\n  " << blanksFor(line.substr(0, from)) << strong << "^"
            << std::string(static_cast<std::size_t>(std::max(width - 1, 0)), '~') << reset << "\n"
            << "  " << finding.message << "\n\n";
    }
}

void printAsJson(std::ostream& out, const std::vector<FileFindings>& files) {
    out << "[";
    const char* separator = "\n";
    for (const FileFindings& file : files) {
        for (const Finding& finding : file.findings) {
            out << separator << "  {\"file\": ";
            printJsonText(out, file.source->path);
            out << ", \"line\": " << finding.line << ", \"column\": " << finding.column
                << ", \"endLine\": " << finding.endLine << ", \"endColumn\": " << finding.endColumn
                << ", \"severity\": \"" << nameOf(finding.severity) << "\", \"code\": ";
            printJsonText(out, finding.code);
            out << ", \"message\": ";
            printJsonText(out, finding.message);
            out << "}";
            separator = ",\n";
        }
    }
    out << "\n]\n";
}

}  // namespace companion
