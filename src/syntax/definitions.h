// Definitions, and the records that the parser's tables hold. An enumeration has no node: it
// lives in the parser's table alone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lexer/token.h"
#include "syntax/node.h"
#include "syntax/statements.h"

/// One parameter of a function or method.
struct Param {
    Token name;
    bool isMutable = false;  ///< Marked `மாற்று`: passed by reference.
};

/// One method that a child of an abstract structure must write.
struct AbstractMethod {
    Token name;
    std::vector<Param> parameters;
};

/// செயல் name(...)
struct FunctionDefinitionStatement final : Statement {
    FunctionDefinitionStatement(Token name, std::vector<Param> parameters,
                                std::unique_ptr<BlockStatement> body, bool isPrivate = false)
        : name(std::move(name)),
          parameters(std::move(parameters)),
          body(std::move(body)),
          isPrivate(isPrivate) {}
    Token name;
    std::vector<Param> parameters;
    std::unique_ptr<BlockStatement> body;
    bool isPrivate;
};

/// கட்டமைப்பு name(parent)
struct StructDefinitionStatement final : Statement {
    StructDefinitionStatement(Token name, Token parentName, bool hasParent,
                              std::vector<std::unique_ptr<VarDeclaration>> fields,
                              std::vector<std::unique_ptr<FunctionDefinitionStatement>> methods,
                              bool flag = false)
        : name(std::move(name)),
          parentName(std::move(parentName)),
          hasParent(hasParent),
          flag(flag),
          fields(std::move(fields)),
          methods(std::move(methods)) {}
    Token name;
    Token parentName;  ///< A copy of `name` without a parent.
    bool hasParent;
    bool flag;  ///< Reserved: always false, and nothing reads it.
    std::vector<std::unique_ptr<VarDeclaration>> fields;
    std::vector<std::unique_ptr<FunctionDefinitionStatement>> methods;
};

/// வடிவமைப்பு name
struct AbstractStructDefinitionStatement final : Statement {
    AbstractStructDefinitionStatement(Token name, std::vector<AbstractMethod> methods)
        : name(std::move(name)), methods(std::move(methods)) {}
    Token name;
    std::vector<AbstractMethod> methods;
};
