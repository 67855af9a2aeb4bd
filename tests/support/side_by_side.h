// Two texts beside each other, for failing tests.
#pragma once

#include <string>

/// Line by line, expected to the left, actual to the right, a mark between lines that differ.
std::string sideBySide(const std::string& expected, const std::string& actual);
