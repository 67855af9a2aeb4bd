// What stands for the placeholders of a wrap's child where it is compiled alone.
#pragma once

#define AROUND_BLOCK                                          \
    float wrapStartX = 10, wrapMaxW = 100, curX = wrapStartX; \
    float curY = 20, rowMaxH = 0, spacing = 10;
#define POZHIL_WIDTH 40.0f
#define POZHIL_HEIGHT 30.0f
#define POZHIL_CHILD nvgCircle(vg, curX, curY, 1);
