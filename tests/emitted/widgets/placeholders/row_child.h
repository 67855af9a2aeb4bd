// What stands for the placeholders of a row's child where it is compiled alone.
#pragma once

#define AROUND_BLOCK                   \
    float rowY = 10, containerH = 200; \
    float currentX = 20, spacing = 8;
#define POZHIL_WIDTH 50.0f
#define POZHIL_HEIGHT 24.0f
#define POZHIL_PLACE_Y rowY + (containerH - childH_val) / 2.0f
#define POZHIL_CHILD nvgCircle(vg, currentX, finalChildY, 1);
#define POZHIL_ADVANCE 50.0f
