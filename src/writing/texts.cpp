#include "writing/texts.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace {

std::string fixedText(float value, int decimals) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

}  // namespace

std::string to_fstr(float value) { return fixedText(value, 3) + "f"; }

std::string oneDecimal(float value) { return fixedText(value, 1) + "f"; }

std::string sixDecimals(float value) { return fixedText(value, 6); }

std::string numberText(float value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value;
    return text.str();
}

std::string orDefault(const std::string& text, const char* fallback) {
    return text.empty() ? fallback : text;
}

std::string quoted(const std::string& text) {
    std::string literal = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') literal += '\\';
        literal += byte;
    }
    return literal + "\"";
}

std::string asWritten(const std::string& text) { return "\"" + text + "\""; }
