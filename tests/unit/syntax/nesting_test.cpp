// The bounds of a thread's stack: right in each thread, and asked of the system once.
#include "syntax/nesting.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <ctime>
#include <functional>

#include "support/deep_stack.h"

namespace {

double processorSecondsOf(const std::function<void()>& action) {
    const std::clock_t start = std::clock();
    action();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(StackBounds, AreThoseOfTheThread) {
    EXPECT_FALSE(StackBounds().nearlyFull());
    bool isNearlyFull = false;
    bool isHalfUsed = true;
    // Less than what is kept for the report.
    runOnStack(kMebibyte * 3 / 8, [&] { isNearlyFull = StackBounds().nearlyFull(); });
    runOnStack(kDeepStack, [&] { isHalfUsed = StackBounds().halfUsed(); });
    EXPECT_TRUE(isNearlyFull);
    EXPECT_FALSE(isHalfUsed);
    EXPECT_FALSE(StackBounds().nearlyFull());
}

// The system reads its list of mappings to tell: a parser for each keystroke can't wait for that.
TEST(StackBounds, AreAskedOfTheSystemOnce) {
    constexpr int kTimes = 1000;
    const double system = processorSecondsOf([] {
        for (int time = 0; time < kTimes; time++) {
            pthread_attr_t attributes;
            ASSERT_EQ(pthread_getattr_np(pthread_self(), &attributes), 0);
            pthread_attr_destroy(&attributes);
        }
    });
    const double asking = processorSecondsOf([] {
        for (int time = 0; time < kTimes; time++) EXPECT_FALSE(StackBounds().nearlyFull());
    });
    EXPECT_LT(asking, system / 2);
}

}  // namespace
