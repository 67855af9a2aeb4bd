#include "companion/publish/content_name.h"

#include <algorithm>
#include <cstdint>

namespace companion {

namespace {

constexpr std::size_t kNameDigits = 16;
constexpr std::string_view kHexadecimal = "0123456789abcdef";

bool isPlain(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || byte == '-';
}

}  // namespace

// FNV-1a of 64 bits.
std::string contentDigits(std::string_view content) {
    std::uint64_t value = 0xcbf29ce484222325U;
    for (const char byte : content) {
        value = (value ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    std::string digits(kNameDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, value >>= 4U) {
        *digit = kHexadecimal[value & 0xFU];
    }
    return digits;
}

std::string contentName(std::string_view name, std::string_view content) {
    const std::size_t ending = name.rfind('.');
    return std::string(name.substr(0, ending)) + "." + contentDigits(content) +
           std::string(name.substr(ending));
}

bool isContentName(std::string_view name) {
    const std::size_t ending = name.rfind('.');
    if (ending == std::string_view::npos || ending <= kNameDigits + 1) return false;
    const std::size_t digits = ending - kNameDigits;
    const auto arePlain = [](std::string_view part) {
        return !part.empty() && std::all_of(part.begin(), part.end(), isPlain);
    };
    return name[digits - 1] == '.' && arePlain(name.substr(0, digits - 1)) &&
           name.substr(digits, kNameDigits).find_first_not_of(kHexadecimal) ==
               std::string_view::npos &&
           arePlain(name.substr(ending + 1));
}

}  // namespace companion
