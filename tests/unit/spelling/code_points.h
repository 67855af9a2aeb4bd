// Single code points of the range that Tamil and the invisible marks lie in.
#pragma once

#include <string>

/// UTF-8 of a code point from U+0800 to U+FFFF: three bytes.
inline std::string codePoint(int value) {
    return {static_cast<char>(0xE0 | (value >> 12)),
            static_cast<char>(0x80 | ((value >> 6) & 0x3F)),
            static_cast<char>(0x80 | (value & 0x3F))};
}
