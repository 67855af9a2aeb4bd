// The bytes that words are made of.
#pragma once

#include <cctype>

namespace companion::reference {

/// Letters of any script, digits, the underscore.
inline bool isWordByte(char byte) {
    return (byte & 0x80) != 0 || byte == '_' || std::isalnum(static_cast<unsigned char>(byte)) != 0;
}

}  // namespace companion::reference
