// Expressions, but for the literals of literals.h.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "lexer/token.h"
#include "syntax/node.h"

struct PercentageLiteral final : Expression {
    explicit PercentageLiteral(std::string value) : value(std::move(value)) {}
    std::string value;  ///< Digits with the trailing "%".
};

struct VariableAccess final : Expression {
    explicit VariableAccess(std::string name) : name(std::move(name)) {}
    std::string name;
};

/// A colour, hexadecimal or by name: one of the two texts is filled, the other stays empty.
struct ColorExpression final : Expression {
    ColorExpression(const std::string& text, bool isHex)
        : hexValue(isHex ? text : ""), colorName(isHex ? "" : text), isHex(isHex) {}
    std::string hexValue;
    std::string colorName;
    bool isHex;
};

/// (expression)
struct GroupingExpression final : Expression {
    explicit GroupingExpression(std::unique_ptr<Expression> expression)
        : expression(std::move(expression)) {}
    std::unique_ptr<Expression> expression;
};

struct UnaryExpression final : Expression {
    UnaryExpression(Token op, std::unique_ptr<Expression> right)
        : op(std::move(op)), right(std::move(right)) {}
    Token op;
    std::unique_ptr<Expression> right;
};

struct BinaryExpression final : Expression {
    BinaryExpression(std::unique_ptr<Expression> left, Token op, std::unique_ptr<Expression> right)
        : left(std::move(left)), op(std::move(op)), right(std::move(right)) {}
    std::unique_ptr<Expression> left;
    Token op;
    std::unique_ptr<Expression> right;
};

/// மற்றும், அல்லது
struct LogicalExpression final : Expression {
    LogicalExpression(std::unique_ptr<Expression> left, Token op, std::unique_ptr<Expression> right)
        : left(std::move(left)), op(std::move(op)), right(std::move(right)) {}
    std::unique_ptr<Expression> left;
    Token op;
    std::unique_ptr<Expression> right;
};

struct TernaryExpression final : Expression {
    TernaryExpression(std::unique_ptr<Expression> condition, std::unique_ptr<Expression> thenBranch,
                      std::unique_ptr<Expression> elseBranch)
        : condition(std::move(condition)),
          thenBranch(std::move(thenBranch)),
          elseBranch(std::move(elseBranch)) {}
    std::unique_ptr<Expression> condition;
    std::unique_ptr<Expression> thenBranch;
    std::unique_ptr<Expression> elseBranch;
};

struct CallExpression final : Expression {
    CallExpression(std::unique_ptr<Expression> callee,
                   std::vector<std::unique_ptr<Expression>> arguments)
        : callee(std::move(callee)), arguments(std::move(arguments)) {}
    std::unique_ptr<Expression> callee;
    std::vector<std::unique_ptr<Expression>> arguments;
};

/// object.name
struct GetExpression final : Expression {
    GetExpression(std::unique_ptr<Expression> object, Token name)
        : object(std::move(object)), name(std::move(name)) {}
    std::unique_ptr<Expression> object;
    Token name;
};

/// object.name = value
struct SetMemberExpression final : Expression {
    SetMemberExpression(std::unique_ptr<Expression> object, Token name,
                        std::unique_ptr<Expression> value)
        : object(std::move(object)), name(std::move(name)), value(std::move(value)) {}
    std::unique_ptr<Expression> object;
    Token name;
    std::unique_ptr<Expression> value;
};

/// object[index]
struct IndexExpression final : Expression {
    IndexExpression(std::unique_ptr<Expression> object, std::unique_ptr<Expression> index)
        : object(std::move(object)), index(std::move(index)) {}
    std::unique_ptr<Expression> object;
    std::unique_ptr<Expression> index;
};

struct ListLiteral final : Expression {
    std::vector<std::unique_ptr<Expression>> elements;
};

/// Entries stay in source order; a repeated key stays twice.
struct MapLiteral final : Expression {
    explicit MapLiteral(std::vector<std::pair<std::string, std::unique_ptr<Expression>>> entries)
        : entries(std::move(entries)) {}
    std::vector<std::pair<std::string, std::unique_ptr<Expression>>> entries;
};

/// வினை (a, b): body, or (a, b) => body
struct LambdaExpression final : Expression {
    LambdaExpression(std::vector<Token> parameters, std::unique_ptr<Expression> body)
        : parameters(std::move(parameters)), body(std::move(body)) {}
    std::vector<Token> parameters;
    std::unique_ptr<Expression> body;
};

/// name = value, and the compound words
struct AssignmentExpression final : Expression {
    AssignmentExpression(std::string name, Token op, std::unique_ptr<Expression> value)
        : name(std::move(name)), op(std::move(op)), value(std::move(value)) {}
    std::string name;
    Token op;
    std::unique_ptr<Expression> value;
};

/// Carries a widget, which is a statement, through the expression descent. The statement grammar
/// takes it back out; to every other consumer it is an expression of unknown kind.
struct WidgetExpression final : Expression {
    explicit WidgetExpression(std::unique_ptr<Statement> widget) : widget(std::move(widget)) {}
    std::unique_ptr<Statement> widget;
};
