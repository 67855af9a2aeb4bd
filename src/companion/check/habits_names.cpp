// Names that are read and hold nothing.
#include <algorithm>
#include <unordered_map>

#include "companion/check/habits.h"
#include "companion/check/names_letters.h"
#include "companion/check/tree_walk.h"
#include "driver/phases.h"
#include "syntax/application.h"

namespace companion {

namespace {

/// "x => name(x)", with as many parameters as the function has.
std::string lambdaFor(const std::string& name, std::size_t parameters) {
    static const char* const kNames[] = {"அ", "ஆ", "இ", "ஈ", "உ", "ஊ"};
    if (parameters > std::size(kNames)) return "(...) => " + name + "(...)";
    std::string list;
    for (std::size_t i = 0; i < parameters; i++)
        list += (i > 0 ? ", " : "") + std::string(kNames[i]);
    return "(" + list + ") => " + name + "(" + list + ")";
}

void addEmptyName(const HabitCheck& check, const NearNames& near, const std::string& name,
                  std::optional<Range> range) {
    const auto& functions = check.compiled.parser->functionParameters;
    const auto function = functions.find(name);
    if (function != functions.end()) {
        check.add("துணை-505", range, {name, lambdaFor(name, function->second.size())});
    } else if (check.uses.loopVariables.count(name) != 0) {
        check.add("துணை-503", range, {name});
    } else if (check.uses.parameters.count(name) != 0) {
        check.add("துணை-504", range, {name});
    } else if (const auto nearest = near.to(name)) {
        if (range) check.findings.add("துணை-501", *range, {name, *nearest}, {*range, *nearest});
    } else {
        check.add("துணை-502", range, {name});
    }
}

bool isLocalElsewhere(const HabitCheck& check, const std::string& name) {
    return check.uses.loopVariables.count(name) != 0 || check.uses.parameters.count(name) != 0;
}

/// Names that never hold anything, wherever they are read.
void checkEmptyNames(const HabitCheck& check) {
    const NearNames near(check.uses.given);
    for (const NameRead& read : check.uses.reads) {
        const std::string& name = read.node->name;
        if (read.in.isLocal || check.uses.given.count(name) != 0) continue;
        if (read.in.isInField && isLocalElsewhere(check, name)) continue;
        addEmptyName(check, near, name, check.compiled.rangeOf(*read.node));
    }
    for (const NameWrite& write : check.uses.writes) {
        const std::string& name = write.node->name;
        if (write.in.isLocal || check.uses.given.count(name) != 0) continue;
        addEmptyName(check, near, name, check.compiled.wordIn(*write.node, name));
    }
}

// ---- Too early ----

/// The statements of the top level by their number, in the order in which they run.
struct TopLevelOrder {
    std::unordered_map<const Expression*, std::size_t> statementOfRead;
    std::map<std::string, std::size_t> firstGiven;
    /// Statements that are one assignment: what they read is read before they give.
    std::set<std::size_t> plainGiving;
};

bool isAssignmentAlone(const Statement& statement) {
    const auto* line = nodeAs<ExpressionStatement>(&statement);
    return line != nullptr && nodeAs<AssignmentExpression>(line->expression.get()) != nullptr;
}

void noteStatement(TopLevelOrder& order, std::size_t number, const Statement& statement) {
    if (nodeAs<FunctionDefinitionStatement>(&statement) != nullptr) return;
    if (nodeAs<StructDefinitionStatement>(&statement) != nullptr) return;
    if (isAssignmentAlone(statement)) order.plainGiving.insert(number);
    forEachNode(
        statement,
        [&](const Statement& node) {
            if (const auto* attempt = nodeAs<TryCatchStatement>(&node)) {
                order.firstGiven.emplace(attempt->errorName, number);
            }
        },
        [&](const Expression& node) {
            order.statementOfRead[&node] = number;
            if (const auto* write = nodeAs<AssignmentExpression>(&node)) {
                order.firstGiven.emplace(write->name, number);
            } else if (const auto* store = nodeAs<SetMemberExpression>(&node)) {
                order.firstGiven.emplace(store->name.text, number);
            }
        });
}

TopLevelOrder orderOf(const Program& program) {
    TopLevelOrder order;
    for (std::size_t i = 0; i < program.statements.size(); i++) {
        if (program.statements[i] != nullptr) noteStatement(order, i, *program.statements[i]);
    }
    return order;
}

/// Names that functions and lambdas give a value: when they do, the order doesn't tell.
std::set<std::string> namesGivenInFunctions(const NameUses& uses) {
    std::set<std::string> names;
    for (const NameWrite& write : uses.writes) {
        if (write.in.function != nullptr || write.in.isInLambda) names.insert(write.node->name);
    }
    return names;
}

/// Reads at the top level that nothing can have gone before.
void checkEarlyNames(const HabitCheck& check) {
    if (holdsWebApp(check.compiled.program)) return;
    const TopLevelOrder order = orderOf(check.compiled.program);
    const std::set<std::string> elsewhere = namesGivenInFunctions(check.uses);
    for (const NameRead& read : check.uses.reads) {
        const std::string& name = read.node->name;
        const auto statement = order.statementOfRead.find(read.node);
        const auto given = order.firstGiven.find(name);
        if (statement == order.statementOfRead.end() || given == order.firstGiven.end()) continue;
        if (read.in.isLocal || read.in.isInLambda || elsewhere.count(name) != 0) continue;
        const bool isFirst =
            statement->second == given->second && order.plainGiving.count(statement->second) != 0;
        if (statement->second > given->second) continue;
        if (statement->second == given->second && !isFirst) continue;
        check.add("துணை-506", check.compiled.rangeOf(*read.node), {name});
    }
}

// ---- What an application leaves out ----

bool isDefinition(const Statement& node) {
    return nodeAs<FunctionDefinitionStatement>(&node) != nullptr ||
           nodeAs<StructDefinitionStatement>(&node) != nullptr ||
           nodeAs<AbstractStructDefinitionStatement>(&node) != nullptr ||
           nodeAs<WebAppNode>(&node) != nullptr || nodeAs<PassStatement>(&node) != nullptr;
}

void checkLeftOutStatements(const HabitCheck& check) {
    if (!holdsWebApp(check.compiled.program)) return;
    for (const auto& statement : check.compiled.program.statements) {
        if (statement == nullptr || isDefinition(*statement)) continue;
        check.add("துணை-507", check.compiled.headOf(*statement));
    }
}

}  // namespace

void checkNameHabits(const HabitCheck& check) {
    checkEmptyNames(check);
    checkEarlyNames(check);
    checkLeftOutStatements(check);
}

}  // namespace companion
