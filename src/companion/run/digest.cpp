#include "companion/run/digest.h"

namespace companion {

namespace {

constexpr std::uint64_t kFirstFactor = 0x100000001b3U;
constexpr std::uint64_t kSecondFactor = 0xff51afd7ed558ccdU;

void appendHexadecimal(std::string& text, std::uint64_t number) {
    constexpr std::string_view digits = "0123456789abcdef";
    for (int shift = 60; shift >= 0; shift -= 4) {
        text += digits[(number >> static_cast<unsigned>(shift)) & 0xFU];
    }
}

}  // namespace

Digest& Digest::add(std::string_view piece) {
    for (const char byte : piece) addByte(static_cast<unsigned char>(byte));
    for (std::uint64_t size = piece.size(), i = 0; i < 8; i++, size >>= 8U) {
        addByte(static_cast<unsigned char>(size & 0xFFU));
    }
    return *this;
}

void Digest::addByte(unsigned char byte) {
    first = (first ^ byte) * kFirstFactor;
    second = ((second << 23U | second >> 41U) ^ byte) * kSecondFactor;
}

std::string Digest::text() const {
    std::string text;
    appendHexadecimal(text, first);
    appendHexadecimal(text, second);
    return text;
}

}  // namespace companion
