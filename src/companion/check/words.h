// The source's tokens, with the look around that rules by the words alone need.
#pragma once

#include "companion/check/compiled_source.h"
#include "companion/check/findings.h"

namespace companion {

inline bool isLineEnd(TokenType kind) {
    return kind == TokenType::NEWLINE || kind == TokenType::END_OF_FILE;
}

struct WordCheck {
    const CompiledSource& compiled;
    Findings& findings;

    int count() const { return static_cast<int>(compiled.tokens.size()); }
    const Token& at(int index) const { return compiled.tokens[static_cast<std::size_t>(index)]; }
    /// True for the first word of a line.
    bool opensLine(int index) const {
        if (index == 0) return true;
        const TokenType before = at(index - 1).type;
        return before == TokenType::NEWLINE || before == TokenType::INDENT ||
               before == TokenType::DEDENT;
    }
    /// The index of the token that ends the line of `index`.
    int endOfLine(int index) const {
        while (index < count() - 1 && !isLineEnd(at(index).type)) index++;
        return index;
    }
    /// The line of a refusal with a report; 0 without one.
    int refusedLine() const {
        if (!compiled.refused || compiled.refused->code.empty()) return 0;
        return compiled.source.placeOf(compiled.refused->range.begin).line;
    }
    void add(std::string_view code, int index, const std::vector<std::string>& parts = {}) const {
        findings.add(code, compiled.rangeOfToken(index), parts);
    }
};

/// A word more where the parser's report tells what it missed, and not what was meant.
void checkRefusedLine(const WordCheck& check);
/// Colours by names and numbers that come out black.
void checkColours(const WordCheck& check);

}  // namespace companion
