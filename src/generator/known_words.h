// Names that the generator knows by their text: those of its tables, for whoever tells of the
// language.
#pragma once

#include <string_view>
#include <vector>

/// The built-in calls, in the order in which they are searched.
std::vector<std::string_view> builtinNames();
/// The C++ text of a built-in call, with $A, $B, $C for its arguments; empty for any other name.
std::string_view builtinText(std::string_view name);
/// Members of an input widget that are called, and those that are read.
std::vector<std::string_view> inputCallNames();
std::vector<std::string_view> inputPropertyNames();
/// Parts of a time.
std::vector<std::string_view> timeFieldNames();
