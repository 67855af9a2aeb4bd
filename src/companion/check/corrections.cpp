#include "companion/check/corrections.h"

#include "lexer/characters.h"
#include "lexer/spelling.h"

namespace companion {

namespace {

bool isSpaceOrTab(char byte) { return byte == ' ' || byte == '\t'; }

bool isMarkAt(std::string_view text, std::size_t at) {
    return at >= text.size() || isAsciiMark(static_cast<unsigned char>(text[at]));
}

/// சுற்றி  ->  சுற்று
std::optional<Correction> correctKeyword(const CompiledSource& compiled) {
    const Range word = compiled.refused->range;
    const std::string_view keyword = misspeltKeyword(compiled.source.slice(word));
    if (keyword.empty()) return std::nullopt;
    return Correction{word, std::string(keyword)};
}

/// அச்சி டு  ->  அச்சிடு
std::optional<Correction> joinKeyword(const CompiledSource& compiled) {
    const std::string& text = compiled.source.text;
    const Range first = compiled.refused->range;
    std::size_t begin = first.end;
    while (begin < text.size() && isSpaceOrTab(text[begin])) begin++;
    std::size_t end = begin;
    while (!isMarkAt(text, end)) end++;
    if (begin == first.end || end == begin) return std::nullopt;
    const Range both{first.begin, end};
    return Correction{both,
                      std::string(compiled.source.slice(first)) + text.substr(begin, end - begin)};
}

/// The parser's place when it gave up.
class Stopped {
public:
    explicit Stopped(const CompiledSource& compiled)
        : compiled(compiled), at(compiled.parser->current) {}

    bool isAt(TokenType type, int behind = 0) const {
        const int index = at + behind;
        return index >= 0 && static_cast<std::size_t>(index) < compiled.tokens.size() &&
               compiled.tokens[static_cast<std::size_t>(index)].type == type;
    }
    bool isAtLineEnd() const {
        return at > 0 && (isAt(TokenType::NEWLINE) || isAt(TokenType::END_OF_FILE));
    }
    /// In front of the colon that ends its line.
    bool isAtLastColon() const {
        return isAt(TokenType::COLON) &&
               (isAt(TokenType::NEWLINE, 1) || isAt(TokenType::END_OF_FILE, 1));
    }
    /// Its line begins with a word that opens a block, and a block follows.
    bool isBehindBlockHead() const {
        int first = at;
        while (first > 0 && compiled.tokens[static_cast<std::size_t>(first - 1)].line ==
                                compiled.tokens[static_cast<std::size_t>(at)].line) {
            first--;
        }
        while (isLayoutAt(first) && first < at) first++;
        int behind = at;
        while (isTypeAt(behind, TokenType::NEWLINE)) behind++;
        return isTypeAt(first, TokenType::KEYWORD) && isTypeAt(behind, TokenType::INDENT);
    }
    bool isOnRefusedLine() const {
        return compiled.source.placeOf(compiled.refused->range.begin).line ==
               compiled.tokens[static_cast<std::size_t>(at)].line;
    }
    Correction insertion(const char* text) const {
        const std::size_t end = compiled.rangeOfToken(at - 1).end;
        return {{end, end}, text};
    }

private:
    bool isTypeAt(int index, TokenType type) const { return isAt(type, index - at); }
    bool isLayoutAt(int index) const {
        return isTypeAt(index, TokenType::INDENT) || isTypeAt(index, TokenType::DEDENT) ||
               isTypeAt(index, TokenType::NEWLINE);
    }

    const CompiledSource& compiled;
    int at;
};

std::optional<Correction> addColon(const CompiledSource& compiled) {
    const Stopped stopped(compiled);
    if (!stopped.isAtLineEnd() || !stopped.isBehindBlockHead()) return std::nullopt;
    return stopped.insertion(":");
}

std::optional<Correction> addParentheses(const CompiledSource& compiled) {
    const Stopped stopped(compiled);
    if (!stopped.isAtLineEnd() && !stopped.isAtLastColon()) return std::nullopt;
    return stopped.insertion("()");
}

template <const char* closing>
std::optional<Correction> addClosing(const CompiledSource& compiled) {
    const Stopped stopped(compiled);
    const bool isAtEnd = stopped.isAtLineEnd() || stopped.isAtLastColon();
    if (!isAtEnd || !stopped.isOnRefusedLine()) return std::nullopt;
    return stopped.insertion(closing);
}

constexpr char kParenthesis[] = ")";
constexpr char kBracket[] = "]";
constexpr char kBrace[] = "}";

struct Row {
    const char* code;
    bool isOfParser;
    std::optional<Correction> (*correct)(const CompiledSource& compiled);
};
const Row kRows[] = {
    {"பொழில்-112", false, joinKeyword},
    {"பொழில்-113", false, correctKeyword},
    {"பொழில்-202", true, addColon},
    {"பொழில்-203", true, addParentheses},
    {"பொழில்-204", true, addClosing<kParenthesis>},
    {"பொழில்-205", true, addClosing<kBracket>},
    {"பொழில்-206", true, addClosing<kBrace>},
};

}  // namespace

std::optional<Correction> correctionOf(const CompiledSource& compiled) {
    const auto& refused = compiled.refused;
    if (!refused || refused->isInModule || compiled.isParsed()) return std::nullopt;
    for (const Row& row : kRows) {
        if (refused->code == row.code && row.isOfParser == compiled.isScanned()) {
            return row.correct(compiled);
        }
    }
    return std::nullopt;
}

}  // namespace companion
