// Scanner and parser as tests call them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "lexer/lexer.h"
#include "parser/parser.h"
#include "support/refusal.h"

/// All tokens of `source`.
std::vector<Token> scan(const std::string& source);

/// Tokens as one readable line: kind names with the text behind those that vary.
std::string describe(const std::vector<Token>& tokens);

/// The kind names alone.
std::string kindNames(const std::vector<Token>& tokens);

/// Passes if the scanner refuses `source`.
testing::AssertionResult scanRefused(const std::string& source, const std::string& code, int line);

/// A parsed source with the parser that parsed it, whose tables stay readable.
struct Parsed {
    std::unique_ptr<Parser> parser;
    Program program;
};
Parsed parse(const std::string& source, const std::string& filename = "test.பொழில்");

/// Passes if `action` ends in the refusal `code` at `line`.
template <typename Action>
testing::AssertionResult refuses(const std::string& code, int line, Action action) {
    try {
        action();
    } catch (const Refusal& refusal) {
        if (refusal.code == code && refusal.line == line) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "expected " << code << " at line " << line << ", got "
                                           << refusal.code << " at line " << refusal.line;
    }
    return testing::AssertionFailure() << "expected " << code << ", nothing was refused";
}

/// The source's refusal, wherever between scanner and parser it comes from.
testing::AssertionResult refused(const std::string& source, const std::string& code, int line);
/// Passes if the source is parsed.
testing::AssertionResult accepted(const std::string& source);
