#include "companion/format/layout.h"

#include <algorithm>
#include <vector>

#include "companion/format/spacing.h"
#include "companion/pieces.h"
#include "lexer/word_tables.h"

namespace companion {

namespace {

constexpr std::size_t kIndentation = 4;

using Widths = std::vector<std::size_t>;

/// A comment in lines of its own waits for the code that it belongs to.
struct WaitingComment {
    std::string_view bytes;
    std::size_t width;  ///< Of the blanks before it.
    bool isBehindEmptyLine;
};

/// How deep a comment stands between code of the widths `former` and code of `level`: like what
/// follows, but where blocks end it may belong to one of them, `deepest` at most.
std::size_t levelOfComment(const WaitingComment& comment, const Widths& former, std::size_t level,
                           std::size_t deepest) {
    std::size_t found = level;
    for (std::size_t deeper = level + 1; deeper < former.size() && deeper <= deepest; deeper++) {
        if (former[deeper] <= comment.width) found = deeper;
    }
    return found;
}

class Layout {
public:
    explicit Layout(std::string_view text) : text(text), reader(text, OpenTexts::AsScanned) {}

    std::string run();

private:
    void endLine();
    void writeCode();
    void beginStatement();
    void writeComment();
    void writeWaiting(const Widths& former, std::size_t level);
    void beginLine(std::size_t level, bool isBehindEmptyLine);
    std::size_t enterLevel(std::size_t width);
    bool isLastOfLine() const;
    std::string_view bytes() const { return text.substr(piece.begin, piece.end - piece.begin); }

    std::string_view text;
    PieceReader reader;
    Piece piece{};
    std::string result;
    Spacing spacing;
    Widths widths = {0};  ///< Of the open blocks, as the source has them.
    std::vector<WaitingComment> waiting;

    std::size_t blanks = 0;          ///< Before the piece, in its line.
    bool isAtStatement = true;       ///< The blanks before the piece tell its block.
    bool hasLineBegun = false;       ///< Something of the line is written.
    bool holdsWaiting = false;       ///< A comment of the line waits.
    bool isBehindComment = false;    ///< A block comment in the line.
    bool isBehindEmptyLine = false;  ///< One or more stand before this line.
};

std::string Layout::run() {
    result.reserve(text.size());
    while (reader.next(piece)) {
        if (piece.kind == PieceKind::Blank) {
            blanks = piece.end - piece.begin;
            continue;
        }
        switch (piece.kind) {
            case PieceKind::LineEnd: endLine(); break;
            case PieceKind::Comment:
            case PieceKind::BlockComment: writeComment(); break;
            default: writeCode();
        }
        blanks = 0;
    }
    writeWaiting(widths, 0);
    return std::move(result);
}

void Layout::endLine() {
    if (hasLineBegun) {
        result += '\n';
    } else if (!holdsWaiting) {
        isBehindEmptyLine = true;
    }
    hasLineBegun = false;
    holdsWaiting = false;
    isAtStatement = true;
    isBehindComment = false;
    spacing.beginLine();
}

void Layout::writeCode() {
    Neighbour neighbour{piece.kind, bytes()};
    if (piece.kind == PieceKind::Word) neighbour.wordKind = lookUpWord(bytes());
    if (isAtStatement) {
        beginStatement();
    } else {
        const std::size_t wanted = spacing.before(neighbour, blanks);
        result.append(isBehindComment ? std::min<std::size_t>(blanks, 1) : wanted, ' ');
    }
    isBehindComment = false;
    result += bytes();
    spacing.pass(neighbour);
    if (neighbour.is(";")) {
        isAtStatement = true;
        spacing.beginLine();
    }
}

/// Behind a semicolon the blanks tell the block too: they are kept, in our width.
void Layout::beginStatement() {
    const Widths former = widths;
    const std::size_t level = enterLevel(blanks);
    if (hasLineBegun) {
        result.append(level * kIndentation, ' ');
    } else {
        writeWaiting(former, level);
        beginLine(level, isBehindEmptyLine);
        isBehindEmptyLine = false;
    }
    isAtStatement = false;
}

void Layout::writeComment() {
    if (!hasLineBegun && isLastOfLine()) {
        waiting.push_back({bytes(), blanks, isBehindEmptyLine});
        isBehindEmptyLine = false;
        holdsWaiting = true;
        return;
    }
    if (hasLineBegun) {
        const std::size_t least = piece.kind == PieceKind::Comment ? 1 : 0;
        result.append(std::max(blanks, least), ' ');
    } else {
        // The code behind it belongs to the block that is open, however deep it stands.
        const std::size_t level = widths.size() - 1;
        writeWaiting(widths, level);
        beginLine(level, isBehindEmptyLine);
        isBehindEmptyLine = false;
    }
    result += bytes();
    isAtStatement = false;
    isBehindComment = true;
}

void Layout::writeWaiting(const Widths& former, std::size_t level) {
    std::size_t deepest = former.size();
    for (const WaitingComment& comment : waiting) {
        deepest = levelOfComment(comment, former, level, deepest);
        beginLine(deepest, comment.isBehindEmptyLine);
        result += comment.bytes;
        result += '\n';
    }
    waiting.clear();
}

void Layout::beginLine(std::size_t level, bool isBehindEmpty) {
    if (isBehindEmpty && !result.empty()) result += '\n';
    result.append(level * kIndentation, ' ');
    hasLineBegun = true;
}

std::size_t Layout::enterLevel(std::size_t width) {
    while (widths.back() > width) widths.pop_back();
    if (widths.back() < width) widths.push_back(width);
    return widths.size() - 1;
}

bool Layout::isLastOfLine() const {
    const std::size_t next = text.find_first_not_of(' ', piece.end);
    return next == std::string_view::npos || text[next] == '\n';
}

}  // namespace

std::string laidOut(std::string_view text) { return Layout(text).run(); }

}  // namespace companion
