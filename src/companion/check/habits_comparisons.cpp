// Comparisons whose answer doesn't depend on what is compared.
#include <algorithm>

#include "companion/check/habits.h"
#include "companion/check/habits_constants.h"
#include "companion/check/tree_walk.h"

namespace companion {

namespace {

/// What `என்னவகை` says. Some of the names end in a blank.
const char* const kKindNames[] = {"எண் ",
                                  "தசம_எண்",
                                  "உரை",
                                  "எழுத்து",
                                  "நிலை ",
                                  "பட்டியல்",
                                  "அகராதி",
                                  "நேரம் ",
                                  "பொருள் ",
                                  "வினை",
                                  "தெரியாத_வகை (Unknown)"};

bool isKindName(const std::string& text) {
    return std::find(std::begin(kKindNames), std::end(kKindNames), text) != std::end(kKindNames);
}

std::string kindAdvice(const std::string& text) {
    if (isKindName(text + " ")) {
        return "முடிவில் ஓர் இடைவெளியோடு எழுது: \"" + text + " \"";
    }
    return "அது சொல்பவை: \"எண் \" (முடிவில் இடைவெளி), \"தசம_எண்\", \"உரை\", \"பட்டியல்\", \"அகராதி\" முதலியன.";
}

bool isKindCall(const Expression& expression) {
    const auto* call = nodeAs<CallExpression>(&withoutGrouping(expression));
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == "என்னவகை";
}

void checkKindName(const HabitCheck& check, const Expression& kind, const Expression& name) {
    const auto* text = nodeAs<StringLiteral>(&withoutGrouping(name));
    if (text == nullptr || !isKindCall(kind) || isKindName(text->value)) return;
    check.add("துணை-526", check.compiled.rangeOf(name), {text->value, kindAdvice(text->value)});
}

const BinaryExpression* comparisonIn(const Expression& expression) {
    const auto* binary = nodeAs<BinaryExpression>(&expression);
    return binary != nullptr && isComparisonWord(binary->op.text) ? binary : nullptr;
}

bool isContainer(const Expression& expression) {
    const Expression& value = withoutGrouping(expression);
    return nodeAs<ListLiteral>(&value) != nullptr || nodeAs<MapLiteral>(&value) != nullptr;
}

bool isNumberOrText(const std::optional<Constant>& constant) {
    return constant && !std::holds_alternative<bool>(*constant);
}

bool isNegation(const Expression& expression) {
    const auto* unary = nodeAs<UnaryExpression>(&expression);
    return unary != nullptr && unary->op.text == "இல்லை";
}

std::string sourceOf(const HabitCheck& check, const Expression& node) {
    const auto range = check.compiled.rangeOf(node);
    return range ? std::string(check.compiled.source.slice(*range)) : "...";
}

/// Each comparison has one thing to be told at most.
void checkComparison(const HabitCheck& check, const BinaryExpression& node) {
    const std::string& word = node.op.text;
    const auto range = check.compiled.rangeOf(node);
    const auto left = constantOf(*node.left);
    const auto right = constantOf(*node.right);
    if (isContainer(*node.left) || isContainer(*node.right)) {
        return check.add("துணை-535", range, {word});
    }
    if (comparisonIn(*node.left) != nullptr && (isOrderingWord(word) || isNumberOrText(right))) {
        return check.add("துணை-523", range);
    }
    if (isNegation(*node.left) && isNumberOrText(right)) {
        const auto& negation = static_cast<const UnaryExpression&>(*node.left);
        return check.add("துணை-524", range, {sourceOf(check, *negation.right), word});
    }
    if (left && right && left->index() != right->index()) {
        return check.add("துணை-522", range, {word});
    }
    const auto isText = [](const std::optional<Constant>& constant) {
        return constant && std::holds_alternative<std::string>(*constant);
    };
    if (isOrderingWord(word) && (isText(left) || isText(right))) {
        check.add("துணை-521", range, {word});
    }
}

/// அ சமம் 1 அல்லது 2: the value alone is taken for a truth value, which it isn't.
void checkLogicalSide(const HabitCheck& check, const LogicalExpression& node,
                      const Expression& side) {
    if (!isNumberOrText(constantOf(side))) return;
    check.add("துணை-525", check.compiled.rangeOf(side), {node.op.text});
}

}  // namespace

void checkComparisonHabits(const HabitCheck& check) {
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            const auto* choice = nodeAs<SwitchStatement>(&node);
            if (choice == nullptr) return;
            for (const CaseBlock& block : choice->cases) {
                checkKindName(check, *choice->subject, *block.value);
            }
        },
        [&](const Expression& node) {
            if (const BinaryExpression* comparison = comparisonIn(node)) {
                checkComparison(check, *comparison);
                checkKindName(check, *comparison->left, *comparison->right);
                checkKindName(check, *comparison->right, *comparison->left);
            } else if (const auto* logical = nodeAs<LogicalExpression>(&node)) {
                checkLogicalSide(check, *logical, *logical->left);
                checkLogicalSide(check, *logical, *logical->right);
            }
        });
}

}  // namespace companion
