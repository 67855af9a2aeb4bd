// Where a content lies in what holds it.
#pragma once

#include <utility>

#include "syntax/widgets.h"

/// How far along each axis: -1 at the start, 0 in the middle, 1 at the end. What is no alignment is
/// at both starts.
std::pair<float, float> getAlignmentCoords(சீரமைப்பு_வகை alignment);

/// Sets `x` and `y` to where a child lies in a container, all in pixels. No pass calls it: the
/// written text holds the same formula.
void calculateAlign(சீரமைப்பு_வகை alignment, float containerW, float containerH, float childW,
                    float childH, float& x, float& y);
