// The names of one source and where each is used. All but parameters, loop variables and nested
// functions are shared by the whole program; members are told apart by their name alone, since
// nothing tells which structure an object is of.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "companion/check/compiled_source.h"
#include "companion/check/source_text.h"
#include "companion/language_server/code.h"
#include "companion/language_server/outline.h"

namespace companion::language_server {

enum class NameKind {
    Variable,
    Parameter,
    LoopVariable,
    Function,
    Structure,
    AbstractStructure,
    Enumeration,
    EnumerationMember,
    Member,
};

enum class UseKind { Definition, Write, Read };

struct NameUse {
    Range range;
    std::size_t name;  ///< Index into the names.
    UseKind kind;
};

struct KnownName {
    std::string text;
    NameKind kind;
    /// Equal in all sources of a program for what is shared; with the place of its scope for what
    /// is local.
    std::string key;
    bool isLocal;
};

class Names {
public:
    std::vector<KnownName> names;
    std::vector<NameUse> uses;  ///< In the order of the source, each place once.

    /// The use that `offset` stands in or right behind.
    const NameUse* at(std::size_t offset) const;
    std::vector<NameUse> usesOf(std::string_view key) const;
    /// Where the name is declared: its definition, or the first place that gives it a value.
    std::optional<NameUse> definitionOf(std::string_view key) const;

    // For those who fill it.
    std::size_t nameOf(std::string_view text, NameKind kind, const std::string& key, bool isLocal);
    void add(Range range, std::size_t name, UseKind kind) { uses.push_back({range, name, kind}); }
    bool knows(const std::string& key) const { return indices.count(key) != 0; }
    void finish();

private:
    std::unordered_map<std::string, std::size_t> indices;
};

/// By the tree of a source that was parsed.
Names namesOf(const CompiledSource& compiled);
/// By the words of a source that wasn't: what a word is, its neighbours tell.
Names namesOf(const Code& code, const std::vector<Declaration>& outline);

std::string memberKey(std::string_view name);
std::string enumerationMemberKey(std::string_view enumeration, std::string_view name);
/// For what is local to the stretch that begins at `scope`.
std::string localKey(std::string_view name, std::size_t scope);

/// True for a word that means something by itself: keywords, built-ins, alignments, colours.
bool isWordOfLanguage(std::string_view word);

}  // namespace companion::language_server
