// A check box with its label and its error text. Its state is the program's too, in both
// directions: a click stores it under the widget's name, and what the program stores there shows.

void check_box() {
    float cbX = std::floor(POZHIL_X);
    float cbY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float _txtW = 0.0f;
#if POZHIL_HAS_LABEL_TEXT
    std::string _cbTxt = fn_any_to_string(POZHIL_LABEL_TEXT);
    _txtW = getTextWidth(_cbTxt.c_str(), responsiveTextSize(POZHIL_LABEL_SIZE, winWidth));
#endif
    float hitW = cb_w + 15.0f + _txtW;
    static bool checked_POZHIL_ID = POZHIL_STARTS_CHECKED;
#if POZHIL_IS_ENABLED
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    if (mx >= cbX && mx <= cbX + hitW && my >= cbY && my <= cbY + cb_h) {
        EM_ASM(document.body.style.cursor = 'pointer');
        if (g_mouseClicked) {
            checked_POZHIL_ID = !checked_POZHIL_ID;
#if POZHIL_IS_NAMED
            global_vars[POZHIL_NAME] = std::any(checked_POZHIL_ID);
            g_inputErrors.erase(POZHIL_NAME);
#endif
        }
    }
#endif
#if POZHIL_IS_NAMED
    if (global_vars.find(POZHIL_NAME) == global_vars.end()) {
        global_vars[POZHIL_NAME] = std::any(checked_POZHIL_ID);
    } else if (const bool* isSet = std::any_cast<bool>(&global_vars[POZHIL_NAME])) {
        checked_POZHIL_ID = *isSet;
    }
#endif
    POZHIL_CHECKED_COLOUR;
    POZHIL_UNCHECKED_COLOUR;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, cbX, cbY, cb_w, cb_h, 5.0f);
    if (checked_POZHIL_ID) {
        nvgFillColor(vg, nvgRGBA(onR, onG, onB, 255));
        nvgFill(vg);
        nvgBeginPath(vg);
        nvgMoveTo(vg, cbX + cb_w * 0.25f, cbY + cb_h * 0.5f);
        nvgLineTo(vg, cbX + cb_w * 0.42f, cbY + cb_h * 0.68f);
        nvgLineTo(vg, cbX + cb_w * 0.75f, cbY + cb_h * 0.33f);
        nvgLineCap(vg, NVG_ROUND);
        nvgLineJoin(vg, NVG_ROUND);
        nvgStrokeColor(vg, nvgRGBA(255, 255, 255, 255));
        nvgStrokeWidth(vg, cb_w * 0.1f);
        nvgStroke(vg);
    } else {
        nvgStrokeColor(vg, nvgRGBA(offR, offG, offB, 255));
        nvgStrokeWidth(vg, 2.0f);
        nvgStroke(vg);
    }
#if POZHIL_HAS_CHILD
    float cbChildX = cbX + cb_w + 12.0f;
    float cbTextY = cbY + (cb_h - 16.0f) / 2.0f + 2.5f;
    POZHIL_CHILD;
#endif
#if POZHIL_IS_NAMED
    auto cbError = g_inputErrors.find(POZHIL_NAME);
    if (cbError != g_inputErrors.end() && !cbError->second.empty()) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, cbX - 2.0f, cbY - 2.0f, cb_w + 4.0f, cb_h + 4.0f, 5.0f);
        nvgStrokeColor(vg, nvgRGBA(244, 67, 54, 255));
        nvgStrokeWidth(vg, 2.0f);
        nvgStroke(vg);
        drawFixedText(cbX, cbY + cb_h + 6, cbError->second.c_str(), "#F44336", 12.0f, "left");
    }
#endif
}
