// A source as the compiler sees it: its tokens, its tree, what it refuses, and where all of that
// stands.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "companion/check/source_text.h"
#include "parser/parser.h"

namespace companion {

/// Gives a module's text by the path that an import asks for; false if there is none.
using ModuleReader = std::function<bool(const std::string& path, std::string& text)>;

/// What the compiler says no to.
struct Refused {
    std::string code;     ///< Empty where the compiler drops it and prints a fixed line.
    std::string message;  ///< The report's, or the words that the fixed line hides.
    std::string fix;
    Range range;
    bool isInModule = false;
    int moduleLine = 0;  ///< The line in the module; `range` is the import's then.
};

class CompiledSource {
public:
    /// Takes the source through scanner, parser and generator, as far as it gets. Both references
    /// must outlive it.
    CompiledSource(const SourceText& source, const ModuleReader& readModule);
    CompiledSource(const CompiledSource&) = delete;
    CompiledSource& operator=(const CompiledSource&) = delete;

    bool isScanned() const { return scanned; }
    bool isParsed() const { return parsed; }

    /// Where a node stands; nothing for one that was imported or made up by the parser.
    std::optional<Range> rangeOf(const Expression& node) const;
    std::optional<Range> rangeOf(const Statement& node) const;
    /// The first line of a statement alone: up to its colon or its line's end.
    std::optional<Range> headOf(const Statement& node) const;
    /// The first token in the node's head whose text is `word`; the head if there is none.
    std::optional<Range> wordIn(const Statement& node, const std::string& word) const;
    std::optional<Range> wordIn(const Expression& node, const std::string& word) const;

    /// Where the token `index` stands.
    Range rangeOfToken(int index) const;

    const SourceText& source;
    std::vector<Token> tokens;  ///< Without their last texts if the scanner refused.
    NodePlaces places;
    std::unique_ptr<Parser> parser;  ///< Its tables are those of the program.
    Program program;
    std::optional<Refused> refused;

private:
    void scan();
    void parse(const ModuleReader& readModule);
    void generate();
    std::optional<Range> rangeOfSpan(const TokenSpan* span) const;
    std::optional<Range> wordInSpan(const TokenSpan* span, const std::string& word) const;
    Range rangeAround(std::size_t offset, int line) const;

    std::vector<int> tokenEnds;
    bool scanned = false;
    bool parsed = false;
};

}  // namespace companion
