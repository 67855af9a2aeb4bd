// Walks a tree in source order and shows each node to a visitor.
#pragma once

#include <functional>

#include "syntax/node.h"

struct TreeVisitor {
    std::function<void(const Statement&)> statement = [](const Statement&) {};
    std::function<void(const Expression&)> expression = [](const Expression&) {};
};

/// Each statement before what it holds, each expression behind its parts. A null is passed over.
void walk(const Statement* node, const TreeVisitor& visitor);
void walk(const Expression* node, const TreeVisitor& visitor);
