// The names of a source by its tree: what is local to what, and which words are no names at all.
#include <map>

#include "companion/check/tree_walk.h"
#include "companion/language_server/names.h"
#include "syntax/application.h"
#include "syntax/definitions.h"
#include "syntax/expressions.h"
#include "syntax/literals.h"
#include "syntax/statements.h"

namespace companion::language_server {

namespace {

/// Properties whose text is a name of the program.
constexpr std::string_view kIdentifierKey = "அடையாளம்";
constexpr std::string_view kVisibilityKey = "காட்சி_பெயர்";
/// The call that takes a widget's name.
constexpr std::string_view kScrollCall = "நகர்த்து";
/// The object whose members are variables of the program.
constexpr std::string_view kViewState = "காட்சி_நிலை";

class NameFinder final : public TreeVisitor {
public:
    explicit NameFinder(const CompiledSource& compiled) : compiled(compiled) {}

    Names find() {
        findEnumerations();
        findCaughtNames();
        walk(compiled.program, *this);
        names.finish();
        return std::move(names);
    }

    bool enter(const Statement& node) override;
    void leave(const Statement& node) override;
    bool enter(const Expression& node) override;
    void leave(const Expression& node) override;

private:
    using Scope = std::map<std::string, std::size_t>;  ///< Local names, by their text.

    // By tokens: the tree keeps nothing of these.
    void findEnumerations();
    void findEnumeration(int at);
    void findCaughtNames();

    void enterFunction(const FunctionDefinitionStatement& function);
    void enterLoop(const ForStatement& loop);
    void enterLambda(const LambdaExpression& lambda);
    void enterStructure(const StructDefinitionStatement& structure);
    void enterAbstract(const AbstractStructDefinitionStatement& structure);
    void enterWidget(const WidgetNode& widget);
    void enterStore(const SetMemberExpression& store);
    void enterAssignment(const AssignmentExpression& assignment);
    void enterMember(const GetExpression& get);
    void enterCall(const CallExpression& call);

    template <typename Node>
    const TokenSpan* spanOf(const Node& node) const {
        const TokenSpan* span = compiled.places.find(node);
        return span != nullptr && span->first >= 0 ? span : nullptr;
    }
    int count() const { return static_cast<int>(compiled.tokens.size()); }
    const Token& token(int at) const { return compiled.tokens[static_cast<std::size_t>(at)]; }
    bool isAt(int at, TokenType type) const { return at < count() && token(at).type == type; }

    /// The token from `from` on, before `end`, that reads `text`; -1 without one.
    int findToken(int from, int end, const std::string& text) const;
    /// Notes a use at a token, if its text is `text`: a node that the parser moved may have an old
    /// place.
    void note(int at, const std::string& text, std::size_t name, UseKind use);
    void noteText(const Expression& value, UseKind use);
    std::size_t shared(const std::string& text, NameKind kind = NameKind::Variable) {
        return names.nameOf(text, kind, text, false);
    }
    std::size_t member(const std::string& text) {
        return names.nameOf(text, NameKind::Member, memberKey(text), false);
    }
    /// The local name that `text` means here, else the shared one.
    std::size_t resolved(const std::string& text);
    std::size_t declareLocal(const std::string& text, NameKind kind, int at);

    const CompiledSource& compiled;
    Names names;
    std::vector<Scope> scopes;
    int structureDepth = 0;
    int functionDepth = 0;
    std::vector<std::vector<Scope>> outerScopes;
};

int NameFinder::findToken(int from, int end, const std::string& text) const {
    for (int at = from; at < end && at < count(); at++) {
        if (token(at).text == text) return at;
    }
    return -1;
}

void NameFinder::note(int at, const std::string& text, std::size_t name, UseKind use) {
    if (at < 0 || at >= count() || token(at).text != text) return;
    if (token(at).type == TokenType::STRING) return;
    names.add(compiled.rangeOfToken(at), name, use);
}

/// A text in quotes that is a name of the program.
void NameFinder::noteText(const Expression& value, UseKind use) {
    const auto* text = nodeAs<StringLiteral>(&value);
    const TokenSpan* span = text == nullptr ? nullptr : spanOf(value);
    if (span == nullptr || text->value.empty() || !isAt(span->first, TokenType::STRING)) return;
    if (token(span->first).text != text->value) return;
    const Range quoted = compiled.rangeOfToken(span->first);
    names.add({quoted.begin + 1, quoted.end - 1}, shared(text->value), use);
}

std::size_t NameFinder::resolved(const std::string& text) {
    for (auto scope = scopes.rbegin(); scope != scopes.rend(); ++scope) {
        const auto found = scope->find(text);
        if (found != scope->end()) return found->second;
    }
    return shared(text);
}

std::size_t NameFinder::declareLocal(const std::string& text, NameKind kind, int at) {
    const std::size_t place = at < 0 ? 0 : compiled.rangeOfToken(at).begin;
    const std::size_t name = names.nameOf(text, kind, localKey(text, place), true);
    if (scopes.empty()) scopes.emplace_back();
    scopes.back()[text] = name;
    note(at, text, name, UseKind::Definition);
    return name;
}

// ---- By tokens ----

void NameFinder::findEnumerations() {
    for (int at = 0; at + 2 < count(); at++) {
        if (token(at).type == TokenType::KEYWORD && token(at).text == "வகை" &&
            isAt(at + 2, TokenType::COLON)) {
            findEnumeration(at);
        }
        const auto enumeration = compiled.parser->enumerations.find(token(at).text);
        if (enumeration == compiled.parser->enumerations.end()) continue;
        if (!isAt(at + 1, TokenType::DOT) || token(at).type == TokenType::STRING) continue;
        if (enumeration->second.count(token(at + 2).text) == 0) continue;
        note(at, enumeration->first, shared(enumeration->first, NameKind::Enumeration),
             UseKind::Read);
        const std::string key = enumerationMemberKey(enumeration->first, token(at + 2).text);
        note(at + 2, token(at + 2).text,
             names.nameOf(token(at + 2).text, NameKind::EnumerationMember, key, false),
             UseKind::Read);
    }
}

/// வகை name: and a name in each line.
void NameFinder::findEnumeration(int at) {
    const std::string name = token(at + 1).text;
    if (compiled.parser->enumerations.count(name) == 0) return;
    note(at + 1, name, shared(name, NameKind::Enumeration), UseKind::Definition);
    int depth = 0;
    for (int next = at + 3; next < count(); next++) {
        const TokenType type = token(next).type;
        if (type == TokenType::INDENT) depth++;
        if (type == TokenType::DEDENT && --depth <= 0) return;
        if (type == TokenType::NEWLINE || type == TokenType::INDENT || depth != 1) continue;
        const std::string& member = token(next).text;
        if (compiled.parser->enumerations.at(name).count(member) == 0) continue;
        note(next, member,
             names.nameOf(member, NameKind::EnumerationMember, enumerationMemberKey(name, member),
                          false),
             UseKind::Definition);
    }
}

/// பிடி (name):
void NameFinder::findCaughtNames() {
    for (int at = 0; at + 3 < count(); at++) {
        const bool isCatch = token(at).type == TokenType::KEYWORD && token(at).text == "பிடி" &&
                             isAt(at + 1, TokenType::LEFT_PAREN) &&
                             isAt(at + 3, TokenType::RIGHT_PAREN);
        if (!isCatch) continue;
        note(at + 2, token(at + 2).text, shared(token(at + 2).text), UseKind::Write);
    }
}

// ---- Statements ----

bool NameFinder::enter(const Statement& node) {
    if (const auto* function = nodeAs<FunctionDefinitionStatement>(&node)) {
        enterFunction(*function);
    } else if (const auto* loop = nodeAs<ForStatement>(&node)) {
        enterLoop(*loop);
    } else if (const auto* structure = nodeAs<StructDefinitionStatement>(&node)) {
        enterStructure(*structure);
    } else if (const auto* abstract = nodeAs<AbstractStructDefinitionStatement>(&node)) {
        enterAbstract(*abstract);
    } else if (const auto* field = nodeAs<VarDeclaration>(&node)) {
        const TokenSpan* span = spanOf(node);
        if (span != nullptr)
            note(span->first, field->name, member(field->name), UseKind::Definition);
    } else if (const auto* widget = dynamic_cast<const WidgetNode*>(&node)) {
        enterWidget(*widget);
    }
    return true;
}

void NameFinder::leave(const Statement& node) {
    if (nodeAs<FunctionDefinitionStatement>(&node) != nullptr) {
        functionDepth--;
        scopes = std::move(outerScopes.back());
        outerScopes.pop_back();
    } else if (nodeAs<ForStatement>(&node) != nullptr) {
        scopes.pop_back();
    } else if (nodeAs<StructDefinitionStatement>(&node) != nullptr) {
        structureDepth--;
    }
}

/// A function that stands in another is known in that one alone.
void NameFinder::enterFunction(const FunctionDefinitionStatement& function) {
    const TokenSpan* span = spanOf(function);
    const int at = span == nullptr ? -1 : findToken(span->first, span->end, function.name.text);
    if (functionDepth > 0) {
        declareLocal(function.name.text, NameKind::Function, at);
    } else if (structureDepth > 0) {
        note(at, function.name.text, member(function.name.text), UseKind::Definition);
    } else {
        note(at, function.name.text, shared(function.name.text, NameKind::Function),
             UseKind::Definition);
    }
    outerScopes.push_back(scopes);
    if (functionDepth++ == 0) scopes.clear();
    scopes.emplace_back();
    int next = at + 1;
    for (const Param& parameter : function.parameters) {
        const int place = span == nullptr ? -1 : findToken(next, span->end, parameter.name.text);
        declareLocal(parameter.name.text, NameKind::Parameter, place);
        if (place >= 0) next = place + 1;
    }
}

void NameFinder::enterLoop(const ForStatement& loop) {
    scopes.emplace_back();
    const TokenSpan* span = spanOf(loop);
    declareLocal(loop.variable.text, NameKind::LoopVariable,
                 span == nullptr ? -1 : span->first + 1);
}

void NameFinder::enterStructure(const StructDefinitionStatement& structure) {
    structureDepth++;
    const TokenSpan* span = spanOf(structure);
    if (span == nullptr) return;
    note(span->first + 1, structure.name.text, shared(structure.name.text, NameKind::Structure),
         UseKind::Definition);
    if (!structure.hasParent) return;
    note(span->first + 3, structure.parentName.text, shared(structure.parentName.text),
         UseKind::Read);
}

void NameFinder::enterAbstract(const AbstractStructDefinitionStatement& structure) {
    const TokenSpan* span = spanOf(structure);
    if (span == nullptr) return;
    note(span->first + 1, structure.name.text,
         shared(structure.name.text, NameKind::AbstractStructure), UseKind::Definition);
    int next = span->first + 2;
    for (const AbstractMethod& method : structure.methods) {
        const int at = findToken(next, span->end, method.name.text);
        note(at, method.name.text, member(method.name.text), UseKind::Definition);
        if (at >= 0) next = at + 1;
    }
}

void NameFinder::enterWidget(const WidgetNode& widget) {
    for (const auto& [key, value] : widget.properties) {
        if (value == nullptr) continue;
        if (key == kIdentifierKey) noteText(*value, UseKind::Write);
        if (key == kVisibilityKey) noteText(*value, UseKind::Read);
    }
}

// ---- Expressions ----

bool NameFinder::enter(const Expression& node) {
    if (const auto* variable = nodeAs<VariableAccess>(&node)) {
        const TokenSpan* span = spanOf(node);
        if (span != nullptr) {
            note(span->first, variable->name, resolved(variable->name), UseKind::Read);
        }
    } else if (const auto* assignment = nodeAs<AssignmentExpression>(&node)) {
        enterAssignment(*assignment);
    } else if (const auto* get = nodeAs<GetExpression>(&node)) {
        enterMember(*get);
    } else if (const auto* store = nodeAs<SetMemberExpression>(&node)) {
        enterStore(*store);
    } else if (const auto* lambda = nodeAs<LambdaExpression>(&node)) {
        enterLambda(*lambda);
    } else if (const auto* call = nodeAs<CallExpression>(&node)) {
        enterCall(*call);
    }
    return true;
}

void NameFinder::leave(const Expression& node) {
    if (nodeAs<LambdaExpression>(&node) != nullptr) scopes.pop_back();
}

void NameFinder::enterAssignment(const AssignmentExpression& assignment) {
    const TokenSpan* span = spanOf(assignment);
    if (span == nullptr) return;
    note(span->first, assignment.name, resolved(assignment.name), UseKind::Write);
}

void NameFinder::enterMember(const GetExpression& get) {
    const TokenSpan* span = spanOf(get);
    if (span != nullptr) note(span->end - 1, get.name.text, member(get.name.text), UseKind::Read);
}

void NameFinder::enterStore(const SetMemberExpression& store) {
    const TokenSpan* object = spanOf(*store.object);
    if (object == nullptr) return;
    const auto* variable = nodeAs<VariableAccess>(store.object.get());
    const bool isState = variable != nullptr && variable->name == kViewState;
    const std::size_t name = isState ? shared(store.name.text) : member(store.name.text);
    note(object->end + 1, store.name.text, name, UseKind::Write);
}

void NameFinder::enterLambda(const LambdaExpression& lambda) {
    scopes.emplace_back();
    const TokenSpan* span = spanOf(lambda);
    int next = span == nullptr ? 0 : span->first;
    for (const Token& parameter : lambda.parameters) {
        const int at = span == nullptr ? -1 : findToken(next, span->end, parameter.text);
        declareLocal(parameter.text, NameKind::Parameter, at);
        if (at >= 0) next = at + 1;
    }
}

void NameFinder::enterCall(const CallExpression& call) {
    const auto* callee = nodeAs<VariableAccess>(call.callee.get());
    if (callee == nullptr || callee->name != kScrollCall || call.arguments.size() != 1) return;
    noteText(*call.arguments.front(), UseKind::Read);
}

}  // namespace

Names namesOf(const CompiledSource& compiled) { return NameFinder(compiled).find(); }

}  // namespace companion::language_server
