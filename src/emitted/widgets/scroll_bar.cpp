// The bar of a container that has more to show than it can.

void scroll_bar() {
    if (maxScroll > 0) {
        float POZHIL_LENGTH = (POZHIL_VIEW / POZHIL_CONTENT) * POZHIL_VIEW;
        float POZHIL_START = POZHIL_PLACE;
        nvgBeginPath(vg);
        nvgRoundedRect(vg, POZHIL_RECTANGLE, 2);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));
        nvgFill(vg);
    }
}
