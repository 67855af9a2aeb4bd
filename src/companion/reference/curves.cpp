#include "companion/reference/curves.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <unordered_map>

namespace companion::reference {

/// The emitted text as it stands; the build copies it beside its other generated files.
namespace emitted_functions {
#include "curves/animation_state.h"
//
#include "curves/animations.h"
//
#include "curves/animation.h"
}  // namespace emitted_functions

std::vector<float> curvePoints(const std::string& name, int count) {
    const std::function<float(float)> curve = emitted_functions::getEasingFunction(name);
    std::vector<float> points;
    for (int step = 0; step <= count; step++) {
        points.push_back(curve(static_cast<float>(step) / static_cast<float>(count)));
    }
    return points;
}

}  // namespace companion::reference
