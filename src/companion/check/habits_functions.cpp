// Functions: values that calls share, names that hide each other, results that aren't there.
#include <algorithm>

#include "companion/check/habits.h"
#include "companion/check/tree_walk.h"

namespace companion {

namespace {

// ---- Recursion over shared names ----

enum class Deed { Give, Call, Read };

/// One thing that a function's body does, in the order in which it does them.
struct Step {
    Deed deed;
    const Expression* node;
    std::string name;                      ///< The name that is given or read.
    std::vector<const Statement*> blocks;  ///< From the outermost inwards.
    bool endsFunction;                     ///< Stands in a `திரும்பு`.
};

/// Writes down what a body does to names, and its calls of itself.
class StepFinder final : public TreeVisitor {
public:
    explicit StepFinder(const std::string& function) : function(function) {}

    bool enter(const Statement& node) override {
        if (nodeAs<FunctionDefinitionStatement>(&node) != nullptr) return false;
        if (nodeAs<BlockStatement>(&node) != nullptr) blocks.push_back(&node);
        if (nodeAs<ReturnStatement>(&node) != nullptr) isInReturn = true;
        return true;
    }
    void leave(const Statement& node) override {
        if (nodeAs<BlockStatement>(&node) != nullptr) blocks.pop_back();
        if (nodeAs<ReturnStatement>(&node) != nullptr) isInReturn = false;
    }
    bool enter(const Expression& node) override {
        if (nodeAs<LambdaExpression>(&node) != nullptr) return false;
        if (const auto* name = nodeAs<VariableAccess>(&node)) note(Deed::Read, node, name->name);
        return true;
    }
    void leave(const Expression& node) override {
        if (const auto* write = nodeAs<AssignmentExpression>(&node)) {
            note(Deed::Give, node, write->name);
        } else if (isRecursive(node)) {
            note(Deed::Call, node, "");
        }
    }

    bool isRecursive(const Expression& node) const {
        const auto* call = nodeAs<CallExpression>(&node);
        const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
        return callee != nullptr && callee->name == function;
    }

    std::vector<Step> steps;

private:
    void note(Deed deed, const Expression& node, const std::string& name) {
        steps.push_back({deed, &node, name, blocks, isInReturn});
    }

    const std::string& function;
    std::vector<const Statement*> blocks;
    bool isInReturn = false;
};

/// True if whoever comes to `inner` has come through the block of `outer`.
bool isInBlockOf(const Step& inner, const Step& outer) {
    return outer.blocks.size() <= inner.blocks.size() &&
           std::equal(outer.blocks.begin(), outer.blocks.end(), inner.blocks.begin());
}

bool readsName(const Expression& value, const std::string& name) {
    bool isRead = false;
    forEachNode(
        value, [](const Statement&) {},
        [&](const Expression& node) {
            const auto* variable = nodeAs<VariableAccess>(&node);
            isRead |= variable != nullptr && variable->name == name;
        });
    return isRead;
}

/// The parameters that `call` hands on as something else than they are.
std::vector<std::string> changedParameters(const FunctionDefinitionStatement& function,
                                           const CallExpression& call) {
    std::vector<std::string> changed;
    const std::size_t count = std::min(function.parameters.size(), call.arguments.size());
    for (std::size_t i = 0; i < count; i++) {
        const std::string& name = function.parameters[i].name.text;
        const auto* same = nodeAs<VariableAccess>(call.arguments[i].get());
        if (same == nullptr || same->name != name) changed.push_back(name);
    }
    return changed;
}

/// True if the inner call surely gives the name another value than this one does.
bool differsInside(const FunctionDefinitionStatement& function, const StepFinder& finder,
                   const Step& give, const Step& call) {
    const auto& write = static_cast<const AssignmentExpression&>(*give.node);
    if (!isPlainAssignment(write) || readsName(*write.value, write.name)) return false;
    bool differs = false;
    forEachNode(
        *write.value, [](const Statement&) {},
        [&](const Expression& node) { differs |= finder.isRecursive(node); });
    const auto changed =
        changedParameters(function, static_cast<const CallExpression&>(*call.node));
    return differs || std::any_of(changed.begin(), changed.end(), [&](const std::string& name) {
               return readsName(*write.value, name);
           });
}

/// A read behind a call behind a write, with nothing between that gives the name a value again.
bool isOverwritten(const FunctionDefinitionStatement& function, const StepFinder& finder,
                   std::size_t read) {
    const std::vector<Step>& steps = finder.steps;
    const Step* call = nullptr;
    for (std::size_t i = read; i-- > 0;) {
        const Step& step = steps[i];
        if (step.deed == Deed::Give && step.name == steps[read].name) {
            return call != nullptr && isInBlockOf(*call, step) &&
                   differsInside(function, finder, step, *call);
        }
        if (step.deed == Deed::Call && !step.endsFunction && isInBlockOf(steps[read], step)) {
            call = &step;
        }
    }
    return false;
}

bool isParameter(const FunctionDefinitionStatement& function, const std::string& name) {
    return std::any_of(function.parameters.begin(), function.parameters.end(),
                       [&](const Param& parameter) { return parameter.name.text == name; });
}

void checkRecursion(const HabitCheck& check, const FunctionDefinitionStatement& function) {
    StepFinder finder(function.name.text);
    walk(*function.body, finder);
    for (std::size_t i = 0; i < finder.steps.size(); i++) {
        const Step& step = finder.steps[i];
        if (step.deed != Deed::Read || isParameter(function, step.name)) continue;
        if (!isOverwritten(function, finder, i)) continue;
        check.add("துணை-508", check.compiled.rangeOf(*step.node), {step.name});
    }
}

// ---- Names and results ----

/// All functions but methods, those in others included.
class FunctionFinder final : public TreeVisitor {
public:
    bool enter(const Statement& node) override {
        if (nodeAs<StructDefinitionStatement>(&node) != nullptr) return false;
        const auto* function = nodeAs<FunctionDefinitionStatement>(&node);
        if (function == nullptr) return true;
        (depth == 0 ? outer : nested).push_back(function);
        depth++;
        return true;
    }
    void leave(const Statement& node) override {
        if (nodeAs<FunctionDefinitionStatement>(&node) != nullptr) depth--;
    }
    std::vector<const FunctionDefinitionStatement*> outer;
    std::vector<const FunctionDefinitionStatement*> nested;

private:
    int depth = 0;
};

void checkNestedNames(const HabitCheck& check, const FunctionFinder& functions) {
    for (const auto* inner : functions.nested) {
        for (const auto* other : functions.outer) {
            if (inner->name.text != other->name.text) continue;
            check.add("துணை-510", check.compiled.wordIn(*inner, inner->name.text),
                      {inner->name.text});
            break;
        }
    }
}

bool returnsValue(const FunctionDefinitionStatement& function) {
    bool returns = false;
    forEachNode(
        *function.body,
        [&](const Statement& node) {
            const auto* result = nodeAs<ReturnStatement>(&node);
            returns |= result != nullptr && result->value != nullptr;
        },
        [](const Expression&) {});
    return returns;
}

/// The names of functions that never give a result, whichever way they end.
std::set<std::string> silentFunctions(const FunctionFinder& functions) {
    std::set<std::string> silent;
    std::set<std::string> speaking;
    for (const auto* function : functions.outer) {
        (returnsValue(*function) ? speaking : silent).insert(function->name.text);
    }
    for (const auto* function : functions.nested) speaking.insert(function->name.text);
    for (const std::string& name : speaking) silent.erase(name);
    return silent;
}

void checkResults(const HabitCheck& check, const FunctionFinder& functions) {
    const std::set<std::string> silent = silentFunctions(functions);
    const auto look = [&](const Expression& value) {
        const auto* call = nodeAs<CallExpression>(&value);
        const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
        if (callee == nullptr || silent.count(callee->name) == 0) return;
        check.add("துணை-511", check.compiled.rangeOf(value), {callee->name});
    };
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            // A call for its deeds, or one that a handler or a `திரும்பு` only passes on.
            if (nodeAs<ExpressionStatement>(&node) != nullptr ||
                nodeAs<ReturnStatement>(&node) != nullptr ||
                dynamic_cast<const WidgetNode*>(&node) != nullptr) {
                return;
            }
            forEachChild(
                node, [](const Statement&) {}, look);
        },
        [&](const Expression& node) {
            if (nodeAs<LambdaExpression>(&node) != nullptr ||
                nodeAs<GroupingExpression>(&node) != nullptr) {
                return;
            }
            forEachChild(
                node, [](const Statement&) {}, look);
        });
}

/// At the top level a loop's own name is read, and another of the same name is given the value.
void checkLoopNames(const HabitCheck& check) {
    for (const NameWrite& write : check.uses.writes) {
        if (write.in.function != nullptr || write.in.isInLambda || !write.in.isLocal) continue;
        const std::string& name = write.node->name;
        check.add("துணை-509", check.compiled.wordIn(*write.node, name), {name});
    }
}

}  // namespace

void checkFunctionHabits(const HabitCheck& check) {
    FunctionFinder functions;
    walk(check.compiled.program, functions);
    for (const auto* function : functions.outer) checkRecursion(check, *function);
    checkNestedNames(check, functions);
    checkResults(check, functions);
    checkLoopNames(check);
}

}  // namespace companion
