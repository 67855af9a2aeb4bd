// What every visitor uses: construction, indentation, the ways to refuse.
#include "generator/generator.h"

#include <cstdlib>
#include <iostream>
#include <sstream>

#include "error_codes.h"
#include "error_handler.h"
#include "static_error.h"
#include "ui/web_form.h"
#include "writing/texts.h"

Generator::Generator(
    const Program& program, const std::map<std::string, std::vector<Param>>& functionParameters,
    const std::map<std::string, StructDefinitionStatement*>& structDefinitions,
    const std::map<std::string, AbstractStructDefinitionStatement*>& abstractStructDefinitions,
    std::string sourceText, std::string filename)
    : program(program),
      structDefinitions(structDefinitions),
      abstractStructDefinitions(abstractStructDefinitions),
      functionParameters(functionParameters),
      sourceText(std::move(sourceText)),
      filename(std::move(filename)),
      sourceFile(::quoted(this->filename)),
      web(std::make_unique<WebForm>(program, text, programText())) {}

Generator::~Generator() = default;

ProgramText Generator::programText() {
    return {[this](const Expression* expression) { visitExpression(expression); },
            [this](const Statement* statement) { visitStatement(statement); },
            [this](const std::string& code, int line, const std::string& detail) {
                பிழை(code, line, detail);
            }};
}

void Generator::refuseEndlessText() {
    constexpr std::streamoff kMaxTextBytes = 64L * 1024 * 1024;
    if (out.tellp() > kMaxTextBytes) throw_static_error("பொழில்-291", "");
}

void Generator::indent() { text.indent(); }

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
