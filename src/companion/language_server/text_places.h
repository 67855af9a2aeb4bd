// Places in a text as editors tell them: lines, and units of UTF-16 within a line, both from 0.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "companion/check/source_text.h"

namespace companion::language_server {

struct Position {
    int line = 0;
    int character = 0;  ///< In units of UTF-16.
};

struct PositionRange {
    Position start;
    Position end;
};

/// Turns byte offsets into positions and back. Lines end as editors see it: at \n, \r\n and \r.
class TextPlaces {
public:
    /// `text` must outlive it and stay as it is.
    explicit TextPlaces(std::string_view text);

    /// Offsets that are asked for in their order cost no more than the text between them.
    Position positionOf(std::size_t offset) const;
    PositionRange rangeOf(Range range) const {
        return {positionOf(range.begin), positionOf(range.end)};
    }

    /// A position that isn't there means the nearest that is: the line's end, the text's end.
    std::size_t offsetOf(Position position) const;
    Range rangeOf(PositionRange range) const;

    int lineCount() const { return static_cast<int>(lineStarts.size()); }
    /// Line `line` from 0, without its end.
    Range line(int line) const;

private:
    /// A place within a line that was asked for, from which the next is reached sooner.
    struct Reached {
        std::size_t line;
        std::size_t offset;
        int character;
    };

    std::string_view text;
    std::vector<std::size_t> lineStarts;
    mutable Reached reached = {0, 0, 0};
};

}  // namespace companion::language_server
