// What the server answers about a document, a function a question. Places within the document are
// bytes; those in other files are positions.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "companion/descriptions/description.h"
#include "companion/language_server/analysis.h"
#include "companion/language_server/workspace.h"

namespace companion::language_server {

using ModuleOutlines = std::vector<std::unique_ptr<ModuleOutline>>;

// ---- Hover ----

struct Hover {
    std::string markdown;
    Range range;
};

/// What is found at `offset`, and what the word there means.
std::optional<Hover> hoverAt(const Analysis& analysis, const ModuleOutlines& modules,
                             std::size_t offset);

// ---- Structure ----

/// Stretches that can be folded, as first and last line from 0.
struct FoldedLines {
    int first;
    int last;
    bool isComment;
};
std::vector<FoldedLines> foldedLinesOf(const Analysis& analysis);

// ---- Names ----

struct Place {
    std::string uri;
    PositionRange range;
};

/// Where what stands at `offset` is declared; an imported file for its import.
std::vector<Place> definitionOf(const Analysis& analysis, const ModuleOutlines& modules,
                                std::size_t offset);

/// All places of the name at `offset` in the parts of a program.
std::vector<Place> referencesOf(const std::vector<AnalysisPointer>& program, std::size_t offset,
                                bool withDefinitions);

struct Highlight {
    Range range;
    bool isWrite;
};
std::vector<Highlight> highlightsOf(const Analysis& analysis, std::size_t offset);

/// What a rename comes to: the places to write the new name at, or why it can't be done.
struct Renaming {
    std::vector<Place> places;
    std::string refusal;  ///< Tamil, for the user; empty if it can be done.
};
/// The name at `offset` that could be renamed; else a refusal.
struct RenamedName {
    std::optional<NameUse> use;
    std::string refusal;
};
/// `program` is as `Workspace::programAround` gives it: the document itself first.
RenamedName renamedNameAt(const std::vector<AnalysisPointer>& program, std::size_t offset);
Renaming renamingOf(const std::vector<AnalysisPointer>& program, std::size_t offset,
                    const std::string& newName);

// ---- Calls ----

struct Signature {
    std::string label;
    std::vector<Range> parameters;  ///< In the label, in bytes.
    std::string summary;
    int active;  ///< The parameter that is being written.
};
std::optional<Signature> signatureAt(const Analysis& analysis, const ModuleOutlines& modules,
                                     std::size_t offset);

// ---- Colours of words ----

struct SemanticToken {
    Range range;
    std::size_t type;
    bool isDeclaration;
};
/// The types of tokens, by their numbers.
const std::vector<std::string>& semanticTokenTypes();
std::vector<SemanticToken> semanticTokensOf(const Analysis& analysis);

// ---- Descriptions, as markdown ----

std::string markdownOf(const Description& word);
std::string markdownOf(const PropertyDescription& property);
std::string markdownOf(const ValueDescription& value);

}  // namespace companion::language_server
