// Memory for the tree's nodes. A large source has hundreds of thousands of them, all made by one
// phase and freed together: they are cut from blocks, by size, and what is freed is taken again.
#pragma once

#include <cstddef>

/// Memory for a node of `bytes`. Throws std::bad_alloc.
void* takeNodeMemory(std::size_t bytes);

/// Takes back what takeNodeMemory(bytes) gave, on whichever thread.
void giveNodeMemoryBack(void* node, std::size_t bytes) noexcept;
