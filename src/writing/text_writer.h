// Writes C++ text with its indentation: lines, blocks, and templates whose placeholders are filled.
// Knows no tree.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What stands for one placeholder of a template, by its name without POZHIL_: a switch of #if, a
/// text, or a function that writes it. The template shows where: POZHIL_NAME; alone on a line is a
/// hole, whose function writes whole lines at that indentation; anywhere else it writes in place.
struct Fill {
    std::string_view name;
    std::variant<bool, std::string, std::function<void()>> value;
};
using Fills = std::vector<Fill>;

class TextWriter {
public:
    /// Keeps references to both, which must outlive it. `level` is the depth of indentation.
    TextWriter(std::ostream& out, int& level) : out(out), level(level) {}

    /// Appends four blanks a level.
    void indent();
    /// One line at the indentation.
    void line(std::string_view text);
    /// A brace at the end of the line begun, what `body` writes one level deeper, and the closing
    /// brace on a line of its own, which stays open.
    template <typename Body>
    void braces(Body body) {
        out << "{\n";
        level++;
        body();
        level--;
        indent();
        out << "}";
    }
    /// The same behind an indented `head`, with `tail` behind the closing brace.
    template <typename Body>
    void block(std::string_view head, Body body, std::string_view tail = "\n") {
        indent();
        out << head;
        braces(body);
        out << tail;
    }

    /// Writes a template line by line at the indentation. #if POZHIL_X, its #else and its #endif
    /// are resolved; every other directive passes through at the margin. Throws std::logic_error
    /// for a placeholder without a fill, wherever it stands, for a fill without a place, and for a
    /// directive of a switch that isn't closed.
    void fill(std::string_view text, const Fills& fills);

    std::ostream& out;
    int& level;
};
