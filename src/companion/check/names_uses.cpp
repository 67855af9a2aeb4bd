#include "companion/check/names_uses.h"

#include <algorithm>

#include "companion/check/tree_walk.h"
#include "syntax/application.h"
#include "syntax/database.h"
#include "ui/properties.h"

namespace companion {

namespace {

const char* const kInputMembers[] = {"வெறுமை",      "வெறுமைஇல்லை", "நீளம்",     "பெரியஎழுத்து",
                                     "சிறியஎழுத்து", "சுத்தம்",      "உரைதரவு", "பிழைசெய்தி",
                                     "பிழை_அழி",    "கொண்டுள்ளது",  "தொடக்கம்",  "முடிவு"};

/// What the running program puts into the table by itself.
const char* const kRuntimeNames[] = {"திரை_அகலம்", "திரை_உயரம்",     "தரவு",     "_temp_rtdb",
                                     "active_sb", "sb_start_time", "sb_y_pos", "sb_msg",
                                     "sb_bg_r",   "sb_bg_g",       "sb_bg_b",  "காட்சி_நிலை"};

class UseFinder final : public TreeVisitor {
public:
    explicit UseFinder(NameUses& uses) : uses(uses) {
        uses.given.insert(std::begin(kRuntimeNames), std::end(kRuntimeNames));
    }

    bool enter(const Statement& node) override;
    void leave(const Statement& node) override;
    bool enter(const Expression& node) override;
    void leave(const Expression& node) override;

private:
    void enterFunction(const FunctionDefinitionStatement& function);
    void leaveFunction(const FunctionDefinitionStatement& function);
    void enterWidget(const PropertyMap& properties);
    void noteProperty(const std::string& key, const Expression& value);
    void enterCall(const CallExpression& call);
    void noteRead(const VariableAccess& name);
    Surroundings surroundingsOf(const std::string& name) const;
    void addLocals(const std::vector<Token>& names);

    NameUses& uses;
    Surroundings around;
    std::multiset<std::string> locals;
    std::vector<std::multiset<std::string>> outerLocals;
    int functionDepth = 0;
    int lambdaDepth = 0;
    /// Names that stand for something else than a value: callees, widgets, words of properties.
    std::unordered_set<const Expression*> noReads;
};

bool UseFinder::enter(const Statement& node) {
    if (const auto* function = nodeAs<FunctionDefinitionStatement>(&node)) {
        enterFunction(*function);
    } else if (const auto* loop = nodeAs<ForStatement>(&node)) {
        locals.insert(loop->variable.text);
        uses.loopVariables.insert(loop->variable.text);
    } else if (const auto* attempt = nodeAs<TryCatchStatement>(&node)) {
        uses.given.insert(attempt->errorName);
    } else if (const auto* field = nodeAs<VarDeclaration>(&node)) {
        around.isInField = true;
        uses.members.insert(field->name);
    } else if (const auto* widget = dynamic_cast<const WidgetNode*>(&node)) {
        enterWidget(widget->properties);
        const std::string* name = stringProperty(*widget, "அடையாளம்");
        if (name != nullptr && widget->name == "உரைபெட்டி") uses.inputs.insert(*name);
    } else if (const auto* app = nodeAs<WebAppNode>(&node)) {
        enterWidget(app->properties);
    } else if (const auto* config = nodeAs<FirebaseConfigNode>(&node)) {
        enterWidget(config->properties);
    }
    return true;
}

void UseFinder::leave(const Statement& node) {
    if (const auto* function = nodeAs<FunctionDefinitionStatement>(&node)) {
        leaveFunction(*function);
    } else if (const auto* loop = nodeAs<ForStatement>(&node)) {
        locals.erase(locals.find(loop->variable.text));
    } else if (nodeAs<VarDeclaration>(&node) != nullptr) {
        around.isInField = false;
    }
}

void UseFinder::enterFunction(const FunctionDefinitionStatement& function) {
    uses.members.insert(function.name.text);
    outerLocals.push_back(locals);
    if (functionDepth++ == 0) {
        locals.clear();
        around.function = &function;
    }
    for (const Param& parameter : function.parameters) {
        locals.insert(parameter.name.text);
        uses.parameters.insert(parameter.name.text);
    }
}

/// A nested function's name is known from behind it on.
void UseFinder::leaveFunction(const FunctionDefinitionStatement& function) {
    locals = outerLocals.back();
    outerLocals.pop_back();
    if (--functionDepth == 0) {
        around.function = nullptr;
    } else {
        locals.insert(function.name.text);
    }
}

/// A name that stands bare as a property's value may be a word of the language of widgets.
void UseFinder::enterWidget(const PropertyMap& properties) {
    for (const auto& [key, value] : properties) {
        if (value != nullptr) noteProperty(key, *value);
    }
}

void UseFinder::noteProperty(const std::string& key, const Expression& value) {
    const auto* text = nodeAs<StringLiteral>(&value);
    if (key == "அடையாளம்" && text == nullptr) uses.hasOpenIdentifiers = true;
    if (key == "அடையாளம்" && text != nullptr) {
        uses.identifiers.insert(text->value);
        uses.given.insert(text->value);
    }
    if (const auto* name = nodeAs<VariableAccess>(&value)) {
        noReads.insert(name);
        uses.given.insert(name->name);
    }
    if (const auto* member = nodeAs<GetExpression>(&value)) noReads.insert(member->object.get());
}

bool UseFinder::enter(const Expression& node) {
    if (const auto* call = nodeAs<CallExpression>(&node)) {
        enterCall(*call);
    } else if (const auto* lambda = nodeAs<LambdaExpression>(&node)) {
        addLocals(lambda->parameters);
        around.isInLambda = ++lambdaDepth > 0;
    } else if (const auto* write = nodeAs<AssignmentExpression>(&node)) {
        uses.writes.push_back({write, surroundingsOf(write->name)});
        uses.assigned.insert(write->name);
        if (isPlainAssignment(*write)) uses.given.insert(write->name);
    } else if (const auto* member = nodeAs<GetExpression>(&node)) {
        if (isInputMember(member->name.text)) noReads.insert(member->object.get());
    } else if (const auto* store = nodeAs<SetMemberExpression>(&node)) {
        const auto* object = nodeAs<VariableAccess>(store->object.get());
        uses.members.insert(store->name.text);
        if (object != nullptr && object->name == "காட்சி_நிலை") uses.given.insert(store->name.text);
    } else if (const auto* name = nodeAs<VariableAccess>(&node)) {
        noteRead(*name);
    }
    return true;
}

void UseFinder::noteRead(const VariableAccess& name) {
    if (noReads.count(&name) != 0 || isReceiverName(name.name)) return;
    uses.reads.push_back({&name, surroundingsOf(name.name)});
    if (uses.reads.back().in.isLocal) uses.localReads.insert(&name);
}

void UseFinder::leave(const Expression& node) {
    const auto* lambda = nodeAs<LambdaExpression>(&node);
    if (lambda == nullptr) return;
    for (const Token& parameter : lambda->parameters) locals.erase(locals.find(parameter.text));
    around.isInLambda = --lambdaDepth > 0;
}

void UseFinder::enterCall(const CallExpression& call) {
    if (const auto* callee = nodeAs<VariableAccess>(call.callee.get())) {
        noReads.insert(callee);
        uses.calls.push_back({&call, callee, surroundingsOf(callee->name)});
    }
    const auto* member = nodeAs<GetExpression>(call.callee.get());
    const auto* object = member == nullptr ? nullptr : nodeAs<VariableAccess>(member->object.get());
    if (object != nullptr && object->name == "நேரம்") noReads.insert(object);
}

Surroundings UseFinder::surroundingsOf(const std::string& name) const {
    Surroundings result = around;
    result.isLocal = locals.count(name) != 0;
    return result;
}

void UseFinder::addLocals(const std::vector<Token>& names) {
    for (const Token& name : names) {
        locals.insert(name.text);
        uses.parameters.insert(name.text);
    }
}

}  // namespace

NameUses findNameUses(const CompiledSource& compiled) {
    NameUses uses;
    UseFinder finder(uses);
    walk(compiled.program, finder);
    return uses;
}

bool isPlainAssignment(const AssignmentExpression& assignment) {
    return assignment.op.type == TokenType::EQUALS;
}

bool isInputMember(const std::string& member) {
    return std::find(std::begin(kInputMembers), std::end(kInputMembers), member) !=
           std::end(kInputMembers);
}

bool isReceiverName(const std::string& name) { return name == "தான்" || name == "self"; }

}  // namespace companion
