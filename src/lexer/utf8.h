// Stepping through UTF-8 text.
#pragma once

#include <string_view>
#include <vector>

/// Bytes of the UTF-8 sequence that `first` opens; 1 for anything malformed.
int getUTF8SequenceLength(char first);

/// The code points of `text`, each as the bytes that hold it. A vowel sign is an element of its
/// own. The views point into `text`.
std::vector<std::string_view> splitCodePoints(std::string_view text);
