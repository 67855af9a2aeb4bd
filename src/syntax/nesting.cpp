#include "syntax/nesting.h"

#include <pthread.h>

namespace {
constexpr std::size_t kReserveBytes = std::size_t{512} * 1024;
}

StackBounds::StackBounds() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) return;
    void* address = nullptr;
    std::size_t size = 0;
    if (pthread_attr_getstack(&attributes, &address, &size) == 0) {
        lowest = reinterpret_cast<std::size_t>(address);
        middle = lowest + size / 2;
    }
    pthread_attr_destroy(&attributes);
}

bool StackBounds::nearlyFull() const {
    const auto here = reinterpret_cast<std::size_t>(__builtin_frame_address(0));
    return lowest != 0 && here < lowest + kReserveBytes;
}

bool StackBounds::halfUsed() const {
    return reinterpret_cast<std::size_t>(__builtin_frame_address(0)) < middle;
}
