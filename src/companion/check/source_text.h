// A source with its places: byte offsets to lines and columns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace companion {

/// Where a character stands, for people: both count from 1, columns in code points.
struct Place {
    int line;
    int column;
};

/// A stretch of the source, in bytes, without its end.
struct Range {
    std::size_t begin;
    std::size_t end;
};

class SourceText {
public:
    /// `path` is shown as it stands; `text` is the whole source, UTF-8 as a rule.
    SourceText(std::string path, std::string text);

    /// Offsets that are asked for in their order cost no more than the text between them.
    Place placeOf(std::size_t offset) const;

    /// The number of lines; a line end at the end of the text opens no further one.
    int lineCount() const;

    /// Line `line`, counted from 1, without its end; all of it as a range too. Empty if there is
    /// none.
    std::string_view line(int line) const;
    Range rangeOfLine(int line) const;
    /// The same without the blanks at both sides.
    Range rangeOfWordsOn(int line) const;

    std::string_view slice(Range range) const {
        return std::string_view(text).substr(range.begin, range.end - range.begin);
    }

    const std::string path;
    const std::string text;

private:
    /// A place that was asked for, from which the next in its line is reached sooner.
    struct Reached {
        std::size_t start;  ///< Of its line.
        std::size_t offset;
        int column;
    };

    std::vector<std::size_t> lineStarts;
    mutable Reached reached = {0, 0, 1};
};

/// The number of code points in `text`; a byte that belongs to none counts as one.
int countCodePoints(std::string_view text);

}  // namespace companion
