#include "companion/publish/ending.h"

#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <iostream>
#include <thread>
#include <utility>

#include "driver/processes.h"

namespace companion {

namespace {

/// Longer than the kernel takes from a signal to the thread that waits for it.
constexpr auto kMomentForTheEnd = std::chrono::milliseconds(100);

constexpr int kStatusOfSignal = 128;

// Never destroyed: a thread may hold it while the process ends.
std::mutex& g_endGuard = *new std::mutex;
std::atomic<bool> g_endHasBegun{false};

void waitForTheEnd(const sigset_t& signals, const std::function<void()>& tidyUp) {
    int signal = 0;
    if (sigwait(&signals, &signal) != 0) return;
    g_endHasBegun = true;
    const auto hold = holdEnd();
    startEnding();
    endCommands();
    tidyUp();
    std::cerr << "\n👋 வெளியீடு நிறுத்தப்பட்டது.\n" << std::flush;
    _exit(kStatusOfSignal + signal);
}

}  // namespace

void endInOrder(std::function<void()> tidyUp) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::thread(waitForTheEnd, signals, std::move(tidyUp)).detach();
}

std::unique_lock<std::mutex> holdEnd() { return std::unique_lock<std::mutex>(g_endGuard); }

void letEndCome() {
    std::this_thread::sleep_for(kMomentForTheEnd);
    while (g_endHasBegun) pause();
}

}  // namespace companion
