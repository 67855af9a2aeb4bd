// Which widgets there are.
#pragma once

#include <string_view>
#include <vector>

/// The words of all widgets that are drawn, in the order in which they are tried.
std::vector<std::string_view> widgetWords();
