// The properties of one widget.
#pragma once

#include <string_view>
#include <vector>

#include "companion/descriptions/description.h"

namespace companion {

/// The properties that are written in a widget, in the order of their table.
std::vector<const PropertyDescription*> propertiesOf(std::string_view widget);

/// The words of a text with commas: "if, when" are two.
std::vector<std::string_view> listedWords(std::string_view list);

}  // namespace companion
