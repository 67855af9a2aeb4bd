#include "ui/alignment.h"

std::pair<float, float> getAlignmentCoords(சீரமைப்பு_வகை alignment) {
    const int place = static_cast<int>(alignment);
    if (place < 0 || place > 8) return {-1.0F, -1.0F};
    return {static_cast<float>(place % 3 - 1), static_cast<float>(place / 3 - 1)};
}

void calculateAlign(சீரமைப்பு_வகை alignment, float containerW, float containerH, float childW,
                    float childH, float& x, float& y) {
    const auto [ax, ay] = getAlignmentCoords(alignment);
    x = (1 + ax) * (containerW - childW) / 2;
    y = (1 + ay) * (containerH - childH) / 2;
}
