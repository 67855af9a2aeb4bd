// Ctrl+C while something is published: nothing half made stays behind.
#pragma once

#include <functional>
#include <mutex>

namespace companion {

/// From here on Ctrl+C (and a request to end) ends what em++ does, calls `tidyUp` on a thread of
/// its own and ends the process. To be called once, while there is one thread.
void endInOrder(std::function<void()> tidyUp);

/// While it is held the end waits.
std::unique_lock<std::mutex> holdEnd();

/// Doesn't return if the end has begun: a command that it ended is no failure.
void letEndCome();

}  // namespace companion
