// Small pictures of the reference, as SVG.
#pragma once

#include <string>
#include <vector>

#include "ui/colours.h"

namespace companion::reference {

/// A swatch of the colour.
std::string swatch(const Rgb& colour);

/// A graph of what `points` hold at even steps: time runs to the right, 0 and 1 are lines.
std::string graph(const std::vector<float>& points);

}  // namespace companion::reference
