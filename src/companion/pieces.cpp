#include "companion/pieces.h"

#include <algorithm>

#include "lexer/characters.h"

namespace companion {

namespace {

constexpr std::string_view kBlockSign = "ஃஃ";

bool isBlank(char byte) { return byte == ' ' || byte == '\t' || byte == '\r'; }

bool isWordByte(char byte) { return !isAsciiMark(static_cast<unsigned char>(byte)); }

}  // namespace

bool PieceReader::next(Piece& piece) {
    if (position >= text.size()) return false;
    const char byte = text[position];
    if (byte == '\n') {
        piece = cut(PieceKind::LineEnd, position + 1);
    } else if (isBlank(byte)) {
        piece = readBlank();
    } else if (byte == '"') {
        piece = readText();
    } else if (byte == '\'') {
        piece = readCharacter();
    } else if (isAsciiDigit(byte) || atTamilDigit(position)) {
        piece = readNumber();
    } else if (position == 0 && startsWith(kByteOrderMark)) {
        piece = cut(PieceKind::Mark, kByteOrderMark.size());
    } else if (startsWith(kCommentSign)) {
        piece = readComment();
    } else if (isWordByte(byte)) {
        piece = cut(PieceKind::Word, endOfWord());
    } else {
        piece = cut(PieceKind::Mark, position + 1);
    }
    return true;
}

Piece PieceReader::cut(PieceKind kind, std::size_t end, bool isClosed) {
    const Piece piece{kind, position, std::min(end, text.size()), isClosed};
    position = piece.end;
    return piece;
}

Piece PieceReader::readBlank() {
    std::size_t end = position;
    while (end < text.size() && isBlank(text[end])) end++;
    return cut(PieceKind::Blank, end);
}

Piece PieceReader::readComment() {
    if (!startsWith(kBlockSign)) return cut(PieceKind::Comment, endOfLine(position));
    const std::size_t end = text.find(kBlockSign, position + kBlockSign.size());
    if (end == std::string_view::npos) return cut(PieceKind::BlockComment, text.size(), false);
    return cut(PieceKind::BlockComment, end + kBlockSign.size());
}

Piece PieceReader::readText() {
    const std::size_t closing = text.find('"', position + 1);
    if (!hasLineEnd(position, closing)) return cut(PieceKind::Text, closing + 1);
    if (openTexts == OpenTexts::AsMeant && opensAnother(closing)) {
        return cut(PieceKind::Text, endOfLine(position), false);
    }
    if (closing == std::string_view::npos) return cut(PieceKind::Text, text.size(), false);
    return cut(PieceKind::Text, closing + 1);
}

/// Looks no further than `to`: a line may hold thousands of texts.
bool PieceReader::hasLineEnd(std::size_t from, std::size_t to) const {
    return to == std::string_view::npos ||
           text.substr(from, to - from).find('\n') != std::string_view::npos;
}

/// True if `quote`, which ends a text of several lines, was meant to begin one: quotes pair up line
/// by line except where one was forgotten, so an odd number stands behind it. Also if there is
/// none.
bool PieceReader::opensAnother(std::size_t quote) const {
    if (quote == std::string_view::npos) return true;
    const std::string_view rest = text.substr(quote + 1, endOfLine(quote) - quote - 1);
    return std::count(rest.begin(), rest.end(), '"') % 2 != 0;
}

Piece PieceReader::readCharacter() {
    const std::size_t closing = text.find('\'', position + 1);
    if (!hasLineEnd(position, closing)) return cut(PieceKind::Character, closing + 1);
    return cut(PieceKind::Character, endOfLine(position), false);
}

Piece PieceReader::readNumber() {
    std::size_t end = position;
    if (isAsciiDigit(text[position])) {
        while (end < text.size() && (isAsciiDigit(text[end]) || text[end] == '.')) end++;
    } else {
        while (atTamilDigit(end)) end += 3;
    }
    if (end < text.size() && text[end] == '%') end++;
    return cut(PieceKind::Number, end);
}

std::size_t PieceReader::endOfWord() const {
    std::size_t end = position;
    while (end < text.size() && isWordByte(text[end])) end++;
    return end;
}

std::size_t PieceReader::endOfLine(std::size_t from) const {
    return std::min(text.find('\n', from), text.size());
}

bool PieceReader::startsWith(std::string_view mark) const {
    return text.compare(position, mark.size(), mark) == 0;
}

/// ௦ to ௯: the bytes E0 AF A6 to E0 AF AF.
bool PieceReader::atTamilDigit(std::size_t at) const {
    if (at + 3 > text.size() || text.compare(at, 2, "\xE0\xAF") != 0) return false;
    const auto third = static_cast<unsigned char>(text[at + 2]);
    return third >= 0xA6 && third <= 0xAF;
}

}  // namespace companion
