#include "companion/check/tree_walk.h"

#include <memory>
#include <unordered_map>
#include <utility>

#include "syntax/application.h"
#include "syntax/database.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"
#include "syntax/widgets.h"

namespace companion {

namespace {

/// Hands children over and leaves nulls out.
class Children {
public:
    Children(const TakeStatement& statement, const TakeExpression& expression)
        : statement(statement), expression(expression) {}

    template <typename Node>
    void take(const std::unique_ptr<Node>& child) const {
        if (child == nullptr) return;
        if constexpr (std::is_base_of_v<Statement, Node>) {
            statement(*child);
        } else {
            expression(*child);
        }
    }
    template <typename Node>
    void take(const std::vector<std::unique_ptr<Node>>& children) const {
        for (const auto& child : children) take(child);
    }
    template <typename Key, typename Node>
    void take(const std::pair<Key, std::unique_ptr<Node>>& entry) const {
        take(entry.second);
    }
    void take(const PropertyMap& properties) const {
        for (const auto& property : properties) take(property);
    }
    void take(const std::vector<std::pair<std::string, std::unique_ptr<Expression>>>& map) const {
        for (const auto& entry : map) take(entry);
    }
    void take(const CaseBlock& block) const {
        take(block.value);
        take(block.body);
    }
    void take(const std::vector<CaseBlock>& blocks) const {
        for (const CaseBlock& block : blocks) take(block);
    }

private:
    const TakeStatement& statement;
    const TakeExpression& expression;
};

template <typename Base>
using HandOver = void (*)(const Base& node, const Children& to);
template <typename Base>
using Rows = std::unordered_map<std::type_index, HandOver<Base>>;

/// A row: a class and those of its fields that hold children.
template <typename Base, typename Node, auto... fields>
std::pair<const std::type_index, HandOver<Base>> row() {
    return {typeid(Node), [](const Base& base, [[maybe_unused]] const Children& to) {
                [[maybe_unused]] const auto& node = static_cast<const Node&>(base);
                (to.take(node.*fields), ...);
            }};
}

template <typename Node, auto... fields>
auto expressionRow() {
    return row<Expression, Node, fields...>();
}

template <typename Node, auto... fields>
auto statementRow() {
    return row<Statement, Node, fields...>();
}

const Rows<Expression>& expressionRows() {
    static const Rows<Expression> rows = {
        expressionRow<NumberLiteral>(),
        expressionRow<DoubleLiteral>(),
        expressionRow<StringLiteral>(),
        expressionRow<CharLiteral>(),
        expressionRow<BooleanLiteral>(),
        expressionRow<PercentageLiteral>(),
        expressionRow<ColorExpression>(),
        expressionRow<VariableAccess>(),
        expressionRow<GroupingExpression, &GroupingExpression::expression>(),
        expressionRow<UnaryExpression, &UnaryExpression::right>(),
        expressionRow<BinaryExpression, &BinaryExpression::left, &BinaryExpression::right>(),
        expressionRow<LogicalExpression, &LogicalExpression::left, &LogicalExpression::right>(),
        expressionRow<TernaryExpression, &TernaryExpression::condition,
                      &TernaryExpression::thenBranch, &TernaryExpression::elseBranch>(),
        expressionRow<CallExpression, &CallExpression::callee, &CallExpression::arguments>(),
        expressionRow<GetExpression, &GetExpression::object>(),
        expressionRow<SetMemberExpression, &SetMemberExpression::object,
                      &SetMemberExpression::value>(),
        expressionRow<IndexExpression, &IndexExpression::object, &IndexExpression::index>(),
        expressionRow<ListLiteral, &ListLiteral::elements>(),
        expressionRow<MapLiteral, &MapLiteral::entries>(),
        expressionRow<LambdaExpression, &LambdaExpression::body>(),
        expressionRow<AssignmentExpression, &AssignmentExpression::value>(),
        expressionRow<WidgetExpression, &WidgetExpression::widget>(),
        expressionRow<RTDBInsertExpression, &RTDBInsertExpression::path,
                      &RTDBInsertExpression::data>(),
        expressionRow<RTDBUpdateExpression, &RTDBUpdateExpression::path,
                      &RTDBUpdateExpression::data>(),
        expressionRow<RTDBDeleteExpression, &RTDBDeleteExpression::path>(),
    };
    return rows;
}

const Rows<Statement>& statementRows() {
    static const Rows<Statement> rows = {
        statementRow<PrintStatement, &PrintStatement::expressions>(),
        statementRow<BlockStatement, &BlockStatement::statements>(),
        statementRow<ExpressionStatement, &ExpressionStatement::expression>(),
        statementRow<VarDeclaration, &VarDeclaration::initializer>(),
        statementRow<SetStatement, &SetStatement::target, &SetStatement::value>(),
        statementRow<CompoundAssignmentStatement, &CompoundAssignmentStatement::target,
                     &CompoundAssignmentStatement::value>(),
        statementRow<IncrementStatement, &IncrementStatement::target>(),
        statementRow<IfStatement, &IfStatement::condition, &IfStatement::thenBranch,
                     &IfStatement::elseBranch>(),
        statementRow<WhileStatement, &WhileStatement::condition, &WhileStatement::body>(),
        statementRow<ForStatement, &ForStatement::iterable, &ForStatement::body>(),
        statementRow<SwitchStatement, &SwitchStatement::subject, &SwitchStatement::cases,
                     &SwitchStatement::defaultBlock>(),
        statementRow<TryCatchStatement, &TryCatchStatement::tryBlock,
                     &TryCatchStatement::catchBlock>(),
        statementRow<ReturnStatement, &ReturnStatement::value>(),
        statementRow<WaitStatement, &WaitStatement::duration>(),
        statementRow<BreakStatement>(),
        statementRow<ContinueStatement>(),
        statementRow<PassStatement>(),
        statementRow<SetStateStatement>(),
        statementRow<FunctionDefinitionStatement, &FunctionDefinitionStatement::body>(),
        statementRow<StructDefinitionStatement, &StructDefinitionStatement::fields,
                     &StructDefinitionStatement::methods>(),
        statementRow<AbstractStructDefinitionStatement>(),
        statementRow<WidgetNode, &WidgetNode::properties, &WidgetNode::children,
                     &WidgetNode::onTapStatements>(),
        statementRow<LogicBlockNode, &LogicBlockNode::body>(),
        statementRow<FirebaseConfigNode, &FirebaseConfigNode::properties>(),
        statementRow<DatabaseManagerNode, &DatabaseManagerNode::firebaseConfig>(),
        statementRow<WebAppNode, &WebAppNode::properties, &WebAppNode::databaseManager,
                     &WebAppNode::header, &WebAppNode::logic, &WebAppNode::body>(),
        statementRow<RTDBReadStatement, &RTDBReadStatement::path, &RTDBReadStatement::body>(),
    };
    return rows;
}

/// The class by whose row a statement goes: a widget of any kind holds what every widget holds.
std::type_index classOf(const Statement& node) {
    if (dynamic_cast<const WidgetNode*>(&node) != nullptr) return typeid(WidgetNode);
    return typeid(node);
}

template <typename Base>
std::vector<std::type_index> classesIn(const Rows<Base>& rows) {
    std::vector<std::type_index> classes;
    for (const auto& entry : rows) classes.push_back(entry.first);
    return classes;
}

template <typename Node>
void walkNode(const Node& node, TreeVisitor& visitor) {
    if (visitor.enter(node)) {
        forEachChild(
            node, [&](const Statement& child) { walkNode(child, visitor); },
            [&](const Expression& child) { walkNode(child, visitor); });
    }
    visitor.leave(node);
}

/// Hands every node over that it meets.
class EachNode final : public TreeVisitor {
public:
    EachNode(const TakeStatement& statement, const TakeExpression& expression)
        : statement(statement), expression(expression) {}
    bool enter(const Statement& node) override {
        statement(node);
        return true;
    }
    bool enter(const Expression& node) override {
        expression(node);
        return true;
    }

private:
    const TakeStatement& statement;
    const TakeExpression& expression;
};

}  // namespace

void forEachChild(const Statement& node, const TakeStatement& statement,
                  const TakeExpression& expression) {
    const auto found = statementRows().find(classOf(node));
    if (found != statementRows().end()) found->second(node, Children(statement, expression));
}

void forEachChild(const Expression& node, const TakeStatement& statement,
                  const TakeExpression& expression) {
    const auto found = expressionRows().find(typeid(node));
    if (found != expressionRows().end()) found->second(node, Children(statement, expression));
}

void walk(const Statement& node, TreeVisitor& visitor) { walkNode(node, visitor); }

void walk(const Expression& node, TreeVisitor& visitor) { walkNode(node, visitor); }

void walk(const Program& program, TreeVisitor& visitor) {
    for (const auto& statement : program.statements) {
        if (statement != nullptr) walk(*statement, visitor);
    }
}

void forEachNode(const Program& program, const TakeStatement& statement,
                 const TakeExpression& expression) {
    EachNode visitor(statement, expression);
    walk(program, visitor);
}

void forEachNode(const Statement& node, const TakeStatement& statement,
                 const TakeExpression& expression) {
    EachNode visitor(statement, expression);
    walk(node, visitor);
}

void forEachNode(const Expression& node, const TakeStatement& statement,
                 const TakeExpression& expression) {
    EachNode visitor(statement, expression);
    walk(node, visitor);
}

std::vector<std::type_index> walkedStatements() { return classesIn(statementRows()); }

std::vector<std::type_index> walkedExpressions() { return classesIn(expressionRows()); }

}  // namespace companion
