// How nodes are told apart, and the memory they stand in.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <set>
#include <vector>

#include "syntax/literals.h"
#include "syntax/node_memory.h"
#include "syntax/statements.h"

// g++ tells of the sanitizer by a macro, clang by a feature.
#if defined(__SANITIZE_ADDRESS__)
#define HAS_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#define HAS_ADDRESS_SANITIZER __has_feature(address_sanitizer)
#else
#define HAS_ADDRESS_SANITIZER 0
#endif

namespace {

TEST(NodeAs, GivesTheNodeOfThatClassAlone) {
    const std::unique_ptr<Expression> node = std::make_unique<NumberLiteral>("1");
    EXPECT_EQ(nodeAs<NumberLiteral>(node.get()), node.get());
    EXPECT_EQ(nodeAs<DoubleLiteral>(node.get()), nullptr);
    const Statement* const none = nullptr;
    EXPECT_EQ(nodeAs<PrintStatement>(none), nullptr);
}

TEST(NodeMemory, IsTakenAgainWhenItIsFreed) {
#if HAS_ADDRESS_SANITIZER
    GTEST_SKIP() << "each node has memory of its own there";
#endif
    void* const first = takeNodeMemory(40);
    giveNodeMemoryBack(first, 40);
    std::set<void*> seen = {first};
    for (int i = 0; i < 1'000; i++) {
        void* const node = takeNodeMemory(48);  // the same step
        seen.insert(node);
        giveNodeMemoryBack(node, 48);
    }
    EXPECT_EQ(seen.size(), 1U);
}

TEST(NodeMemory, OfLivingNodesNeverOverlaps) {
    constexpr std::size_t kSizes[] = {1, 16, 48, 112, 256, 257, 1'000};
    struct Taken {
        unsigned char* at;
        std::size_t bytes;
        unsigned char mark;
    };
    std::vector<Taken> all;
    for (std::size_t i = 0; i < 5'000; i++) {
        const std::size_t bytes = kSizes[i % std::size(kSizes)];
        auto* const at = static_cast<unsigned char*>(takeNodeMemory(bytes));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(at) % alignof(std::max_align_t), 0U);
        all.push_back({at, bytes, static_cast<unsigned char>(i)});
        std::fill_n(at, bytes, all.back().mark);
    }
    for (const Taken& taken : all) {
        EXPECT_EQ(std::count(taken.at, taken.at + taken.bytes, taken.mark),
                  static_cast<std::ptrdiff_t>(taken.bytes));
        giveNodeMemoryBack(taken.at, taken.bytes);
    }
}

}  // namespace
