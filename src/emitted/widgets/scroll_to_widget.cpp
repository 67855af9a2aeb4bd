// A tenth of the way a frame towards the widget that the program asked for, until it lies 50 pixels
// from the container's start or the container can't go further. The widget's place is that of the
// last frame. At either end less than half a pixel is no way, so an error of a few pixels there
// stays, and the request with it. Meant.

void scroll_to_widget() {
    if (!g_scrollToId.empty() && g_widgetPositions.count(g_scrollToId) > 0) {
        float POZHIL_TARGET = g_widgetPositions[g_scrollToId].POZHIL_AXIS;
        float POZHIL_DESIRED = POZHIL_ORIGIN + 50.0f;
        float error = POZHIL_TARGET - POZHIL_DESIRED;
        POZHIL_OFFSET += error * 0.1f;
        bool hitLimit = false;
        if (POZHIL_OFFSET <= 0.5f) {
            POZHIL_OFFSET = 0.0f;
            if (error < 0.0f) hitLimit = true;
        }
        if (POZHIL_OFFSET >= maxScroll - 0.5f) {
            POZHIL_OFFSET = maxScroll;
            if (error > 0.0f) hitLimit = true;
        }
        if (std::abs(error) < 2.0f || hitLimit) g_scrollToId = "";
    }
}
