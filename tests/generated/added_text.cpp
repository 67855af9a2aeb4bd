#include "added_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "support/generated_text.h"

namespace {

using Lines = std::vector<std::string>;

const char* const kEmptyApplication = "வலைதளம் அ(தலைமை() குமரி() வரையறை())\n";
const Lines kEmptyGlobals = {"void init_globals() {", "}", ""};
const Lines kPage = {"    if (g_currentPage == \"home\") {"};
const Lines kPageEnd = {"    }"};

Lines splitLines(const std::string& text) {
    Lines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// Where `part` begins in `lines`, from `from` on; the end of `lines` if it isn't there.
std::size_t indexOf(const Lines& lines, const Lines& part, std::size_t from) {
    const auto start = lines.begin() + static_cast<std::ptrdiff_t>(std::min(from, lines.size()));
    return static_cast<std::size_t>(std::search(start, lines.end(), part.begin(), part.end()) -
                                    lines.begin());
}

/// Takes a program's lines one after the other and shows what the fixed text hasn't.
class Additions {
public:
    explicit Additions(const Lines& lines) : lines(lines) {}

    /// Lines of the fixed text: those in which a place was filled in otherwise are shown.
    void passFixed(const Lines& fixed) {
        for (const std::string& line : fixed) {
            if (at == lines.size()) break;
            if (lines[at] != line) {
                show();
            } else {
                if (!isCut) text += "⋯\n";
                isCut = true;
                at++;
            }
        }
    }

    void showUntil(std::size_t end) {
        while (at < std::min(end, lines.size())) show();
    }

    void showUntil(const Lines& part) {
        const std::size_t end = indexOf(lines, part, at);
        EXPECT_LT(end, lines.size()) << "not in the text: " << part.front();
        showUntil(end);
    }

    std::string text;

private:
    void show() {
        text += lines[at++] + "\n";
        isCut = false;
    }

    const Lines& lines;
    std::size_t at = 0;
    bool isCut = false;
};

Lines slice(const Lines& lines, std::size_t from, std::size_t end) {
    return {lines.begin() + static_cast<std::ptrdiff_t>(from),
            lines.begin() + static_cast<std::ptrdiff_t>(end)};
}

std::string addedToConsoleProgram(const Lines& lines) {
    const Lines empty = splitLines(generate(""));
    Additions additions(lines);
    additions.passFixed(slice(empty, 0, indexOf(empty, kEmptyGlobals, 0)));
    additions.showUntil(kEmptyGlobals);
    additions.passFixed(kEmptyGlobals);
    additions.showUntil(lines.size());
    return additions.text;
}

/// Here init_globals is the program's own, and its pages stand inside the frame.
std::string addedToApplication(const Lines& lines) {
    const Lines empty = splitLines(generate(kEmptyApplication));
    const std::size_t globals = indexOf(empty, kEmptyGlobals, 0);
    const std::size_t page = indexOf(empty, kPage, globals);
    const std::size_t pageEnd = indexOf(empty, kPageEnd, page) + 1;
    const Lines frame = slice(empty, globals + kEmptyGlobals.size(), page);
    const Lines rest = slice(empty, pageEnd, empty.size());

    Additions additions(lines);
    additions.passFixed(slice(empty, 0, globals));
    additions.showUntil(frame);
    additions.passFixed(frame);
    additions.showUntil(lines.size() - rest.size());
    additions.passFixed(rest);
    return additions.text;
}

bool isApplication(const std::string& source) {
    const Parsed parsed = parse(source);
    const auto& statements = parsed.program.statements;
    return std::any_of(statements.begin(), statements.end(), [](const auto& statement) {
        return dynamic_cast<const WebAppNode*>(statement.get()) != nullptr;
    });
}

}  // namespace

std::string addedText(const std::string& source) {
    const Lines lines = splitLines(generate(source));
    return isApplication(source) ? addedToApplication(lines) : addedToConsoleProgram(lines);
}
