#include "writing/marks.h"

namespace {

bool isNameByte(char byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_';
}

/// Bytes of the name that `text` begins with; npos if it isn't closed.
std::size_t nameLength(std::string_view text, std::string_view close) {
    if (!close.empty()) return text.find(close);
    std::size_t length = 0;
    while (length < text.size() && isNameByte(text[length])) length++;
    while (length > 0 && text[length - 1] == '_') length--;
    return length;
}

}  // namespace

Mark findMark(std::string_view text, const MarkStyle& style) {
    for (std::size_t at = text.find(style.open); at != std::string_view::npos;
         at = text.find(style.open, at + 1)) {
        const std::string_view rest = text.substr(at + style.open.size());
        const std::size_t length = nameLength(rest, style.close);
        if (length == 0 || length == std::string_view::npos) continue;
        return {at, style.open.size() + length + style.close.size(), rest.substr(0, length)};
    }
    return {};
}
