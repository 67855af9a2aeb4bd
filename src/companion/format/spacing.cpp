#include "companion/format/spacing.h"

#include <algorithm>

namespace companion {

namespace {

std::size_t atMostOne(std::size_t written) { return std::min<std::size_t>(written, 1); }

bool isOneOf(const Neighbour& piece, std::string_view marks) {
    return piece.kind == PieceKind::Mark && marks.find(piece.bytes) != std::string_view::npos;
}

bool isName(const Neighbour& piece) {
    return piece.kind == PieceKind::Word && piece.wordKind != TokenType::KEYWORD &&
           piece.wordKind != TokenType::OPERATOR && piece.wordKind != TokenType::UNARY_MINUS &&
           piece.wordKind != TokenType::UNARY_PLUS && piece.wordKind != TokenType::BIT_NOT &&
           piece.wordKind != TokenType::ASSIGN_OPERATOR;
}

bool isOperator(const Neighbour& piece) {
    return piece.kind == PieceKind::Word &&
           (piece.wordKind == TokenType::OPERATOR || piece.wordKind == TokenType::ASSIGN_OPERATOR);
}

/// A condition stands before it: எனில் behind it chooses between values.
bool endsValue(const Neighbour& piece) {
    if (piece.kind == PieceKind::Word) return isName(piece);
    return piece.kind != PieceKind::Mark || isOneOf(piece, ")]}");
}

/// A name at a quote was meant to stand inside the text: it stays there, for the check to tell.
bool isGluedName(const Neighbour& name, const Neighbour& quoted) {
    return isName(name) && quoted.kind == PieceKind::Text;
}

}  // namespace

std::size_t Spacing::before(const Neighbour& right, std::size_t written) {
    if (!left) return 0;
    if (right.kind == PieceKind::Mark) return beforeMark(right, written);
    if (left->kind == PieceKind::Mark) return behindMark(right, written);
    if (isGluedName(*left, right) || isGluedName(right, *left)) return atMostOne(written);
    return 1;
}

std::size_t Spacing::beforeMark(const Neighbour& right, std::size_t written) const {
    if (right.is(">") && left->is("=")) return 0;  // the arrow
    if (isOneOf(right, ",;)]")) return 0;
    if (right.is("}")) return atMostOne(written);
    if (isOneOf(right, "([{")) return beforeOpening(right, written);
    if (right.is(".")) return beforeDot(written);
    if (right.is(":")) return closesChoice() ? 1 : 0;
    if (right.is("=")) return left->is("=") ? atMostOne(written) : 1;
    if (right.is("?")) return 1;
    return atMostOne(written);
}

std::size_t Spacing::beforeOpening(const Neighbour& right, std::size_t written) const {
    if (right.is("(") && left->is(")")) return 0;  // a widget's second group
    if (left->kind == PieceKind::Mark) return behindMark(right, written);
    if (right.is("{")) return atMostOne(written);
    const bool isMember = farLeft && farLeft->is(".");
    if (isMember || isName(*left)) return 0;
    if (left->kind != PieceKind::Word) return atMostOne(written);
    if (isOperator(*left) && farLeft && !isOneOf(*farLeft, "([{,=:?")) return 1;
    return right.is("[") ? 1 : atMostOne(written);
}

/// A dot beside digits would become a part of the number.
std::size_t Spacing::beforeDot(std::size_t written) const {
    const bool couldJoin = left->kind == PieceKind::Number || left->bytes == "நிகழ்நேர";
    return couldJoin ? atMostOne(written) : 0;
}

/// What stands behind a mark.
std::size_t Spacing::behindMark(const Neighbour& right, std::size_t written) const {
    if (isOneOf(*left, "([")) return 0;
    if (left->is("{")) return atMostOne(written);
    if (left->is(".")) return right.kind == PieceKind::Number ? atMostOne(written) : 0;
    if (isOneOf(*left, ",:=?>")) return 1;
    if (isOneOf(right, "([{")) return atMostOne(written);
    return 1;
}

bool Spacing::closesChoice() const { return brackets.back().choices > 0 && !isBehindLambdaHead; }

void Spacing::pass(const Neighbour& piece) {
    bool endsLambdaHead = false;
    if (isOneOf(piece, "([{")) {
        brackets.push_back({left && left->bytes == "வினை"});
    } else if (isOneOf(piece, ")]}")) {
        endsLambdaHead = brackets.back().isOfLambda;
        if (brackets.size() > 1) brackets.pop_back();
    } else if (piece.is("?") || (piece.bytes == "எனில்" && left && endsValue(*left))) {
        brackets.back().choices++;
    } else if ((piece.is(":") && closesChoice()) ||
               (piece.bytes == "இல்லைஎனில்" && left && brackets.back().choices > 0)) {
        brackets.back().choices--;
    }
    isBehindLambdaHead = endsLambdaHead;
    farLeft = left;
    left = piece;
}

void Spacing::beginLine() {
    left.reset();
    farLeft.reset();
    isBehindLambdaHead = false;
    if (brackets.size() == 1) brackets.back().choices = 0;
}

}  // namespace companion
