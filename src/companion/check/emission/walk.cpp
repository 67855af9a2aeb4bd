// The walk's frame: its order, telling, names in sight. Statements, definitions, expressions,
// operators and calls stand in files of their own.
#include "companion/check/emission/walk.h"

#include <algorithm>

namespace companion {

namespace {

constexpr std::size_t kShownBytes = 90;

}  // namespace

EmissionWalk::EmissionWalk(const CompiledSource& compiled, Knowledge& knowledge, Findings* findings)
    : compiled(compiled), knowledge(knowledge), findings(findings) {
    if (findings == nullptr) return;
    const std::optional<Range> import = findImportOfItself(compiled);
    importsItself = import.has_value();
    tellAt("துணை-349", import, {});
}

/// Structures, functions, an application's logic, and then the statements: as they are written.
void EmissionWalk::walkProgram() {
    walkDefinitions<FunctionDefinitionStatement>(
        [&](const auto& function) { functionNodes[function.name.text] = &function; });
    walkDefinitions<StructDefinitionStatement>(
        [&](const auto& structure) { walkStructure(structure); });
    walkDefinitions<FunctionDefinitionStatement>(
        [&](const auto& function) { walkFunction(function, ""); });
    walkDefinitions<StructDefinitionStatement>(
        [&](const auto& structure) { walkFields(structure); });
    for (const auto& statement : compiled.program.statements) {
        const auto* app = nodeAs<WebAppNode>(statement.get());
        if (app != nullptr) walkLogic(app->logic.get());
    }
    for (const auto& statement : compiled.program.statements) {
        if (statement == nullptr) continue;
        const bool isDefinition = nodeAs<StructDefinitionStatement>(statement.get()) != nullptr ||
                                  nodeAs<FunctionDefinitionStatement>(statement.get()) != nullptr;
        if (!isDefinition) walkStatement(*statement);
    }
}

template <typename Definition, typename Visit>
void EmissionWalk::walkDefinitions(Visit visit) {
    for (const auto& statement : compiled.program.statements) {
        if (const auto* node = nodeAs<Definition>(statement.get())) visit(*node);
    }
    for (const auto& statement : compiled.program.statements) {
        const auto* app = nodeAs<WebAppNode>(statement.get());
        const auto* logic = app == nullptr ? nullptr : nodeAs<LogicBlockNode>(app->logic.get());
        if (logic == nullptr || logic->body == nullptr) continue;
        for (const auto& inner : logic->body->statements) {
            if (const auto* node = nodeAs<Definition>(inner.get())) visit(*node);
        }
    }
}

void EmissionWalk::tellAt(const char* code, std::optional<Range> range,
                          const std::vector<std::string>& parts) {
    if (findings != nullptr && range) findings->add(code, *range, parts);
}

void EmissionWalk::tellWord(const char* code, const Statement& node, const std::string& word,
                            const std::vector<std::string>& parts) {
    if (findings != nullptr) tellAt(code, compiled.wordIn(node, word), parts);
}

bool EmissionWalk::isCaught() const {
    return tries > 0 || (!currentFunction.empty() && knowledge.runsInTry(currentFunction));
}

/// The expression as it is written, shortened.
std::string EmissionWalk::textOf(const Expression& node) const {
    if (findings == nullptr) return "";
    const std::optional<Range> range = compiled.rangeOf(node);
    if (!range) return "";
    const std::string_view text = compiled.source.slice(*range);
    if (text.size() <= kShownBytes && text.find('\n') == std::string_view::npos) {
        return std::string(text);
    }
    std::size_t end = std::min({text.size(), kShownBytes, text.find('\n')});
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) end--;
    return std::string(text.substr(0, end)) + "…";
}

void EmissionWalk::declare(const std::string& name, const Local& local) {
    if (!blocks.empty()) {
        const auto known = locals.find(name);
        blocks.back().emplace(
            name, known == locals.end() ? std::nullopt : std::optional<Local>(known->second));
    }
    locals[name] = local;
}

/// What was made in the block isn't there behind it, though the compiler goes on writing it as if
/// it were.
void EmissionWalk::closeBlock() {
    for (const auto& [name, hidden] : blocks.back()) {
        const auto known = locals.find(name);
        if (known == locals.end()) continue;
        if (hidden) {
            known->second = *hidden;
        } else {
            known->second.isVisible = false;
        }
    }
    blocks.pop_back();
}

Value EmissionWalk::valueOfLocal(const Local& local) const {
    Value value = valueOf(local.cpp);
    value.isLvalue = true;
    value.isConst = local.isConst;
    if (local.cpp == Cpp::Any) {
        value.facts = local.node == nullptr ? local.facts : knowledge.local(local.node);
    }
    return value;
}

}  // namespace companion
