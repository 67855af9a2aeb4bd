// Expressions: the dispatch over the nodes, and the text of values: literals with brackets,
// lambdas, the ternary. An expression's C++ type is whatever its text yields; the caller wraps it
// in std::any where one is needed.
#include "generator/generator.h"
#include "static_error.h"
#include "ui/properties.h"
#include "ui/web_form.h"

void Generator::visitExpression(const Expression* expression) {
    visited.expression = expression;
    if (visitValue(expression) || visitOperation(expression)) return;
    if (const WidgetNode* widget = widgetOf(expression)) {
        return web->widgets.writeValue(*widget);
    }
    throw_static_error("பொழில்-399", "Unknown expression type in generator");
}

/// Literals, names, members, elements and functions; false if the node is none of them.
bool Generator::visitValue(const Expression* expression) {
    if (const auto* node = nodeAs<NumberLiteral>(expression)) {
        visitNumberLiteral(node);
    } else if (const auto* node = nodeAs<DoubleLiteral>(expression)) {
        visitDoubleLiteral(node);
    } else if (const auto* node = nodeAs<StringLiteral>(expression)) {
        visitStringLiteral(node);
    } else if (const auto* node = nodeAs<CharLiteral>(expression)) {
        visitCharLiteral(node);
    } else if (const auto* node = nodeAs<AssignmentExpression>(expression)) {
        visitAssignmentExpression(node);
    } else if (const auto* node = nodeAs<SetMemberExpression>(expression)) {
        checkMemberAssignment(*node);
        visitSetMemberExpression(node);
    } else if (const auto* node = nodeAs<VariableAccess>(expression)) {
        visitVariableAccess(node);
    } else if (const auto* node = nodeAs<BooleanLiteral>(expression)) {
        visitBooleanLiteral(node);
    } else if (const auto* node = nodeAs<TernaryExpression>(expression)) {
        visitTernaryExpression(node);
    } else if (const auto* node = nodeAs<GetExpression>(expression)) {
        visitGetExpression(node);
    } else if (const auto* node = nodeAs<ListLiteral>(expression)) {
        visitListLiteral(node);
    } else if (const auto* node = nodeAs<MapLiteral>(expression)) {
        visitMapLiteral(node);
    } else if (const auto* node = nodeAs<IndexExpression>(expression)) {
        visitIndexExpression(node);
    } else if (const auto* node = nodeAs<ColorExpression>(expression)) {
        visitColorExpression(node);
    } else {
        return false;
    }
    return true;
}

/// Lambdas, calls, operators and the database; false if the node is none of them.
bool Generator::visitOperation(const Expression* expression) {
    if (const auto* node = nodeAs<LambdaExpression>(expression)) {
        visitLambdaExpression(node);
    } else if (const auto* node = nodeAs<CallExpression>(expression)) {
        visitCallExpression(node);
    } else if (const auto* node = nodeAs<BinaryExpression>(expression)) {
        visitBinaryExpression(node);
    } else if (const auto* node = nodeAs<LogicalExpression>(expression)) {
        visitLogicalExpression(node);
    } else if (const auto* node = nodeAs<UnaryExpression>(expression)) {
        visitUnaryExpression(node);
    } else if (const auto* node = nodeAs<GroupingExpression>(expression)) {
        visitGroupingExpression(node);
    } else if (const auto* node = nodeAs<RTDBInsertExpression>(expression)) {
        visitRTDBInsertExpression(node);
    } else if (const auto* node = nodeAs<RTDBUpdateExpression>(expression)) {
        visitRTDBUpdateExpression(node);
    } else if (const auto* node = nodeAs<RTDBDeleteExpression>(expression)) {
        visitRTDBDeleteExpression(node);
    } else {
        return false;
    }
    return true;
}

void Generator::writeAny(const Expression* expression) {
    out << "std::any(";
    visitExpression(expression);
    out << ")";
}

void Generator::writeAnyList(const std::vector<std::unique_ptr<Expression>>& arguments) {
    for (std::size_t i = 0; i < arguments.size(); i++) {
        if (i > 0) out << ", ";
        writeAny(arguments[i].get());
    }
}

void Generator::writePlace(int line) { out << sourceFile << ", " << line; }

std::string Generator::functionType(int parameterCount) {
    std::string type = "std::function<std::any(";
    for (int i = 0; i < parameterCount; i++) type += i > 0 ? ", std::any" : "std::any";
    return type + ")>";
}

/// (அ)  ->  (global_vars["அ"])
void Generator::visitGroupingExpression(const GroupingExpression* grouping) {
    out << "(";
    visitExpression(grouping->expression.get());
    out << ")";
}

/// நி ? அ : ஆ  ->  (நி ? அ : ஆ)
/// The condition stands as it is, so it compiles only if it is a native truth value.
void Generator::visitTernaryExpression(const TernaryExpression* ternary) {
    out << "(";
    visitExpression(ternary->condition.get());
    out << " ? ";
    visitExpression(ternary->thenBranch.get());
    out << " : ";
    visitExpression(ternary->elseBranch.get());
    out << ")";
}

/// [1, 2]  ->  std::vector<std::any>({std::any(1LL), std::any(2LL)})
void Generator::visitListLiteral(const ListLiteral* list) {
    out << "std::vector<std::any>({";
    writeAnyList(list->elements);
    out << "})";
}

/// {"அ": 1}  ->  std::map<std::string, std::any>({{"அ", std::any(1LL)}})
void Generator::visitMapLiteral(const MapLiteral* map) {
    out << "std::map<std::string, std::any>({";
    for (std::size_t i = 0; i < map->entries.size(); i++) {
        if (i > 0) out << ", ";
        out << "{\"" << map->entries[i].first << "\", ";
        writeAny(map->entries[i].second.get());
        out << "}";
    }
    out << "})";
}

/// x => x  ->  std::function<std::any(std::any)>([=](std::any x) { return std::any(x); })
/// It sees copies of the locals around it, and the live global_vars.
void Generator::visitLambdaExpression(const LambdaExpression* lambda) {
    out << functionType(static_cast<int>(lambda->parameters.size())) << "([=](";
    const auto enclosing = localVariables;
    for (std::size_t i = 0; i < lambda->parameters.size(); i++) {
        const std::string& name = lambda->parameters[i].text;
        out << (i > 0 ? ", " : "") << "std::any " << name;
        localVariables[name] = true;
    }
    out << ") { return ";
    writeAny(lambda->body.get());
    out << "; })";
    localVariables = enclosing;
}
