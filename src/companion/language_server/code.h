// A source as its words, marks and texts, whether the compiler takes it or not: what can be told of
// a program while it is being written.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "companion/check/source_text.h"
#include "companion/pieces.h"
#include "lexer/token.h"

namespace companion::language_server {

/// A piece of code, and the line that it stands in.
struct CodePiece {
    Piece piece;
    std::string_view text;
    TokenType type;  ///< Of a word, by the tables of the language; UNKNOWN for anything else.
    int line;        ///< From 0, by line ends.
    int indent;      ///< Of the line, in bytes.
    bool opensLine;  ///< The first piece of its line that is no comment.
    Range range() const { return {piece.begin, piece.end}; }
    bool isMark(std::string_view mark) const {
        return piece.kind == PieceKind::Mark && text == mark;
    }
    bool isWord() const { return piece.kind == PieceKind::Word; }
    bool isName() const { return isWord() && type == TokenType::IDENTIFIER; }
};

/// What an open parenthesis, bracket or brace belongs to.
struct Opening {
    std::size_t bracket;              ///< Index of the bracket.
    std::optional<std::size_t> word;  ///< Index of the word before it.
    int commas = 0;                   ///< Behind it, up to where one looks.
};

class Code {
public:
    /// `text` must outlive it.
    explicit Code(std::string_view text);

    const std::vector<CodePiece>& pieces() const { return code; }
    const std::vector<CodePiece>& comments() const { return remarks; }
    std::size_t size() const { return code.size(); }
    const CodePiece& at(std::size_t index) const { return code[index]; }
    /// True for a mark at `index`; false behind the end.
    bool isMarkAt(std::size_t index, std::string_view mark) const {
        return index < code.size() && code[index].isMark(mark);
    }

    /// The piece of code or comment that `offset` stands in or right behind; null in blanks.
    const CodePiece* pieceAt(std::size_t offset) const;
    /// The brackets that are open at `offset`, the outermost first. A widget's second parentheses
    /// belong to the word before its first.
    std::vector<Opening> openAt(std::size_t offset) const;
    /// The index of the bracket that closes the one at `index`; the size if nothing does.
    std::size_t closing(std::size_t index) const;

    /// The index behind the last piece of the lines that stand deeper than the line of `index` and
    /// follow it.
    std::size_t behindBlock(std::size_t index) const;
    /// The index behind the last piece of the line of `index`.
    std::size_t behindLine(std::size_t index) const;

    std::string_view text() const { return whole; }

private:
    std::string_view whole;
    std::vector<CodePiece> code;
    std::vector<CodePiece> remarks;
    std::vector<std::size_t> partners;  ///< For each piece its other bracket; the size without.
    void pairBrackets();
};

}  // namespace companion::language_server
