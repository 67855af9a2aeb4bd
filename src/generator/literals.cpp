// Literals.
#include <stdexcept>

#include "generator/generator.h"

/// 12  ->  12LL
/// The digits go into the text as written, so a leading zero makes them octal. A number in Tamil
/// digits is scanned and can't be compiled yet: std::stoull's std::invalid_argument passes through.
void Generator::visitNumberLiteral(const NumberLiteral* literal) {
    try {
        std::stoull(literal->value, nullptr, 10);
    } catch (const std::out_of_range&) {
        பிழை("பொழில்-305", literal->line, "");
    }
    out << literal->value << "LL";
}

/// 1.5  ->  1.5L
void Generator::visitDoubleLiteral(const DoubleLiteral* literal) { out << literal->value << "L"; }

/// "அ"  ->  std::string(u8"அ")
/// Byte for byte: a backslash of the source acts as an escape of C++, which is how \n works.
void Generator::visitStringLiteral(const StringLiteral* literal) {
    out << "std::string(u8\"" << literal->value << "\")";
}

/// 'அ'  ->  _PozhilChar{std::string(u8"அ")}
void Generator::visitCharLiteral(const CharLiteral* literal) {
    out << "_PozhilChar{std::string(u8\"" << literal->value << "\")}";
}

/// மெய்  ->  true
void Generator::visitBooleanLiteral(const BooleanLiteral* literal) {
    out << (literal->value == "மெய்" ? "true" : "false");
}
