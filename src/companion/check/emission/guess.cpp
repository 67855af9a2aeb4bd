// What the compiler takes an expression for when it decides how to write it: the generator's tests
// in their order, by its own tables, over the names of this walk.
#include "companion/check/emission/walk.h"
#include "generator/result_kinds.h"

namespace companion {

VarType EmissionWalk::guess(const Expression* expression) const {
    if (nodeAs<NumberLiteral>(expression) != nullptr) return VarType::Integer;
    if (nodeAs<DoubleLiteral>(expression) != nullptr) return VarType::Decimal;
    if (nodeAs<StringLiteral>(expression) != nullptr) return VarType::String;
    if (nodeAs<BooleanLiteral>(expression) != nullptr) return VarType::Boolean;
    if (nodeAs<ListLiteral>(expression) != nullptr) return VarType::List;
    if (nodeAs<MapLiteral>(expression) != nullptr) return VarType::Map;
    if (nodeAs<LambdaExpression>(expression) != nullptr) return VarType::Object;
    if (const auto* call = nodeAs<CallExpression>(expression)) return guessCall(*call);
    if (const auto* access = nodeAs<VariableAccess>(expression)) return guessVariable(*access);
    if (const auto* access = nodeAs<GetExpression>(expression)) return guessMember(*access);
    if (const auto* binary = nodeAs<BinaryExpression>(expression)) {
        return kindOfOperation(binary->op.text, guess(binary->left.get()),
                               guess(binary->right.get()));
    }
    if (const auto* ternary = nodeAs<TernaryExpression>(expression)) {
        return guess(ternary->thenBranch.get());
    }
    return VarType::Dynamic;
}

VarType EmissionWalk::guessCall(const CallExpression& call) const {
    if (const auto* callee = nodeAs<VariableAccess>(call.callee.get())) {
        if (callee->name == "தனிமதிப்பு") {
            return call.arguments.empty() ? VarType::Dynamic : guess(call.arguments[0].get());
        }
        return kindOfCallResult(callee->name, emittedStructures.count(callee->name) != 0);
    }
    const auto* callee = nodeAs<GetExpression>(call.callee.get());
    if (callee == nullptr) return VarType::Dynamic;
    const std::string& member = callee->name.text;
    const auto* object = nodeAs<VariableAccess>(callee->object.get());
    if (object != nullptr && object->name == "நேரம்") {
        if (member == "வினாடிகள்") return VarType::Decimal;
        if (member == "உருவாக்கு") return VarType::Time;
    }
    const bool isText = member == "தேதி" || member == "நேரம்" || member == "முழுவதும்";
    return isText ? VarType::String : VarType::Dynamic;
}

VarType EmissionWalk::guessVariable(const VariableAccess& access) const {
    if (access.name == "தான்" || access.name == "self") return VarType::Object;
    if (isLocal(access.name)) return VarType::Dynamic;
    const auto recorded = variableTypes.find(access.name);
    return recorded == variableTypes.end() ? VarType::Dynamic : recorded->second;
}

VarType EmissionWalk::guessMember(const GetExpression& access) const {
    const auto* object = nodeAs<VariableAccess>(access.object.get());
    if (object == nullptr) return VarType::Dynamic;
    const auto recorded = variableTypes.find(object->name);
    const bool isTime = recorded != variableTypes.end() && recorded->second == VarType::Time;
    return isTime && isWholeTimeField(access.name.text) ? VarType::Integer : VarType::Dynamic;
}

}  // namespace companion
