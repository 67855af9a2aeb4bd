// Values: literals, names, members, elements, lists, functions.
#include <algorithm>
#include <cstdlib>

#include "companion/check/emission/walk.h"
#include "generator/known_words.h"
#include "generator/result_kinds.h"
#include "lexer/characters.h"
#include "lexer/holds.h"
#include "lexer/utf8.h"

namespace companion {

namespace {

bool hasOnlyZeros(const std::string& digits) {
    return digits.find_first_not_of('0') == std::string::npos;
}

/// The largest whole number that fits, without leading zeros.
constexpr std::string_view kLargestWhole = "9223372036854775807";

bool isTooLarge(const std::string& digits) {
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    const std::string_view plain = std::string_view(digits).substr(first);
    if (plain.size() != kLargestWhole.size()) return plain.size() > kLargestWhole.size();
    return plain > kLargestWhole;
}

/// What C++ makes of the backslashes in a text: the first sequence that it refuses.
std::string firstRefusedEscape(const std::string& text) {
    for (std::size_t at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 2)) {
        const char mark = at + 1 < text.size() ? text[at + 1] : '\0';
        const auto digits = [&](std::size_t from) {
            std::size_t end = from;
            while (end < text.size() && std::isxdigit(static_cast<unsigned char>(text[end])) != 0) {
                end++;
            }
            return end - from;
        };
        if (mark == '\0') return "\\";
        if (mark == 'x' && digits(at + 2) == 0) return "\\x";
        if (mark == 'u' && digits(at + 2) < 4) return "\\u";
        if (mark == 'U' && digits(at + 2) < 8) return "\\U";
    }
    return "";
}

bool isNumberText(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789.") == std::string::npos &&
           text.find_first_of("0123456789") != std::string::npos;
}

/// A backslash that C++ drops, since no mark of its own stands behind it.
std::string firstLostBackslash(const std::string& text) {
    static constexpr std::string_view kMarks = "ntrabfve0123456789'\"\\?xuU";
    for (std::size_t at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 2)) {
        if (at + 1 < text.size() && kMarks.find(text[at + 1]) == std::string_view::npos) {
            const auto length = getUTF8SequenceLength(text[at + 1]);
            return text.substr(at, 1 + static_cast<std::size_t>(length));
        }
    }
    return "";
}

/// C:\new, whose backslash makes another mark of the letter behind it.
bool isWindowsPath(const std::string& text) {
    return text.size() > 3 && isAsciiWordByte(static_cast<unsigned char>(text[0])) &&
           !isAsciiDigit(static_cast<unsigned char>(text[0])) && text[1] == ':' &&
           text[2] == '\\' && text[3] != '\\';
}

}  // namespace

Value EmissionWalk::walk(const Expression& expression) {
    if (const auto literal = walkLiteral(expression)) return *literal;
    if (const auto* node = nodeAs<VariableAccess>(&expression)) return walkVariable(*node);
    if (const auto* node = nodeAs<AssignmentExpression>(&expression)) return walkAssignment(*node);
    if (const auto* node = nodeAs<SetMemberExpression>(&expression)) return walkSetMember(*node);
    if (const auto* node = nodeAs<GetExpression>(&expression)) return walkMember(*node);
    if (const auto* node = nodeAs<IndexExpression>(&expression)) return walkIndex(*node);
    if (const auto* node = nodeAs<ListLiteral>(&expression)) return walkList(*node);
    if (const auto* node = nodeAs<MapLiteral>(&expression)) return walkMap(*node);
    if (const auto* node = nodeAs<LambdaExpression>(&expression)) return walkLambda(*node);
    return walkOperation(expression);
}

std::optional<Value> EmissionWalk::walkLiteral(const Expression& expression) {
    if (const auto* node = nodeAs<NumberLiteral>(&expression)) return walkNumber(*node);
    if (const auto* node = nodeAs<DoubleLiteral>(&expression)) {
        Value value = valueOf(Cpp::LongDouble, VarType::Decimal);
        value.facts.isOnlyZero = node->value.find_first_not_of("0.") == std::string::npos;
        return value;
    }
    if (const auto* node = nodeAs<StringLiteral>(&expression)) {
        return walkText(*node, node->value);
    }
    if (const auto* node = nodeAs<CharLiteral>(&expression)) {
        walkText(*node, node->value);
        return valueOf(Cpp::Letter);
    }
    if (nodeAs<BooleanLiteral>(&expression) != nullptr) {
        return valueOf(Cpp::Bool, VarType::Boolean);
    }
    if (nodeAs<ColorExpression>(&expression) != nullptr) {
        if (!knowledge.isApplication) tell("துணை-347", expression, {textOf(expression)});
        return Value{};
    }
    return std::nullopt;
}

Value EmissionWalk::walkOperation(const Expression& expression) {
    if (const auto* node = nodeAs<CallExpression>(&expression)) return walkCall(*node);
    if (const auto* node = nodeAs<BinaryExpression>(&expression)) return walkBinary(*node);
    if (const auto* node = nodeAs<LogicalExpression>(&expression)) return walkLogical(*node);
    if (const auto* node = nodeAs<UnaryExpression>(&expression)) return walkUnary(*node);
    if (const auto* node = nodeAs<GroupingExpression>(&expression)) return walkGrouping(*node);
    if (const auto* node = nodeAs<TernaryExpression>(&expression)) return walkTernary(*node);
    if (const auto* node = nodeAs<RTDBInsertExpression>(&expression)) {
        walk(*node->path);
        if (node->data != nullptr) walk(*node->data);
    } else if (const auto* node = nodeAs<RTDBUpdateExpression>(&expression)) {
        walk(*node->path);
        if (node->data != nullptr) walk(*node->data);
    } else if (const auto* node = nodeAs<RTDBDeleteExpression>(&expression)) {
        walk(*node->path);
    } else if (const auto* carrier = nodeAs<WidgetExpression>(&expression)) {
        const auto* widget = dynamic_cast<const WidgetNode*>(carrier->widget.get());
        if (widget != nullptr) walkWidget(*widget);
    }
    return Value{};
}

/// The digits go into C++ as they are: behind a leading zero they count to eight.
Value EmissionWalk::walkNumber(const NumberLiteral& literal) {
    Value value = valueOf(Cpp::LongLong, VarType::Integer);
    const std::string& digits = literal.value;
    if (digits.empty() || !isAsciiDigit(static_cast<unsigned char>(digits[0]))) return Value{};
    value.isLiteralZero = hasOnlyZeros(digits);
    value.facts.isOnlyZero = value.isLiteralZero;
    const bool isOctal = digits.size() > 1 && digits[0] == '0';
    if (isOctal && digits.find_first_of("89") != std::string::npos) {
        const std::size_t first = digits.find_first_not_of('0');
        tell("துணை-322", literal, {digits, digits.substr(first)});
    } else if (isTooLarge(digits)) {
        tell("துணை-587", literal, {digits});
    }
    return value;
}

Value EmissionWalk::walkText(const Expression& node, const std::string& text) {
    if (text.find('"') != std::string::npos) {
        tell("துணை-321", node, {textOf(node)});
    } else if (const std::string escape = firstRefusedEscape(text); !escape.empty()) {
        tell("துணை-319", node, {escape});
    } else if (isWindowsPath(text)) {
        tell("துணை-598", node, {textOf(node)});
    } else if (const std::string lost = firstLostBackslash(text); !lost.empty()) {
        tell("துணை-599", node, {lost});
    }
    Value value = valueOf(Cpp::Text, VarType::String);
    if (isNumberText(text)) value.facts.kinds = kDigits;
    return value;
}

Value EmissionWalk::walkVariable(const VariableAccess& access) {
    const auto local = locals.find(access.name);
    if (local != locals.end()) {
        if (!local->second.isVisible) {
            tell("துணை-342", access, {access.name});
            return Value{};
        }
        return valueOfLocal(local->second);
    }
    Value value = anyOf(kAnyKind, guessVariable(access));
    value.facts = knowledge.variable(access.name);
    value.isLvalue = true;
    return value;
}

Value EmissionWalk::walkAssignment(const AssignmentExpression& assignment) {
    const std::string& name = assignment.name;
    const VarType kind = guess(assignment.value.get());
    variableTypes[name] = kind;
    const Value target = targetOf(assignment);
    const Value value = walk(*assignment.value);
    checkGivesSomething(*assignment.value, value);
    const bool isLocalTarget = !currentFunction.empty() && isLocal(name);
    if (assignment.op.type == TokenType::ASSIGN_OPERATOR) {
        walkCompound(assignment, target, value);
    } else if (isLocalTarget) {
        checkLocalTarget(assignment, target, value);
        const Local& local = locals[name];
        if (local.node != nullptr) knowledge.giveLocal(local.node, value.facts);
    } else {
        knowledge.give(name, value.facts);
    }
    Value result = target;
    result.facts = value.facts;
    result.guess = VarType::Dynamic;
    if (assignment.op.type == TokenType::ASSIGN_OPERATOR) result.facts = kAnything;
    return result;
}

Value EmissionWalk::targetOf(const AssignmentExpression& assignment) {
    const std::string& name = assignment.name;
    if (!currentFunction.empty() && isLocal(name)) {
        const Local& local = locals[name];
        if (!local.isVisible) {
            if (findings != nullptr) {
                tellAt("துணை-342", compiled.wordIn(assignment, name), {name});
            }
            return Value{};
        }
        return valueOfLocal(local);
    }
    Value value = anyOf(kAnyKind);
    value.facts = knowledge.variable(name);
    value.isLvalue = true;
    return value;
}

/// A counting variable, a receiver and what a lambda has copied aren't free for any value.
void EmissionWalk::checkLocalTarget(const AssignmentExpression& assignment, const Value& target,
                                    const Value& value) {
    const std::string& name = assignment.name;
    if (target.cpp == Cpp::Unknown || value.cpp == Cpp::Unknown) return;
    if (target.isConst) {
        tell("துணை-337", assignment, {name});
    } else if (target.cpp == Cpp::LongLong) {
        tell("துணை-335", assignment, {name});
    } else if (target.cpp == Cpp::Object) {
        tell("துணை-336", assignment, {name});
    }
}

/// அ கூட்டிசேர் v  ->  std::any_cast<long long>(அ) + v: v stands as it is, without parentheses.
void EmissionWalk::walkCompound(const AssignmentExpression& assignment, const Value& target,
                                const Value& value) {
    static constexpr std::string_view kWholeOnly[] = {"மீதிசேர்", "பெஇசேர்",   "கூட்டுஇசேர்",
                                                      "வேஇசேர்", "இடதுஇசேர்", "வலதுஇசேர்"};
    static constexpr std::string_view kTight[] = {"பெருக்குசேர்", "வகுசேர்", "மீதிசேர்", "கழிசேர்"};
    const std::string& op = assignment.op.text;
    const Expression& node = *assignment.value;
    const bool isDecimal = value.cpp == Cpp::LongDouble || value.cpp == Cpp::Double;
    const bool isKnown = value.cpp != Cpp::Unknown && target.cpp != Cpp::Unknown;
    if (target.isConst || target.cpp == Cpp::LongLong || target.cpp == Cpp::Object) {
        checkLocalTarget(assignment, target, value);
    } else if (!isKnown) {
        // Another rule tells it, or the place where it is made.
    } else if (!isArithmetic(value.cpp)) {
        tell("துணை-331", node, {assignment.name, op, textOf(node)});
    } else if (isDecimal && holds(kWholeOnly, op)) {
        tell("துணை-332", node, {op});
    } else {
        const bool isSum = nodeAs<BinaryExpression>(&node) != nullptr && value.cpp != Cpp::Bool &&
                           value.cpp != Cpp::Text;
        if (isSum && holds(kTight, op)) tell("துணை-584", node, {op, textOf(node)});
        const Kinds kinds = target.facts.kinds;
        if (kinds != kNoKinds && (kinds & kWhole) == 0) {
            tellStop("துணை-420", assignment, {assignment.name, op});
        }
    }
    // It gets behind the cast for whole numbers alone.
    if ((target.facts.kinds & kWhole) == 0) return;
    const Kinds made = isDecimal ? kDecimal : kWhole;
    const Facts result{isKnown ? made : kWhole | kDecimal, kNoKinds};
    if (!currentFunction.empty() && isLocal(assignment.name)) {
        const Local& local = locals[assignment.name];
        if (local.node != nullptr) knowledge.giveLocal(local.node, result);
    } else {
        knowledge.give(assignment.name, result);
    }
}

/// A call of what gives nothing back, where something is asked for.
void EmissionWalk::checkGivesSomething(const Expression& node, const Value& value) {
    if (!knowledge.isComplete || nodeAs<CallExpression>(&node) == nullptr) return;
    if (isWithin(value.facts.kinds, kEmpty)) tell("துணை-592", node, {textOf(node)});
}

Value EmissionWalk::walkMember(const GetExpression& access) {
    const auto* variable = nodeAs<VariableAccess>(access.object.get());
    const std::string& member = access.name.text;
    static const std::vector<std::string_view> kInputProperties = inputPropertyNames();
    if (variable != nullptr && holds(kInputProperties, member)) {
        if (member == "வெறுமை" || member == "வெறுமைஇல்லை") return valueOf(Cpp::Bool);
        return anyOf(member == "நீளம்" ? kWhole : kText);
    }
    const VarType kind = guess(access.object.get());
    const Value object = walk(*access.object);
    if (kind == VarType::Object) {
        if (object.facts.kinds != kNoKinds && (object.facts.kinds & kObject) == 0) {
            tellStop("துணை-413", access, {textOf(*access.object), member});
        }
        Value value = anyOf(kAnyKind);
        value.facts = knowledge.property(member);
        return value;
    }
    if (kind == VarType::Time && isWholeTimeField(member)) {
        return valueOf(Cpp::Int, guessMember(access));
    }
    return Value{};
}

/// It is written as a line of its own, so it is no part of anything else.
Value EmissionWalk::walkSetMember(const SetMemberExpression& assignment) {
    const bool isStatement = memberAssignment == &assignment;
    memberAssignment = nullptr;
    const auto* object = nodeAs<VariableAccess>(assignment.object.get());
    const bool isViewState = object != nullptr && object->name == "காட்சி_நிலை";
    if (!isStatement) tell("துணை-338", assignment);
    if (!isViewState) walk(*assignment.object);
    const Value value = walk(*assignment.value);
    if (isViewState) {
        knowledge.give(assignment.name.text, value.facts);
    } else {
        knowledge.giveProperty(assignment.name.text, value.facts);
    }
    return Value{};
}

Value EmissionWalk::walkIndex(const IndexExpression& access) {
    const Value object = walk(*access.object);
    const Value place = walk(*access.index);
    checkIndex(*access.index, object, place);
    const Kinds kinds = object.facts.kinds;
    if (object.cpp == Cpp::Unknown || kinds == kNoKinds) return anyOf(kinds);
    Kinds elements = kNoKinds;
    if ((kinds & (kList | kMap)) != 0) elements |= object.facts.elements;
    if ((kinds & kWholeTexts) != 0) elements |= kTexts;
    return anyOf(elements == kNoKinds ? kAnyKind : elements);
}

/// A decimal is no place, nor is what நீளம் gives; a list's place is no text.
void EmissionWalk::checkIndex(const Expression& index, const Value& object, const Value& place) {
    const Kinds kinds = place.facts.kinds;
    if (kinds == kNoKinds || place.cpp == Cpp::Unknown) return;
    if (isWithin(kinds, kDecimal | kSeconds)) {
        tellStop("துணை-417", index, {textOf(index)});
    } else if (isWithin(kinds, kCount)) {
        tellStop("துணை-405", index, {textOf(index)});
    } else if ((isWithin(object.facts.kinds, kList | kWholeTexts) && (kinds & kWhole) == 0) ||
               (isWithin(object.facts.kinds, kMap) && (kinds & kWholeTexts) == 0)) {
        const bool isMap = isWithin(object.facts.kinds, kMap);
        tellStop(isMap ? "துணை-422" : "துணை-421", index, {textOf(index)});
    }
}

Value EmissionWalk::walkList(const ListLiteral& list) {
    Value value = valueOf(Cpp::List, VarType::List);
    value.facts.elements = kNoKinds;
    for (const auto& element : list.elements) value.facts.elements |= walk(*element).facts.kinds;
    return value;
}

Value EmissionWalk::walkMap(const MapLiteral& map) {
    Value value = valueOf(Cpp::Map, VarType::Map);
    value.facts.elements = kNoKinds;
    for (const auto& entry : map.entries) {
        if (entry.first.find('\\') != std::string::npos) walkText(map, entry.first);
        value.facts.elements |= walk(*entry.second).facts.kinds;
    }
    return value;
}

/// It holds copies of the locals around it, and its body is one expression.
Value EmissionWalk::walkLambda(const LambdaExpression& lambda) {
    const Locals outer = locals;
    for (auto& [name, local] : locals) local.isConst = true;
    std::set<std::string> names;
    for (const Token& parameter : lambda.parameters) {
        if (isReserved(parameter.text) && findings != nullptr) {
            tellAt("துணை-305", compiled.wordIn(lambda, parameter.text), {parameter.text});
        }
        if (!names.insert(parameter.text).second && findings != nullptr) {
            tellAt("துணை-309", compiled.wordIn(lambda, parameter.text), {parameter.text});
        }
        locals[parameter.text] = Local{};
    }
    walk(*lambda.body);
    locals = outer;
    Value value = valueOf(Cpp::Function, VarType::Object);
    value.arity = static_cast<int>(lambda.parameters.size());
    return value;
}

Value EmissionWalk::walkGrouping(const GroupingExpression& grouping) {
    Value value = walk(*grouping.expression);
    value.guess = VarType::Dynamic;
    return value;
}

}  // namespace companion
