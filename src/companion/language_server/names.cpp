#include "companion/language_server/names.h"

#include <algorithm>
#include <unordered_set>

#include "companion/check/calls_builtins.h"
#include "companion/descriptions/description.h"
#include "lexer/word_tables.h"

namespace companion::language_server {

const NameUse* Names::at(std::size_t offset) const {
    const auto behind = std::upper_bound(
        uses.begin(), uses.end(), offset,
        [](std::size_t place, const NameUse& use) { return place < use.range.begin; });
    if (behind == uses.begin()) return nullptr;
    const NameUse& use = *(behind - 1);
    return offset <= use.range.end ? &use : nullptr;
}

std::vector<NameUse> Names::usesOf(std::string_view key) const {
    std::vector<NameUse> found;
    for (const NameUse& use : uses) {
        if (names[use.name].key == key) found.push_back(use);
    }
    return found;
}

std::optional<NameUse> Names::definitionOf(std::string_view key) const {
    std::optional<NameUse> first;
    for (const NameUse& use : uses) {
        if (use.kind == UseKind::Read || names[use.name].key != key) continue;
        if (use.kind == UseKind::Definition) return use;
        if (!first) first = use;
    }
    return first;
}

std::size_t Names::nameOf(std::string_view text, NameKind kind, const std::string& key,
                          bool isLocal) {
    const auto known = indices.find(key);
    if (known == indices.end()) {
        indices.emplace(key, names.size());
        names.push_back({std::string(text), kind, key, isLocal});
        return names.size() - 1;
    }
    // A use may stand before what tells the kind.
    if (names[known->second].kind == NameKind::Variable) names[known->second].kind = kind;
    return known->second;
}

void Names::finish() {
    std::stable_sort(uses.begin(), uses.end(), [](const NameUse& a, const NameUse& b) {
        return a.range.begin != b.range.begin ? a.range.begin < b.range.begin : a.kind < b.kind;
    });
    uses.erase(std::unique(uses.begin(), uses.end(),
                           [](const NameUse& a, const NameUse& b) {
                               return a.range.begin == b.range.begin;
                           }),
               uses.end());
    // A word of the language that is never given a value stands for itself.
    std::vector<bool> isOwn(names.size(), false);
    for (const NameUse& use : uses) isOwn[use.name] = isOwn[use.name] || use.kind != UseKind::Read;
    uses.erase(std::remove_if(uses.begin(), uses.end(),
                              [&](const NameUse& use) {
                                  const KnownName& name = names[use.name];
                                  return !isOwn[use.name] && name.kind != NameKind::Member &&
                                         isWordOfLanguage(name.text);
                              }),
               uses.end());
}

std::string memberKey(std::string_view name) { return "." + std::string(name); }

std::string enumerationMemberKey(std::string_view enumeration, std::string_view name) {
    return std::string(enumeration) + "." + std::string(name);
}

std::string localKey(std::string_view name, std::size_t scope) {
    return std::to_string(scope) + ":" + std::string(name);
}

bool isWordOfLanguage(std::string_view word) {
    static const auto words = [] {
        std::unordered_set<std::string_view> all;
        for (const BuiltinCall& row : builtinCalls()) all.insert(row.name);
        for (const Description& row : wordDescriptions()) all.insert(row.word);
        for (const Description& row : widgetDescriptions()) all.insert(row.word);
        for (const ValueDescription& row : valueDescriptions()) all.insert(row.word);
        return all;
    }();
    return words.count(word) != 0 || lookUpWord(word) != TokenType::IDENTIFIER;
}

// ---- By words ----

namespace {

/// The parameter of a function around `offset` that is called `name`: the key; empty without one.
std::string parameterKey(const std::vector<Declaration>& outline, std::size_t offset,
                         std::string_view name, const Code& code) {
    std::string key;
    for (const Declaration& declaration : outline) {
        if (offset < declaration.whole.begin || offset >= declaration.whole.end) continue;
        for (const DeclaredParameter& parameter : declaration.parameters) {
            const std::string_view text =
                code.text().substr(parameter.name.begin, parameter.name.end - parameter.name.begin);
            if (text == name) key = localKey(name, declaration.whole.begin);
        }
    }
    return key;
}

NameKind kindOf(DeclarationKind kind) {
    switch (kind) {
        case DeclarationKind::Function: return NameKind::Function;
        case DeclarationKind::Structure: return NameKind::Structure;
        case DeclarationKind::AbstractStructure: return NameKind::AbstractStructure;
        case DeclarationKind::Enumeration: return NameKind::Enumeration;
        case DeclarationKind::EnumerationMember: return NameKind::EnumerationMember;
        case DeclarationKind::Method:
        case DeclarationKind::Field: return NameKind::Member;
        default: return NameKind::Variable;
    }
}

bool namesSomething(DeclarationKind kind) {
    return kind != DeclarationKind::Application && kind != DeclarationKind::Section &&
           kind != DeclarationKind::Widget;
}

void addDeclarations(const Code& code, const std::vector<Declaration>& outline, Names& names) {
    for (const Declaration& declaration : outline) {
        if (!namesSomething(declaration.kind)) continue;
        const NameKind kind = kindOf(declaration.kind);
        std::string key = declaration.name;
        if (kind == NameKind::Member) key = memberKey(declaration.name);
        if (kind == NameKind::EnumerationMember && declaration.parent) {
            key = enumerationMemberKey(outline[*declaration.parent].name, declaration.name);
        }
        names.add(declaration.nameRange, names.nameOf(declaration.name, kind, key, false),
                  UseKind::Definition);
        for (const DeclaredParameter& parameter : declaration.parameters) {
            const std::string_view text =
                code.text().substr(parameter.name.begin, parameter.name.end - parameter.name.begin);
            const std::string local = localKey(text, declaration.whole.begin);
            names.add(parameter.name, names.nameOf(text, NameKind::Parameter, local, true),
                      UseKind::Definition);
        }
    }
}

}  // namespace

Names namesOf(const Code& code, const std::vector<Declaration>& outline) {
    Names names;
    addDeclarations(code, outline, names);
    std::vector<char> brackets;
    for (std::size_t at = 0; at < code.size(); at++) {
        const CodePiece& piece = code.at(at);
        if (piece.isMark("(") || piece.isMark("[") || piece.isMark("{")) {
            brackets.push_back(piece.text.front());
        } else if ((piece.isMark(")") || piece.isMark("]") || piece.isMark("}")) &&
                   !brackets.empty()) {
            brackets.pop_back();
        }
        if (!piece.isName()) continue;
        const bool isMember = at > 0 && code.at(at - 1).isMark(".");
        const bool isKey =
            !brackets.empty() && brackets.back() != '[' && !isMember && code.isMarkAt(at + 1, ":");
        if (isKey) continue;
        const UseKind use = code.isMarkAt(at + 1, "=") ? UseKind::Write : UseKind::Read;
        if (isMember) {
            std::string key = memberKey(piece.text);
            NameKind kind = NameKind::Member;
            if (at > 1 && code.at(at - 2).isWord()) {
                const std::string inEnumeration =
                    enumerationMemberKey(code.at(at - 2).text, piece.text);
                if (names.knows(inEnumeration)) {
                    key = inEnumeration;
                    kind = NameKind::EnumerationMember;
                }
            }
            names.add(piece.range(), names.nameOf(piece.text, kind, key, false), use);
            continue;
        }
        const std::string local = parameterKey(outline, piece.piece.begin, piece.text, code);
        const std::size_t name =
            local.empty()
                ? names.nameOf(piece.text, NameKind::Variable, std::string(piece.text), false)
                : names.nameOf(piece.text, NameKind::Parameter, local, true);
        names.add(piece.range(), name, use);
    }
    names.finish();
    return names;
}

}  // namespace companion::language_server
