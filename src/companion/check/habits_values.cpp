// Values that are other than they look: octal digits, lost entries, bytes in the place of letters.
#include <algorithm>

#include "companion/check/habits.h"
#include "companion/check/tree_walk.h"

namespace companion {

namespace {

// ---- Texts ----

/// Names of the shared table that hold nothing but literal texts with Tamil letters.
std::set<std::string> namesOfTamilTexts(const NameUses& uses) {
    std::set<std::string> texts;
    std::set<std::string> others = uses.identifiers;
    for (const NameWrite& write : uses.writes) {
        const auto* text = nodeAs<StringLiteral>(write.node->value.get());
        const bool isTamil =
            isPlainAssignment(*write.node) && text != nullptr && isBeyondAscii(text->value);
        (isTamil ? texts : others).insert(write.node->name);
    }
    for (const std::string& name : others) texts.erase(name);
    for (const std::string& name : uses.parameters) texts.erase(name);
    for (const std::string& name : uses.loopVariables) texts.erase(name);
    return texts;
}

bool isTamilText(const Expression& expression, const std::set<std::string>& names) {
    const Expression& value = withoutGrouping(expression);
    if (const auto* text = nodeAs<StringLiteral>(&value)) return isBeyondAscii(text->value);
    const auto* variable = nodeAs<VariableAccess>(&value);
    return variable != nullptr && names.count(variable->name) != 0;
}

bool isEmptyText(const Expression& expression) {
    const auto* text = nodeAs<StringLiteral>(&withoutGrouping(expression));
    return text != nullptr && text->value.empty();
}

void checkTextCall(const HabitCheck& check, const NameCall& call,
                   const std::set<std::string>& tamilNames) {
    const std::string& name = call.callee->name;
    const auto& arguments = call.node->arguments;
    if (check.compiled.parser->functionParameters.count(name) != 0) return;
    const auto range = check.compiled.rangeOf(*call.node);
    if (name == "நீளம்" && arguments.size() == 1 && isTamilText(*arguments[0], tamilNames)) {
        check.add("துணை-601", range);
    } else if ((name == "பிளவு" || name == "பதில்") && arguments.size() >= 2 &&
               isEmptyText(*arguments[1])) {
        check.add("துணை-531", check.compiled.rangeOf(*arguments[1]), {name});
    }
}

// ---- Numbers ----

bool isOctal(const std::string& digits) {
    return digits.size() > 1 && digits[0] == '0' &&
           digits.find_first_not_of("01234567") == std::string::npos;
}

void checkNumber(const HabitCheck& check, const NumberLiteral& number) {
    if (!isOctal(number.value) || number.value.size() > 20) return;
    const unsigned long long value = std::stoull(number.value, nullptr, 8);
    if (value < 8) return;
    check.add("துணை-527", check.compiled.rangeOf(number), {number.value, std::to_string(value)});
}

void checkDivision(const HabitCheck& check, const BinaryExpression& node) {
    const auto* left = nodeAs<NumberLiteral>(node.left.get());
    const auto* right = nodeAs<NumberLiteral>(node.right.get());
    if (node.op.text != "வகு" || left == nullptr || right == nullptr) return;
    const auto isShort = [](const NumberLiteral& number) {
        return number.value.size() < 18 &&
               number.value.find_first_not_of("0123456789") == std::string::npos;
    };
    if (!isShort(*left) || !isShort(*right) || isOctal(left->value) || isOctal(right->value))
        return;
    const long long dividend = std::stoll(left->value);
    const long long divisor = std::stoll(right->value);
    if (divisor == 0 || dividend % divisor == 0) return;
    check.add("துணை-602", check.compiled.rangeOf(node),
              {left->value, right->value, std::to_string(dividend / divisor)});
}

// ---- Entries and members ----

void checkKeys(const HabitCheck& check, const MapLiteral& map) {
    for (auto entry = map.entries.begin(); entry != map.entries.end(); ++entry) {
        const bool stands = std::any_of(map.entries.begin(), entry, [&](const auto& before) {
            return before.first == entry->first;
        });
        if (stands) check.add("துணை-528", check.compiled.rangeOf(*entry->second), {entry->first});
    }
}

/// The word that stores into an element or a member: its node doesn't keep it.
int storingToken(const CompiledSource& compiled, const Expression& node) {
    const TokenSpan* span = compiled.places.find(node);
    int depth = 0;
    for (int i = span == nullptr ? 0 : span->first; span != nullptr && i < span->end; i++) {
        const TokenType kind = compiled.tokens[static_cast<std::size_t>(i)].type;
        const bool opens = kind == TokenType::LEFT_PAREN || kind == TokenType::LEFT_BRACKET;
        const bool closes = kind == TokenType::RIGHT_PAREN || kind == TokenType::RIGHT_BRACKET;
        depth += opens ? 1 : closes ? -1 : 0;
        if (depth != 0) continue;
        if (kind == TokenType::EQUALS || kind == TokenType::COLON) return -1;
        if (kind == TokenType::ASSIGN_OPERATOR) return i;
    }
    return -1;
}

struct CompoundWord {
    const char* word;
    const char* operation;
};
const CompoundWord kCompoundWords[] = {
    {"கூட்டிசேர்", "கூட்டு"},       {"கழிசேர்", "கழி"},       {"பெருக்குசேர்", "பெருக்கு"},
    {"வகுசேர்", "வகு"},           {"மீதிசேர்", "மீதி"},       {"பெஇசேர்", "பெருக்குஇருமை"},
    {"கூட்டுஇசேர்", "கூட்டுஇருமை"}, {"வேஇசேர்", "வேறுஇருமை"}, {"இடதுஇசேர்", "இடதுஇருமை"},
    {"வலதுஇசேர்", "வலதுஇருமை"},   {"ஒன்றுசேர்", "கூட்டு"},    {"ஒன்றுகழி", "கழி"},
};

const char* operationOf(const std::string& word) {
    for (const CompoundWord& row : kCompoundWords) {
        if (word == row.word) return row.operation;
    }
    return "";
}

void checkStore(const HabitCheck& check, const Expression& node) {
    const int token = storingToken(check.compiled, node);
    if (token < 0) return;
    const Range range = check.compiled.rangeOfToken(token);
    const std::string& word = check.compiled.tokens[static_cast<std::size_t>(token)].text;
    const auto whole = check.compiled.rangeOf(node);
    if (!whole) return;
    std::string target(check.compiled.source.slice({whole->begin, range.begin}));
    target.erase(target.find_last_not_of(' ') + 1);
    check.add("துணை-520", range, {word, target, operationOf(word)});
}

bool isElementStore(const Expression& node) {
    const auto* call = nodeAs<CallExpression>(&node);
    const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
    return callee != nullptr && callee->name == "_set_index_internal";
}

/// Numbers that stand bare as a property's value are read as they look.
std::set<const Expression*> bareProperties(const Program& program) {
    std::set<const Expression*> values;
    forEachNode(
        program,
        [&](const Statement& node) {
            const auto* widget = dynamic_cast<const WidgetNode*>(&node);
            if (widget == nullptr) return;
            for (const auto& property : widget->properties) values.insert(property.second.get());
        },
        [](const Expression&) {});
    return values;
}

}  // namespace

void checkValueHabits(const HabitCheck& check) {
    const std::set<std::string> tamilNames = namesOfTamilTexts(check.uses);
    const std::set<const Expression*> bare = bareProperties(check.compiled.program);
    for (const NameCall& call : check.uses.calls) checkTextCall(check, call, tamilNames);
    forEachNode(
        check.compiled.program, [](const Statement&) {},
        [&](const Expression& node) {
            if (const auto* number = nodeAs<NumberLiteral>(&node)) {
                if (bare.count(number) == 0) checkNumber(check, *number);
            } else if (const auto* binary = nodeAs<BinaryExpression>(&node)) {
                checkDivision(check, *binary);
            } else if (const auto* map = nodeAs<MapLiteral>(&node)) {
                checkKeys(check, *map);
            } else if (const auto* element = nodeAs<IndexExpression>(&node)) {
                if (isTamilText(*element->object, tamilNames)) {
                    check.add("துணை-530", check.compiled.rangeOf(node));
                }
            } else if (isElementStore(node) || nodeAs<SetMemberExpression>(&node) != nullptr) {
                checkStore(check, node);
            }
        });
}

}  // namespace companion
