// The built-in calls: what each casts its arguments to, and what it gives.
#include <string_view>

#include "companion/check/emission/walk.h"
#include "lexer/holds.h"

namespace companion {

namespace {

struct BuiltinFacts {
    std::string_view name;
    /// A letter an argument: d decimal, w whole number, t text, m time; r a place to change;
    /// a anything.
    std::string_view arguments;
    Kinds result;
    VarType guess;
    Kinds elements = kAnyKind;
};

const BuiltinFacts kBuiltinFacts[] = {
    {"இப்போதுநேரம்", "", kTime, VarType::Time},
    {"என்னவகை", "a", kText, VarType::Dynamic},
    {"நீளம்", "a", kCount, VarType::Integer},
    {"உள்ளீடு", "t", kTyped, VarType::String},
    {"எண்", "a", kWhole | kDecimal, VarType::Dynamic},
    {"வை", "raa", kAnyKind, VarType::Dynamic},
    {"நீக்கு", "ra", kEmpty, VarType::Dynamic},
    {"செல்க", "t", kTruth, VarType::Dynamic},
    {"நகர்த்து", "a", kEmpty, VarType::Dynamic},
    {"சீரற்ற_எண்", "ww", kWhole, VarType::Dynamic},
    {"எடு", "aa", kAnyKind, VarType::Dynamic},
    {"வர்க்கமூலம்", "d", kDecimal, VarType::Decimal},
    {"அடுக்கு", "dd", kDecimal, VarType::Decimal},
    {"தனிமதிப்பு", "d", kDecimal, VarType::Dynamic},
    {"மேல்எண்", "d", kWhole, VarType::Integer},
    {"கீழ்எண்", "d", kWhole, VarType::Integer},
    {"சைன்", "d", kDecimal, VarType::Decimal},
    {"காஸ்", "d", kDecimal, VarType::Decimal},
    {"டேன்", "d", kDecimal, VarType::Decimal},
    {"மடக்கு", "d", kDecimal, VarType::Decimal},
    {"பிளவு", "tt", kList, VarType::List, kText},
    {"பதில்", "ttt", kText, VarType::String},
    {"பெரியஎ", "t", kText, VarType::String},
    {"சிறியஎ", "t", kText, VarType::String},
    {"கோப்பு_எழுது", "ta", kEmpty, VarType::Dynamic},
    {"கோப்பு_படி", "t", kText, VarType::String},
    {"கோப்பு_சேர்", "ta", kEmpty, VarType::Dynamic},
    {"கோப்பு_அழி", "t", kTruth, VarType::Boolean},
    {"கோப்பு_உள்ளதா", "t", kTruth, VarType::Boolean},
    {"தேதி", "m", kText, VarType::Dynamic},
    {"நேரம்", "m", kText, VarType::Dynamic},
    {"முழுவதும்", "m", kText, VarType::Dynamic},
};

const BuiltinFacts* factsOfBuiltin(std::string_view name) {
    for (const BuiltinFacts& row : kBuiltinFacts) {
        if (row.name == name) return &row;
    }
    return nullptr;
}

}  // namespace

bool readsWhole(const Expression& node, long long& number) {
    const auto* literal = nodeAs<NumberLiteral>(&node);
    if (literal == nullptr || literal->value.empty() || literal->value.size() > 17) return false;
    number = 0;
    for (const char digit : literal->value) {
        if (digit < '0' || digit > '9') return false;
        number = number * 10 + (digit - '0');
    }
    return true;
}

bool EmissionWalk::isBuiltin(const std::string& name) const {
    return name == "வரம்பு" || factsOfBuiltin(name) != nullptr;
}

Value EmissionWalk::walkBuiltin(const CallExpression& call, const std::string& name) {
    const std::vector<Value> values = walkArguments(call);
    if (name == "வரம்பு") return valueOf(Cpp::Null);
    const BuiltinFacts& row = *factsOfBuiltin(name);
    if (values.size() == row.arguments.size()) {
        for (std::size_t i = 0; i < values.size(); i++) {
            checkArgument(call, i, row.arguments[i], values[i], name);
        }
    }
    checkBuiltinCall(call, name);
    Value value = anyOf(row.result, row.guess, row.elements);
    if (name == "தனிமதிப்பு" && !values.empty()) value.guess = values[0].guess;
    if (name == "வை") {
        value.isLvalue = true;
        if (values.size() == 3) addElement(*call.arguments[0], values[2]);
    }
    return value;
}

void EmissionWalk::checkArgument(const CallExpression& call, std::size_t index, char wanted,
                                 const Value& value, const std::string& name) {
    const Expression& node = *call.arguments[index];
    const Kinds kinds = value.facts.kinds;
    if (wanted == 'a' || value.cpp == Cpp::Unknown) return;
    if (wanted == 'r') {
        if (value.isConst) {
            tell("துணை-345", node, {textOf(node)});
        } else if (!value.isLvalue) {
            tell("துணை-585", node, {textOf(node), name});
        }
        return;
    }
    if (refusesCast(node, value)) return;
    if (kinds == kNoKinds) return;
    const auto parts = [&] { return std::vector<std::string>{name, textOf(node)}; };
    if (wanted == 'd' && isWithin(kinds, kWhole | kCount)) {
        tellStop("துணை-401", node, parts());
    } else if (wanted == 'd' && isWithin(kinds, kTexts)) {
        tellStop("துணை-431", node, parts());
    } else if (wanted == 'd' && (kinds & kDecimal) == 0) {
        requireNumber(node, value, kDecimal);
    } else if (wanted == 'w' && (kinds & kWhole) == 0) {
        tellStop("துணை-411", node, parts());
    } else if (wanted == 't' && (kinds & kWholeTexts) == 0) {
        tellStop("துணை-410", node, parts());
    } else if (wanted == 'm' && (kinds & kTime) == 0) {
        tellStop("துணை-412", node, parts());
    }
}

/// A call as a statement whose result alone would be of use.
void EmissionWalk::checkResultIsKept(const Expression& expression) {
    static constexpr std::string_view kUseful[] = {
        "என்னவகை", "நீளம்",    "எண்",     "சீரற்ற_எண்", "வர்க்கமூலம்", "அடுக்கு",   "தனிமதிப்பு",
        "மேல்எண்",  "கீழ்எண்",   "சைன்",    "காஸ்",     "டேன்",      "மடக்கு",    "பிளவு",
        "பதில்",   "பெரியஎ", "சிறியஎ", "தேதி",    "நேரம்",     "முழுவதும்", "கோப்பு_உள்ளதா",
    };
    const auto* call = nodeAs<CallExpression>(&expression);
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    if (callee == nullptr || !holds(kUseful, callee->name)) return;
    if (compiled.parser->functionParameters.count(callee->name) != 0) return;
    tell("துணை-593", *call, {textOf(*call)});
}

/// Calls that are wrong by what is written there.
void EmissionWalk::checkBuiltinCall(const CallExpression& call, const std::string& name) {
    const auto& arguments = call.arguments;
    if (name == "உள்ளீடு" && arguments.empty()) {
        tell("துணை-316", call);
    } else if (name == "எடு" && arguments.size() == 2) {
        tell("துணை-317", call, {textOf(*arguments[0]), textOf(*arguments[1])});
    } else if (name == "செல்க" && !knowledge.isApplication) {
        tell("துணை-318", call);
    } else if (name == "சீரற்ற_எண்" && arguments.size() == 2) {
        long long least = 0;
        long long most = 0;
        if (readsWhole(*arguments[0], least) && readsWhole(*arguments[1], most) && most < least) {
            tellStop("துணை-430", call, {textOf(*arguments[0]), textOf(*arguments[1])});
        }
    }
}

/// a[i] = v, also through more than one level.
Value EmissionWalk::walkIndexStore(const CallExpression& call) {
    if (call.arguments.size() < 3) return Value{};
    const Value target = walkIndexTarget(*call.arguments[0]);
    const Value place = walk(*call.arguments[1]);
    const Value value = walk(*call.arguments[2]);
    if (target.isConst) {
        tell("துணை-345", *call.arguments[0], {textOf(*call.arguments[0])});
    } else if (target.cpp != Cpp::Unknown && !target.isLvalue) {
        tell("துணை-585", *call.arguments[0], {textOf(*call.arguments[0]), "="});
    } else if (isWithin(target.facts.kinds, kList) && place.facts.kinds != kNoKinds &&
               (place.facts.kinds & kNumbers) == 0) {
        tellStop("துணை-421", *call.arguments[1], {textOf(*call.arguments[1])});
    }
    addElement(*call.arguments[0], value);
    Value stored = anyOf(value.facts.kinds);
    stored.isLvalue = true;
    return stored;
}

Value EmissionWalk::walkIndexTarget(const Expression& expression) {
    const auto* element = nodeAs<IndexExpression>(&expression);
    if (element == nullptr) return walk(expression);
    const Value object = walkIndexTarget(*element->object);
    walk(*element->index);
    Value value = anyOf(kAnyKind);
    value.isLvalue = object.isLvalue || object.cpp == Cpp::Unknown;
    value.isConst = object.isConst;
    return value;
}

}  // namespace companion
