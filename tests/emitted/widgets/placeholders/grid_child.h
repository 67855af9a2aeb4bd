// What stands for the placeholders of a grid's child where it is compiled alone.
#pragma once

#define AROUND_BLOCK                                  \
    int cols = 1, colIndex = 0;                       \
    float gX = 10, curX = gX, curY = 20, maxRowH = 0; \
    float cellW = 100, gapH = 10, gapV = 10;
#define POZHIL_HEIGHT 30.0f
#define POZHIL_CHILD nvgCircle(vg, curX, curY, 1);
