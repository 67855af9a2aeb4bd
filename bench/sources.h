// Made-up sources to measure with, the same on every run; and the clock.
#pragma once

#include <algorithm>
#include <chrono>
#include <string>

/// `lines` print statements over literals of all kinds.
std::string printLines(int lines);

/// `lines` assignments and calls over long names, correct Tamil and near no keyword.
std::string nameLines(int lines);

/// Seconds that `action` takes.
template <typename Action>
double secondsOf(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
