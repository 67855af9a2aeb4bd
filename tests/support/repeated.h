#pragma once

#include <string>

/// `text` so many times in a row.
inline std::string repeated(const std::string& text, int times) {
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; i++) all += text;
    return all;
}
