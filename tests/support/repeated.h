// Much of something, for tests of large sources.
#pragma once

#include <string>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define POZHIL_IS_SANITIZED
#endif
#endif

/// `count` where the code is as users have it. Under sanitizers, where each round takes ten times
/// as long, an eighth: they look at what is read and written, the other build at how much there is
/// room for.
constexpr int rounds(int count) {
#ifdef POZHIL_IS_SANITIZED
    return count / 8;
#else
    return count;
#endif
}

/// `text` so many times in a row.
inline std::string repeated(const std::string& text, int times) {
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; i++) all += text;
    return all;
}
