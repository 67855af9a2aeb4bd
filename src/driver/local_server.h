// The development server: plain sockets, one request at a time, each connection closed after one
// answer. It serves the page from memory and everything else from the disk.
#pragma once

#include <string>

/// Serves on `port`, on all interfaces, for ever. Returns only if it can't begin, which standard
/// error tells.
void startLocalServer(int port);

/// Percent signs and plus signs of a request's path, decoded. What isn't hexadecimal stays.
std::string urlDecode(const std::string& text);

/// The media type by the ending of `path`.
std::string getMimeType(const std::string& path);
