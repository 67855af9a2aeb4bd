// A row: its children beside each other. One that scrolls is as wide as the window and leaves 150
// pixels free behind its last child.

void row() {
    float rowX = POZHIL_X;
    float rowY = POZHIL_Y;
    POZHIL_CONTAINER_W;
    POZHIL_CONTAINER_H;
#if POZHIL_SCROLLS
    float rowW = winWidth;
#else
    float rowW = containerW;
#endif
    float rowH = containerH;
#if POZHIL_SCROLLS
    float contentW = POZHIL_WIDTH + 150.0f;
    if (contentW < rowW) contentW = rowW;
    POZHIL_SCROLL_RANGE;
    POZHIL_SCROLL_TO_WIDGET;
    POZHIL_OPEN_VIEW;
#endif
    float alignX = POZHIL_ALIGN_X;
    float alignY = POZHIL_ALIGN_Y;
    POZHIL_SHARES;
    float usedW = totalFlex > 0.0f ? containerW : fixedWidthSum;
    float startX = rowX + (containerW - usedW) * (1.0f + alignX) / 2.0f;
#if POZHIL_SCROLLS
    float currentX = startX - scrollX_POZHIL_ID;
#else
    float currentX = startX;
#endif
    POZHIL_CHILDREN;
#if POZHIL_SCROLLS
    POZHIL_CLOSE_VIEW;
#endif
}
