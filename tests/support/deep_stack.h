// Running code in a thread with a stack of a size of one's own: deep recursion needs more than
// the main thread has when the sanitizers widen every frame, or less to see it run out.
#pragma once

#include <pthread.h>

#include <cstddef>
#include <exception>
#include <functional>
#include <stdexcept>

constexpr std::size_t kMebibyte = 1024 * 1024;
constexpr std::size_t kDeepStack = 256 * kMebibyte;

/// Runs `action` to its end; what it throws is thrown on to the caller.
inline void runOnStack(std::size_t bytes, const std::function<void()>& action) {
    struct Job {
        const std::function<void()>& action;
        std::exception_ptr failure;
    } job = {action, nullptr};

    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, bytes);
    pthread_t thread;
    const auto body = [](void* argument) -> void* {
        auto* running = static_cast<Job*>(argument);
        try {
            running->action();
        } catch (...) {
            running->failure = std::current_exception();
        }
        return nullptr;
    };
    const int failed = pthread_create(&thread, &attributes, body, &job);
    pthread_attr_destroy(&attributes);
    if (failed != 0) throw std::runtime_error("no thread with such a stack");
    pthread_join(thread, nullptr);
    if (job.failure) std::rethrow_exception(job.failure);
}
