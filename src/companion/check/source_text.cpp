#include "companion/check/source_text.h"

#include <algorithm>

#include "lexer/utf8.h"

namespace companion {

SourceText::SourceText(std::string path, std::string text)
    : path(std::move(path)), text(std::move(text)), lineStarts{0} {
    for (std::size_t at = this->text.find('\n'); at != std::string::npos;
         at = this->text.find('\n', at + 1)) {
        lineStarts.push_back(at + 1);
    }
}

Place SourceText::placeOf(std::size_t offset) const {
    offset = std::min(offset, text.size());
    const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), offset);
    const std::size_t start = *(next - 1);
    if (reached.start != start || reached.offset > offset) reached = {start, start, 1};
    const auto line = static_cast<int>(next - lineStarts.begin());
    while (reached.offset < offset) {
        const auto width = static_cast<std::size_t>(getUTF8SequenceLength(text[reached.offset]));
        if (reached.offset + width > offset) return {line, reached.column + 1};
        reached.offset += width;
        reached.column++;
    }
    return {line, reached.column};
}

int SourceText::lineCount() const {
    const auto count = static_cast<int>(lineStarts.size());
    return lineStarts.back() == text.size() ? count - 1 : count;
}

Range SourceText::rangeOfLine(int line) const {
    if (line < 1 || line > static_cast<int>(lineStarts.size())) return {text.size(), text.size()};
    const std::size_t begin = lineStarts[static_cast<std::size_t>(line) - 1];
    std::size_t end = std::min(text.find('\n', begin), text.size());
    if (end > begin && text[end - 1] == '\r') end--;
    return {begin, end};
}

Range SourceText::rangeOfWordsOn(int line) const {
    auto [begin, end] = rangeOfLine(line);
    while (begin < end && (text[begin] == ' ' || text[begin] == '\t')) begin++;
    while (begin < end && (text[end - 1] == ' ' || text[end - 1] == '\t')) end--;
    return {begin, end};
}

std::string_view SourceText::line(int line) const { return slice(rangeOfLine(line)); }

int countCodePoints(std::string_view text) {
    int count = 0;
    for (std::size_t at = 0; at < text.size(); count++) {
        at += static_cast<std::size_t>(getUTF8SequenceLength(text[at]));
    }
    return count;
}

}  // namespace companion
