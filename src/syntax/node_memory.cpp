#include "syntax/node_memory.h"

#include <new>

namespace {

// A sanitizer sees a node that is used too late only if each has memory of its own.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsPooled = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kIsPooled = false;
#else
constexpr bool kIsPooled = true;
#endif
#else
constexpr bool kIsPooled = true;
#endif

constexpr std::size_t kStep = 16;            ///< Sizes are rounded up to a multiple of it.
constexpr std::size_t kLargestPooled = 256;  ///< Widgets are larger, and few.
constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

struct FreeNode {
    FreeNode* next;
};

/// What one thread has at hand. Blocks are never given back: the next source uses them.
struct Pool {
    FreeNode* freed[kLargestPooled / kStep + 1];  ///< By size, in steps.
    char* next;                                   ///< The rest of the newest block.
    std::size_t left;
};
thread_local Pool pool;

void* cutFromBlock(std::size_t bytes) {
    if (pool.left < bytes) {
        pool.next = static_cast<char*>(::operator new(kBlockBytes));
        pool.left = kBlockBytes;
    }
    void* const node = pool.next;
    pool.next += bytes;
    pool.left -= bytes;
    return node;
}

}  // namespace

void* takeNodeMemory(std::size_t bytes) {
    if (!kIsPooled || bytes > kLargestPooled) return ::operator new(bytes);
    const std::size_t steps = (bytes + kStep - 1) / kStep;
    FreeNode*& freed = pool.freed[steps];
    if (freed == nullptr) return cutFromBlock(steps * kStep);
    FreeNode* const node = freed;
    freed = node->next;
    return node;
}

void giveNodeMemoryBack(void* node, std::size_t bytes) noexcept {
    if (!kIsPooled || bytes > kLargestPooled) return ::operator delete(node);
    FreeNode*& freed = pool.freed[(bytes + kStep - 1) / kStep];
    freed = ::new (node) FreeNode{freed};
}
