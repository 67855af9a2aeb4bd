// Made-up sources to measure with, the same on every run; and the clock.
#pragma once

#include <algorithm>
#include <ctime>
#include <string>

/// `lines` print statements over literals of all kinds.
std::string printLines(int lines);

/// `lines` assignments and calls over long names, correct Tamil and near no keyword.
std::string nameLines(int lines);

/// `lines` lines of all common statements: assignments, conditions, loops, functions and calls.
std::string mixedLines(int lines);

/// One assignment of a sum of `terms` numbers.
std::string chainOfSums(int terms);

/// An application of one column of `boxes` boxes, each with its style and a text.
std::string columnOfBoxes(int boxes);

/// Seconds of processor time that `action` takes: the same whatever else the machine does.
template <typename Action>
double secondsOf(Action action) {
    const std::clock_t start = std::clock();
    action();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}
