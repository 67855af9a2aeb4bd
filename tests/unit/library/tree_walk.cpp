#include "tree_walk.h"

#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/statements.h"

namespace {

/// Walks whatever stands in `part`: one node or a list of them.
template <typename Node>
void walkPart(const std::unique_ptr<Node>& part, const TreeVisitor& visitor) {
    walk(part.get(), visitor);
}

template <typename Node>
void walkPart(const std::vector<std::unique_ptr<Node>>& part, const TreeVisitor& visitor) {
    for (const auto& node : part) walk(node.get(), visitor);
}

/// If `node` is a `Kind`, walks the named parts in order.
template <typename Kind, typename Base, typename... Parts>
bool walkAs(const Base& node, const TreeVisitor& visitor, Parts... parts) {
    const auto* kind = dynamic_cast<const Kind*>(&node);
    if (kind == nullptr) return false;
    (walkPart(kind->*parts, visitor), ...);
    return true;
}

void walkCases(const SwitchStatement& choice, const TreeVisitor& visitor) {
    walk(choice.subject.get(), visitor);
    for (const CaseBlock& block : choice.cases) {
        walk(block.value.get(), visitor);
        walk(block.body.get(), visitor);
    }
    walk(choice.defaultBlock.get(), visitor);
}

}  // namespace

void walk(const Statement* node, const TreeVisitor& visitor) {
    if (node == nullptr) return;
    visitor.statement(*node);
    if (const auto* choice = dynamic_cast<const SwitchStatement*>(node)) {
        return walkCases(*choice, visitor);
    }
    walkAs<PrintStatement>(*node, visitor, &PrintStatement::expressions) ||
        walkAs<BlockStatement>(*node, visitor, &BlockStatement::statements) ||
        walkAs<ExpressionStatement>(*node, visitor, &ExpressionStatement::expression) ||
        walkAs<IfStatement>(*node, visitor, &IfStatement::condition, &IfStatement::thenBranch,
                            &IfStatement::elseBranch) ||
        walkAs<WhileStatement>(*node, visitor, &WhileStatement::condition, &WhileStatement::body) ||
        walkAs<ForStatement>(*node, visitor, &ForStatement::iterable, &ForStatement::body) ||
        walkAs<TryCatchStatement>(*node, visitor, &TryCatchStatement::tryBlock,
                                  &TryCatchStatement::catchBlock) ||
        walkAs<ReturnStatement>(*node, visitor, &ReturnStatement::value) ||
        walkAs<WaitStatement>(*node, visitor, &WaitStatement::duration) ||
        walkAs<FunctionDefinitionStatement>(*node, visitor, &FunctionDefinitionStatement::body);
}

void walk(const Expression* node, const TreeVisitor& visitor) {
    if (node == nullptr) return;
    if (const auto* map = dynamic_cast<const MapLiteral*>(node)) {
        for (const auto& entry : map->entries) walk(entry.second.get(), visitor);
    }
    walkAs<GroupingExpression>(*node, visitor, &GroupingExpression::expression) ||
        walkAs<UnaryExpression>(*node, visitor, &UnaryExpression::right) ||
        walkAs<BinaryExpression>(*node, visitor, &BinaryExpression::left,
                                 &BinaryExpression::right) ||
        walkAs<LogicalExpression>(*node, visitor, &LogicalExpression::left,
                                  &LogicalExpression::right) ||
        walkAs<TernaryExpression>(*node, visitor, &TernaryExpression::condition,
                                  &TernaryExpression::thenBranch, &TernaryExpression::elseBranch) ||
        walkAs<CallExpression>(*node, visitor, &CallExpression::callee,
                               &CallExpression::arguments) ||
        walkAs<GetExpression>(*node, visitor, &GetExpression::object) ||
        walkAs<SetMemberExpression>(*node, visitor, &SetMemberExpression::object,
                                    &SetMemberExpression::value) ||
        walkAs<IndexExpression>(*node, visitor, &IndexExpression::object,
                                &IndexExpression::index) ||
        walkAs<ListLiteral>(*node, visitor, &ListLiteral::elements) ||
        walkAs<LambdaExpression>(*node, visitor, &LambdaExpression::body) ||
        walkAs<AssignmentExpression>(*node, visitor, &AssignmentExpression::value);
    visitor.expression(*node);
}
