#include "companion/language_server/message_stream.h"

#include <algorithm>
#include <cctype>

namespace companion::language_server {

namespace {

constexpr std::string_view kHeadEnd = "\r\n\r\n";
constexpr std::string_view kLengthField = "content-length:";
constexpr std::size_t kMostDigits = 9;

std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    for (char& byte : lower) {
        byte = static_cast<char>(std::tolower(static_cast<unsigned char>(byte)));
    }
    return lower;
}

/// The number that the line's field holds; nothing if it is none.
std::optional<std::size_t> numberIn(std::string_view value) {
    while (!value.empty() && value.front() == ' ') value.remove_prefix(1);
    while (!value.empty() && value.back() == ' ') value.remove_suffix(1);
    if (value.empty() || value.size() > kMostDigits) return std::nullopt;
    std::size_t number = 0;
    for (const char digit : value) {
        if (std::isdigit(static_cast<unsigned char>(digit)) == 0) return std::nullopt;
        number = number * 10 + static_cast<std::size_t>(digit - '0');
    }
    return number;
}

/// The length that a head tells; nothing without a sound one.
std::optional<std::size_t> lengthIn(std::string_view head) {
    while (!head.empty()) {
        const std::size_t end = std::min(head.find("\r\n"), head.size());
        const std::string line = inLowerCase(head.substr(0, end));
        if (line.compare(0, kLengthField.size(), kLengthField) == 0) {
            const auto length = numberIn(std::string_view(line).substr(kLengthField.size()));
            if (!length || *length > MessageStream::kLongestBody) return std::nullopt;
            return length;
        }
        head.remove_prefix(std::min(end + 2, head.size()));
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> MessageStream::next() {
    const std::size_t headEnd = pending.find(kHeadEnd, begin);
    if (headEnd == std::string::npos) {
        if (pending.size() - begin <= kLongestHead) return std::nullopt;
        pending.clear();
        begin = 0;
        return "";
    }
    const std::size_t bodyBegin = headEnd + kHeadEnd.size();
    const std::size_t length =
        lengthIn(std::string_view(pending).substr(begin, headEnd - begin)).value_or(0);
    if (pending.size() - bodyBegin < length) return std::nullopt;
    std::string body = pending.substr(bodyBegin, length);
    begin = bodyBegin + length;
    // What was given away is dropped when it is the greater part, so that each byte moves once.
    if (begin > pending.size() / 2) {
        pending.erase(0, begin);
        begin = 0;
    }
    return body;
}

std::string framed(std::string_view body) {
    std::string message = "Content-Length: " + std::to_string(body.size());
    message += kHeadEnd;
    message += body;
    return message;
}

}  // namespace companion::language_server
