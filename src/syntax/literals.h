// Literals. Each holds the token's text as scanned; nothing is converted before generation.
#pragma once

#include <string>

#include "syntax/node.h"

struct NumberLiteral final : Expression {
    explicit NumberLiteral(std::string value) : value(std::move(value)) {}
    std::string value;  ///< Digits, western or Tamil.
};

struct DoubleLiteral final : Expression {
    explicit DoubleLiteral(std::string value) : value(std::move(value)) {}
    std::string value;  ///< Digits with one dot.
};

struct StringLiteral final : Expression {
    explicit StringLiteral(std::string value) : value(std::move(value)) {}
    std::string value;
};

struct CharLiteral final : Expression {
    explicit CharLiteral(std::string value) : value(std::move(value)) {}
    std::string value;
};

struct BooleanLiteral final : Expression {
    explicit BooleanLiteral(std::string value) : value(std::move(value)) {}
    std::string value;  ///< `மெய்` or `பொய்`.
};
