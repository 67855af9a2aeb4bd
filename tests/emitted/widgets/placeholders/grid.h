// What stands for the placeholders of a grid where it is compiled alone.
#pragma once

#define POZHIL_COLUMNS 3
#define POZHIL_GAP_H 10.0f
#define POZHIL_GAP_V 10.0f
#define POZHIL_WIDTH 320.0f
#define POZHIL_CHILDREN nvgRect(vg, curX, curY, cellW, maxRowH + gapV + colIndex);
