// A word more beside the parser's report: it tells what it missed, these tell what was meant.
#include "companion/check/words.h"

namespace companion {

namespace {

/// The first word of the refused line; nothing if the report names none.
int firstWordOfRefusedLine(const WordCheck& check) {
    const int line = check.refusedLine();
    for (int i = 0; line > 0 && i < check.count() - 1; i++) {
        const TokenType kind = check.at(i).type;
        const bool isWord =
            kind != TokenType::INDENT && kind != TokenType::DEDENT && kind != TokenType::NEWLINE;
        if (isWord && check.at(i).line == line) return i;
    }
    return -1;
}

/// x சமம் 5  as a line of its own.
void adviseOnEquality(const WordCheck& check, int first) {
    if (check.at(first).type != TokenType::IDENTIFIER || check.at(first + 1).text != "சமம்") return;
    for (int i = first; i < check.endOfLine(first); i++) {
        const TokenType kind = check.at(i).type;
        if (kind == TokenType::EQUALS || kind == TokenType::COLON) return;
    }
    check.add("துணை-605", first + 1, {check.at(first).text});
}

/// A body that stands as far left as the line that opens it.
void adviseOnIndentation(const WordCheck& check, int first) {
    if (first < 2 || check.at(first - 1).type != TokenType::NEWLINE) return;
    if (check.at(first - 2).type != TokenType::COLON) return;
    check.add("துணை-606", first);
}

/// இல்லை: without an எனில் above it at the same distance.
void adviseOnElse(const WordCheck& check, int first) {
    const Token& word = check.at(first);
    if (word.type != TokenType::KEYWORD) return;
    const bool isElse = word.text == "இல்லை" && check.at(first + 1).type == TokenType::COLON;
    if (isElse || word.text == "இல்லைஎனில்") check.add("துணை-608", first, {word.text});
}

void adviseOnLambda(const WordCheck& check, int first) {
    for (int i = first; i < check.endOfLine(first); i++) {
        if (check.at(i).text == "வினை") return check.add("துணை-609", i);
    }
}

struct Advice {
    const char* code;  ///< Of the report beside which it stands.
    void (*advise)(const WordCheck& check, int first);
};
const Advice kAdvice[] = {
    {"பொழில்-201", adviseOnEquality},
    {"பொழில்-202", adviseOnIndentation},
    {"பொழில்-201", adviseOnElse},
    {"பொழில்-234", adviseOnLambda},
};

}  // namespace

void checkRefusedLine(const WordCheck& check) {
    const int first = firstWordOfRefusedLine(check);
    if (first < 0) return;
    for (const Advice& row : kAdvice) {
        if (check.compiled.refused->code == row.code) row.advise(check, first);
    }
}

}  // namespace companion
