// Rules by the words alone, for sources that the scanner took and the parser may have refused.
#include "companion/check/words.h"

#include <string>

#include "companion/check/check.h"
#include "companion/check/names_english.h"
#include "lexer/utf8.h"

namespace companion {

namespace {

// ---- Digits ----

/// "௧௨"  ->  "12"; empty without a Tamil digit.
std::string westernDigits(const std::string& number) {
    std::string digits;
    bool isTamil = false;
    for (const std::string_view codePoint : splitCodePoints(number)) {
        const bool isDigit = codePoint.size() == 3 && codePoint.substr(0, 2) == "\xE0\xAF" &&
                             codePoint[2] >= '\xA6' && codePoint[2] <= '\xAF';
        isTamil |= isDigit;
        if (isDigit) {
            digits += static_cast<char>('0' + (codePoint[2] - '\xA6'));
        } else {
            digits += codePoint;
        }
    }
    return isTamil ? digits : "";
}

void checkDigits(const WordCheck& check) {
    if (!check.compiled.refused) return;
    for (int i = 0; i < check.count(); i++) {
        if (check.at(i).type != TokenType::NUMBER) continue;
        const std::string digits = westernDigits(check.at(i).text);
        if (digits.empty()) continue;
        const Range range = check.compiled.rangeOfToken(i);
        check.findings.add("துணை-208", range, {check.at(i).text, digits}, {range, digits});
    }
}

// ---- Words of other languages ----

/// What may stand behind a name that is given a value, called or looked into.
bool goesOnAsName(const WordCheck& check, int index) {
    const TokenType next = check.at(index + 1).type;
    if (next == TokenType::LEFT_PAREN) {
        return check.at(check.endOfLine(index) - 1).type != TokenType::COLON;
    }
    return next == TokenType::EQUALS || next == TokenType::ASSIGN_OPERATOR ||
           next == TokenType::DOT || next == TokenType::LEFT_BRACKET || next == TokenType::COMMA ||
           next == TokenType::RIGHT_PAREN;
}

/// print "x", if x ...: the parser stumbles somewhere behind the word.
void checkStatementWords(const WordCheck& check) {
    if (check.compiled.isParsed() || !check.compiled.refused) return;
    int depth = 0;
    for (int i = 0; i < check.count() - 1; i++) {
        const Token& token = check.at(i);
        depth += token.type == TokenType::LEFT_PAREN ? 1 : 0;
        depth -= token.type == TokenType::RIGHT_PAREN ? 1 : 0;
        if (token.type != TokenType::IDENTIFIER || !check.opensLine(i)) continue;
        const EnglishWord* word = englishWord(token.text);
        if (word == nullptr || !word->isStatement || goesOnAsName(check, i)) continue;
        if (depth > 0 && token.line != check.refusedLine()) continue;
        const Range range = check.compiled.rangeOfToken(i);
        check.findings.add("துணை-217", range,
                           {token.text, std::string(word->tamil), std::string(word->form)},
                           {range, std::string(word->tamil)});
    }
}

// ---- Enumerations ----

/// The index behind the block that the line of `index` opens.
int behindBlock(const WordCheck& check, int index) {
    int depth = 0;
    for (int i = check.endOfLine(index); i < check.count(); i++) {
        depth += check.at(i).type == TokenType::INDENT ? 1 : 0;
        if (check.at(i).type == TokenType::DEDENT && --depth == 0) return i + 1;
    }
    return check.count() - 1;
}

/// The parser throws the first word behind a top-level enumeration away.
void checkEnumerations(const WordCheck& check) {
    int depth = 0;
    for (int i = 0; i + 2 < check.count(); i++) {
        const TokenType kind = check.at(i).type;
        depth += kind == TokenType::LEFT_PAREN || kind == TokenType::INDENT ? 1 : 0;
        depth -= kind == TokenType::RIGHT_PAREN || kind == TokenType::DEDENT ? 1 : 0;
        const bool isEnumeration = depth == 0 && check.at(i).text == "வகை" &&
                                   kind == TokenType::KEYWORD && check.opensLine(i) &&
                                   check.at(i + 1).type == TokenType::IDENTIFIER &&
                                   check.at(i + 2).type == TokenType::COLON;
        if (!isEnumeration) continue;
        const int lost = behindBlock(check, i);
        if (lost >= check.count() || isLineEnd(check.at(lost).type)) continue;
        if (check.at(lost).text == "விடு") continue;
        check.findings.add("துணை-532", check.compiled.rangeOfToken(lost), {check.at(lost).text});
    }
}

}  // namespace

void checkWords(const CompiledSource& compiled, Findings& findings) {
    const WordCheck check{compiled, findings};
    checkDigits(check);
    checkStatementWords(check);
    checkRefusedLine(check);
    checkEnumerations(check);
    checkColours(check);
}

}  // namespace companion
