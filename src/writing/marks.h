// Placeholders in a text, and what fills them. One filler serves all that is written from a given
// text: runtime text, widgets, the table of built-ins, the page.
#pragma once

#include <string>
#include <string_view>

/// How placeholders look: the name stands between `open` and `close`. Without a `close` the name is
/// made of capitals, digits and underscores, and ends in front of trailing underscores, so that it
/// may be a part of an identifier: checked_POZHIL_ID_0.
struct MarkStyle {
    std::string_view open;
    std::string_view close;
};

constexpr MarkStyle kCodeMarks = {"POZHIL_", ""};   ///< In C++: an identifier or a part of one.
constexpr MarkStyle kTableMarks = {"$", ""};        ///< In the texts of tables.
constexpr MarkStyle kPageMarks = {"{{{ ", " }}}"};  ///< In the page.

/// The first mark of `text`, if there is one.
struct Mark {
    std::size_t at = std::string_view::npos;
    std::size_t length = 0;  ///< Bytes, with all that surrounds the name.
    std::string_view name;
};
Mark findMark(std::string_view text, const MarkStyle& style);

/// Copies `text` to `out` with its marks replaced: `write(name)` writes what stands for one, or
/// returns false and leaves the mark as it is. What is written isn't looked at again: a file may be
/// named like a mark.
template <typename Stream, typename Write>
void fillMarks(Stream& out, std::string_view text, const MarkStyle& style, Write write) {
    while (true) {
        const Mark mark = findMark(text, style);
        out << text.substr(0, mark.at);
        if (mark.at == std::string_view::npos) return;
        const bool isFilled = write(mark.name);
        // Inside a mark that isn't known another may begin.
        const std::size_t taken = isFilled ? mark.length : style.open.size();
        if (!isFilled) out << style.open;
        text.remove_prefix(mark.at + taken);
    }
}
