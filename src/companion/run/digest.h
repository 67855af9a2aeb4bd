// A number for contents: what is built is found again by what it was built from.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace companion {

/// Two sums of all that was added, 128 bits in all. Pieces are kept apart: "ab", "c" isn't "a",
/// "bc".
class Digest {
public:
    Digest& add(std::string_view piece);
    /// 32 hexadecimal digits.
    std::string text() const;

private:
    void addByte(unsigned char byte);

    std::uint64_t first = 0xcbf29ce484222325U;
    std::uint64_t second = 0x9e3779b97f4a7c15U;
};

}  // namespace companion
