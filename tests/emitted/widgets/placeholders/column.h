// What stands for the placeholders of the column where it is compiled alone.
#pragma once

#define POZHIL_CONTAINER_W float containerW = 200.0f;
#define POZHIL_CONTAINER_H float containerH = 300.0f;
#define POZHIL_HEIGHT 900.0f
#define POZHIL_SCROLL_RANGE         \
    static float scrollY_7 = 20.0f; \
    nvgRect(vg, colX, colY, colW, contentH);
#define POZHIL_OPEN_VIEW nvgSave(vg);
#define POZHIL_ALIGN_X 0.0f
#define POZHIL_ALIGN_Y 0.0f
#define POZHIL_CHILDREN nvgCircle(vg, colX, currentY, alignX);
#define POZHIL_CLOSE_VIEW nvgRestore(vg);
