// What an editor offers while something is being written: words of the language, names of the
// document, and Tamil for what is typed in Latin letters. Knows no editor and no protocol.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/check/compiled_source.h"

namespace companion::completion {

enum class ItemKind {
    Keyword,
    Operator,
    Function,
    Method,
    Variable,
    Field,
    Structure,
    Enumeration,
    EnumerationMember,
    Module,
    Widget,
    Property,
    Value,
    Colour,
    Text,  ///< Tamil for Latin letters.
};

struct CompletionItem {
    std::string label;
    ItemKind kind = ItemKind::Text;
    std::string detail;         ///< One line: the form, or what kind of name it is.
    std::string documentation;  ///< Tamil prose without markup.
    std::string inserted;       ///< By an editor that knows no snippets.
    /// The whole form with tab stops, `${1:...}`; empty if the word stands alone. Further lines are
    /// indented relative to the first.
    std::string snippet;
    std::string filterText;  ///< Begins with what was typed, so that the editor keeps the item.
    std::string sortText;    ///< The order of the list.
    Range replaced = {0, 0};
};

struct CompletionSettings {
    bool transliterates = true;
    bool inTextsAlone = false;  ///< A quote was typed: one that ends a text asks for nothing.
    std::size_t most = 80;      ///< Items of a list.
    /// What imports may name; asked for in an import alone. May be empty.
    std::function<std::vector<std::string>()> modulePaths;
};

/// The items for `offset`, in bytes, the likeliest first. They hold for what is typed now: with the
/// next letter they are to be asked for anew. `readModule` may be empty.
std::vector<CompletionItem> completionsAt(std::string_view text, std::size_t offset,
                                          const ModuleReader& readModule,
                                          const CompletionSettings& settings);

}  // namespace companion::completion
