// How deep a source may nest. The grammar is recursive, and so are the tree's destructors and the
// generator; a limit turns a source that would overflow the stack into a report.
#pragma once

#include <cstddef>

/// Levels of statements and expressions inside each other, and depth of one expression's tree.
constexpr int kMaxNesting = 1500;
constexpr int kMaxExpressionDepth = 4000;

/// The lower end of the running thread's stack, to tell when it is nearly used up: a debug build
/// or a small stack can get there before the limits above do.
class StackBounds {
public:
    StackBounds();
    /// True if less than a reserve for the report is left.
    bool nearlyFull() const;
    /// True if more than half of the stack is in use.
    bool halfUsed() const;

private:
    std::size_t lowest = 0;  ///< Address; 0 if the bounds couldn't be read.
    std::size_t middle = 0;  ///< Address; 0 likewise.
};
