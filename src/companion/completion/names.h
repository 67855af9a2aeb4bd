// The names of a document, read from its pieces, so that one which the compiler refuses has them
// too.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/check/source_text.h"

namespace companion::completion {

enum class NameKind {
    Variable,
    Input,  ///< What an input of the page is called.
    Page,
    Parameter,
    Function,
    Method,
    Field,
    Structure,
    Enumeration,
    EnumerationMember,
};

struct DocumentName {
    std::string text;
    NameKind kind;
    std::string owner;                    ///< The structure or enumeration of a member.
    std::vector<std::string> parameters;  ///< Of a function, without தான்.
    Range scope;                          ///< Where it can be used, in bytes.
    std::string module;                   ///< The import that brought it; empty for its own.
};

struct DocumentNames {
    std::vector<DocumentName> names;        ///< In the order of the source, each once.
    std::vector<std::string> imports;       ///< The texts of the imports.
    std::vector<std::string> writtenWords;  ///< All Tamil words, those of texts and comments too.
};

/// The names of `text`; the word that is being written in `passedOver` counts as none.
DocumentNames namesOf(std::string_view text, Range passedOver);

/// Adds what the imports of `names` bring, and what these import.
void addModuleNames(DocumentNames& names,
                    const std::function<bool(const std::string& path, std::string& text)>& read);

}  // namespace companion::completion
