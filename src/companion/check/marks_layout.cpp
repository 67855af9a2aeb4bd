#include "companion/check/marks_layout.h"

#include <algorithm>

namespace companion {

/// The blanks of `range` with each tab drawn out to the next multiple of four.
std::string LayoutMarks::withoutTabs(Range range) const {
    constexpr std::size_t kTabWidth = 4;
    std::string blanks;
    for (const char byte : source.slice(range)) {
        if (byte == '\t') {
            blanks.append(kTabWidth - blanks.size() % kTabWidth, ' ');
        } else {
            blanks += byte;
        }
    }
    return blanks;
}

void LayoutMarks::look(const Piece& piece) {
    const Range range{piece.begin, piece.end};
    switch (piece.kind) {
        case PieceKind::Blank:
            lookAtReturns(range);
            if (!isAtLineStart) return;
            leading = range;
            width = std::min(source.slice(range).find('\r'), range.end - range.begin);
            if (!firstTab && source.slice(range).find('\t') != std::string_view::npos) {
                firstTab = range;
            }
            return;
        case PieceKind::LineEnd:
            if (isAtLineStart) endBlankLine();
            break;
        case PieceKind::Comment:
        case PieceKind::BlockComment: isAtLineStart = false; return;
        default:
            if (isAtLineStart) beginCodeLine();
            isAtLineStart = source.slice(range) == ";";
            if (!isAtLineStart) return;
    }
    isAtLineStart = true;
    width = 0;
    leading.reset();
}

void LayoutMarks::lookAtReturns(Range blank) {
    const std::size_t at = source.slice(blank).find('\r');
    if (at == std::string_view::npos) return;
    const Range mark{blank.begin + at, blank.begin + at + 1};
    const bool endsLine = mark.end < source.text.size() && source.text[mark.end] == '\n';
    std::optional<Range>& first = endsLine ? firstReturn : loneReturn;
    if (!first && mark.end < source.text.size()) first = mark;
}

/// To the scanner a carriage return is code: such a line ends blocks that are deeper than it.
void LayoutMarks::endBlankLine() {
    const bool hasReturn = leading && source.slice(*leading).find('\r') != std::string_view::npos;
    if (!hasReturn || widths.back() <= width) return;
    if (!blockEnd || blockEndWidth > width) {
        blockEnd = *leading;
        blockEndWidth = width;
    }
}

void LayoutMarks::beginCodeLine() {
    if (blockEnd && width > blockEndWidth && !brokenBlock) brokenBlock = blockEnd;
    blockEnd.reset();
    while (widths.back() > width) widths.pop_back();
    if (widths.back() < width) widths.push_back(width);
}

void LayoutMarks::finish() {
    if (firstTab) findings.add("துணை-105", *firstTab, {}, {*firstTab, withoutTabs(*firstTab)});
    if (loneReturn) findings.add("துணை-104", *loneReturn);
    if (brokenBlock) {
        findings.add("துணை-102", *brokenBlock);
    } else if (firstReturn) {
        findings.add("துணை-103", *firstReturn);
    }
    // Blanks at the end that no line end follows are a line of code of their width.
    const bool isCode = isAtLineStart && leading && leading->end == source.text.size();
    if (isCode && !firstTab && width > 0) {
        findings.add("துணை-106", *leading, {}, {*leading, ""});
    }
}

}  // namespace companion
