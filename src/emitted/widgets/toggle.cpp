// A switch: a track with a thumb at one of its ends. Its hit area is 5 pixels wider on each side.

void toggle() {
    float swX = std::floor(POZHIL_X);
    float swY = std::floor(POZHIL_Y);
    float swW = 48.0f;
    float swH = 28.0f;
    float thumbSize = 24.0f;
    float padding = (swH - thumbSize) / 2.0f;
    static bool isOn_POZHIL_ID = POZHIL_STARTS_ON;
    POZHIL_ON_COLOUR;
    POZHIL_OFF_COLOUR;
#if POZHIL_IS_ENABLED
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    if (mx >= swX - 5.0f && mx <= swX + swW + 5.0f && my >= swY - 5.0f && my <= swY + swH + 5.0f) {
        EM_ASM(document.body.style.cursor = 'pointer');
        if (g_mouseClicked) {
            isOn_POZHIL_ID = !isOn_POZHIL_ID;
            POZHIL_HANDLER;
        }
    }
#endif
    nvgBeginPath(vg);
    nvgRoundedRect(vg, swX, swY, swW, swH, swH / 2.0f);
    if (isOn_POZHIL_ID) {
        nvgFillColor(vg, nvgRGBA(onR, onG, onB, onA));
        nvgFill(vg);
    } else {
        nvgFillColor(vg, nvgRGBA(offR, offG, offB, offA));
        nvgFill(vg);
        nvgStrokeColor(vg, nvgRGBA(180, 180, 180, 255));
        nvgStrokeWidth(vg, 1.0f);
        nvgStroke(vg);
    }
    float thumbX = isOn_POZHIL_ID ? swX + swW - thumbSize - padding : swX + padding;
    float thumbY = swY + padding;
    nvgBeginPath(vg);
    nvgRect(vg, thumbX - 4.0f, thumbY - 4.0f, thumbSize + 8.0f, thumbSize + 8.0f);
    nvgFillPaint(
        vg, nvgBoxGradient(vg, thumbX, thumbY + 1.0f, thumbSize, thumbSize, thumbSize / 2.0f, 4.0f,
                           nvgRGBA(0, 0, 0, 60), nvgRGBA(0, 0, 0, 0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgCircle(vg, thumbX + thumbSize / 2.0f, thumbY + thumbSize / 2.0f, thumbSize / 2.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
}
