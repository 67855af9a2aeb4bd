// How many blanks stand between two neighbours in a line.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "companion/pieces.h"
#include "lexer/token.h"

namespace companion {

/// One piece of code with what the spacing asks about it.
struct Neighbour {
    PieceKind kind;
    std::string_view bytes;
    TokenType wordKind = TokenType::UNKNOWN;  ///< Of a word.

    bool is(std::string_view mark) const { return kind == PieceKind::Mark && bytes == mark; }
};

class Spacing {
public:
    /// The blanks before `right`, which follows the last one in its line after `written` blanks.
    std::size_t before(const Neighbour& right, std::size_t written);
    /// Takes the pieces of code in their order, each behind the question about it.
    void pass(const Neighbour& piece);
    /// Behind a line's end, or a semicolon.
    void beginLine();

private:
    struct Bracket {
        bool isOfLambda;  ///< Opened behind வினை.
        int choices = 0;  ///< Open choices ("? :") directly in it.
    };
    std::size_t beforeMark(const Neighbour& right, std::size_t written) const;
    std::size_t beforeOpening(const Neighbour& right, std::size_t written) const;
    std::size_t beforeDot(std::size_t written) const;
    std::size_t behindMark(const Neighbour& right, std::size_t written) const;
    bool closesChoice() const;

    std::vector<Bracket> brackets = {{false}};
    std::optional<Neighbour> left;     ///< In this line.
    std::optional<Neighbour> farLeft;  ///< Before it.
    bool isBehindLambdaHead = false;   ///< `left` closes the bracket of a வினை.
};

}  // namespace companion
