// Where nodes stand in the source, for tools that point at them. The tree itself knows lines alone,
// and those of few nodes.
#pragma once

#include <unordered_map>

#include "syntax/node.h"

/// The tokens from the index `first` up to, and without, `end`.
struct TokenSpan {
    int first;
    int end;
};

/// For each node the tokens that it was parsed from. Filled by a parser; knows nodes by their
/// address, so it serves as long as the tree lives.
class NodePlaces {
public:
    /// Stands for nodes that an import brought: their tokens are another file's.
    static constexpr TokenSpan kInModule = {-1, -1};

    void note(const Expression& node, TokenSpan span) { spans[&node] = span; }
    void note(const Statement& node, TokenSpan span) { spans[&node] = span; }

    /// The span of a node; null for one that nobody noted.
    const TokenSpan* find(const Expression& node) const { return findAt(&node); }
    const TokenSpan* find(const Statement& node) const { return findAt(&node); }

private:
    const TokenSpan* findAt(const void* node) const {
        const auto found = spans.find(node);
        return found == spans.end() ? nullptr : &found->second;
    }

    std::unordered_map<const void*, TokenSpan> spans;
};
