#include "companion/format/cleaned.h"

#include <unordered_set>

#include "companion/check/marks_spelling.h"
#include "companion/pieces.h"
#include "lexer/word_tables.h"

namespace companion {

namespace {

constexpr std::size_t kTabWidth = 4;

class Cleaner {
public:
    explicit Cleaner(std::string_view text) : text(text) {}

    std::string run();

private:
    void write(const Piece& piece);
    void writeBlank(const Piece& blank);
    void writeWord(std::string_view word);
    void writeComment(std::string_view comment);
    void writeBlockComment(std::string_view comment);
    void gatherNames();

    std::string_view text;
    std::string result;
    bool isAtLineStart = true;
    bool hasNames = false;
    std::unordered_set<std::string_view> names;
};

std::string Cleaner::run() {
    result.reserve(text.size() + 1);
    PieceReader reader(text, OpenTexts::AsScanned);
    Piece piece{};
    while (reader.next(piece)) {
        write(piece);
        const std::string_view bytes = text.substr(piece.begin, piece.end - piece.begin);
        const bool startsLine = piece.kind == PieceKind::LineEnd || bytes == ";";
        isAtLineStart = startsLine || (isAtLineStart && piece.kind == PieceKind::Blank) ||
                        bytes == kByteOrderMark;
    }
    if (!result.empty() && result.back() != '\n') result += '\n';
    return std::move(result);
}

void Cleaner::write(const Piece& piece) {
    const std::string_view bytes = text.substr(piece.begin, piece.end - piece.begin);
    switch (piece.kind) {
        case PieceKind::Blank: return writeBlank(piece);
        case PieceKind::Word: return writeWord(bytes);
        case PieceKind::Comment: return writeComment(bytes);
        case PieceKind::BlockComment: return writeBlockComment(bytes);
        default: break;
    }
    if (bytes != kByteOrderMark) result += bytes;
}

/// A tab goes to the next fourth column where a line begins; elsewhere it parts words as a blank
/// does. Blanks that the text ends with would be a line of code.
void Cleaner::writeBlank(const Piece& blank) {
    if (blank.end == text.size()) return;
    if (!isAtLineStart) {
        result += ' ';
        result.append(blank.end - blank.begin - 1, ' ');
        return;
    }
    std::size_t width = 0;
    for (const char byte : text.substr(blank.begin, blank.end - blank.begin)) {
        if (byte == ' ') width++;
        if (byte == '\t') width = (width / kTabWidth + 1) * kTabWidth;
    }
    result.append(width, ' ');
}

/// A name that stands in the program in both spellings is two names: it stays so.
void Cleaner::writeWord(std::string_view word) {
    if (!spellingOf(word).isSplit) {
        result += word;
        return;
    }
    gatherNames();
    const std::string whole = composed(word);
    const bool isAnotherName =
        lookUpWord(whole) == TokenType::IDENTIFIER && names.count(whole) != 0;
    result += isAnotherName ? std::string(word) : whole;
}

void Cleaner::writeComment(std::string_view comment) {
    const std::size_t last = comment.find_last_not_of(" \t\r");
    result += comment.substr(0, last + 1);
}

void Cleaner::writeBlockComment(std::string_view comment) {
    for (std::size_t at = 0; at < comment.size(); at++) {
        const bool isReturn = comment[at] == '\r' && comment.substr(at + 1, 1) == "\n";
        if (!isReturn) result += comment[at];
    }
}

void Cleaner::gatherNames() {
    if (hasNames) return;
    hasNames = true;
    PieceReader reader(text, OpenTexts::AsScanned);
    Piece piece{};
    while (reader.next(piece)) {
        if (piece.kind == PieceKind::Word) {
            names.insert(text.substr(piece.begin, piece.end - piece.begin));
        }
    }
}

}  // namespace

std::string cleaned(std::string_view text) { return Cleaner(text).run(); }

}  // namespace companion
