#include "companion/display_width.h"

#include <wchar.h>

#include <algorithm>

#include "lexer/utf8.h"

namespace companion {

namespace {

wchar_t codePointOf(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() == 1) return static_cast<wchar_t>(first);
    unsigned value = first & (0xFFU >> (bytes.size() + 1));
    for (const char byte : bytes.substr(1)) {
        value = (value << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return static_cast<wchar_t>(value);
}

/// Signs without a width of their own: the upper dots and loops. By the C library only where its
/// locale knows them, so those of Tamil stand here.
bool isZeroWidth(wchar_t mark) {
    return mark == 0x0B82 || mark == 0x0BC0 || mark == 0x0BCD ||
           (mark >= 0x200B && mark <= 0x200F) || mark == 0xFEFF ||
           (mark >= 0x0300 && mark <= 0x036F);
}

bool isWide(wchar_t mark) {
    return (mark >= 0x1100 && mark <= 0x115F) || (mark >= 0x2E80 && mark <= 0xA4CF) ||
           (mark >= 0xAC00 && mark <= 0xD7A3) || (mark >= 0xF900 && mark <= 0xFAFF) ||
           (mark >= 0xFF00 && mark <= 0xFF60) || mark >= 0x1F300;
}

}  // namespace

int displayWidth(std::string_view text) {
    int width = 0;
    for (const std::string_view bytes : splitCodePoints(text)) {
        const wchar_t mark = codePointOf(bytes);
        width += isZeroWidth(mark) ? 0 : isWide(mark) ? 2 : 1;
    }
    return width;
}

}  // namespace companion
