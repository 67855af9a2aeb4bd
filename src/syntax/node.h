// The bases of the tree. Nodes are plain data: children are owned by std::unique_ptr, there is no
// visitor interface, and consumers tell nodes apart by dynamic_cast.
#pragma once

#include <memory>
#include <utility>
#include <vector>

struct Statement {
    int line = 0;  ///< Counted from 1; 0 until the parser sets it.
    virtual ~Statement() = default;
};

struct Expression {
    int line = 0;  ///< Counted from 1; 0 until the parser sets it.
    virtual ~Expression() = default;
};

/// A whole source: owns the top-level statements. Not a node.
struct Program {
    std::vector<std::unique_ptr<Statement>> statements;
};
