#include "companion/language_server/code.h"

#include <algorithm>

#include "lexer/word_tables.h"

namespace companion::language_server {

namespace {

bool opens(const CodePiece& piece) {
    return piece.isMark("(") || piece.isMark("[") || piece.isMark("{");
}

bool closes(const CodePiece& piece) {
    return piece.isMark(")") || piece.isMark("]") || piece.isMark("}");
}

bool isComment(PieceKind kind) {
    return kind == PieceKind::Comment || kind == PieceKind::BlockComment;
}

const CodePiece* pieceIn(const std::vector<CodePiece>& pieces, std::size_t offset) {
    const auto behind =
        std::upper_bound(pieces.begin(), pieces.end(), offset,
                         [](std::size_t at, const CodePiece& p) { return at < p.piece.begin; });
    if (behind == pieces.begin()) return nullptr;
    const CodePiece& piece = *(behind - 1);
    return offset <= piece.piece.end ? &piece : nullptr;
}

}  // namespace

Code::Code(std::string_view text) : whole(text) {
    PieceReader reader(text, OpenTexts::AsMeant);
    Piece piece{};
    int line = 0;
    std::size_t lineStart = 0;
    bool isAtStart = true;
    int indent = 0;
    while (reader.next(piece)) {
        const std::string_view words = text.substr(piece.begin, piece.end - piece.begin);
        if (piece.kind == PieceKind::LineEnd) {
            line++;
            lineStart = piece.end;
            isAtStart = true;
            continue;
        }
        if (piece.kind == PieceKind::Blank) continue;
        if (isAtStart) indent = static_cast<int>(piece.begin - lineStart);
        const TokenType type =
            piece.kind == PieceKind::Word ? lookUpWord(words) : TokenType::UNKNOWN;
        const CodePiece entry{piece, words, type, line, indent, isAtStart};
        if (isComment(piece.kind)) {
            remarks.push_back(entry);
        } else {
            code.push_back(entry);
            isAtStart = false;
        }
        line += static_cast<int>(std::count(words.begin(), words.end(), '\n'));
    }
    pairBrackets();
}

void Code::pairBrackets() {
    partners.assign(code.size(), code.size());
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < code.size(); at++) {
        if (opens(code[at])) {
            open.push_back(at);
        } else if (closes(code[at]) && !open.empty()) {
            partners[open.back()] = at;
            partners[at] = open.back();
            open.pop_back();
        }
    }
}

const CodePiece* Code::pieceAt(std::size_t offset) const {
    const CodePiece* piece = pieceIn(code, offset);
    if (piece != nullptr && offset < piece->piece.end) {
        // Between a word and a mark behind it one asks for the word.
        const bool hasWordBefore = piece != code.data() && offset == piece->piece.begin &&
                                   (piece - 1)->piece.end == offset && (piece - 1)->isWord();
        return hasWordBefore && !piece->isWord() ? piece - 1 : piece;
    }
    const CodePiece* comment = pieceIn(remarks, offset);
    return comment != nullptr && (piece == nullptr || offset < comment->piece.end) ? comment
                                                                                   : piece;
}

std::vector<Opening> Code::openAt(std::size_t offset) const {
    std::vector<Opening> open;
    for (std::size_t at = 0; at < code.size() && code[at].piece.end <= offset; at++) {
        if (opens(code[at])) {
            Opening opening{at, std::nullopt};
            if (at > 0 && code[at - 1].isWord()) opening.word = at - 1;
            if (at > 0 && code[at].isMark("(") && code[at - 1].isMark(")")) {
                const std::size_t first = partners[at - 1];
                if (first < code.size() && first > 0 && code[first - 1].isWord()) {
                    opening.word = first - 1;
                }
            }
            open.push_back(opening);
        } else if (closes(code[at]) && !open.empty()) {
            open.pop_back();
        } else if (code[at].isMark(",") && !open.empty()) {
            open.back().commas++;
        }
    }
    return open;
}

std::size_t Code::closing(std::size_t index) const {
    return index < partners.size() && opens(code[index]) ? partners[index] : code.size();
}

std::size_t Code::behindLine(std::size_t index) const {
    const int line = code[index].line;
    while (index < code.size() && code[index].line == line) index++;
    return index;
}

std::size_t Code::behindBlock(std::size_t index) const {
    const int indent = code[index].indent;
    std::size_t at = behindLine(index);
    while (at < code.size() && code[at].indent > indent) at = behindLine(at);
    return at;
}

}  // namespace companion::language_server
