// What a source declares, by its words: functions, structures, enumerations, applications with
// their widgets, the program's variables. Works for half-written sources as for whole ones.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/language_server/code.h"

namespace companion::language_server {

enum class DeclarationKind {
    Function,
    Method,
    Structure,
    AbstractStructure,
    Enumeration,
    EnumerationMember,
    Field,
    Variable,
    Application,
    Section,
    Widget,
};

struct DeclaredParameter {
    Range name;
    Range whole;  ///< With the word that lets it be changed.
};

struct Declaration {
    DeclarationKind kind;
    std::string name;
    Range nameRange;
    Range head;                         ///< The line that declares it, up to its colon.
    Range whole;                        ///< With everything that belongs to it.
    std::optional<std::size_t> parent;  ///< What it stands in.
    std::vector<DeclaredParameter> parameters;
};

/// Declarations in the order of the source: what holds others comes before them.
std::vector<Declaration> outlineOf(const Code& code);

/// The comment lines right above a declaration, without their signs.
std::string remarksAbove(const Code& code, const Declaration& declaration);

}  // namespace companion::language_server
