// Values as C++ text, the same in every locale.
#pragma once

#include <string>

/// A float with three decimals and the suffix `f`.
std::string to_fstr(float value);

/// A float with one decimal and the suffix `f`.
std::string oneDecimal(float value);

/// A float with six decimals.
std::string sixDecimals(float value);

/// A float as a stream writes it.
std::string numberText(float value);

/// `fallback` for the empty text.
std::string orDefault(const std::string& text, const char* fallback);

/// `text` as a C++ string literal, quotes included.
std::string quoted(const std::string& text);

/// A string of the program as a C++ string literal: byte for byte, so that a backslash of the
/// source acts as an escape of C++, as it does in all its strings.
std::string asWritten(const std::string& text);
