// Calls by a name.
#include "companion/check/calls.h"
#include "companion/check/calls_builtins.h"
#include "companion/check/names_english.h"
#include "companion/check/names_letters.h"
#include "companion/check/tree_walk.h"
#include "lexer/word_tables.h"

namespace companion {

namespace {

/// The parser makes it of `a[i] = v`.
const char* const kElementStore = "_set_index_internal";

bool isLoopHead(const CallCheck& check, const CallExpression& call) {
    bool isHead = false;
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            const auto* loop = nodeAs<ForStatement>(&node);
            isHead |= loop != nullptr && loop->iterable.get() == &call;
        },
        [](const Expression&) {});
    return isHead;
}

std::set<std::string> callableNames(const CallCheck& check) {
    std::set<std::string> names = check.uses.assigned;
    for (const BuiltinCall& row : builtinCalls()) names.insert(std::string(row.name));
    for (const auto& entry : check.compiled.parser->functionParameters) names.insert(entry.first);
    for (const auto& entry : check.compiled.parser->structDefinitions) names.insert(entry.first);
    return names;
}

void addUnknown(const CallCheck& check, const NearNames& near, const std::string& name,
                Range range) {
    if (check.compiled.parser->abstractStructDefinitions.count(name) != 0) {
        return check.findings.add("துணை-219", range, {name});
    }
    if (const EnglishWord* word = englishWord(name)) {
        return check.findings.add("துணை-202", range,
                                  {name, std::string(word->tamil), std::string(word->form)},
                                  {range, std::string(word->tamil)});
    }
    if (lookUpWord(name) == TokenType::KEYWORD) {
        return check.findings.add("துணை-205", range, {name});
    }
    if (const auto nearest = near.to(name)) {
        return check.findings.add("துணை-201", range, {name, *nearest}, {range, *nearest});
    }
    check.findings.add("துணை-203", range, {name});
}

/// A name that no table holds and that is given no value up to here.
void checkUnknown(const CallCheck& check, const NearNames& near, const NameCall& call,
                  Range range) {
    const std::string& name = call.callee->name;
    if (call.in.isLocal || call.in.isInField || name == kElementStore) return;
    if (check.uses.assigned.count(name) != 0) {
        if (check.isHiddenRefusal(range)) check.findings.add("துணை-204", range, {name});
        return;
    }
    addUnknown(check, near, name, range);
}

std::string takesText(int least, int most) {
    const std::string last = std::to_string(most);
    if (most == 0) return "எந்த மதிப்பையும் ஏற்காது";
    const std::string count = least == most ? last : std::to_string(least) + " அல்லது " + last;
    return count + (most == 1 ? " மதிப்பை ஏற்கும்" : " மதிப்புகளை ஏற்கும்");
}

void checkBuiltinCount(const CallCheck& check, const CallExpression& call, const BuiltinCall& row,
                       Range range) {
    const auto count = static_cast<int>(call.arguments.size());
    if (row.name == "வரம்பு" && count != 1 && count != 2 && isLoopHead(check, call)) {
        return check.findings.add("துணை-214", range, {std::to_string(count)});
    }
    if (count >= row.least && count <= row.most) return;
    check.findings.add("துணை-206", range,
                       {std::string(row.name), takesText(row.least, row.most),
                        std::to_string(count), std::string(row.example)});
}

void checkFunctionCount(const CallCheck& check, const CallExpression& call, const std::string& name,
                        std::size_t parameters, Range range) {
    if (call.arguments.size() == parameters) return;
    const int takes = static_cast<int>(parameters);
    check.findings.add("துணை-207", range,
                       {name, takesText(takes, takes), std::to_string(call.arguments.size())});
}

}  // namespace

void checkNamedCalls(const CallCheck& check) {
    const Parser& parser = *check.compiled.parser;
    const NearNames near(callableNames(check));
    for (const NameCall& call : check.uses.calls) {
        const auto callee = check.compiled.rangeOf(*call.callee);
        const auto whole = check.compiled.rangeOf(*call.node);
        if (!callee || !whole || check.isTold(*whole)) continue;
        const std::string& name = call.callee->name;
        const auto function = parser.functionParameters.find(name);
        if (function != parser.functionParameters.end()) {
            checkFunctionCount(check, *call.node, name, function->second.size(), *whole);
        } else if (parser.structDefinitions.count(name) != 0) {
            if (check.isHiddenRefusal(*callee)) check.findings.add("துணை-204", *callee, {name});
        } else if (const BuiltinCall* row = builtinCall(name)) {
            checkBuiltinCount(check, *call.node, *row, *whole);
        } else {
            checkUnknown(check, near, call, *callee);
        }
    }
}

}  // namespace companion
