// Single rules of the parser, called from outside.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/front_end.h"
#include "support/tree_printer.h"
#include "unit/parser_frame/handmade.h"

inline Token name(const std::string& text, int line = 1) {
    return {TokenType::IDENTIFIER, text, line};
}

inline Token text(const std::string& content, int line = 1) {
    return {TokenType::STRING, content, line};
}

/// The refusal of the statement that `tokens` begin; the text ends on line 9.
inline testing::AssertionResult refusedTokens(const std::vector<Token>& tokens,
                                              const std::string& code, int line,
                                              bool inStruct = false) {
    return refuses(code, line, [&] { parserOver(tokens, 9).parseStatement(inStruct); });
}

/// A parser at the first token of `source`.
inline Parser parserAt(const std::string& source) { return Parser(scan(source), source, "test"); }

/// The tree below one statement; "null" if there is none.
inline std::string treeOf(std::unique_ptr<Statement> statement) {
    Program program;
    program.statements.push_back(std::move(statement));
    return printTree(program);
}

/// The first expression of `source`.
inline std::unique_ptr<Expression> expressionOf(const std::string& source) {
    return parserAt(source).parseExpression();
}
