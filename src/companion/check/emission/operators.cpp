// Operators, conditions, and what a cast to a native number asks for.
#include <string_view>

#include "companion/check/emission/walk.h"
#include "generator/result_kinds.h"
#include "lexer/holds.h"

namespace companion {

namespace {

constexpr std::string_view kFiveSums[] = {"கூட்டு", "கழி", "பெருக்கு", "வகு", "மீதி"};
constexpr std::string_view kComparisonWords[] = {"சமம்",    "சமமில்லை",   "பெரிது",
                                                 "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};
constexpr std::string_view kOrderWords[] = {"பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"};
constexpr std::string_view kWholeWords[] = {"மீதி",       "பெருக்குஇருமை", "கூட்டுஇருமை",
                                            "வேறுஇருமை", "இடதுஇருமை",    "வலதுஇருமை"};

bool isCompound(VarType kind) {
    return kind == VarType::List || kind == VarType::Map || kind == VarType::Object;
}

bool isNumber(VarType kind) { return kind == VarType::Integer || kind == VarType::Decimal; }

bool isPlainLiteral(const Expression& node) {
    return nodeAs<NumberLiteral>(&node) != nullptr || nodeAs<DoubleLiteral>(&node) != nullptr ||
           nodeAs<StringLiteral>(&node) != nullptr || nodeAs<BooleanLiteral>(&node) != nullptr;
}

bool isWrittenZero(const Expression& node) {
    const Expression* inner = &node;
    while (const auto* grouping = nodeAs<GroupingExpression>(inner)) {
        inner = grouping->expression.get();
    }
    std::string_view digits;
    if (const auto* whole = nodeAs<NumberLiteral>(inner)) digits = whole->value;
    if (const auto* decimal = nodeAs<DoubleLiteral>(inner)) digits = decimal->value;
    return !digits.empty() && digits.find_first_not_of("0.") == std::string_view::npos;
}

/// The C++ type of a native operation over these two.
Cpp arithmeticResult(Cpp left, Cpp right) {
    if (left == Cpp::LongDouble || right == Cpp::LongDouble) return Cpp::LongDouble;
    if (left == Cpp::Double || right == Cpp::Double) return Cpp::Double;
    if (left == Cpp::LongLong || right == Cpp::LongLong) return Cpp::LongLong;
    return Cpp::Int;
}

Kinds sumKinds(Kinds left, Kinds right) {
    Kinds kinds = kNoKinds;
    const bool bothNumbers = (left & kNumbers) != 0 && (right & kNumbers) != 0;
    if ((left & kWhole) != 0 && (right & kWhole) != 0) kinds |= kWhole;
    if (bothNumbers && !(isWithin(left, kWhole) && isWithin(right, kWhole))) kinds |= kDecimal;
    const Kinds others = kAnyKind & ~kNumbers;
    if ((left & others) != 0 || (right & others) != 0) kinds |= kText;
    return left == kNoKinds || right == kNoKinds ? kNoKinds : kinds;
}

Kinds quotientKinds(Kinds left, Kinds right) {
    Kinds kinds = kNoKinds;
    if ((left & kWhole) != 0 && (right & kWhole) != 0) kinds |= kWhole;
    if (!(isWithin(left, kWhole) && isWithin(right, kWhole))) kinds |= kDecimal;
    return left == kNoKinds || right == kNoKinds ? kNoKinds : kinds;
}

bool canBeCondition(Cpp cpp) {
    return isArithmetic(cpp) || cpp == Cpp::Function || cpp == Cpp::Object || cpp == Cpp::Time ||
           cpp == Cpp::Null || cpp == Cpp::Unknown;
}

}  // namespace

void EmissionWalk::tellSides(const char* code, const BinaryExpression& binary) {
    tell(code, binary, {textOf(*binary.left), textOf(*binary.right)});
}

Value EmissionWalk::walkBinary(const BinaryExpression& binary) {
    // A long chain leans to the left: it is walked from its inner end, without a call a link.
    std::vector<const BinaryExpression*> chain = {&binary};
    while (const auto* left = nodeAs<BinaryExpression>(chain.back()->left.get())) {
        chain.push_back(left);
    }
    Value value = walk(*chain.back()->left);
    for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
        value = operate(**link, {value, walk(*(*link)->right)});
    }
    return value;
}

Value EmissionWalk::operate(const BinaryExpression& binary, const Sides& sides) {
    const std::string& op = binary.op.text;
    const VarType left = sides.left.guess;
    const VarType right = sides.right.guess;
    const VarType kind = kindOfOperation(op, left, right);
    const bool isSum = holds(kFiveSums, op);
    const bool isMixed = (left == VarType::String && isNumber(right)) ||
                         (isNumber(left) && right == VarType::String);
    // The compiler tells these itself.
    if (isSum && (isCompound(left) || isCompound(right) || isMixed)) {
        Value value;
        value.guess = kind;
        return value;
    }
    if (op == "இணை" || op == "கூட்டு") {
        checkGivesSomething(*binary.left, sides.left);
        checkGivesSomething(*binary.right, sides.right);
    }
    if (op == "இணை") return valueOf(Cpp::Text, kind);
    if (op == "கூட்டு") {
        checkSum(binary, sides);
        return anyOf(sumKinds(sides.left.facts.kinds, sides.right.facts.kinds), kind);
    }
    if (op == "வகு") return divide(binary, sides, kind);
    if (holds(kComparisonWords, op)) return compare(binary, sides, kind);
    return operateNative(binary, sides, kind);
}

/// Two texts are joined: 5 and 3 in quotes make 53.
void EmissionWalk::checkSum(const BinaryExpression& binary, const Sides& sides) {
    const Kinds left = sides.left.facts.kinds;
    const Kinds right = sides.right.facts.kinds;
    if (isWithin(left, kDigits) && isWithin(right, kDigits | kTyped)) {
        tellSides("துணை-590", binary);
    } else if (isWithin(left, kTyped) && isWithin(right, kDigits | kTyped | kNumbers)) {
        tellSides("துணை-591", binary);
    }
}

Value EmissionWalk::divide(const BinaryExpression& binary, const Sides& sides, VarType kind) {
    const Kinds left = sides.left.facts.kinds;
    const Kinds right = sides.right.facts.kinds;
    if (isWrittenZero(*binary.right) || sides.right.facts.isOnlyZero) {
        tellStop("துணை-409", *binary.right, {textOf(*binary.right)});
    } else if (left != kNoKinds && (left & kNumbers) == 0 && sides.left.cpp != Cpp::Unknown) {
        requireNumber(*binary.left, sides.left, kNumbers);
    } else if (right != kNoKinds && (right & kNumbers) == 0 && sides.right.cpp != Cpp::Unknown) {
        requireNumber(*binary.right, sides.right, kNumbers);
    }
    return anyOf(quotientKinds(left, right), kind);
}

/// What can't be compared is simply false, and texts have no order.
Value EmissionWalk::compare(const BinaryExpression& binary, const Sides& sides, VarType kind) {
    const Value& left = sides.left;
    const Value& right = sides.right;
    const bool isKnown = left.cpp != Cpp::Unknown && right.cpp != Cpp::Unknown;
    if (isKnown && !canBeEqual(left.facts.kinds, right.facts.kinds)) {
        const bool hasText =
            isWithin(left.facts.kinds, kTexts) || isWithin(right.facts.kinds, kTexts);
        const bool hasNumber =
            isWithin(left.facts.kinds, kNumbers) || isWithin(right.facts.kinds, kNumbers);
        tellSides(hasText && hasNumber ? "துணை-581" : "துணை-583", binary);
    } else if (isKnown && holds(kOrderWords, binary.op.text) &&
               (isWithin(left.facts.kinds, kTexts | kTruth) ||
                isWithin(right.facts.kinds, kTexts | kTruth))) {
        tellSides("துணை-582", binary);
    }
    return valueOf(Cpp::Bool, kind);
}

/// அ கழி ஆ  ->  std::any_cast<T>(அ) - std::any_cast<T>(ஆ), with a T that the guesses pick.
Value EmissionWalk::operateNative(const BinaryExpression& binary, const Sides& sides,
                                  VarType kind) {
    const VarType left = sides.left.guess;
    const VarType right = sides.right.guess;
    Cpp type = Cpp::LongLong;
    if (left == VarType::Boolean || right == VarType::Boolean) {
        type = Cpp::Bool;
    } else if (left == VarType::Decimal || right == VarType::Decimal) {
        type = Cpp::LongDouble;
    }
    const Cpp a = castSide(*binary.left, sides.left, type);
    const Cpp b = castSide(*binary.right, sides.right, type);
    Value unknown;
    unknown.guess = kind;
    if (a == Cpp::Unknown || b == Cpp::Unknown) return unknown;
    const std::string& op = binary.op.text;
    if (!isArithmetic(a) || !isArithmetic(b)) {
        const Expression& text = isArithmetic(a) ? *binary.right : *binary.left;
        tell("துணை-327", text, {textOf(text), op});
        return unknown;
    }
    const bool isDecimal = a == Cpp::LongDouble || b == Cpp::LongDouble;
    if (isDecimal && holds(kWholeWords, op)) {
        tell("துணை-328", binary, {op});
        return unknown;
    }
    if (op == "மீதி" && (isWrittenZero(*binary.right) || sides.right.facts.isOnlyZero)) {
        tellStop("துணை-409", *binary.right, {textOf(*binary.right)});
    }
    const bool isShift = op == "இடதுஇருமை" || op == "வலதுஇருமை";
    return valueOf(isShift ? arithmeticResult(a, a) : arithmeticResult(a, b), kind);
}

/// The type of one side's text: a literal stands bare, all else is cast.
Cpp EmissionWalk::castSide(const Expression& side, const Value& value, Cpp type) {
    if (isPlainLiteral(side)) return value.cpp;
    if (refusesCast(side, value)) return Cpp::Unknown;
    if (value.cpp == Cpp::Unknown) return type;
    if (type == Cpp::Bool) {
        const Kinds kinds = value.facts.kinds;
        if (kinds != kNoKinds && (kinds & kTruth) == 0) {
            tellStop("துணை-423", side, {textOf(side)});
        }
        return type;
    }
    const Kinds wanted = type == Cpp::LongDouble ? kDecimal : kWhole;
    if (value.facts.kinds == kNoKinds || (value.facts.kinds & wanted) != 0) return type;
    requireNumber(side, value, wanted);
    return type;
}

/// Which of the ways in which a calculation ends the program this one is.
void EmissionWalk::requireNumber(const Expression& node, const Value& value, Kinds wanted) {
    const Kinds kinds = value.facts.kinds;
    if (kinds == kNoKinds || (kinds & wanted) != 0) return;
    const std::vector<std::string> parts = {textOf(node)};
    if (isWithin(kinds, kCount)) {
        tellStop("துணை-405", node, parts);
    } else if (isWithin(kinds, kTexts)) {
        tellStop("துணை-402", node, parts);
    } else if (isWithin(kinds, kEmpty)) {
        const bool isCall = nodeAs<CallExpression>(&node) != nullptr;
        tellStop(isCall ? "துணை-415" : "துணை-408", node, parts);
    } else if (wanted == kDecimal && isWithin(kinds, kWhole | kCount)) {
        tellStop("துணை-403", node, parts);
    } else if (wanted == kWhole && isWithin(kinds, kDecimal | kSeconds)) {
        tellStop("துணை-404", node, parts);
    } else {
        tellStop("துணை-424", node, parts);
    }
}

/// A zero that is written out is a null pointer too: C++ can't tell which cast is meant.
bool EmissionWalk::refusesCast(const Expression& node, const Value& value) {
    if (!value.isLiteralZero && value.cpp != Cpp::Null) return false;
    tell("துணை-333", node, {textOf(node)});
    return true;
}

/// An operation stands bare, anything else is cast to a truth value.
void EmissionWalk::walkTruth(const Expression& side) {
    const bool isOperation =
        nodeAs<BinaryExpression>(&side) != nullptr || nodeAs<LogicalExpression>(&side) != nullptr;
    const Value value = walk(side);
    if (isOperation) {
        if (!canBeCondition(value.cpp)) tell("துணை-325", side, {textOf(side)});
        return;
    }
    if (value.isLiteralZero || value.cpp == Cpp::Null) return tell("துணை-348", side);
    requireTruth(side, value);
}

void EmissionWalk::requireTruth(const Expression& node, const Value& value) {
    const Kinds kinds = value.facts.kinds;
    if (value.cpp == Cpp::Unknown || kinds == kNoKinds || (kinds & kTruth) != 0) return;
    tellStop(isWithin(kinds, kEmpty) ? "துணை-408" : "துணை-406", node, {textOf(node)});
}

Value EmissionWalk::walkLogical(const LogicalExpression& logical) {
    walkTruth(*logical.left);
    walkTruth(*logical.right);
    return valueOf(Cpp::Bool);
}

/// The condition stands as it is: only a native truth value or number is taken.
Value EmissionWalk::walkTernary(const TernaryExpression& ternary) {
    const Value condition = walk(*ternary.condition);
    if (!canBeCondition(condition.cpp)) {
        tell("துணை-323", *ternary.condition, {textOf(*ternary.condition)});
    }
    const Value a = walk(*ternary.thenBranch);
    const Value b = walk(*ternary.elseBranch);
    Value result;
    result.guess = a.guess;
    if (a.cpp == Cpp::Unknown || b.cpp == Cpp::Unknown) return result;
    result.facts = {a.facts.kinds | b.facts.kinds, a.facts.elements | b.facts.elements};
    if (a.cpp == b.cpp && (a.cpp != Cpp::Function || a.arity == b.arity)) {
        result.cpp = a.cpp;
        result.arity = a.arity;
        result.isLvalue = a.isLvalue && b.isLvalue;
    } else if (a.cpp == Cpp::Any || b.cpp == Cpp::Any) {
        result.cpp = Cpp::Any;
    } else if (isArithmetic(a.cpp) && isArithmetic(b.cpp)) {
        result = valueOf(arithmeticResult(a.cpp, b.cpp), a.guess);
    } else if (a.cpp == Cpp::Null || b.cpp == Cpp::Null) {
        return Value{};
    } else {
        tell("துணை-324", ternary, {textOf(*ternary.thenBranch), textOf(*ternary.elseBranch)});
        result.cpp = Cpp::Unknown;
    }
    return result;
}

Value EmissionWalk::walkUnary(const UnaryExpression& unary) {
    const Value inner = walk(*unary.right);
    const std::string& word = unary.op.text;
    if (word == "இல்லை") return anyOf(kTruth);
    if (word == "எதிர்இருமை") {
        if (!refusesCast(*unary.right, inner) && inner.cpp != Cpp::Unknown) {
            requireNumber(*unary.right, inner, kWhole);
        }
        return anyOf(kWhole);
    }
    if (inner.cpp == Cpp::Unknown) return Value{};
    if (!isArithmetic(inner.cpp)) {
        tell("துணை-326", unary, {textOf(*unary.right), word});
        return Value{};
    }
    return valueOf(inner.cpp == Cpp::Bool ? Cpp::Int : inner.cpp);
}

}  // namespace companion
