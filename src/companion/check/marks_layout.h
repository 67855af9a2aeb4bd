// Marks of layout that mislead: line ends of other systems, tabs, blanks at the end of the text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/check/findings.h"
#include "companion/pieces.h"

namespace companion {

class LayoutMarks {
public:
    LayoutMarks(const SourceText& source, Findings& findings)
        : source(source), findings(findings) {}

    /// Takes the pieces in their order.
    void look(const Piece& piece);
    /// Behind the last one.
    void finish();

private:
    void lookAtReturns(Range blank);
    void endBlankLine();
    void beginCodeLine();
    std::string withoutTabs(Range range) const;

    const SourceText& source;
    Findings& findings;
    std::vector<std::size_t> widths = {0};  ///< Of the open blocks.
    bool isAtLineStart = true;
    std::size_t width = 0;  ///< Of the blanks that the line begins with, up to a carriage return.
    std::optional<Range> leading;  ///< The blanks that the line begins with.

    std::optional<Range> firstReturn;  ///< Of a line end that has one.
    std::optional<Range> loneReturn;
    std::optional<Range> firstTab;
    /// An empty line with a carriage return that ends a block, and its width.
    std::optional<Range> blockEnd;
    std::size_t blockEndWidth = 0;
    std::optional<Range> brokenBlock;  ///< The first that a deeper line follows.
};

}  // namespace companion
