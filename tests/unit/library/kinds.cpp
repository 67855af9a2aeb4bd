#include "kinds.h"

#include "syntax/expressions.h"
#include "syntax/literals.h"

namespace {

const std::map<std::string, VarType> kResults = {
    {"உள்ளீடு", VarType::String},      {"நீளம்", VarType::Integer},
    {"வர்க்கமூலம்", VarType::Decimal},  {"அடுக்கு", VarType::Decimal},
    {"சைன்", VarType::Decimal},       {"டேன்", VarType::Decimal},
    {"மடக்கு", VarType::Decimal},     {"மேல்எண்", VarType::Integer},
    {"கீழ்எண்", VarType::Integer},      {"இப்போதுநேரம்", VarType::Time},
    {"பிளவு", VarType::List},        {"பதில்", VarType::String},
    {"பெரியஎ", VarType::String},     {"சிறியஎ", VarType::String},
    {"கோப்பு_படி", VarType::String},  {"கோப்பு_உள்ளதா", VarType::Boolean},
    {"கோப்பு_அழி", VarType::Boolean},
};

const std::set<std::string> kComparisons = {"சமம்",    "சமமில்லை",   "பெரிது",
                                            "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};

template <typename Kind>
bool is(const Expression& expression) {
    return dynamic_cast<const Kind*>(&expression) != nullptr;
}

}  // namespace

VarType Kinds::ofCall(const Expression& callee) const {
    const auto* name = dynamic_cast<const VariableAccess*>(&callee);
    if (name == nullptr) return VarType::Dynamic;
    const auto result = kResults.find(name->name);
    return result == kResults.end() ? VarType::Dynamic : result->second;
}

VarType Kinds::ofOperation(const std::string& word, VarType left, VarType right) const {
    const auto either = [&](VarType kind) { return left == kind || right == kind; };
    if ((word == "கூட்டு" || word == "இணை") && either(VarType::String)) return VarType::String;
    if (either(VarType::Decimal)) return VarType::Decimal;
    if (left == VarType::Integer && right == VarType::Integer) return VarType::Integer;
    return kComparisons.count(word) > 0 ? VarType::Boolean : VarType::Dynamic;
}

VarType Kinds::of(const Expression& expression) const {
    if (is<NumberLiteral>(expression)) return VarType::Integer;
    if (is<DoubleLiteral>(expression)) return VarType::Decimal;
    if (is<StringLiteral>(expression)) return VarType::String;
    if (is<BooleanLiteral>(expression)) return VarType::Boolean;
    if (is<ListLiteral>(expression)) return VarType::List;
    if (is<MapLiteral>(expression)) return VarType::Map;
    if (is<LambdaExpression>(expression)) return VarType::Object;
    if (const auto* call = dynamic_cast<const CallExpression*>(&expression)) {
        return ofCall(*call->callee);
    }
    if (const auto* access = dynamic_cast<const VariableAccess*>(&expression)) {
        const auto known = variables.find(access->name);
        const bool isKnown = known != variables.end() && locals.count(access->name) == 0;
        return isKnown ? known->second : VarType::Dynamic;
    }
    if (const auto* choice = dynamic_cast<const TernaryExpression*>(&expression)) {
        return of(*choice->thenBranch);
    }
    if (const auto* operation = dynamic_cast<const BinaryExpression*>(&expression)) {
        return ofOperation(operation->op.text, of(*operation->left), of(*operation->right));
    }
    return VarType::Dynamic;
}
