#include "companion/run/afterword.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <vector>

#include "companion/run/afterword_tables.h"

namespace companion {

namespace {

constexpr std::string_view kGeneratedName = "generated.cpp:";
constexpr std::string_view kFunctionPrefix = "fn_";

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

/// The number of the line of the generated text that g++ speaks of; 0 if it speaks of another file.
int generatedLineIn(std::string_view line) {
    const std::size_t name = line.find(kGeneratedName);
    if (name == std::string_view::npos) return 0;
    int number = 0;
    for (std::size_t at = name + kGeneratedName.size();
         at < line.size() && std::isdigit(static_cast<unsigned char>(line[at])) != 0; at++) {
        if (number > 100'000'000) return 0;
        number = number * 10 + (line[at] - '0');
    }
    return number;
}

/// What g++ says of an error: the text behind its mark. Empty for a note or a warning.
std::string_view errorIn(std::string_view line) {
    constexpr std::string_view mark = "error: ";
    const std::size_t at = line.find(mark);
    if (at != std::string_view::npos && (at == 0 || line[at - 1] == ' ')) {
        return line.substr(at + mark.size());
    }
    return line.find("undefined reference") != std::string_view::npos ? line : std::string_view();
}

/// What g++ puts between its quotes, or between plain ones.
std::string_view quotedIn(std::string_view text) {
    for (const auto& [open, close] :
         {std::pair<std::string_view, std::string_view>{"‘", "’"}, {"'", "'"}, {"`", "'"}}) {
        const std::size_t begin = text.find(open);
        if (begin == std::string_view::npos) continue;
        const std::size_t from = begin + open.size();
        const std::size_t end = text.find(close, from);
        if (end != std::string_view::npos) return text.substr(from, end - from);
    }
    return {};
}

/// The program's own name in a declaration that g++ quotes: "std::any fn_கூடு(std::any)" is "கூடு".
std::string_view ownNameIn(std::string_view declaration) {
    const std::size_t function = declaration.find(kFunctionPrefix);
    if (function != std::string_view::npos) {
        declaration.remove_prefix(function + kFunctionPrefix.size());
        return declaration.substr(0, declaration.find('('));
    }
    declaration = declaration.substr(0, declaration.find('('));
    const std::size_t blank = declaration.rfind(' ');
    return blank == std::string_view::npos ? declaration : declaration.substr(blank + 1);
}

void appendUtf8(std::string& text, unsigned mark) {
    const auto append = [&](unsigned byte) { text += static_cast<char>(byte); };
    if (mark < 0x800) {
        append(0xC0U | (mark >> 6U));
    } else if (mark < 0x10000) {
        append(0xE0U | (mark >> 12U));
        append(0x80U | ((mark >> 6U) & 0x3FU));
    } else {
        append(0xF0U | (mark >> 18U));
        append(0x80U | ((mark >> 12U) & 0x3FU));
        append(0x80U | ((mark >> 6U) & 0x3FU));
    }
    append(0x80U | (mark & 0x3FU));
}

/// Where the locale has no Tamil letters g++ writes their numbers: "\U00000b85" is "அ".
std::string inLetters(std::string_view name) {
    constexpr std::size_t width = 10;
    std::string text;
    for (std::size_t at = 0; at < name.size();) {
        if (name.substr(at, 2) != "\\U" || name.size() < at + width) {
            text += name[at++];
            continue;
        }
        const std::string digits(name.substr(at + 2, width - 2));
        appendUtf8(text, static_cast<unsigned>(std::strtoul(digits.c_str(), nullptr, 16)));
        at += width;
    }
    return text;
}

const Pattern* findPattern(std::string_view words) {
    for (const Pattern& pattern : kRefusalPatterns) {
        if (words.find(pattern.mark) != std::string_view::npos &&
            words.find(pattern.with) != std::string_view::npos) {
            return &pattern;
        }
    }
    return nullptr;
}

/// The first error for which both place and pattern are known; else the best of them.
struct FirstError {
    int sourceLine = 0;
    const Pattern* pattern = nullptr;
    std::string_view text;
    int rank() const { return (pattern != nullptr ? 2 : 0) + (sourceLine > 0 ? 1 : 0); }
};

FirstError findFirstError(std::string_view words, const GeneratedText& generated) {
    FirstError best;
    int askedFrom = 0;  // the line that asked for what an error in a header is about
    for (const std::string_view line : linesOf(words)) {
        const int place = generated.sourceLineOf(generatedLineIn(line));
        const std::string_view text = errorIn(line);
        if (text.empty()) {
            if (place > 0 && line.find("required from") != std::string_view::npos) {
                askedFrom = place;
            }
            continue;
        }
        const FirstError error = {place > 0 ? place : askedFrom, findPattern(text), text};
        if (best.text.empty() || error.rank() > best.rank()) best = error;
        askedFrom = 0;
    }
    return best;
}

std::string filled(std::string_view message, std::string_view name) {
    std::string text(message);
    const std::size_t mark = text.find("$0");
    if (mark != std::string::npos) text.replace(mark, 2, name);
    return text;
}

std::string tell(int sourceLine, std::string_view lineText, const std::string& message) {
    std::string text = "\n💡 ";
    if (sourceLine > 0) {
        text += "வரி " + std::to_string(sourceLine) + ": " + std::string(lineText) + "\n   ";
    }
    return text + message + "\n";
}

bool isAtLineBegin(std::string_view words, std::size_t at) {
    return at == 0 || words[at - 1] == '\n';
}

/// The shell's word for a signal stands alone at the begin of a line, an exception's text anywhere.
bool holdsEnd(std::string_view words, const EndPattern& pattern) {
    const std::size_t at = words.rfind(pattern.mark);
    if (at == std::string_view::npos) return false;
    const bool isException = words.find("terminate called") != std::string_view::npos;
    return isException ? pattern.signal == SIGABRT : isAtLineBegin(words, at);
}

}  // namespace

std::string withoutColours(std::string_view words) {
    std::string plain;
    for (std::size_t at = 0; at < words.size(); at++) {
        if (words[at] != '\033') {
            if (words[at] != '\r') plain += words[at];
            continue;
        }
        const bool isLink = at + 1 < words.size() && words[at + 1] == ']';
        for (at += 2; at < words.size(); at++) {
            const char byte = words[at];
            if (isLink && byte == '\033') at++;
            if (isLink ? byte == '\a' || byte == '\033'
                       : std::isalpha(static_cast<unsigned char>(byte)) != 0) {
                break;
            }
        }
    }
    return plain;
}

bool holdsRefusal(const std::string& words) {
    const std::string plain = withoutColours(words);
    const auto lines = linesOf(plain);
    return std::any_of(lines.begin(), lines.end(),
                       [](std::string_view line) { return !errorIn(line).empty(); });
}

std::string afterRefusal(const std::string& words, const GeneratedText& generated,
                         const SourceText& source) {
    const std::string plain = withoutColours(words);
    const FirstError error = findFirstError(plain, generated);
    const Range line = source.rangeOfWordsOn(error.sourceLine);
    const std::string message =
        error.pattern == nullptr
            ? std::string(kUnknownRefusal)
            : filled(error.pattern->message, inLetters(ownNameIn(quotedIn(error.text))));
    return tell(error.sourceLine, source.slice(line), message);
}

std::optional<Breakdown> findBreakdown(const std::string& words) {
    for (const EndPattern& pattern : kEndPatterns) {
        if (holdsEnd(words, pattern)) return Breakdown{pattern.message, pattern.signal};
    }
    return std::nullopt;
}

std::string afterBreakdown(const Breakdown& breakdown) {
    return tell(0, "", std::string(breakdown.message));
}

}  // namespace companion
