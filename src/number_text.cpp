#include "number_text.h"

#include <charconv>
#include <stdexcept>

/// The watch loop shows the exception's text: it is that of std::stof.
float floatOf(const std::string& text) {
    float value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::invalid_argument) throw std::invalid_argument("stof");
    if (result.ec == std::errc::result_out_of_range) throw std::out_of_range("stof");
    return value;
}
