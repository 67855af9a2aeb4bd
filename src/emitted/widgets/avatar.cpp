// A picture or initials in a circle.

void avatar() {
    float caX = std::floor(POZHIL_X);
    float caY = std::floor(POZHIL_Y);
    POZHIL_DIAMETER;
    if (forcedW > 0.0f) diameter = forcedW;
    if (forcedH > 0.0f) diameter = forcedH;
    diameter = responsiveW(diameter, winWidth, 0.0f);
    float radius = diameter / 2.0f;
    float br = 200.0f / 255.0f, bg = 200.0f / 255.0f, bb = 200.0f / 255.0f, ba = 1.0f;
    POZHIL_BACKGROUND;
    nvgBeginPath(vg);
    nvgCircle(vg, caX + radius, caY + radius, radius);
    nvgFillColor(vg, nvgRGBAf(br, bg, bb, ba));
#if POZHIL_HAS_PICTURE
    static int avatarImg_POZHIL_ID = -1;
    if (avatarImg_POZHIL_ID == -1) avatarImg_POZHIL_ID = nvgCreateImage(vg, POZHIL_PICTURE, 0);
    if (avatarImg_POZHIL_ID > 0) {
        nvgFillPaint(
            vg, nvgImagePattern(vg, caX, caY, diameter, diameter, 0.0f, avatarImg_POZHIL_ID, 1.0f));
    }
#endif
    nvgFill(vg);
#if POZHIL_HAS_BORDER
    nvgBeginPath(vg);
    nvgCircle(vg, caX + radius, caY + radius, radius + (POZHIL_BORDER_WIDTH / 2.0f));
    nvgStrokeColor(vg, nvgRGBAf(POZHIL_BORDER_COLOUR));
    nvgStrokeWidth(vg, POZHIL_BORDER_WIDTH);
    nvgStroke(vg);
#endif
#if POZHIL_HAS_INITIALS
#ifdef __EMSCRIPTEN__
    drawFixedText(caX + radius, caY + radius + 2.0f, POZHIL_INITIALS, "#FFFFFF", radius, "center");
#else
    nvgFontSize(vg, radius);
    nvgFontFace(vg, "sans");
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgTextAlign(vg, NVG_ALIGN_CENTER | NVG_ALIGN_TOP);
    nvgText(vg, caX + radius, caY + radius + 2.0f, POZHIL_INITIALS, NULL);
#endif
#endif
}
