// A source cut into pieces as a person reads it, whether the scanner takes it or not: words, marks,
// texts in quotes, comments, blanks. Nothing is refused, and every byte belongs to a piece.
#pragma once

#include <cstddef>
#include <string_view>

namespace companion {

enum class PieceKind { Blank, LineEnd, Word, Number, Mark, Text, Character, Comment, BlockComment };

struct Piece {
    PieceKind kind;
    std::size_t begin;
    std::size_t end;
    bool isClosed = true;  ///< False for a text or comment that lacks its end.
};

/// Where a text ends whose quote isn't closed in its line.
enum class OpenTexts {
    AsScanned,  ///< At the next quote, however far.
    AsMeant,    ///< At its line's end, if the quotes behind it only pair up so.
};

class PieceReader {
public:
    /// `text` must outlive it.
    PieceReader(std::string_view text, OpenTexts openTexts) : text(text), openTexts(openTexts) {}

    /// The next piece; false at the end of the text.
    bool next(Piece& piece);
    /// Goes on at `offset`.
    void continueAt(std::size_t offset) { position = offset; }

private:
    Piece cut(PieceKind kind, std::size_t end, bool isClosed = true);
    Piece readBlank();
    Piece readComment();
    Piece readText();
    Piece readCharacter();
    Piece readNumber();
    std::size_t endOfWord() const;
    std::size_t endOfLine(std::size_t from) const;
    bool hasLineEnd(std::size_t from, std::size_t to) const;
    bool opensAnother(std::size_t quote) const;
    bool startsWith(std::string_view mark) const;
    bool atTamilDigit(std::size_t at) const;

    std::string_view text;
    OpenTexts openTexts;
    std::size_t position = 0;
};

inline constexpr std::string_view kCommentSign = "ஃ";
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace companion
