// Any bytes are a source: the companion finds what is wrong in them, at places that exist, and
// formats them without changing what they say, or leaves them alone.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "companion/check/check.h"
#include "companion/check/marks_spelling.h"
#include "companion/format/format.h"
#include "companion/refusal.h"
#include "lexer/lexer.h"

namespace {

void require(bool holds, const char* what, const std::string& text) {
    if (holds) return;
    std::cerr << what << "\n--- text\n" << text << "\n---\n";
    std::abort();
}

bool findNoModule(const std::string&, std::string&) { return false; }

void checkPlaces(const std::string& text) {
    const companion::SourceText source("fuzz", text);
    const int lines = source.lineCount() + 1;
    for (const companion::Finding& finding : companion::checkSource(source, findNoModule)) {
        const bool isOrdered =
            finding.line < finding.endLine ||
            (finding.line == finding.endLine && finding.column <= finding.endColumn);
        require(finding.line >= 1 && finding.column >= 1 && finding.endLine <= lines && isOrdered,
                finding.code.c_str(), text);
    }
}

std::optional<std::vector<Token>> tokensOf(const std::string& text) {
    try {
        return Lexer(text, "fuzz").tokenize();
    } catch (const companion::CompilerRefusal&) {
        return std::nullopt;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

bool isSameToken(const Token& a, const Token& b) {
    const bool isIndentation = a.type == TokenType::INDENT || a.type == TokenType::DEDENT;
    return a.type == b.type && (isIndentation || a.text == b.text);
}

/// True if nothing of `text` is repaired before it is laid out, so that its tokens stay.
bool isClean(const std::string& text) {
    return text.find_first_of("\t\r") == std::string::npos && !text.empty() &&
           text.back() == '\n' && text.compare(0, 3, "\xEF\xBB\xBF") != 0 &&
           companion::composed(text) == text;
}

void checkFormat(const std::string& text) {
    const auto result = companion::formatted(text);
    if (!result) return;
    require(companion::formatted(*result) == result, "formatting again changes it", text);
    if (!isClean(text)) return;
    const auto before = tokensOf(text);
    const auto after = tokensOf(*result);
    require(
        before && after &&
            std::equal(before->begin(), before->end(), after->begin(), after->end(), isSameToken),
        "formatting changes the tokens", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    checkPlaces(text);
    checkFormat(text);
    return 0;
}
