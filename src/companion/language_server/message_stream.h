// Messages as they travel: a head with the length in bytes, an empty line, the body.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace companion::language_server {

/// Cuts a stream of bytes into the bodies of messages.
class MessageStream {
public:
    /// No message is longer; a head that tells more is broken, as is one that is longer itself.
    static constexpr std::size_t kLongestBody = std::size_t{256} * 1024 * 1024;
    static constexpr std::size_t kLongestHead = std::size_t{64} * 1024;

    void feed(std::string_view bytes) { pending.append(bytes); }

    /// The next body, in the order of their coming; nothing if more bytes are needed. A broken
    /// head gives an empty body, and the stream goes on behind it.
    std::optional<std::string> next();

private:
    std::string pending;
    std::size_t begin = 0;  ///< Where the first message not yet given away begins in `pending`.
};

/// `body` with its head.
std::string framed(std::string_view body);

}  // namespace companion::language_server
