#include "companion/language_server/uris.h"

#include <filesystem>

#include "lexer/characters.h"

namespace companion::language_server {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFileScheme = "file://";
constexpr std::string_view kPlainMarks = "/-._~";

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

std::string decoded(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); at++) {
        const int high = text[at] == '%' && at + 2 < text.size() ? hexValue(text[at + 1]) : -1;
        const int low = high >= 0 ? hexValue(text[at + 2]) : -1;
        if (low < 0) {
            plain += text[at];
            continue;
        }
        plain += static_cast<char>(high * 16 + low);
        at += 2;
    }
    return plain;
}

}  // namespace

std::string pathOfUri(std::string_view uri) {
    if (uri.substr(0, kFileScheme.size()) != kFileScheme) return "";
    uri.remove_prefix(kFileScheme.size());
    const std::size_t root = uri.find('/');  // a host may stand before it
    if (root == std::string_view::npos) return "";
    const std::string path = decoded(uri.substr(root));
    if (path.find('\0') != std::string::npos) return "";
    return tidyPath(path, "/");
}

std::string uriOfPath(std::string_view path) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string uri(kFileScheme);
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        const bool isPlain = (value < 0x80 && isAsciiWordByte(value)) ||
                             kPlainMarks.find(byte) != std::string_view::npos;
        if (isPlain) {
            uri += byte;
        } else {
            uri += '%';
            uri += kDigits[value / 16];
            uri += kDigits[value % 16];
        }
    }
    return uri;
}

std::string tidyPath(std::string_view path, std::string_view folder) {
    const fs::path whole = fs::u8path(folder) / fs::u8path(path);
    return whole.lexically_normal().u8string();
}

std::string folderOf(std::string_view path) { return fs::u8path(path).parent_path().u8string(); }

}  // namespace companion::language_server
