#include "support/front_end.h"

#include "support/token_names.h"

std::vector<Token> scan(const std::string& source) {
    return Lexer(source, "test.பொழில்").tokenize();
}

Parsed parse(const std::string& source, const std::string& filename) {
    Parsed parsed;
    parsed.parser = std::make_unique<Parser>(Lexer(source, filename).tokenize(), source, filename);
    parsed.program = parsed.parser->parse();
    return parsed;
}

testing::AssertionResult refused(const std::string& source, const std::string& code, int line) {
    return refuses(code, line, [&] { parse(source); });
}

testing::AssertionResult accepted(const std::string& source) {
    try {
        parse(source);
        return testing::AssertionSuccess();
    } catch (const Refusal& refusal) {
        return testing::AssertionFailure()
               << "refused with " << refusal.code << " at line " << refusal.line;
    }
}

std::string describe(const std::vector<Token>& tokens) {
    std::string text;
    for (const Token& token : tokens) {
        if (!text.empty()) text += " ";
        text += kTokenNames[static_cast<int>(token.type)];
        if (!token.text.empty()) text += ":" + token.text;
    }
    return text;
}

std::string kindNames(const std::vector<Token>& tokens) {
    std::string text;
    for (const Token& token : tokens) {
        if (!text.empty()) text += " ";
        text += kTokenNames[static_cast<int>(token.type)];
    }
    return text;
}

testing::AssertionResult scanRefused(const std::string& source, const std::string& code, int line) {
    return refuses(code, line, [&] { scan(source); });
}
