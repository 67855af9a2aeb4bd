// Operators. Addition, division and comparison go through the runtime; the other words are native
// C++ over a cast that inference picks.
#include <string_view>

#include "generator/generator.h"
#include "lexer/holds.h"

namespace {

constexpr std::string_view kArithmetic[] = {"கூட்டு", "கழி", "பெருக்கு", "வகு", "மீதி"};
constexpr std::string_view kComparisons[] = {"சமம்",    "சமமில்லை",   "பெரிது",
                                             "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};

/// A zero as it is most often written; 00 and 0.00 are left to the run.
bool isLiteralZero(const Expression* expression) {
    if (const auto* number = nodeAs<NumberLiteral>(expression)) {
        return number->value == "0";
    }
    const auto* decimal = nodeAs<DoubleLiteral>(expression);
    return decimal != nullptr && (decimal->value == "0.0" || decimal->value == "0.");
}

bool isNumberKind(VarType kind) { return kind == VarType::Integer || kind == VarType::Decimal; }

bool isCompoundKind(VarType kind) {
    return kind == VarType::List || kind == VarType::Map || kind == VarType::Object;
}

bool isNativeLiteral(const Expression* expression) {
    return nodeAs<NumberLiteral>(expression) != nullptr ||
           nodeAs<DoubleLiteral>(expression) != nullptr ||
           nodeAs<StringLiteral>(expression) != nullptr ||
           nodeAs<BooleanLiteral>(expression) != nullptr;
}

}  // namespace

std::string Generator::mapOperator(const std::string& word) {
    static const std::map<std::string, std::string> operators = {
        {"கூட்டு", "+"},      {"கழி", "-"},         {"பெருக்கு", "*"},      {"வகு", "/"},
        {"மீதி", "%"},        {"சமம்", "=="},        {"சமமில்லை", "!="},     {"பெரிது", ">"},
        {"சிறிது", "<"},     {"பெரிதுசமம்", ">="},  {"சிறிதுசமம்", "<="},   {"மற்றும்", "&&"},
        {"அல்லது", "||"},     {"இல்லை", "!"},        {"பெருக்குஇருமை", "&"}, {"கூட்டுஇருமை", "|"},
        {"எதிர்இருமை", "~"},  {"இடதுஇருமை", "<<"},  {"வலதுஇருமை", ">>"},   {"கூட்டிசேர்", "+="},
        {"கழிசேர்", "-="},    {"பெருக்குசேர்", "*="}, {"வகுசேர்", "/="},      {"மீதிசேர்", "%="},
        {"பெஇசேர்", "&="},    {"கூட்டுஇசேர்", "|="},  {"வேஇசேர்", "^="},      {"இடதுஇசேர்", "<<="},
        {"வலதுஇசேர்", ">>="}, {"ஒன்றுசேர்", "++"},    {"ஒன்றுகழி", "--"},     {"வேறுஇருமை", "^"},
    };
    const auto row = operators.find(word);
    if (row == operators.end()) பிழை("பொழில்-304", 0, "Operator: " + word);
    return row->second;
}

/// Raises 304 for arithmetic on what holds no number, 301 for a literal zero as divisor, 303 for
/// arithmetic of a known text and a known number.
void Generator::visitBinaryExpression(const BinaryExpression* binary) {
    const Expression* left = binary->left.get();
    const Expression* right = binary->right.get();
    const std::string& op = binary->op.text;
    const auto [leftKind, rightKind] = takeSideKinds(*binary);

    const bool isArithmetic = holds(kArithmetic, op);
    if (isArithmetic && (isCompoundKind(leftKind) || isCompoundKind(rightKind))) {
        பிழை("பொழில்-304", binary->line, "");
    }
    if (op == "வகு" && isLiteralZero(right)) பிழை("பொழில்-301", binary->line, "");
    if (isArithmetic && ((leftKind == VarType::String && isNumberKind(rightKind)) ||
                         (isNumberKind(leftKind) && rightKind == VarType::String))) {
        பிழை("பொழில்-303", binary->line, "");
    }

    if (op == "இணை") {
        out << "std::string(fn_any_to_string(";
        visitExpression(left);
        out << ") + fn_any_to_string(";
        visitExpression(right);
        out << "))";
        return;
    }
    const bool compares = holds(kComparisons, op);
    if (op != "கூட்டு" && op != "வகு" && !compares) {
        return writeNativeOperation(*binary, leftKind, rightKind);
    }
    out << (compares ? "fn_compare_any(" : op == "வகு" ? "fn_div_any(" : "fn_add_any(");
    writeAny(left);
    out << ", ";
    writeAny(right);
    if (compares) out << ", \"" << op << "\"";
    out << ")";
}

/// அ கழி 1  ->  std::any_cast<long long>(global_vars["அ"]) - 1LL
/// An unknown kind counts as a whole number; a decimal in it then throws when the program runs.
void Generator::writeNativeOperation(const BinaryExpression& binary, VarType left, VarType right) {
    std::string type = "long long";
    if (left == VarType::Boolean || right == VarType::Boolean) {
        type = "bool";
    } else if (left == VarType::Decimal || right == VarType::Decimal) {
        type = "long double";
    }
    writeNativeSide(binary.left.get(), type);
    out << " " << mapOperator(binary.op.text) << " ";
    writeNativeSide(binary.right.get(), type);
}

void Generator::writeNativeSide(const Expression* side, const std::string& type) {
    if (isNativeLiteral(side)) return visitExpression(side);
    out << "std::any_cast<" << type << ">(";
    visitExpression(side);
    out << ")";
}

/// அ மற்றும் ஆ  ->  (std::any_cast<bool>(...) && std::any_cast<bool>(...))
void Generator::visitLogicalExpression(const LogicalExpression* logical) {
    out << "(";
    writeTruth(logical->left.get());
    out << " " << mapOperator(logical->op.text) << " ";
    writeTruth(logical->right.get());
    out << ")";
}

/// A truth value: bare where an operator yields it, otherwise a cast that throws for anything
/// else. So a bare arithmetic expression counts by C++ conversion. Meant.
void Generator::writeTruth(const Expression* side) {
    if (nodeAs<BinaryExpression>(side) != nullptr || nodeAs<LogicalExpression>(side) != nullptr) {
        return visitExpression(side);
    }
    out << "std::any_cast<bool>(";
    visitExpression(side);
    out << ")";
}

/// A sign over a std::any doesn't compile: it is for literals and native expressions. Meant.
void Generator::visitUnaryExpression(const UnaryExpression* unary) {
    std::string open = "(";
    std::string close = ")";
    if (unary->op.text == "இல்லை") {
        open = "fn_logic_not(";
    } else if (unary->op.text == "எதிர்இருமை") {
        open = "std::any(~std::any_cast<long long>(";
        close = "))";
    } else if (unary->op.type == TokenType::UNARY_MINUS) {
        open = "-(";
    } else if (unary->op.type == TokenType::UNARY_PLUS) {
        open = "+(";
    } else {
        open = mapOperator(unary->op.text) + "(";
    }
    out << open;
    visitExpression(unary->right.get());
    out << close;
}
