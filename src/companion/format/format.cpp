#include "companion/format/format.h"

#include <algorithm>
#include <vector>

#include "companion/check/marks_signs.h"
#include "companion/format/cleaned.h"
#include "companion/format/layout.h"
#include "companion/pieces.h"
#include "companion/refusal.h"
#include "lexer/lexer.h"

namespace companion {

namespace {

std::optional<std::vector<Token>> tokensOf(const std::string& text) {
    try {
        return Lexer(text, "").tokenize();
    } catch (const CompilerRefusal&) {
        return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

/// The scanner stops at a NUL byte, and broken characters make it jump over what stands behind.
bool isReadAlike(const std::string& text) {
    if (text.find('\0') != std::string::npos) return false;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        if (point.width == 1 && point.value >= 0x80) return false;
        at += point.width;
    }
    return true;
}

/// How wide a block is indented says nothing; that one begins or ends does.
bool meansTheSame(const Token& a, const Token& b) {
    const bool isIndentation = a.type == TokenType::INDENT || a.type == TokenType::DEDENT;
    return a.type == b.type && (isIndentation || a.text == b.text);
}

}  // namespace

std::optional<std::string> formatted(const std::string& text) {
    if (!isReadAlike(text)) return std::nullopt;
    const std::string clean = cleaned(text);
    const auto before = tokensOf(clean);
    if (!before) return std::nullopt;
    std::string result = laidOut(clean);
    // What was the letter of a name would be a mark of byte order to whoever reads it next.
    if (result.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) return std::nullopt;
    const auto after = tokensOf(result);
    if (!after ||
        !std::equal(before->begin(), before->end(), after->begin(), after->end(), meansTheSame)) {
        return std::nullopt;
    }
    return result;
}

}  // namespace companion
