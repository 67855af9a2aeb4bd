// The curves of animations, computed by the very functions that programs carry.
#pragma once

#include <string>
#include <vector>

namespace companion::reference {

/// How far the curve `name` has come at each of `count` even steps from the begin to the end.
std::vector<float> curvePoints(const std::string& name, int count);

}  // namespace companion::reference
