#include "companion/language_server/json_repair.h"

#include <optional>

namespace companion::language_server {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::string_view kEscapedReplacement = "\\ufffd";
constexpr std::size_t kEscapeLength = 6;  // \uXXXX

/// The bytes of the whole UTF-8 character at `at`; 0 if there is none, as for a surrogate.
std::size_t soundCharacterAt(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t offset) -> unsigned {
        return at + offset < text.size() ? static_cast<unsigned char>(text[at + offset]) : 0;
    };
    const auto follows = [&](std::size_t offset, unsigned least = 0x80, unsigned most = 0xBF) {
        return byte(offset) >= least && byte(offset) <= most;
    };
    const unsigned first = byte(0);
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return follows(1) ? 2 : 0;
    if (first >= 0xE0 && first <= 0xEF) {
        const unsigned least = first == 0xE0 ? 0xA0 : 0x80;
        const unsigned most = first == 0xED ? 0x9F : 0xBF;
        return follows(1, least, most) && follows(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        const unsigned least = first == 0xF0 ? 0x90 : 0x80;
        const unsigned most = first == 0xF4 ? 0x8F : 0xBF;
        return follows(1, least, most) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

/// The value of the escape \uXXXX at `at`; nothing if none stands there.
std::optional<unsigned> escapeAt(std::string_view text, std::size_t at) {
    if (at + kEscapeLength > text.size() || text[at] != '\\' || text[at + 1] != 'u') {
        return std::nullopt;
    }
    unsigned value = 0;
    for (const char digit : text.substr(at + 2, 4)) {
        value *= 16;
        if (digit >= '0' && digit <= '9') {
            value += static_cast<unsigned>(digit - '0');
        } else if (digit >= 'a' && digit <= 'f') {
            value += static_cast<unsigned>(digit - 'a') + 10;
        } else if (digit >= 'A' && digit <= 'F') {
            value += static_cast<unsigned>(digit - 'A') + 10;
        } else {
            return std::nullopt;
        }
    }
    return value;
}

bool isHighHalf(unsigned unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowHalf(unsigned unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// Copies the escape at `at`, a backslash, and tells how many bytes it took.
std::size_t copyEscape(std::string_view json, std::size_t at, std::string& repaired) {
    const auto unit = escapeAt(json, at);
    if (!unit || (!isHighHalf(*unit) && !isLowHalf(*unit))) {
        // A backslash may be escaped itself, so both bytes go together.
        const std::size_t width =
            at + 1 < json.size() && json[at + 1] >= ' ' && json[at + 1] <= '~' ? 2 : 1;
        repaired += json.substr(at, width);
        return width;
    }
    const auto behind = escapeAt(json, at + kEscapeLength);
    if (isHighHalf(*unit) && behind && isLowHalf(*behind)) {
        repaired += json.substr(at, 2 * kEscapeLength);
        return 2 * kEscapeLength;
    }
    repaired += kEscapedReplacement;
    return kEscapeLength;
}

}  // namespace

std::string repairedJson(std::string_view json) {
    std::string repaired;
    repaired.reserve(json.size());
    for (std::size_t at = 0; at < json.size();) {
        if (json[at] == '\\') {
            at += copyEscape(json, at, repaired);
            continue;
        }
        const std::size_t width = soundCharacterAt(json, at);
        repaired += width == 0 ? kReplacement : json.substr(at, width);
        at += width == 0 ? 1 : width;
    }
    return repaired;
}

}  // namespace companion::language_server
