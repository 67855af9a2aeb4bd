// Statements. The parser leaves `line` at 0 on all of them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lexer/token.h"
#include "syntax/node.h"
#include "syntax/var_type.h"

/// அச்சிடு(...)
struct PrintStatement final : Statement {
    explicit PrintStatement(std::vector<std::unique_ptr<Expression>> expressions)
        : expressions(std::move(expressions)) {}
    std::vector<std::unique_ptr<Expression>> expressions;
};

/// The indented lines behind a colon.
struct BlockStatement final : Statement {
    std::vector<std::unique_ptr<Statement>> statements;
};

struct ExpressionStatement final : Statement {
    explicit ExpressionStatement(std::unique_ptr<Expression> expression)
        : expression(std::move(expression)) {}
    std::unique_ptr<Expression> expression;
};

/// A field of a structure. There is no declaration keyword: elsewhere an assignment declares.
struct VarDeclaration final : Statement {
    VarDeclaration(std::string name, std::unique_ptr<Expression> initializer, VarType type,
                   bool isPrivate)
        : name(std::move(name)),
          initializer(std::move(initializer)),
          type(type),
          isPrivate(isPrivate) {}
    std::string name;
    std::unique_ptr<Expression> initializer;
    VarType type;
    bool isPrivate;
};

struct SetStatement final : Statement {
    SetStatement(std::unique_ptr<Expression> target, std::unique_ptr<Expression> value)
        : target(std::move(target)), value(std::move(value)) {}
    std::unique_ptr<Expression> target;
    std::unique_ptr<Expression> value;
};

struct CompoundAssignmentStatement final : Statement {
    CompoundAssignmentStatement(std::unique_ptr<Expression> target, Token op,
                                std::unique_ptr<Expression> value)
        : target(std::move(target)), op(std::move(op)), value(std::move(value)) {}
    std::unique_ptr<Expression> target;
    Token op;
    std::unique_ptr<Expression> value;
};

struct IncrementStatement final : Statement {
    IncrementStatement(std::unique_ptr<Expression> target, Token op)
        : target(std::move(target)), op(std::move(op)) {}
    std::unique_ptr<Expression> target;
    Token op;
};

/// எனில் ... இல்லைஎனில் ... இல்லை
struct IfStatement final : Statement {
    IfStatement(std::unique_ptr<Expression> condition, std::unique_ptr<BlockStatement> thenBranch,
                std::unique_ptr<Statement> elseBranch)
        : condition(std::move(condition)),
          thenBranch(std::move(thenBranch)),
          elseBranch(std::move(elseBranch)) {}
    std::unique_ptr<Expression> condition;
    std::unique_ptr<BlockStatement> thenBranch;
    std::unique_ptr<Statement> elseBranch;  ///< Null, a further IfStatement, or a BlockStatement.
};

/// சுற்று
struct WhileStatement final : Statement {
    WhileStatement(std::unique_ptr<Expression> condition, std::unique_ptr<BlockStatement> body)
        : condition(std::move(condition)), body(std::move(body)) {}
    std::unique_ptr<Expression> condition;
    std::unique_ptr<BlockStatement> body;
};

/// ஒவ்வொன்றாக x இல் y
struct ForStatement final : Statement {
    ForStatement(Token variable, std::unique_ptr<Expression> iterable,
                 std::unique_ptr<BlockStatement> body)
        : variable(std::move(variable)), iterable(std::move(iterable)), body(std::move(body)) {}
    Token variable;
    std::unique_ptr<Expression> iterable;
    std::unique_ptr<BlockStatement> body;
};

/// One `நிலை` of a switch. A plain record.
struct CaseBlock {
    std::unique_ptr<Expression> value;
    std::unique_ptr<BlockStatement> body;
};

/// தேர்வு
struct SwitchStatement final : Statement {
    SwitchStatement(std::unique_ptr<Expression> subject, std::vector<CaseBlock> cases,
                    std::unique_ptr<BlockStatement> defaultBlock)
        : subject(std::move(subject)),
          cases(std::move(cases)),
          defaultBlock(std::move(defaultBlock)) {}
    std::unique_ptr<Expression> subject;
    std::vector<CaseBlock> cases;
    std::unique_ptr<BlockStatement> defaultBlock;  ///< `மற்றவை`; null if there is none.
};

/// முயற்சி ... பிடி
struct TryCatchStatement final : Statement {
    TryCatchStatement(std::unique_ptr<BlockStatement> tryBlock,
                      std::unique_ptr<BlockStatement> catchBlock, std::string errorName)
        : tryBlock(std::move(tryBlock)),
          catchBlock(std::move(catchBlock)),
          errorName(std::move(errorName)) {}
    std::unique_ptr<BlockStatement> tryBlock;
    std::unique_ptr<BlockStatement> catchBlock;
    std::string errorName;
};

/// திரும்பு
struct ReturnStatement final : Statement {
    explicit ReturnStatement(std::unique_ptr<Expression> value) : value(std::move(value)) {}
    std::unique_ptr<Expression> value;  ///< Null for a bare return.
};

/// காத்திரு
struct WaitStatement final : Statement {
    explicit WaitStatement(std::unique_ptr<Expression> duration) : duration(std::move(duration)) {}
    std::unique_ptr<Expression> duration;
};

struct BreakStatement final : Statement {};
struct ContinueStatement final : Statement {};
struct PassStatement final : Statement {};
/// புதுப்பி()
struct SetStateStatement final : Statement {};
