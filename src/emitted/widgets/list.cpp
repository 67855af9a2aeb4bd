// A list: its children in the middle of the window, below each other. It always scrolls, over the
// whole window. Its bar lies at the window's edge, wherever the list begins. Meant.

void list() {
#if POZHIL_IS_NAMED
    if (std::string _wid = fn_any_to_string(POZHIL_NAME); !_wid.empty()) {
        g_widgetPositions[_wid] = {(float)(POZHIL_X), (float)(POZHIL_Y)};
    }
#endif
    float listStartX = POZHIL_X;
    float listStartY = POZHIL_Y;
    float spacing = 0.0f;
    float totalContentHeight = 0.0f;
    POZHIL_HEIGHTS;
    POZHIL_OPEN_VIEW;
    POZHIL_SCROLL_RANGE;
    POZHIL_SCROLL_TO_WIDGET;
    float currentY = listStartY - scrollOffset_POZHIL_ID;
    POZHIL_CHILDREN;
    POZHIL_CLOSE_VIEW;
}
