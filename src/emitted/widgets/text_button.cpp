// A button without a background: its label alone, in another colour under the pointer.

void text_button() {
    std::string txt = POZHIL_LABEL;
    float fs = POZHIL_FONT_SIZE;
    float bX = POZHIL_X;
    float bY = POZHIL_Y;
    nvgFontSize(vg, fs);
    nvgFontFace(vg, "sans");
    float bounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    nvgTextBounds(vg, 0, 0, txt.c_str(), NULL, bounds);
    float textWidth = bounds[2] - bounds[0];
    float bW = textWidth + 16.0f;
    float bH = 40.0f;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isHov = mx >= bX && mx <= bX + bW && my >= bY && my <= bY + bH;
#if POZHIL_IS_ENABLED
    if (isHov) EM_ASM(document.body.style.cursor = 'pointer');
    if (isHov && g_mouseClicked) {
        POZHIL_CALLBACK;
        try {
            if (callback.type() == typeid(std::function<void()>)) {
                std::any_cast<std::function<void()>>(callback)();
            }
        } catch (...) {
        }
    }
#endif
    std::string activeColor = isHov ? POZHIL_HOVER_COLOUR : POZHIL_COLOUR;
    float labelX = bX + bW / 2;
    float labelY = bY + bH / 2 - fs / 2 + 2.0f;
#ifdef __EMSCRIPTEN__
    drawFixedText(labelX, labelY, txt.c_str(), activeColor.c_str(), fs, "center", "400");
#else
    nvgFillColor(vg, nvgRGBAf(POZHIL_CHANNELS));
    nvgTextAlign(vg, NVG_ALIGN_CENTER | NVG_ALIGN_TOP);
    nvgText(vg, labelX, labelY, txt.c_str(), NULL);
#endif
}
