// Calls: which of the many things that can be called it is, in the generator's order.
#include <algorithm>

#include "companion/check/emission/walk.h"
#include "generator/known_words.h"
#include "lexer/holds.h"

namespace companion {

std::vector<Value> EmissionWalk::walkArguments(const CallExpression& call) {
    std::vector<Value> values;
    for (const auto& argument : call.arguments) values.push_back(walk(*argument));
    return values;
}

Value EmissionWalk::walkCall(const CallExpression& call) {
    const Expression* callee = call.callee.get();
    if (const auto* member = nodeAs<GetExpression>(callee)) return walkMemberCall(call, *member);
    if (nodeAs<GroupingExpression>(callee) != nullptr) return walkDirectCall(call);
    if (const auto* name = nodeAs<VariableAccess>(callee)) return walkNamedCall(call, *name);
    walkArguments(call);
    return Value{};
}

Value EmissionWalk::walkNamedCall(const CallExpression& call, const VariableAccess& callee) {
    const std::string& name = callee.name;
    if (compiled.parser->functionParameters.count(name) != 0) return walkUserCall(call, name);
    if (emittedStructures.count(name) != 0) return walkConstructor(call, name);
    if (name == "_set_index_internal") return walkIndexStore(call);
    if (isBuiltin(name)) return walkBuiltin(call, name);
    walk(callee);
    walkArguments(call);
    return anyOf(kAnyKind);
}

/// Functions are written one behind the other, all of them behind the structures: one can call what
/// stands before it, and itself.
Value EmissionWalk::walkUserCall(const CallExpression& call, const std::string& name) {
    const std::vector<Param>& parameters = compiled.parser->functionParameters.at(name);
    if (call.arguments.size() != parameters.size()) {
        walkArguments(call);
        return anyOf(kAnyKind);
    }
    if (emittedFunctions.count(name + "/" + std::to_string(parameters.size())) == 0) {
        const bool isWritten = functionNodes.count(name) != 0;
        const char* code = !isWritten                  ? "துணை-302"
                           : !currentStructure.empty() ? "துணை-303"
                                                       : "துணை-301";
        tell(code, *call.callee, {name, currentFunction});
    }
    if (isCaught()) knowledge.runInTry(name);
    const auto function = functionNodes.find(name);
    for (std::size_t i = 0; i < parameters.size(); i++) {
        const bool isKnown = function != functionNodes.end() &&
                             function->second->parameters.size() == parameters.size();
        const Param& parameter = isKnown ? function->second->parameters[i] : parameters[i];
        passArgument(parameter, *call.arguments[i]);
    }
    Value value = anyOf(kAnyKind);
    if (function != functionNodes.end()) value.facts = knowledge.result(name);
    return value;
}

/// A by-reference parameter takes a program-wide variable that has been given something.
void EmissionWalk::passArgument(const Param& parameter, const Expression& argument) {
    if (!parameter.isMutable) {
        knowledge.giveLocal(&parameter, walk(argument).facts);
        return;
    }
    const auto* variable = nodeAs<VariableAccess>(&argument);
    if (variable == nullptr) return;
    const std::string& name = variable->name;
    if (knowledge.isComplete && !knowledge.isApplication && !knowledge.isGiven(name)) {
        tellStop(isLocal(name) ? "துணை-425" : "துணை-414", argument, {name});
        return;
    }
    if (!knowledge.isGiven(name)) return;
    knowledge.giveLocal(&parameter, knowledge.variable(name));
    knowledge.give(name, knowledge.local(&parameter));
}

Value EmissionWalk::walkConstructor(const CallExpression& call, const std::string& name) {
    walkArguments(call);
    const auto& structures = compiled.parser->structDefinitions;
    const FunctionDefinitionStatement* start = nullptr;
    auto at = structures.find(name);
    for (int depth = 0; at != structures.end() && depth < 1000; depth++) {
        const StructDefinitionStatement& structure = *at->second;
        for (const auto& method : structure.methods) {
            if (method->parameters.empty()) {
                tellWord("துணை-304", *method, method->name.text, {method->name.text, name});
            }
            if (start == nullptr && method->name.text == "துவக்கம்") start = method.get();
        }
        if (!structure.hasParent) break;
        at = structures.find(structure.parentName.text);
    }
    if (start != nullptr && !start->parameters.empty()) {
        const std::size_t wanted = start->parameters.size() - 1;
        const bool takesReference =
            std::any_of(start->parameters.begin() + 1, start->parameters.end(),
                        [](const Param& parameter) { return parameter.isMutable; });
        if (call.arguments.size() != wanted) {
            tell("துணை-313", call,
                 {name, std::to_string(wanted), std::to_string(call.arguments.size())});
        } else if (takesReference) {
            tell("துணை-314", call, {name});
        }
    }
    return anyOf(kObject);
}

Value EmissionWalk::walkMemberCall(const CallExpression& call, const GetExpression& callee) {
    const std::string& member = callee.name.text;
    const auto* object = nodeAs<VariableAccess>(callee.object.get());
    static const std::vector<std::string_view> kInputCalls = inputCallNames();
    const bool isInputCall = holds(kInputCalls, member);
    if (object != nullptr && isInputCall) {
        walkArguments(call);
        return Value{};
    }
    if (guess(callee.object.get()) == VarType::Object) {
        walk(*callee.object);
        walkArguments(call);
        if (isCaught()) knowledge.runInTry(member);
        return anyOf(kAnyKind);
    }
    if (object != nullptr && object->name == "நேரம்" && member == "வினாடிகள்") {
        return anyOf(kSeconds, VarType::Decimal);
    }
    if (member == "தேதி" || member == "நேரம்" || member == "முழுவதும்") {
        tell("துணை-315", call, {textOf(*callee.object), member});
        return Value{};
    }
    if (member == "சேர்") return walkAppend(call, callee);
    walkArguments(call);
    return Value{};
}

/// அ.சேர்(1)  ->  std::any_cast<std::vector<std::any>&>(அ).push_back(...): only what stays can grow.
Value EmissionWalk::walkAppend(const CallExpression& call, const GetExpression& callee) {
    const Value list = walk(*callee.object);
    const std::vector<Value> values = walkArguments(call);
    if (list.cpp != Cpp::Unknown && (list.cpp != Cpp::Any || !list.isLvalue || list.isConst)) {
        tell("துணை-340", *callee.object, {textOf(*callee.object)});
    } else if (list.facts.kinds != kNoKinds && (list.facts.kinds & kList) == 0) {
        tellStop(isWithin(list.facts.kinds, kEmpty) ? "துணை-426" : "துணை-418", *callee.object,
                 {textOf(*callee.object)});
    }
    if (values.size() == 1) addElement(*callee.object, values[0]);
    return anyOf(kEmpty);
}

/// What is put into a container counts for all that it holds.
void EmissionWalk::addElement(const Expression& container, const Value& value) {
    const Facts elements{kNoKinds, value.facts.kinds};
    if (const auto* variable = nodeAs<VariableAccess>(&container)) {
        const auto local = locals.find(variable->name);
        if (local == locals.end()) {
            if (knowledge.isGiven(variable->name)) knowledge.give(variable->name, elements);
        } else if (local->second.node != nullptr) {
            knowledge.giveLocal(local->second.node, elements);
        }
        return;
    }
    if (const auto* member = nodeAs<GetExpression>(&container)) {
        knowledge.giveProperty(member->name.text, elements);
        return;
    }
    // Deeper than one level nothing is known of elements.
    if (const auto* element = nodeAs<IndexExpression>(&container)) {
        addElement(*element->object, anyOf(kAnyKind));
    }
}

Value EmissionWalk::walkDirectCall(const CallExpression& call) {
    const Value callee = walk(*call.callee);
    walkArguments(call);
    const auto count = static_cast<int>(call.arguments.size());
    if (callee.cpp == Cpp::Function && callee.arity >= 0 && callee.arity != count) {
        tellStop("துணை-427", call, {std::to_string(callee.arity), std::to_string(count)});
    } else if (callee.cpp != Cpp::Unknown && callee.facts.kinds != kNoKinds &&
               (callee.facts.kinds & kFunction) == 0) {
        tellStop("துணை-428", *call.callee, {textOf(*call.callee)});
    }
    return anyOf(kAnyKind);
}

}  // namespace companion
