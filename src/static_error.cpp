#include "static_error.h"

#include <stdexcept>

#include "error_codes.h"

void throw_static_error(const std::string& code, const std::string& detail) {
    const auto entry = பிழை_அகராதி.find(code);
    if (entry == பிழை_அகராதி.end()) {
        throw std::runtime_error("அறியப்படாத பிழைக் குறியீடு: " + code);
    }
    std::string text = code + ": " + entry->second.விளக்கம் + " - " + entry->second.தீர்வு;
    if (!detail.empty()) text += " (" + detail + ")";
    throw std::runtime_error(text);
}
