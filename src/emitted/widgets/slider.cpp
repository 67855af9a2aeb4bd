// A slider. The handler runs in every frame of a drag, and the hit area is 10 pixels wider on each
// side. Meant.

void slider() {
    float slX = std::floor(POZHIL_X);
    float slY = std::floor(POZHIL_Y);
    float minVal = POZHIL_MINIMUM;
    float maxVal = POZHIL_MAXIMUM;
    POZHIL_WIDTH;
    if (forcedW > 0.0f) slW = forcedW;
    slW = responsiveW(slW, winWidth, 0.0f);
    float slH = 20.0f;
    static float currentVal_POZHIL_ID = -99999.0f;
    if (currentVal_POZHIL_ID == -99999.0f) {
#if POZHIL_HAS_VALUE
        currentVal_POZHIL_ID = (float)fn_get_double(POZHIL_VALUE);
#else
        currentVal_POZHIL_ID = minVal;
#endif
    }
    bool isPressed = false;
#if POZHIL_IS_ENABLED
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isMouseDown = glfwGetMouseButton(window, GLFW_MOUSE_BUTTON_LEFT) == GLFW_PRESS;
    if (mx >= slX - 10.0f && mx <= slX + slW + 10.0f && my >= slY - 10.0f &&
        my <= slY + slH + 10.0f) {
        EM_ASM(document.body.style.cursor = 'pointer');
        isPressed = isMouseDown;
    }
    if (isPressed) {
        float normalized = (mx - slX) / slW;
        if (normalized < 0.0f) normalized = 0.0f;
        if (normalized > 1.0f) normalized = 1.0f;
        currentVal_POZHIL_ID = minVal + normalized * (maxVal - minVal);
        POZHIL_HANDLER;
    }
#endif
    float trackY = slY + slH / 2.0f;
    float filledW = 0.0f;
    if (maxVal > minVal) filledW = (currentVal_POZHIL_ID - minVal) / (maxVal - minVal) * slW;
    float thumbX = slX + filledW;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, slX, trackY - 2.0f, slW, 4.0f, 2.0f);
    nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, slX, trackY - 2.0f, filledW, 4.0f, 2.0f);
    nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));
    nvgFill(vg);
    if (isPressed) {
        nvgBeginPath(vg);
        nvgCircle(vg, thumbX, trackY, 15.0f);
        nvgFillColor(vg, nvgRGBA(33, 150, 243, 50));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRect(vg, thumbX - 14.0f, trackY - 14.0f, 28.0f, 28.0f);
    nvgFillPaint(vg, nvgBoxGradient(vg, thumbX - 10.0f, trackY - 9.0f, 20.0f, 20.0f, 10.0f, 4.0f,
                                    nvgRGBA(0, 0, 0, 60), nvgRGBA(0, 0, 0, 0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgCircle(vg, thumbX, trackY, 10.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
    if (isPressed) {
        std::string slTxt = std::to_string((int)currentVal_POZHIL_ID);
        drawFixedText(thumbX, trackY - 25.0f, slTxt.c_str(), "#000000", 12.0f, "center");
    }
}
