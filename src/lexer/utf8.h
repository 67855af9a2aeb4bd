// Stepping through UTF-8 text.
#pragma once

#include <string_view>
#include <vector>

/// Bytes of the UTF-8 sequence that `first` opens; 1 for anything malformed.
inline int getUTF8SequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0x80) return 1;
    if ((byte & 0xE0) == 0xC0) return 2;
    if ((byte & 0xF0) == 0xE0) return 3;
    if ((byte & 0xF8) == 0xF0) return 4;
    return 1;
}

/// The code points of `text`, each as the bytes that hold it. A vowel sign is an element of its
/// own. The views point into `text`.
std::vector<std::string_view> splitCodePoints(std::string_view text);
