// Names that change with what a file holds, so that no cache gives an old file for a new one.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// Sixteen hexadecimal digits that tell `content` from any other.
std::string contentDigits(std::string_view content);

/// `name` with the digits of `content` in front of its ending: "index.0123456789abcdef.js".
std::string contentName(std::string_view name, std::string_view content);

/// True for what contentName makes, and for nothing that leads to another folder.
bool isContentName(std::string_view name);

}  // namespace companion
