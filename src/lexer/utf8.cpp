#include "lexer/utf8.h"

int getUTF8SequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0x80) return 1;
    if ((byte & 0xE0) == 0xC0) return 2;
    if ((byte & 0xF0) == 0xE0) return 3;
    if ((byte & 0xF8) == 0xF0) return 4;
    return 1;
}

std::vector<std::string_view> splitCodePoints(std::string_view text) {
    std::vector<std::string_view> points;
    points.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto length = static_cast<std::size_t>(getUTF8SequenceLength(text[i]));
        points.push_back(text.substr(i, length));
        i += length;
    }
    return points;
}
