#include "lexer/utf8.h"

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
