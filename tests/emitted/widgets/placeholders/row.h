// What stands for the placeholders of the row where it is compiled alone.
#pragma once

#define POZHIL_CONTAINER_W float containerW = 300.0f;
#define POZHIL_CONTAINER_H float containerH = 200.0f;
#define POZHIL_WIDTH 900.0f
#define POZHIL_SCROLL_RANGE         \
    static float scrollX_7 = 20.0f; \
    nvgRect(vg, rowX, rowY, contentW, rowH);
#define POZHIL_OPEN_VIEW nvgSave(vg);
#define POZHIL_ALIGN_X 0.0f
#define POZHIL_ALIGN_Y 0.0f
#define POZHIL_SHARES float totalFlex = 0.0f, fixedWidthSum = 100.0f;
#define POZHIL_CHILDREN nvgCircle(vg, currentX, rowY, alignY);
#define POZHIL_CLOSE_VIEW nvgRestore(vg);
