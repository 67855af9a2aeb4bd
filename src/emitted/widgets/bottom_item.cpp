// One item of a bottom bar: a picture above its label. What isn't chosen is paler.

void bottom_item() {
    float itemX = POZHIL_PLACE * itemW + itemW / 2;
    bool isChosen = currentIndex == POZHIL_PLACE;
#if POZHIL_HAS_ICON
    static int iconImg_POZHIL_ID = -1;
    if (iconImg_POZHIL_ID == -1) {
        iconImg_POZHIL_ID = nvgCreateImage(vg, POZHIL_ICON, 0);
    }
    if (iconImg_POZHIL_ID > 0) {
        nvgBeginPath(vg);
        nvgRect(vg, itemX - 12.0f, navY + 18.0f, 24.0f, 24.0f);
        nvgFillPaint(vg, nvgImagePattern(vg, itemX - 12.0f, navY + 18.0f, 24.0f, 24.0f, 0,
                                         iconImg_POZHIL_ID, isChosen ? 1.0f : 0.5f));
        nvgFill(vg);
    }
#endif
#if POZHIL_HAS_LABEL
    std::string navTxt = fn_any_to_string(POZHIL_LABEL);
    drawFixedText(itemX, navY + 44.0f, navTxt.c_str(), isChosen ? "#2196F3" : "#757575", 11.0f,
                  "center");
#endif
}
