#include "syntax/nesting.h"

#include <pthread.h>

namespace {
constexpr std::size_t kReserveBytes = std::size_t{512} * 1024;

struct Bounds {
    std::size_t lowest = 0;
    std::size_t middle = 0;
};

Bounds boundsOfThisThread() {
    Bounds bounds;
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) return bounds;
    void* address = nullptr;
    std::size_t size = 0;
    if (pthread_attr_getstack(&attributes, &address, &size) == 0) {
        bounds.lowest = reinterpret_cast<std::size_t>(address);
        bounds.middle = bounds.lowest + size / 2;
    }
    pthread_attr_destroy(&attributes);
    return bounds;
}

}  // namespace

// The system reads the whole list of the process's mappings to tell, so each thread asks once.
StackBounds::StackBounds() {
    thread_local const Bounds known = boundsOfThisThread();
    lowest = known.lowest;
    middle = known.middle;
}

bool StackBounds::nearlyFull() const {
    const auto here = reinterpret_cast<std::size_t>(__builtin_frame_address(0));
    return lowest != 0 && here < lowest + kReserveBytes;
}

bool StackBounds::halfUsed() const {
    return reinterpret_cast<std::size_t>(__builtin_frame_address(0)) < middle;
}
