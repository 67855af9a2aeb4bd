// What every visitor uses: construction, indentation, the two ways to refuse, text of floats and
// strings.
#include "generator/generator.h"

#include <cstdlib>
#include <iomanip>
#include <iostream>

#include "error_codes.h"
#include "error_handler.h"
#include "generator/static_error.h"

Generator::Generator(
    const Program& program, const std::map<std::string, std::vector<Param>>& functionParameters,
    const std::map<std::string, StructDefinitionStatement*>& structDefinitions,
    const std::map<std::string, AbstractStructDefinitionStatement*>& abstractStructDefinitions,
    const std::string& sourceText, const std::string& filename)
    : program(program),
      structDefinitions(structDefinitions),
      abstractStructDefinitions(abstractStructDefinitions),
      functionParameters(functionParameters),
      sourceText(sourceText),
      filename(filename) {}

void Generator::refuseEndlessText() {
    constexpr std::streamoff kMaxTextBytes = 64L * 1024 * 1024;
    if (out.tellp() > kMaxTextBytes) throw_static_error("பொழில்-291", "");
}

void Generator::indent() {
    for (int level = 0; level < indentLevel; level++) out << "    ";
}

std::string Generator::getLineText(int line) {
    std::istringstream lines(sourceText);
    std::string text;
    for (int number = 1; std::getline(lines, text); number++) {
        if (number == line) return text;
    }
    return "";
}

void Generator::பிழை(const std::string& code, int line, const std::string& detail) {
    const auto entry = பிழை_அகராதி.find(code);
    if (entry == பிழை_அகராதி.end()) {
        std::cerr << "பொழில்-399: அறியப்படாத பிழை (" << code << ")" << std::endl;
        std::exit(1);
    }
    std::string message = entry->second.விளக்கம்;
    if (!detail.empty()) message += " (" + detail + ")";
    ErrorHandler::அறிக்கை(SEMANTIC_ERROR, code, message, filename, line, getLineText(line),
                         entry->second.தீர்வு);
}

std::string to_fstr(float value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(3) << value << "f";
    return text.str();
}

std::string quoted(const std::string& text) {
    std::string literal = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\') literal += '\\';
        literal += byte;
    }
    return literal + "\"";
}
