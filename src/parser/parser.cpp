// The parser's frame: cursor, top-level loop and its guard, refusals.
#include "parser/parser.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "error_codes.h"
#include "error_handler.h"
#include "lexer/holds.h"
#include "parser/token_predicates.h"

namespace {

/// Rounds of the top-level loop, one a statement, before a grammar that stopped advancing is
/// suspected.
constexpr int kMaxRounds = 100000;

}  // namespace

Parser::Parser(const std::vector<Token>& tokens, const std::string& source,
               const std::string& filename)
    : Parser(std::vector<Token>(tokens), source, filename) {}

Parser::Parser(std::vector<Token>&& tokens, std::string source, std::string filename)
    : tokens(std::move(tokens)), source(std::move(source)), filename(std::move(filename)) {}

Program Parser::parse() {
    Program program;
    skipNewlines();
    int guardCount = 0;
    while (!is_at_end()) {
        // Tested before it grows: 100001 rounds run.
        if (guardCount > kMaxRounds) பிழை("பொழில்-291", peek().line);
        guardCount++;

        if (auto statement = parseStatement(false)) {
            program.statements.push_back(std::move(statement));
        } else {
            advance();  // a stray token at top level is dropped without a word
        }
        skipNewlines();
    }

    auto& hoisted = hoistedStatements;
    program.statements.insert(program.statements.begin(), std::make_move_iterator(hoisted.begin()),
                              std::make_move_iterator(hoisted.end()));
    hoisted.clear();
    return program;
}

bool Parser::match(const std::vector<std::string>& words) {
    if (!check(TokenType::OPERATOR)) return false;
    if (!holds(words, peek().text)) return false;
    advance();
    return true;
}

Token Parser::consume(TokenType kind, const std::string& code, int line) {
    return consume(kind, code.c_str(), line);
}

const Token& Parser::consume(TokenType kind, const char* code, int line) {
    if (!check(kind)) பிழை(code, line == -1 ? peek().line : line);
    return advance();
}

bool Parser::handleIndentation(int& depth) {
    while (check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        depth += check(TokenType::INDENT) ? 1 : -1;
        // The bracket was left open on the line before, as a rule; there is no line 0.
        if (depth < 0) பிழை("பொழில்-204", peek().line >= 2 ? peek().line - 1 : peek().line);
        advance();
    }
    return true;
}

void Parser::skipNewlines() {
    while (check(TokenType::NEWLINE)) advance();
}

bool Parser::checkName() { return isValidVariableName(peek()); }

Token Parser::expectName(const char* code) {
    if (!checkName()) பிழை(code, peek().line);
    return advance();
}

void Parser::expectColon() { consume(TokenType::COLON, "பொழில்-202"); }

void Parser::expectNewline() { consume(TokenType::NEWLINE, "பொழில்-202"); }

/// Behind a header's colon: a line end, blank lines, and the body's indentation.
void Parser::openBody() {
    expectNewline();
    skipNewlines();
    consume(TokenType::INDENT, "பொழில்-202");
}

void Parser::closeBody() { consume(TokenType::DEDENT, "பொழில்-292"); }

bool Parser::takeComma() {
    if (!check(TokenType::COMMA)) return false;
    advance();
    return true;
}

/// Passes line ends and indentation where line structure means nothing.
void Parser::skipLayout() {
    while (check(TokenType::NEWLINE) || check(TokenType::INDENT) || check(TokenType::DEDENT)) {
        advance();
    }
}

void Parser::drop(std::unique_ptr<Statement> statement) {
    if (statement != nullptr) dropped.push_back(std::move(statement));
}

void Parser::drop(std::unique_ptr<Expression> expression) {
    if (expression != nullptr) drop(std::make_unique<ExpressionStatement>(std::move(expression)));
}

void Parser::drop(PropertyMap properties) {
    for (auto& property : properties) drop(std::move(property.second));
}

Parser::Nesting::Nesting(Parser& parser) : parser(parser) {
    if (++parser.nesting > kMaxNesting || parser.stack.nearlyFull()) {
        parser.பிழை("பொழில்-291", parser.peek().line);
    }
}

/// Notes the depth of a node over subtrees of these depths.
void Parser::deepen(int left, int right) {
    expressionDepth = std::max(left, right) + 1;
    if (expressionDepth > kMaxExpressionDepth) பிழை("பொழில்-291", peek().line);
}

std::string Parser::getLineText(int line) {
    if (source.empty()) return "(சோர்ஸ் கோடு கிடைக்கவில்லை)";
    std::istringstream lines(source);
    std::string text;
    for (int number = 1; std::getline(lines, text); number++) {
        if (number == line) return text;
    }
    return "";
}

void Parser::பிழை(const std::string& code, int line) {
    const பிழைதகவல்& entry = பிழை_அகராதி.at(code);
    ErrorHandler::அறிக்கை(SYNTAX_ERROR, code, entry.விளக்கம், filename, line, getLineText(line),
                         entry.தீர்வு);
}
