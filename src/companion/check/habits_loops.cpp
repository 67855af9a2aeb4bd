// Walks: ranges that are empty, and lists that change under the walk.
#include <algorithm>

#include "companion/check/habits.h"
#include "companion/check/habits_constants.h"
#include "companion/check/tree_walk.h"

namespace companion {

namespace {

const CallExpression* callOf(const Expression* expression, const char* name) {
    const auto* call = nodeAs<CallExpression>(expression);
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == name ? call : nullptr;
}

/// The whole number of a literal, with or without a minus in front.
std::optional<long long> wholeNumber(const Expression& expression) {
    const Expression& value = withoutGrouping(expression);
    if (const auto* minus = nodeAs<UnaryExpression>(&value)) {
        const auto number = wholeNumber(*minus->right);
        const bool isMinus = minus->op.text == "கழி" || minus->op.text == "குறை";
        return number && isMinus ? std::optional<long long>(-*number) : std::nullopt;
    }
    if (nodeAs<NumberLiteral>(&value) == nullptr) return std::nullopt;
    const auto number = constantOf(value);
    if (!number) return std::nullopt;
    return static_cast<long long>(std::min(std::get<long double>(*number), 1e18L));
}

void checkRange(const HabitCheck& check, const CallExpression& range) {
    if (range.arguments.empty() || range.arguments.size() > 2) return;
    const auto begin = range.arguments.size() == 2 ? wholeNumber(*range.arguments[0]) : 0;
    const auto end = wholeNumber(*range.arguments.back());
    if (!begin || !end || *begin < *end) return;
    check.add("துணை-517", check.compiled.rangeOf(range),
              {std::to_string(*begin), std::to_string(*end)});
}

// ---- Lists that change under the walk ----

bool isNamed(const Expression* expression, const std::string& name) {
    const auto* variable = nodeAs<VariableAccess>(expression);
    return variable != nullptr && variable->name == name;
}

/// ப.சேர்(x), நீக்கு(ப, x), ப = ...: what moves the elements that a walk is among.
bool changes(const Expression& node, const std::string& list) {
    if (const auto* write = nodeAs<AssignmentExpression>(&node)) return write->name == list;
    if (const auto* removal = callOf(&node, "நீக்கு")) {
        return !removal->arguments.empty() && isNamed(removal->arguments[0].get(), list);
    }
    const auto* call = nodeAs<CallExpression>(&node);
    const auto* member = call == nullptr ? nullptr : nodeAs<GetExpression>(call->callee.get());
    return member != nullptr && member->name.text == "சேர்" && isNamed(member->object.get(), list);
}

bool leavesLoop(const Statement* node) {
    return nodeAs<BreakStatement>(node) != nullptr || nodeAs<ReturnStatement>(node) != nullptr;
}

/// Statements of `block` that change the list and go on with the walk.
void checkBlock(const HabitCheck& check, const BlockStatement& block, const std::string& list) {
    const auto& statements = block.statements;
    for (std::size_t i = 0; i < statements.size(); i++) {
        const auto* line = nodeAs<ExpressionStatement>(statements[i].get());
        if (line == nullptr || !changes(*line->expression, list)) continue;
        const bool goesOn =
            std::none_of(statements.begin() + static_cast<std::ptrdiff_t>(i), statements.end(),
                         [](const auto& statement) { return leavesLoop(statement.get()); });
        if (goesOn) check.add("துணை-519", check.compiled.rangeOf(*line->expression), {list});
    }
}

void checkWalk(const HabitCheck& check, const ForStatement& loop) {
    const auto* list = nodeAs<VariableAccess>(loop.iterable.get());
    if (list == nullptr) return;
    forEachNode(
        *loop.body,
        [&](const Statement& node) {
            const auto* block = nodeAs<BlockStatement>(&node);
            if (block != nullptr) checkBlock(check, *block, list->name);
        },
        [](const Expression&) {});
}

}  // namespace

void checkLoopHabits(const HabitCheck& check) {
    std::set<const Expression*> heads;
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            const auto* loop = nodeAs<ForStatement>(&node);
            if (loop == nullptr) return;
            heads.insert(loop->iterable.get());
            if (const auto* range = callOf(loop->iterable.get(), "வரம்பு"))
                checkRange(check, *range);
            checkWalk(check, *loop);
        },
        [](const Expression&) {});
    for (const NameCall& call : check.uses.calls) {
        if (call.callee->name != "வரம்பு" || heads.count(call.node) != 0) continue;
        if (check.compiled.parser->functionParameters.count("வரம்பு") != 0) continue;
        check.add("துணை-529", check.compiled.rangeOf(*call.node));
    }
}

}  // namespace companion
