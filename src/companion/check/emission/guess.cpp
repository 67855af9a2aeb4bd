// What the compiler takes an expression for when it decides how to write it. The same tests as the
// generator's own, in their order, over the same names.
#include <string_view>

#include "companion/check/emission/walk.h"
#include "lexer/holds.h"

namespace companion {

namespace {

struct GuessRow {
    std::string_view name;  ///< Empty for the name of any structure.
    VarType guess;
};

const GuessRow kCallGuesses[] = {
    {"உள்ளீடு", VarType::String},      {"நீளம்", VarType::Integer},
    {"எடு", VarType::Dynamic},       {"வர்க்கமூலம்", VarType::Decimal},
    {"அடுக்கு", VarType::Decimal},    {"சைன்", VarType::Decimal},
    {"காஸ்", VarType::Decimal},       {"டேன்", VarType::Decimal},
    {"மடக்கு", VarType::Decimal},     {"மேல்எண்", VarType::Integer},
    {"கீழ்எண்", VarType::Integer},      {"இப்போதுநேரம்", VarType::Time},
    {"வரம்பு", VarType::Dynamic},     {"", VarType::Object},
    {"பிளவு", VarType::List},        {"பதில்", VarType::String},
    {"பெரியஎ", VarType::String},     {"சிறியஎ", VarType::String},
    {"கோப்பு_படி", VarType::String},  {"கோப்பு_உள்ளதா", VarType::Boolean},
    {"கோப்பு_அழி", VarType::Boolean},
};

constexpr std::string_view kTruthWords[] = {
    "சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்", "மற்றும்", "அல்லது",
};

constexpr std::string_view kTimeWords[] = {
    "ஆண்டு", "மாதம்", "நாள்", "மணி", "நிமிடம்", "வினாடி", "வாரநாள்",
};

}  // namespace

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
        return guessResult(binary->op.text, guess(binary->left.get()), guess(binary->right.get()));
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
        for (const GuessRow& row : kCallGuesses) {
            if (row.name.empty() ? emittedStructures.count(callee->name) != 0
                                 : callee->name == row.name) {
                return row.guess;
            }
        }
        return VarType::Dynamic;
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
    return isTime && holds(kTimeWords, access.name.text) ? VarType::Integer : VarType::Dynamic;
}

VarType EmissionWalk::guessResult(const std::string& op, VarType left, VarType right) {
    const bool joins = op == "கூட்டு" || op == "இணை";
    if (joins && (left == VarType::String || right == VarType::String)) return VarType::String;
    if (left == VarType::Decimal || right == VarType::Decimal) return VarType::Decimal;
    if (left == VarType::Integer && right == VarType::Integer) return VarType::Integer;
    return holds(kTruthWords, op) ? VarType::Boolean : VarType::Dynamic;
}

}  // namespace companion
