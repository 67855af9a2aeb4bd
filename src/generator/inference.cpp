// Static kinds: what an expression holds, as far as its form and the assignments visited so far
// tell. It is an estimate: Dynamic is accepted everywhere.
#include <string_view>

#include "generator/generator.h"
#include "generator/result_kinds.h"
#include "lexer/holds.h"

namespace {

struct ResultRow {
    std::string_view name;  ///< Empty for the name of any structure.
    VarType kind;
};

// Results of the calls whose kind doesn't depend on their arguments, in the order of the search: a
// structure comes before the functions of texts and files.
const ResultRow kResults[] = {
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

constexpr std::string_view kTruthOperators[] = {
    "சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்", "மற்றும்", "அல்லது",
};

constexpr std::string_view kWholeTimeFields[] = {
    "ஆண்டு", "மாதம்", "நாள்", "மணி", "நிமிடம்", "வினாடி", "வாரநாள்",
};

}  // namespace

VarType kindOfCallResult(std::string_view name, bool isStructure) {
    for (const ResultRow& row : kResults) {
        if (row.name.empty() ? isStructure : name == row.name) return row.kind;
    }
    return VarType::Dynamic;
}

/// The order is meant: a comparison of two known integers counts as Integer.
VarType kindOfOperation(std::string_view op, VarType left, VarType right) {
    const bool joins = op == "கூட்டு" || op == "இணை";
    if (joins && (left == VarType::String || right == VarType::String)) return VarType::String;
    if (left == VarType::Decimal || right == VarType::Decimal) return VarType::Decimal;
    if (left == VarType::Integer && right == VarType::Integer) return VarType::Integer;
    return holds(kTruthOperators, op) ? VarType::Boolean : VarType::Dynamic;
}

bool isWholeTimeField(std::string_view name) { return holds(kWholeTimeFields, name); }

VarType Generator::inferExpressionType(const Expression* expression) {
    if (nodeAs<NumberLiteral>(expression) != nullptr) return VarType::Integer;
    if (nodeAs<DoubleLiteral>(expression) != nullptr) return VarType::Decimal;
    if (nodeAs<StringLiteral>(expression) != nullptr) return VarType::String;
    if (nodeAs<BooleanLiteral>(expression) != nullptr) return VarType::Boolean;
    if (nodeAs<ListLiteral>(expression) != nullptr) return VarType::List;
    if (nodeAs<MapLiteral>(expression) != nullptr) return VarType::Map;
    if (nodeAs<LambdaExpression>(expression) != nullptr) return VarType::Object;
    if (const auto* call = nodeAs<CallExpression>(expression)) return inferCall(*call);
    if (const auto* node = nodeAs<VariableAccess>(expression)) {
        return inferVariable(*node);
    }
    if (const auto* node = nodeAs<GetExpression>(expression)) {
        return inferMember(*node);
    }
    if (const auto* node = nodeAs<BinaryExpression>(expression)) {
        return inferBinary(*node);
    }
    if (const auto* node = nodeAs<TernaryExpression>(expression)) {
        return inferExpressionType(node->thenBranch.get());  // the second isn't looked at
    }
    return VarType::Dynamic;  // a parenthesis hides a kind, and so does an assignment
}

VarType Generator::inferCall(const CallExpression& call) {
    if (const auto* callee = nodeAs<VariableAccess>(call.callee.get())) {
        const std::string& name = callee->name;
        if (name == "தனிமதிப்பு") {
            return call.arguments.empty() ? VarType::Dynamic
                                          : inferExpressionType(call.arguments[0].get());
        }
        return kindOfCallResult(name, structNames.count(name) != 0);
    }
    if (const auto* callee = nodeAs<GetExpression>(call.callee.get())) {
        const std::string& member = callee->name.text;
        const auto* object = nodeAs<VariableAccess>(callee->object.get());
        if (object != nullptr && object->name == "நேரம்") {
            if (member == "வினாடிகள்") return VarType::Decimal;
            if (member == "உருவாக்கு") return VarType::Time;
        }
        if (member == "தேதி" || member == "நேரம்" || member == "முழுவதும்") return VarType::String;
    }
    return VarType::Dynamic;
}

VarType Generator::inferVariable(const VariableAccess& access) {
    if (access.name == "தான்" || access.name == "self") {
        if (currentStruct.empty()) பிழை("பொழில்-325", access.line, "");
        return VarType::Object;
    }
    if (localVariables.count(access.name) != 0) return VarType::Dynamic;
    const auto recorded = variableTypes.find(access.name);
    return recorded == variableTypes.end() ? VarType::Dynamic : recorded->second;
}

VarType Generator::inferMember(const GetExpression& access) {
    const auto* object = nodeAs<VariableAccess>(access.object.get());
    if (object == nullptr) return VarType::Dynamic;
    const auto recorded = variableTypes.find(object->name);
    const bool isTime = recorded != variableTypes.end() && recorded->second == VarType::Time;
    return isTime && isWholeTimeField(access.name.text) ? VarType::Integer : VarType::Dynamic;
}

VarType Generator::inferBinary(const BinaryExpression& binary) {
    const SideKinds sides = inferChain(binary, nullptr);
    return kindOfOperation(binary.op.text, sides.left, sides.right);
}

/// அ கூட்டு ஆ கூட்டு இ leans to the left: the kinds of a long chain's sides are found from its
/// inner end in one walk, not anew for each of its operators. Returns those of the outermost;
/// `inner`, if it is given, takes those of the others.
Generator::SideKinds Generator::inferChain(const BinaryExpression& outermost, ChainKinds* inner) {
    std::vector<const BinaryExpression*> chain = {&outermost};
    while (const auto* left = nodeAs<BinaryExpression>(chain.back()->left.get())) {
        chain.push_back(left);
    }
    SideKinds sides;
    sides.left = inferExpressionType(chain.back()->left.get());
    for (auto link = chain.rbegin();; ++link) {
        sides.right = inferExpressionType((*link)->right.get());
        if (*link == &outermost) return sides;
        if (inner != nullptr) (*inner)[*link] = sides;
        sides.left = kindOfOperation((*link)->op.text, sides.left, sides.right);
    }
}

/// The kinds that a visitor asks for: a chain's inner operators are visited right behind the
/// outermost, before anything that could change a name's kind.
Generator::SideKinds Generator::takeSideKinds(const BinaryExpression& binary) {
    const auto known = chainKinds.find(&binary);
    if (known == chainKinds.end()) return inferChain(binary, &chainKinds);
    const SideKinds sides = known->second;
    chainKinds.erase(known);
    return sides;
}
