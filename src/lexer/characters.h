// The character classes that numbers and words end at. They are the same in every locale.
#pragma once

#include <cstring>

/// Blank, tab, line end, vertical tab, form feed, carriage return.
inline bool isWhiteSpace(int byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

inline bool isAsciiDigit(int byte) { return byte >= '0' && byte <= '9'; }

/// What may stand in a word of ASCII: letters, digits and the underscore.
inline bool isAsciiWordByte(int byte) {
    return isAsciiDigit(byte) || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           byte == '_';
}

/// An ASCII mark that belongs to no word.
inline bool isAsciiMark(int byte) { return byte < 0x80 && !isAsciiWordByte(byte); }

/// The marks that end a word or a number.
inline bool isTerminator(int byte) {
    return byte != 0 && byte < 0x80 && std::strchr("(){};=,:?.[]*", byte) != nullptr;
}

/// White space, a terminator or the end of the text.
inline bool endsNumber(int byte) { return byte == 0 || isWhiteSpace(byte) || isTerminator(byte); }
