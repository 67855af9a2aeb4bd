// The way a program takes: conditions that never change, loops that never end, lines that are never
// reached.
#include <algorithm>

#include "companion/check/calls_builtins.h"
#include "companion/check/habits.h"
#include "companion/check/habits_constants.h"
#include "companion/check/tree_walk.h"

namespace companion {

namespace {

// ---- Conditions ----

const char* answerText(bool answer) { return answer ? "மெய்" : "பொய்"; }

/// அ பெரிது அ: the answer is no whatever the name holds.
bool comparesWithItself(const Expression& condition) {
    const auto* comparison = nodeAs<BinaryExpression>(&condition);
    if (comparison == nullptr) return false;
    const std::string& word = comparison->op.text;
    if (word != "பெரிது" && word != "சிறிது" && word != "சமமில்லை") return false;
    const auto* left = nodeAs<VariableAccess>(&withoutGrouping(*comparison->left));
    const auto* right = nodeAs<VariableAccess>(&withoutGrouping(*comparison->right));
    return left != nullptr && right != nullptr && left->name == right->name;
}

void checkCondition(const HabitCheck& check, const Expression& condition, bool isLoop) {
    const Expression& inner = withoutGrouping(condition);
    if (const auto* write = nodeAs<AssignmentExpression>(&inner)) {
        return check.addUnlessGraver("துணை-512", check.compiled.rangeOf(inner), {write->name});
    }
    auto answer = constantAnswer(inner);
    if (comparesWithItself(inner)) answer = false;
    const auto range = check.compiled.rangeOf(inner);
    if (!answer || !range || (isLoop && *answer)) return;
    // Why the answer is no is told already.
    if (check.findings.holds("துணை-52", *range)) return;
    check.add("துணை-516", range, {answerText(*answer)});
}

// ---- Endless loops ----

/// What in a loop's body can end it, or make it worth its time.
struct LoopBody {
    bool leaves = false;  ///< நிறுத்து of this loop, or திரும்பு.
    bool waits = false;   ///< காத்திரு, உள்ளீடு.
    bool callsUnknown = false;  ///< What isn't built in may give any name a value.
    std::set<std::string> given;
};

class BodyReader final : public TreeVisitor {
public:
    explicit BodyReader(LoopBody& body) : body(body) {}

    bool enter(const Statement& node) override {
        if (isLoop(node)) depth++;
        body.leaves |= nodeAs<ReturnStatement>(&node) != nullptr ||
                       (depth == 0 && nodeAs<BreakStatement>(&node) != nullptr);
        body.waits |= nodeAs<WaitStatement>(&node) != nullptr;
        if (const auto* attempt = nodeAs<TryCatchStatement>(&node)) {
            body.given.insert(attempt->errorName);
        }
        return true;
    }
    void leave(const Statement& node) override {
        if (isLoop(node)) depth--;
    }
    bool enter(const Expression& node) override {
        if (const auto* write = nodeAs<AssignmentExpression>(&node)) body.given.insert(write->name);
        if (const auto* store = nodeAs<SetMemberExpression>(&node)) {
            body.given.insert(store->name.text);
        }
        if (const auto* call = nodeAs<CallExpression>(&node)) readCall(*call);
        return true;
    }

private:
    static bool isLoop(const Statement& node) {
        return nodeAs<WhileStatement>(&node) != nullptr || nodeAs<ForStatement>(&node) != nullptr;
    }
    void readCall(const CallExpression& call) {
        const auto* member = nodeAs<GetExpression>(call.callee.get());
        if (member != nullptr && member->name.text == "சேர்") return;
        const auto* callee = nodeAs<VariableAccess>(call.callee.get());
        if (callee != nullptr && callee->name == "உள்ளீடு") body.waits = true;
        if (callee != nullptr && callee->name == "_set_index_internal") return;
        body.callsUnknown |= callee == nullptr || builtinCall(callee->name) == nullptr;
    }

    LoopBody& body;
    int depth = 0;
};

/// The names in a condition of names and literals; nothing if it holds anything else.
std::optional<std::set<std::string>> namesOfPlainCondition(const Expression& condition) {
    std::set<std::string> names;
    bool isPlain = true;
    forEachNode(
        condition, [&](const Statement&) { isPlain = false; },
        [&](const Expression& node) {
            if (const auto* name = nodeAs<VariableAccess>(&node)) {
                names.insert(name->name);
                return;
            }
            isPlain &= nodeAs<GroupingExpression>(&node) != nullptr ||
                       nodeAs<UnaryExpression>(&node) != nullptr ||
                       nodeAs<BinaryExpression>(&node) != nullptr ||
                       nodeAs<LogicalExpression>(&node) != nullptr || constantOf(node).has_value();
        });
    if (!isPlain || names.empty()) return std::nullopt;
    return names;
}

bool shareNone(const std::set<std::string>& one, const std::set<std::string>& other) {
    return std::none_of(one.begin(), one.end(),
                        [&](const std::string& name) { return other.count(name) != 0; });
}

void checkLoop(const HabitCheck& check, const WhileStatement& loop) {
    LoopBody body;
    BodyReader reader(body);
    walk(*loop.body, reader);
    if (body.leaves) return;
    const auto range = check.compiled.rangeOf(*loop.condition);
    if (constantAnswer(*loop.condition).value_or(false)) {
        if (!body.waits) check.add("துணை-513", range);
        return;
    }
    const auto names = namesOfPlainCondition(*loop.condition);
    if (!names || body.callsUnknown || !shareNone(*names, body.given)) return;
    check.add("துணை-514", range, {*names->begin()});
}

/// Loops that nothing ends. Inside `முயற்சி` a failure might.
class LoopFinder final : public TreeVisitor {
public:
    explicit LoopFinder(const HabitCheck& check) : check(check) {}
    bool enter(const Statement& node) override {
        attempts += nodeAs<TryCatchStatement>(&node) != nullptr ? 1 : 0;
        const auto* loop = nodeAs<WhileStatement>(&node);
        if (loop != nullptr && attempts == 0) checkLoop(check, *loop);
        return true;
    }
    void leave(const Statement& node) override {
        attempts -= nodeAs<TryCatchStatement>(&node) != nullptr ? 1 : 0;
    }

private:
    const HabitCheck& check;
    int attempts = 0;
};

// ---- Lines that are never reached ----

/// The word of a statement behind which nothing is reached; "" for any other.
const char* leavingWord(const Statement& node) {
    if (nodeAs<ReturnStatement>(&node) != nullptr) return "திரும்பு";
    if (nodeAs<BreakStatement>(&node) != nullptr) return "நிறுத்து";
    return nodeAs<ContinueStatement>(&node) != nullptr ? "தொடர்" : "";
}

void checkReach(const HabitCheck& check, const BlockStatement& block) {
    for (std::size_t i = 0; i + 1 < block.statements.size(); i++) {
        if (block.statements[i] == nullptr || block.statements[i + 1] == nullptr) continue;
        const std::string word = leavingWord(*block.statements[i]);
        if (word.empty()) continue;
        return check.add("துணை-515", check.compiled.headOf(*block.statements[i + 1]), {word});
    }
}

void checkCases(const HabitCheck& check, const SwitchStatement& choice) {
    std::vector<Constant> seen;
    for (const CaseBlock& block : choice.cases) {
        const auto value = constantOf(*block.value);
        if (!value) continue;
        if (std::find(seen.begin(), seen.end(), *value) != seen.end()) {
            check.add("துணை-518", check.compiled.rangeOf(*block.value));
        }
        seen.push_back(*value);
    }
}

}  // namespace

void checkFlowHabits(const HabitCheck& check) {
    forEachNode(
        check.compiled.program,
        [&](const Statement& node) {
            if (const auto* branch = nodeAs<IfStatement>(&node)) {
                checkCondition(check, *branch->condition, false);
            } else if (const auto* loop = nodeAs<WhileStatement>(&node)) {
                checkCondition(check, *loop->condition, true);
            } else if (const auto* block = nodeAs<BlockStatement>(&node)) {
                checkReach(check, *block);
            } else if (const auto* choice = nodeAs<SwitchStatement>(&node)) {
                checkCases(check, *choice);
            }
        },
        [](const Expression&) {});
    LoopFinder loops(check);
    walk(check.compiled.program, loops);
}

}  // namespace companion
