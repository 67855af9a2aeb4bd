// A column: its children below each other. One that scrolls is as high as the window, whatever
// its own height. Meant.

void column() {
    float colX = POZHIL_X;
    float colY = POZHIL_Y;
    POZHIL_CONTAINER_W;
    containerW = responsiveW(containerW, winWidth, 0.0f);
    POZHIL_CONTAINER_H;
    float colW = containerW;
#if POZHIL_SCROLLS
    float colH = winHeight;
    float contentH = POZHIL_HEIGHT;
    if (contentH < colH) contentH = colH;
    POZHIL_SCROLL_RANGE;
    POZHIL_OPEN_VIEW;
    POZHIL_SCROLL_TO_WIDGET;
#else
    float colH = containerH;
#endif
    float alignX = POZHIL_ALIGN_X;
    float alignY = POZHIL_ALIGN_Y;
    float totalContentH = POZHIL_HEIGHT;
    float startY = colY + (containerH - totalContentH) * (1.0f + alignY) / 2.0f;
#if POZHIL_SCROLLS
    float currentY = startY - scrollY_POZHIL_ID;
#else
    float currentY = startY;
#endif
    POZHIL_SHARES;
    POZHIL_CHILDREN;
#if POZHIL_SCROLLS
    POZHIL_CLOSE_VIEW;
#endif
#if POZHIL_WRITES_BACK
    POZHIL_Y = currentY;
#endif
}
