// A walk over the whole tree: every statement and expression, those inside widgets included.
#pragma once

#include <functional>
#include <typeindex>
#include <vector>

#include "syntax/node.h"

namespace companion {

using TakeStatement = std::function<void(const Statement&)>;
using TakeExpression = std::function<void(const Expression&)>;

/// Hands over the nodes that stand directly in `node`, in the order of the source. A widget's
/// properties come by their keys, since the tree doesn't keep their order. What is missing, as an
/// else branch can be, is left out.
void forEachChild(const Statement& node, const TakeStatement& statement,
                  const TakeExpression& expression);
void forEachChild(const Expression& node, const TakeStatement& statement,
                  const TakeExpression& expression);

/// What a walk tells on its way.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;
    /// Ahead of what stands in the node; false passes over that, and `leave` comes all the same.
    virtual bool enter(const Statement&) { return true; }
    virtual bool enter(const Expression&) { return true; }
    virtual void leave(const Statement&) {}
    virtual void leave(const Expression&) {}
};

void walk(const Statement& node, TreeVisitor& visitor);
void walk(const Expression& node, TreeVisitor& visitor);
void walk(const Program& program, TreeVisitor& visitor);

/// Each node of the tree, outer ones first.
void forEachNode(const Program& program, const TakeStatement& statement,
                 const TakeExpression& expression);
void forEachNode(const Statement& node, const TakeStatement& statement,
                 const TakeExpression& expression);
void forEachNode(const Expression& node, const TakeStatement& statement,
                 const TakeExpression& expression);

/// The classes that the walk knows. All widgets count as one, WidgetNode.
std::vector<std::type_index> walkedStatements();
std::vector<std::type_index> walkedExpressions();

}  // namespace companion
