// Writes a screen anew with its lines broken elsewhere, at places where the grammar lets a line
// break: its tree stays the same but for the line numbers.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "lexer/token.h"

class Rebreaker {
public:
    /// The same seed gives the same text. The tokens of the screen have to outlive this.
    Rebreaker(const std::vector<Token>& tokens, unsigned seed);
    std::string text();

private:
    enum class Bracket {
        Items,       ///< Items with commas that may be left out.
        Properties,  ///< Like items; the first stands directly behind the parenthesis.
        Children,
        TextStyle,  ///< Like items, but a comma stands directly behind its item.
        Free,       ///< Breaks between any two tokens.
        Map,        ///< Like free, with commas that must stay.
        Press,
        Body,
        Expression,  ///< No break at all.
    };
    struct Level {
        Bracket bracket;
        TokenType owner;  ///< The word before the bracket.
        int depth = 0;    ///< Indentations of this bracket that are open.
    };

    bool oneIn(unsigned count) { return random() % count == 0; }
    const Token& token(std::size_t at) const { return tokens[at < tokens.size() ? at : last]; }
    bool isLayout(const Token& token) const;
    std::size_t skipLayout(std::size_t at) const;
    void write(const Token& token);
    void breakLine(bool mayIndent, bool mayDedent);
    void breakSomewhere();
    void breakBefore(const Token& token);
    void separate();
    void writeLogic();
    Bracket bracketAt(std::size_t word) const;
    Bracket groupAt(std::size_t parenthesis) const;
    static bool isAlignmentOfABox(const Level& level);
    void open(const Token& token);

    const std::vector<Token>& tokens;
    std::size_t last;
    std::size_t at = 0;
    std::mt19937 random;
    std::string out;
    std::vector<int> widths = {0};  ///< As the scanner keeps them.
    std::vector<Level> levels;
    bool justOpened = false;
    bool justClosedGroup = false;               ///< A second group may follow.
    TokenType groupOwner = TokenType::UNKNOWN;  ///< The word before the bracket that closed last.
    bool boundary = false;                      ///< An item has ended.
};
