// A search bar: a lens, an element of the page that takes what is typed, and a cross that empties
// it once it holds something. One that is disabled never does.

void search_bar() {
    float sbX = std::floor(POZHIL_X);
    float sbY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float radius = POZHIL_RADIUS;
    float fSize = POZHIL_FONT_SIZE;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, sbX, sbY, sbW, sbH, radius);
    nvgFillColor(vg, nvgRGBAf(POZHIL_BACKGROUND));
    nvgFill(vg);
    float iconX = sbX + 20.0f;
    float iconY = sbY + sbH / 2.0f;
#if POZHIL_HAS_LENS_IMAGE
    static int lensImg_POZHIL_ID = -1;
    if (lensImg_POZHIL_ID == -1) {
        lensImg_POZHIL_ID = nvgCreateImage(vg, fn_any_to_string(POZHIL_LENS_IMAGE).c_str(), 0);
    }
    drawBarImage(lensImg_POZHIL_ID, iconX, iconY);
#endif
    nvgBeginPath(vg);
    nvgCircle(vg, iconX - 2.0f, iconY - 2.0f, 6.0f);
    nvgMoveTo(vg, iconX + 2.5f, iconY + 2.5f);
    nvgLineTo(vg, iconX + 8.0f, iconY + 8.0f);
    nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
    nvgStrokeWidth(vg, 2.0f);
    nvgStroke(vg);
    std::string sbId = POZHIL_NAME;
    placeSearchBar(sbId.c_str(), POZHIL_HINT, sbX + 45.0f, sbY, sbW - 80.0f, sbH, fSize);
#if POZHIL_IS_DISABLED
    disableInput();
#else
    if (!g_inputValues[sbId].empty()) {
        float clearX = sbX + sbW - 25.0f;
#if POZHIL_HAS_CLEAR_IMAGE
        static int clearImg_POZHIL_ID = -1;
        if (clearImg_POZHIL_ID == -1) {
            clearImg_POZHIL_ID =
                nvgCreateImage(vg, fn_any_to_string(POZHIL_CLEAR_IMAGE).c_str(), 0);
        }
        drawBarImage(clearImg_POZHIL_ID, clearX, iconY);
#endif
        nvgBeginPath(vg);
        nvgMoveTo(vg, clearX - 5.0f, iconY - 5.0f);
        nvgLineTo(vg, clearX + 5.0f, iconY + 5.0f);
        nvgMoveTo(vg, clearX + 5.0f, iconY - 5.0f);
        nvgLineTo(vg, clearX - 5.0f, iconY + 5.0f);
        nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
        nvgStrokeWidth(vg, 2.0f);
        nvgStroke(vg);
        float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
        float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
        if (std::abs(mx - clearX) <= 15.0f && std::abs(my - iconY) <= 15.0f) {
            EM_ASM(document.body.style.cursor = 'pointer');
            if (g_mouseClicked) {
                g_inputValues[sbId] = "";
                emptyInput();
            }
        }
    }
#endif
}
