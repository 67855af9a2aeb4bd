#include "rules.h"

#include <map>
#include <set>

#include "kinds.h"
#include "packages.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"
#include "tree_walk.h"

namespace {

struct Arity {
    std::size_t least;
    std::size_t most;
};

/// Built-ins that a package may call: they work in a console program and in a web application.
const std::map<std::string, Arity> kCallable = {
    {"இப்போதுநேரம்", {0, 0}},
    {"என்னவகை", {1, 1}},
    {"வரம்பு", {1, 2}},
    {"நீளம்", {1, 1}},
    {"எண்", {1, 1}},
    {"வை", {3, 3}},
    {"நீக்கு", {2, 2}},
    {"சீரற்ற_எண்", {2, 2}},
    {"வர்க்கமூலம்", {1, 1}},
    {"அடுக்கு", {2, 2}},
    {"தனிமதிப்பு", {1, 1}},
    {"மேல்எண்", {1, 1}},
    {"கீழ்எண்", {1, 1}},
    {"சைன்", {1, 1}},
    {"டேன்", {1, 1}},
    {"மடக்கு", {1, 1}},
    {"பிளவு", {2, 2}},
    {"பதில்", {3, 3}},
    {"பெரியஎ", {1, 1}},
    {"சிறியஎ", {1, 1}},
    {"கோப்பு_எழுது", {2, 2}},
    {"கோப்பு_படி", {1, 1}},
    {"கோப்பு_சேர்", {2, 2}},
    {"கோப்பு_அழி", {1, 1}},
    {"கோப்பு_உள்ளதா", {1, 1}},
    {"தேதி", {0, 1}},
    {"நேரம்", {0, 1}},
    {"முழுவதும்", {0, 1}},
    {"_set_index_internal", {3, 3}},
};

/// The others: bound to a screen or to standard input, or not callable as they stand.
const std::set<std::string> kOutOfBounds = {"உள்ளீடு", "செல்க", "நகர்த்து", "எடு", "காஸ்"};

const std::set<std::string> kTimeFields = {"ஆண்டு",   "மாதம்",   "நாள்",   "மணி",
                                           "நிமிடம்", "வினாடி", "வாரநாள்"};

template <typename Kind, typename Base>
const Kind* as(const Base* node) {
    return dynamic_cast<const Kind*>(node);
}

/// The name, if the expression is a bare one; else "".
std::string nameOf(const Expression* expression) {
    const auto* access = as<VariableAccess>(expression);
    return access == nullptr ? "" : access->name;
}

bool isCallOf(const Expression* expression, const std::string& name) {
    const auto* call = as<CallExpression>(expression);
    return call != nullptr && nameOf(call->callee.get()) == name;
}

bool startsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

std::set<std::string> parametersOf(const FunctionDefinitionStatement& function) {
    std::set<std::string> names;
    for (const Param& parameter : function.parameters) names.insert(parameter.name.text);
    return names;
}

std::set<std::string> loopVariablesOf(const FunctionDefinitionStatement& function) {
    std::set<std::string> names;
    TreeVisitor visitor;
    visitor.statement = [&](const Statement& node) {
        if (const auto* loop = as<ForStatement>(&node)) names.insert(loop->variable.text);
    };
    walk(&function, visitor);
    return names;
}

/// Names that the function assigns, a catch's name included, whatever they belong to.
std::vector<std::string> assignedIn(const FunctionDefinitionStatement& function) {
    std::vector<std::string> names;
    TreeVisitor visitor;
    visitor.statement = [&](const Statement& node) {
        if (const auto* attempt = as<TryCatchStatement>(&node)) names.push_back(attempt->errorName);
    };
    visitor.expression = [&](const Expression& node) {
        if (const auto* assignment = as<AssignmentExpression>(&node)) {
            names.push_back(assignment->name);
        }
    };
    walk(&function, visitor);
    return names;
}

/// Shows each expression of each function to `check`, which returns "" or what is wrong with it.
template <typename Check>
Complaints inspect(const Program& program, Check check) {
    Complaints complaints;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        TreeVisitor visitor;
        visitor.expression = [&](const Expression& node) {
            const std::string fault = check(*function, node);
            if (!fault.empty()) complaints.push_back(function->name.text + ": " + fault);
        };
        walk(function, visitor);
    }
    return complaints;
}

/// What is wrong with one call, given the functions that stand before it.
std::string callFault(const FunctionDefinitionStatement& caller, const CallExpression& call,
                      const std::map<std::string, std::size_t>& before) {
    if (as<GetExpression>(call.callee.get()) != nullptr) return "";  // memberAccess looks at these
    const std::string name = nameOf(call.callee.get());
    const std::size_t count = call.arguments.size();
    if (parametersOf(caller).count(name) > 0) return "";
    const auto function = before.find(name);
    if (function != before.end()) return function->second == count ? "" : "wrong count for " + name;
    const auto builtin = kCallable.find(name);
    if (builtin == kCallable.end()) return "can't call '" + name + "'";
    const bool fits = count >= builtin->second.least && count <= builtin->second.most;
    return fits ? "" : "wrong count for " + name;
}

/// Whether `name` holds the time in this function: every assignment takes it anew.
bool holdsTime(const FunctionDefinitionStatement& function, const std::string& name) {
    bool isTaken = false;
    bool isOther = parametersOf(function).count(name) > 0;
    TreeVisitor visitor;
    visitor.expression = [&](const Expression& node) {
        const auto* assignment = as<AssignmentExpression>(&node);
        if (assignment == nullptr || assignment->name != name) return;
        (isCallOf(assignment->value.get(), "இப்போதுநேரம்") ? isTaken : isOther) = true;
    };
    walk(&function, visitor);
    return isTaken && !isOther;
}

bool isBareLength(const Expression* expression) {
    while (const auto* grouping = as<GroupingExpression>(expression)) {
        expression = grouping->expression.get();
    }
    return isCallOf(expression, "நீளம்");
}

bool isNative(const std::string& word) {
    return word == "கழி" || word == "பெருக்கு" || word == "மீதி";
}

std::string valueFault(const Expression& node) {
    if (as<ColorExpression>(&node) != nullptr) return "a text that reads as a colour";
    if (const auto* index = as<IndexExpression>(&node)) {
        return isBareLength(index->index.get()) ? "a length as an index" : "";
    }
    if (isCallOf(&node, "_set_index_internal")) {
        const auto* call = as<CallExpression>(&node);
        return isBareLength(call->arguments[1].get()) ? "a length as an index" : "";
    }
    const auto* operation = as<BinaryExpression>(&node);
    if (operation == nullptr || !isNative(operation->op.text)) return "";
    const bool isBroken =
        isBareLength(operation->left.get()) || isBareLength(operation->right.get());
    return isBroken ? "a length in " + operation->op.text : "";
}

std::string arithmeticFault(const Kinds& kinds, const BinaryExpression& operation) {
    const std::string& word = operation.op.text;
    if (!isNative(word) && word != "கூட்டு" && word != "வகு") return "";
    const VarType left = kinds.of(*operation.left);
    const VarType right = kinds.of(*operation.right);
    const auto either = [&](VarType kind) { return left == kind || right == kind; };
    if (either(VarType::List) || either(VarType::Map) || either(VarType::Object)) {
        return word + " on a list, map or object";
    }
    const bool hasNumber = either(VarType::Integer) || either(VarType::Decimal);
    return either(VarType::String) && hasNumber ? word + " on a text and a number" : "";
}

bool namesResult(const std::string& name, const std::string& word) {
    return name == word || name.find("_" + word) != std::string::npos;
}

std::string returnFault(const std::string& name, VarType kind) {
    const auto oneOf = [&](std::set<VarType> refused) { return refused.count(kind) > 0; };
    bool isRefused = false;
    if (namesResult(name, "எண்")) {
        isRefused = oneOf({VarType::String, VarType::List, VarType::Map, VarType::Object});
    } else if (namesResult(name, "உரை")) {
        isRefused = oneOf({VarType::Integer, VarType::Decimal, VarType::List, VarType::Map});
    } else if (namesResult(name, "பட்டியல்")) {
        isRefused = !oneOf({VarType::List, VarType::Dynamic});
    }
    return isRefused ? "returns another kind than its name says" : "";
}

}  // namespace

bool isBuiltin(const std::string& name) {
    return kCallable.count(name) > 0 || kOutOfBounds.count(name) > 0;
}

std::vector<std::string> sharedNames(const Program& program) {
    std::set<std::string> names;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        const std::set<std::string> parameters = parametersOf(*function);
        const std::set<std::string> loops = loopVariablesOf(*function);
        for (const std::string& name : assignedIn(*function)) {
            if (parameters.count(name) == 0 && loops.count(name) == 0) names.insert(name);
        }
    }
    return {names.begin(), names.end()};
}

Complaints statementsThatRun(const Program& program) {
    const std::size_t others = program.statements.size() - functionsOf(program).size();
    if (others == 0) return {};
    return {std::to_string(others) + " statements that aren't functions"};
}

Complaints callsOutOfReach(const Program& program) {
    Complaints complaints;
    std::map<std::string, std::size_t> before;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        const std::string& name = function->name.text;
        TreeVisitor visitor;
        visitor.statement = [&](const Statement& node) {
            if (&node == function || as<FunctionDefinitionStatement>(&node) == nullptr) return;
            complaints.push_back(name + ": a function inside a function");
        };
        visitor.expression = [&](const Expression& node) {
            const auto* call = as<CallExpression>(&node);
            const std::string fault = call == nullptr ? "" : callFault(*function, *call, before);
            if (!fault.empty()) complaints.push_back(name + ": " + fault);
        };
        walk(function, visitor);
        before[name] = function->parameters.size();
    }
    return complaints;
}

Complaints shadowedNames(const Program& program) {
    Complaints complaints;
    std::set<std::string> taken;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        const std::string& name = function->name.text;
        if (isBuiltin(name)) complaints.push_back(name + ": a built-in's name");
        if (!taken.insert(name).second) complaints.push_back(name + ": defined twice");
    }
    for (const std::string& name : sharedNames(program)) {
        if (isBuiltin(name)) complaints.push_back(name + ": a built-in's name");
        if (taken.count(name) > 0) complaints.push_back(name + ": a function and a variable");
    }
    return complaints;
}

Complaints memberAccess(const Program& program) {
    std::set<const Expression*> appended;  // callees, which the walk meets before their calls
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        TreeVisitor visitor;
        visitor.expression = [&](const Expression& node) {
            const auto* call = as<CallExpression>(&node);
            const auto* member = call == nullptr ? nullptr : as<GetExpression>(call->callee.get());
            if (member == nullptr || nameOf(member->object.get()).empty()) return;
            if (member->name.text == "சேர்" && call->arguments.size() == 1) appended.insert(member);
        };
        walk(function, visitor);
    }
    return inspect(
        program,
        [&](const FunctionDefinitionStatement& function, const Expression& node) -> std::string {
            if (as<SetMemberExpression>(&node) != nullptr) return "sets a member";
            const auto* member = as<GetExpression>(&node);
            if (member == nullptr || appended.count(member) > 0) return "";
            const bool isTime = kTimeFields.count(member->name.text) > 0 &&
                                holdsTime(function, nameOf(member->object.get()));
            return isTime ? "" : "reads ." + member->name.text;
        });
}

Complaints namesWithoutPrefix(const Program& program, const std::string& prefix) {
    Complaints complaints;
    const auto demand = [&](const std::string& name, const std::string& what) {
        if (!startsWith(name, prefix)) complaints.push_back(name + ": " + what);
    };
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        demand(function->name.text, "function");
        const std::set<std::string> parameters = parametersOf(*function);
        for (const std::string& name : assignedIn(*function)) demand(name, "assigned");
        TreeVisitor visitor;
        visitor.expression = [&](const Expression& node) {
            const auto* call = as<CallExpression>(&node);
            const std::string name = call == nullptr ? "" : nameOf(call->callee.get());
            if (parameters.count(name) > 0) demand(name, "called parameter");
        };
        walk(function, visitor);
    }
    return complaints;
}

Complaints brokenWalks(const Program& program) {
    Complaints complaints;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        const std::string& name = function->name.text;
        std::set<const Expression*> heads;
        TreeVisitor visitor;
        visitor.statement = [&](const Statement& node) {
            const auto* loop = as<ForStatement>(&node);
            if (loop == nullptr) return;
            heads.insert(loop->iterable.get());
            if (isCallOf(loop->iterable.get(), "வரம்பு")) return;
            if (nameOf(loop->iterable.get()).empty()) complaints.push_back(name + ": no variable");
        };
        visitor.expression = [&](const Expression& node) {
            const bool isLoose = isCallOf(&node, "வரம்பு") && heads.count(&node) == 0;
            if (isLoose) complaints.push_back(name + ": a range outside a walk");
        };
        walk(function, visitor);
        const std::set<std::string> loops = loopVariablesOf(*function);
        for (const std::string& assigned : assignedIn(*function)) {
            if (loops.count(assigned) > 0) complaints.push_back(name + ": assigns " + assigned);
        }
    }
    return complaints;
}

Complaints misusedValues(const Program& program) {
    return inspect(program, [](const FunctionDefinitionStatement&, const Expression& node) {
        return valueFault(node);
    });
}

Complaints kindMistakes(const Program& program) {
    Complaints complaints;
    Kinds kinds;
    for (const FunctionDefinitionStatement* function : functionsOf(program)) {
        const std::string& name = function->name.text;
        kinds.locals = parametersOf(*function);
        kinds.locals.merge(loopVariablesOf(*function));
        const auto note = [&](const std::string& fault) {
            if (!fault.empty()) complaints.push_back(name + ": " + fault);
        };
        const ReturnStatement* pending = nullptr;  // its value is walked right behind it
        TreeVisitor visitor;
        visitor.statement = [&](const Statement& node) { pending = as<ReturnStatement>(&node); };
        visitor.expression = [&](const Expression& node) {
            if (const auto* assignment = as<AssignmentExpression>(&node)) {
                kinds.variables[assignment->name] = kinds.of(*assignment->value);
            }
            if (const auto* operation = as<BinaryExpression>(&node)) {
                note(arithmeticFault(kinds, *operation));
            }
            if (pending != nullptr && pending->value.get() == &node) {
                note(returnFault(name, kinds.of(node)));
            }
        };
        walk(function, visitor);
    }
    return complaints;
}
