// The bases of the tree. Nodes are plain data: children are owned by std::unique_ptr, there is no
// visitor interface, and consumers tell nodes apart by their type.
#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "syntax/node_memory.h"

struct Statement {
    int line = 0;  ///< Counted from 1; 0 until the parser sets it.
    virtual ~Statement() = default;
    static void* operator new(std::size_t bytes) { return takeNodeMemory(bytes); }
    static void operator delete(void* node, std::size_t bytes) { giveNodeMemoryBack(node, bytes); }
};

struct Expression {
    int line = 0;  ///< Counted from 1; 0 until the parser sets it.
    virtual ~Expression() = default;
    static void* operator new(std::size_t bytes) { return takeNodeMemory(bytes); }
    static void operator delete(void* node, std::size_t bytes) { giveNodeMemoryBack(node, bytes); }
};

/// `node` as a `Node`, a class that nothing derives from; null if it is another, or null. It says
/// what dynamic_cast says, and only compares types to tell.
template <typename Node, typename Base>
auto nodeAs(Base* node) {
    static_assert(std::is_final_v<Node>, "a base class needs dynamic_cast");
    using Result = std::conditional_t<std::is_const_v<Base>, const Node*, Node*>;
    if (node == nullptr) return static_cast<Result>(nullptr);
    // By its address: one class has one type_info in a program. Its own == goes on to the names.
    Base& object = *node;
    return &typeid(object) == &typeid(Node) ? static_cast<Result>(node)
                                            : static_cast<Result>(nullptr);
}

/// A whole source: owns the top-level statements. Not a node.
struct Program {
    std::vector<std::unique_ptr<Statement>> statements;
};
