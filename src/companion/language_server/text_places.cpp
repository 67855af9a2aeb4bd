#include "companion/language_server/text_places.h"

#include <algorithm>

#include "companion/check/marks_signs.h"

namespace companion::language_server {

namespace {

constexpr char32_t kFirstOfTwoUnits = 0x10000;

int unitsOf(const CodePoint& point) { return point.value >= kFirstOfTwoUnits ? 2 : 1; }

}  // namespace

TextPlaces::TextPlaces(std::string_view text) : text(text), lineStarts{0} {
    for (std::size_t at = 0; at < text.size(); at++) {
        const bool endsLine = text[at] == '\n' ||
                              (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
        if (endsLine) lineStarts.push_back(at + 1);
    }
}

Position TextPlaces::positionOf(std::size_t offset) const {
    offset = std::min(offset, text.size());
    const auto behind = std::upper_bound(lineStarts.begin(), lineStarts.end(), offset);
    const auto index = static_cast<std::size_t>(behind - lineStarts.begin()) - 1;
    if (reached.line != index || reached.offset > offset) reached = {index, lineStarts[index], 0};
    while (reached.offset < offset) {
        const CodePoint point = codePointAt(text, reached.offset);
        if (reached.offset + point.width > offset) break;
        reached.offset += point.width;
        reached.character += unitsOf(point);
    }
    return {static_cast<int>(index), reached.character};
}

std::size_t TextPlaces::offsetOf(Position position) const {
    if (position.line < 0) return 0;
    if (position.line >= lineCount()) return text.size();
    const Range whole = line(position.line);
    std::size_t offset = whole.begin;
    for (int character = 0; character < position.character && offset < whole.end;) {
        const CodePoint point = codePointAt(text, offset);
        character += unitsOf(point);
        if (character > position.character) break;  // between the halves of a pair
        offset += point.width;
    }
    return std::min(offset, whole.end);
}

Range TextPlaces::rangeOf(PositionRange range) const {
    const std::size_t begin = offsetOf(range.start);
    return {begin, std::max(begin, offsetOf(range.end))};
}

Range TextPlaces::line(int line) const {
    if (line < 0 || line >= lineCount()) return {text.size(), text.size()};
    const auto index = static_cast<std::size_t>(line);
    Range whole{lineStarts[index],
                index + 1 < lineStarts.size() ? lineStarts[index + 1] : text.size()};
    const auto endsWith = [&](char byte) {
        return whole.end > whole.begin && text[whole.end - 1] == byte;
    };
    if (index + 1 == lineStarts.size()) return whole;
    if (endsWith('\n')) whole.end--;
    if (endsWith('\r')) whole.end--;
    return whole;
}

}  // namespace companion::language_server
