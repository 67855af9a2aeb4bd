// The levels of the expression grammar, from assignment down to the postfix forms. Those of the
// operators with two sides are rows of one table, and one rule walks them. What an expression
// begins with stands in primary.cpp.
#include <algorithm>
#include <string_view>

#include "parser/operator_levels.h"
#include "parser/parser.h"
#include "parser/token_predicates.h"

namespace {

struct OperatorRow {
    std::string_view word;
    OperatorLevel level;
};

const OperatorRow kOperators[] = {
    {"அல்லது", kLogicalOr},
    {"மற்றும்", kLogicalAnd},
    {"கூட்டுஇருமை", kBitwiseOr},
    {"வேறுஇருமை", kBitwiseXor},
    {"பெருக்குஇருமை", kBitwiseAnd},
    {"சமம்", kEquality},
    {"சமமில்லை", kEquality},
    {"பெரிது", kComparison},
    {"சிறிது", kComparison},
    {"பெரிதுசமம்", kComparison},
    {"சிறிதுசமம்", kComparison},
    {"இடதுஇருமை", kShift},
    {"வலதுஇருமை", kShift},
    {"கூட்டு", kTerm},
    {"கழி", kTerm},
    {"இணை", kTerm},
    {"பெருக்கு", kFactor},
    {"வகு", kFactor},
    {"மீதி", kFactor},
};

}  // namespace

std::unique_ptr<Expression> Parser::parseExpression() {
    auto expression = parseAssignment();
    deepestPart = std::max(deepestPart, expressionDepth);
    return expression;
}

/// assignment = arrow-lambda | ternary [ ( "=" | compound word ) assignment ]
///            | "காட்சி_நிலை" "." name ":" assignment
std::unique_ptr<Expression> Parser::parseAssignment() {
    const Nesting level(*this);
    const int first = current;
    if (startsArrowLambda()) return noted(first, parseArrowLambda());

    auto left = parseTernary();
    if (check(TokenType::COLON)) {
        // The only place where a colon assigns.
        auto* member = nodeAs<GetExpression>(left.get());
        const auto* object =
            member == nullptr ? nullptr : nodeAs<VariableAccess>(member->object.get());
        if (object != nullptr && object->name == "காட்சி_நிலை") {
            const int line = advance().line;
            const int depth = expressionDepth;
            auto value = parseAssignment();
            deepen(depth, expressionDepth);
            auto node = std::make_unique<SetMemberExpression>(std::move(member->object),
                                                              member->name, std::move(value));
            node->line = line;
            return noted<Expression>(first, std::move(node));
        }
    }
    const bool assigns = check(TokenType::EQUALS) || check(TokenType::ASSIGN_OPERATOR) ||
                         check(TokenType::RESERVED_132) || check(TokenType::INCREMENT) ||
                         check(TokenType::DECREMENT);
    return assigns ? noted(first, assignTo(std::move(left))) : std::move(left);
}

/// Raises 211 at the operator's line for a target that is no variable, member or element.
std::unique_ptr<Expression> Parser::assignTo(std::unique_ptr<Expression> target) {
    const Token op = advance();
    const int depth = expressionDepth;
    auto value = parseAssignment();
    deepen(depth, expressionDepth);

    std::unique_ptr<Expression> node;
    if (auto* element = nodeAs<IndexExpression>(target.get())) {
        // A compound word is dropped here and in the member form: a[i] கூட்டிசேர் 1 stores 1. Meant.
        std::vector<std::unique_ptr<Expression>> arguments;
        arguments.push_back(std::move(element->object));
        arguments.push_back(std::move(element->index));
        arguments.push_back(std::move(value));
        node = std::make_unique<CallExpression>(
            std::make_unique<VariableAccess>("_set_index_internal"), std::move(arguments));
    } else if (auto* member = nodeAs<GetExpression>(target.get())) {
        node = std::make_unique<SetMemberExpression>(std::move(member->object), member->name,
                                                     std::move(value));
    } else if (const auto* variable = nodeAs<VariableAccess>(target.get())) {
        node = std::make_unique<AssignmentExpression>(variable->name, op, std::move(value));
    } else {
        பிழை("பொழில்-211", op.line);
    }
    node->line = op.line;
    return node;
}

/// ternary = or [ ( "எனில்" | "?" ) expression ( "இல்லைஎனில்" | ":" ) ternary ]
/// The two spellings mix freely. Raises 202 for a missing closer.
std::unique_ptr<Expression> Parser::parseTernary() {
    const int first = current;
    auto condition = parseLogicalOr();
    if (!checkKeyword("எனில்") && !check(TokenType::QUESTION)) return condition;
    const int line = advance().line;
    int depth = expressionDepth;
    auto thenBranch = parseExpression();
    depth = std::max(depth, expressionDepth);
    if (!checkKeyword("இல்லைஎனில்") && !check(TokenType::COLON)) பிழை("பொழில்-202", peek().line);
    advance();
    const Nesting level(*this);
    auto elseBranch = parseTernary();
    deepen(depth, expressionDepth);

    auto node = std::make_unique<TernaryExpression>(std::move(condition), std::move(thenBranch),
                                                    std::move(elseBranch));
    node->line = line;
    return noted<Expression>(first, std::move(node));
}

int levelOfOperator(std::string_view word) {
    for (const OperatorRow& row : kOperators) {
        if (word == row.word) return row.level;
    }
    return 0;
}

/// The level of the operator at the cursor; 0 if none stands there.
int Parser::operatorLevel() {
    return check(TokenType::OPERATOR) ? levelOfOperator(peek().text) : 0;
}

/// level = tighter { word tighter }, for the levels from `loosest` on. All associate to the left.
std::unique_ptr<Expression> Parser::parseOperators(int loosest) {
    const int first = current;
    auto left = parseUnary();
    for (int level = operatorLevel(); level >= loosest; level = operatorLevel()) {
        Token op = advance();
        const int depth = expressionDepth;
        auto right = parseOperators(level + 1);
        deepen(depth, expressionDepth);
        const int line = op.line;
        if (level >= kBitwiseOr) {
            left = std::make_unique<BinaryExpression>(std::move(left), std::move(op),
                                                      std::move(right));
        } else {
            left = std::make_unique<LogicalExpression>(std::move(left), std::move(op),
                                                       std::move(right));
        }
        left->line = line;
        left = noted(first, std::move(left));
    }
    return left;
}

std::unique_ptr<Expression> Parser::parseLogicalOr() { return parseOperators(kLogicalOr); }

std::unique_ptr<Expression> Parser::parseLogicalAnd() { return parseOperators(kLogicalAnd); }

std::unique_ptr<Expression> Parser::parseBitwiseOr() { return parseOperators(kBitwiseOr); }

std::unique_ptr<Expression> Parser::parseBitwiseXor() { return parseOperators(kBitwiseXor); }

std::unique_ptr<Expression> Parser::parseBitwiseAnd() { return parseOperators(kBitwiseAnd); }

std::unique_ptr<Expression> Parser::parseEquality() { return parseOperators(kEquality); }

std::unique_ptr<Expression> Parser::parseComparison() { return parseOperators(kComparison); }

std::unique_ptr<Expression> Parser::parseShift() { return parseOperators(kShift); }

std::unique_ptr<Expression> Parser::parseTerm() { return parseOperators(kTerm); }

std::unique_ptr<Expression> Parser::parseFactor() { return parseOperators(kFactor); }

/// unary = ( "இல்லை" | "கழி" | "எதிர்இருமை" | "மிகை" | "குறை" ) unary | call
/// `என்னவகை` stands in the test and never passes it: the scanner makes it an IDENTIFIER. Meant.
std::unique_ptr<Expression> Parser::parseUnary() {
    const bool isPrefix = checkKeyword("இல்லை") || checkKeyword("என்னவகை") ||
                          (check(TokenType::OPERATOR) && peek().text == "கழி") ||
                          check(TokenType::BIT_NOT) || check(TokenType::UNARY_PLUS) ||
                          check(TokenType::UNARY_MINUS);
    if (!isPrefix) return parseCall();
    const Nesting level(*this);
    const int first = current;
    Token op = advance();
    auto right = parseUnary();
    deepen(expressionDepth, 0);
    const int line = op.line;
    auto node = std::make_unique<UnaryExpression>(std::move(op), std::move(right));
    node->line = line;
    return noted<Expression>(first, std::move(node));
}

/// call = primary { "(" arguments | "." name | "[" index }
std::unique_ptr<Expression> Parser::parseCall() {
    const int first = current;
    auto left = parsePrimary();
    while (true) {
        left = noted(first, std::move(left));
        const int depth = expressionDepth;
        if (check(TokenType::LEFT_PAREN)) {
            const int line = advance().line;
            auto arguments = parseArguments(line);
            left = std::make_unique<CallExpression>(std::move(left), std::move(arguments));
            left->line = line;
            deepen(depth, expressionDepth);
        } else if (check(TokenType::DOT) || check(TokenType::DOT_ALTERNATE)) {
            advance();
            left = parseMember(std::move(left));
            deepen(depth, 0);
        } else if (check(TokenType::LEFT_BRACKET)) {
            const int line = advance().line;
            left = parseIndexExpression(std::move(left), line);
            deepen(depth, expressionDepth);
        } else {
            return left;
        }
    }
}

/// Entered behind the dot. Raises 210 for a word that can't be a name.
std::unique_ptr<Expression> Parser::parseMember(std::unique_ptr<Expression> object) {
    const Token name = expectName("பொழில்-210");
    if (auto number = foldEnumeration(*object, name)) return number;
    auto node = std::make_unique<GetExpression>(std::move(object), name);
    node->line = name.line;
    return node;
}

/// A member of an enumeration is the number of its place; null for any other member.
std::unique_ptr<Expression> Parser::foldEnumeration(const Expression& object, const Token& name) {
    const auto* variable = nodeAs<VariableAccess>(&object);
    if (variable == nullptr) return nullptr;
    const auto enumeration = enumerations.find(variable->name);
    if (enumeration == enumerations.end()) return nullptr;
    const auto member = enumeration->second.find(name.text);
    if (member == enumeration->second.end()) return nullptr;
    return std::make_unique<NumberLiteral>(std::to_string(member->second));
}

/// arguments = [ expression { "," expression } ] ")"
/// An argument list stands on one line, and a trailing comma is no expression.
std::vector<std::unique_ptr<Expression>> Parser::parseArguments(int line) {
    std::vector<std::unique_ptr<Expression>> arguments;
    int depth = 0;
    if (!check(TokenType::RIGHT_PAREN)) {
        do {
            arguments.push_back(parseExpression());
            depth = std::max(depth, expressionDepth);
        } while (takeComma());
    }
    consume(TokenType::RIGHT_PAREN, "பொழில்-204", line);
    expressionDepth = depth;
    return arguments;
}

std::unique_ptr<Expression> Parser::parseIndexExpression(std::unique_ptr<Expression> object,
                                                         int line) {
    auto index = parseExpression();
    consume(TokenType::RIGHT_BRACKET, "பொழில்-205", line);
    auto node = std::make_unique<IndexExpression>(std::move(object), std::move(index));
    node->line = line;
    return node;
}
