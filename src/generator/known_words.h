// Names that the generator knows by their text: those of its tables, for whoever tells of the
// language.
#pragma once

#include <string_view>
#include <vector>

/// The built-in calls, in the order in which they are searched.
std::vector<std::string_view> builtinNames();
/// Members of an input widget that are called, and those that are read.
std::vector<std::string_view> inputCallNames();
std::vector<std::string_view> inputPropertyNames();
/// Parts of a time.
std::vector<std::string_view> timeFieldNames();
