// Calls of what has no name of its own: members, elements, results, literals; and values that no
// text can be made for.
#include "companion/check/calls.h"
#include "companion/check/calls_builtins.h"
#include "companion/check/names_english.h"
#include "companion/check/tree_walk.h"
#include "ui/properties.h"

namespace companion {

namespace {

const char* const kTimeTexts[] = {"தேதி", "நேரம்", "முழுவதும்"};

bool isTimeText(const std::string& member) {
    for (const char* text : kTimeTexts) {
        if (member == text) return true;
    }
    return false;
}

/// True for what is never taken for an object: an element, a result, a literal, a parameter.
bool isNeverObject(const CallCheck& check, const Expression& object) {
    const auto* variable = nodeAs<VariableAccess>(&object);
    if (variable == nullptr) {
        const auto* call = nodeAs<CallExpression>(&object);
        const auto* callee = call == nullptr ? nullptr : nodeAs<VariableAccess>(call->callee.get());
        return callee == nullptr ||
               check.compiled.parser->structDefinitions.count(callee->name) == 0;
    }
    return check.uses.localReads.count(variable) != 0;
}

void addUnknownMember(const CallCheck& check, const GetExpression& callee, Range range) {
    const std::string& member = callee.name.text;
    const EnglishWord* word = englishWord(member);
    if (const BuiltinCall* row = builtinCall(member)) {
        check.findings.add("துணை-211", range, {member, std::string(row->example)});
    } else if (word != nullptr && !word->isStatement) {
        check.findings.add("துணை-202", range,
                           {member, std::string(word->tamil), std::string(word->form)});
    } else {
        check.findings.add("துணை-212", range, {member});
    }
}

void checkMemberCall(const CallCheck& check, const CallExpression& call,
                     const GetExpression& callee) {
    const std::string& member = callee.name.text;
    const Expression& object = *callee.object;
    const auto range = check.compiled.rangeOf(call);
    const auto* variable = nodeAs<VariableAccess>(&object);
    if (!range || check.isTold(*range)) return;
    if (variable != nullptr && isInputMember(member)) return;
    if (variable != nullptr && variable->name == "நேரம்" && member == "வினாடிகள்") {
        if (!call.arguments.empty()) check.findings.add("துணை-213", *range);
        return;
    }
    if (isTimeText(member) || member == "சேர்") return;
    const auto name = check.compiled.wordIn(callee, member).value_or(*range);
    const bool isNobodys = check.uses.members.count(member) == 0;
    if (isNeverObject(check, object) || check.isHiddenRefusal(name) || isNobodys) {
        addUnknownMember(check, callee, name);
    }
}

void checkCall(const CallCheck& check, const CallExpression& call) {
    const Expression* callee = call.callee.get();
    if (const auto* member = nodeAs<GetExpression>(callee)) {
        return checkMemberCall(check, call, *member);
    }
    if (nodeAs<VariableAccess>(callee) != nullptr || nodeAs<LambdaExpression>(callee) != nullptr ||
        nodeAs<GroupingExpression>(callee) != nullptr) {
        return;
    }
    const auto range = check.compiled.rangeOf(call);
    if (range) check.findings.add("துணை-210", *range);
}

// ---- Values ----

void checkPercentage(const CallCheck& check, const Expression& value) {
    const auto* share = nodeAs<PercentageLiteral>(&value);
    const auto range = check.compiled.rangeOf(value);
    if (share == nullptr || !range) return;
    check.findings.add("துணை-209", *range,
                       {share->value, share->value.substr(0, share->value.size() - 1)});
}

bool isZero(const std::string* number) {
    return number != nullptr && number->find_first_not_of('0') == std::string::npos;
}

void checkGrid(const CallCheck& check, const WidgetNode& grid) {
    if (grid.name != "கட்டம்_காட்சி") return;
    for (const char* key : {"cols", "குறுக்கு_எண்ணிக்கை"}) {
        if (!isZero(numberProperty(grid, key))) continue;
        const auto range = check.compiled.rangeOf(*property(grid, key));
        if (range) check.findings.add("துணை-215", *range);
    }
}

bool beginsWithDigit(const std::string& text) { return text[0] >= '0' && text[0] <= '9'; }

/// The weight by which a button's label is measured has to be a number or a word for bold.
bool isMeasurable(const WidgetNode& text) {
    std::string weight = text.textStyle.fontWeight;
    if (const WidgetNode* style = childNamed(text, "உரைபாணி")) {
        const std::string* given = stringProperty(*style, "தடிமன்");
        if (given == nullptr) given = numberProperty(*style, "தடிமன்");
        if (given != nullptr && *given != "400") weight = *given;
    }
    return weight.empty() || weight == "தடிமனான" || weight == "bold" || beginsWithDigit(weight);
}

/// A button whose label is a widget in it.
void checkButton(const CallCheck& check, const WidgetNode& button) {
    if (button.name != "பொத்தான்") return;
    const WidgetNode* text = childWithString(button, "உரை", "உரை");
    if (text == nullptr || isMeasurable(*text)) return;
    const auto range = check.compiled.headOf(*text);
    if (range) check.findings.add("துணை-216", *range);
}

}  // namespace

void checkOtherCalls(const CallCheck& check) {
    forEachNode(
        check.compiled.program, [](const Statement&) {},
        [&](const Expression& node) {
            if (const auto* call = nodeAs<CallExpression>(&node)) checkCall(check, *call);
        });
}

void checkValues(const CallCheck& check) {
    const auto percentage = [&](const Expression& value) { checkPercentage(check, value); };
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            if (const auto* widget = dynamic_cast<const WidgetNode*>(&node)) {
                checkGrid(check, *widget);
                checkButton(check, *widget);
                return;
            }
            forEachChild(
                node, [](const Statement&) {}, percentage);
        },
        [&](const Expression& node) {
            forEachChild(
                node, [](const Statement&) {}, percentage);
        });
}

}  // namespace companion
