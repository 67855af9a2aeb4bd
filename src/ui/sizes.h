// Size properties as C++ text.
#pragma once

#include <string>

#include "syntax/widgets.h"

// What 100 % of a size means where a parent may force one.
constexpr const char* kWidthBase = "(forcedW > 0.0f ? forcedW : winWidth)";
constexpr const char* kHeightBase = "(forcedH > 0.0f ? forcedH : winHeight)";

/// The text of a C++ float expression for a size. `base` is the text of what 100 % means. Empty for
/// a value that is no size: the widget's default stays.
std::string processPercentage(const Expression* value, const std::string& base);

/// The number literal under `key` as a C++ float; `fallback` for any other value.
std::string numberSizeOr(const WidgetNode& widget, const std::string& key,
                         const std::string& fallback);
