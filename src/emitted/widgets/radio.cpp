// One of several to choose. With a value and its group's value the program owns the choice: a click
// tells the program and changes nothing here. Otherwise it is a mark of its own. Meant.

void radio() {
    float rbX = std::floor(POZHIL_X);
    float rbY = std::floor(POZHIL_Y);
    float rbSize = 20.0f;
    float txtW = 0.0f;
#if POZHIL_HAS_LABEL
    std::string rbTxt = fn_any_to_string(POZHIL_LABEL);
    txtW = measureOnFreshCanvas(rbTxt.c_str(), 18.0f);
#endif
    float hitW = rbSize + 15.0f + txtW;
#if POZHIL_IS_OF_A_GROUP
    bool isSelected = fn_compare_any(POZHIL_VALUE, POZHIL_GROUP_VALUE, "==");
#else
    static bool demoState_POZHIL_ID = false;
    bool isSelected = demoState_POZHIL_ID;
#endif
#if POZHIL_IS_ENABLED
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    if (mx >= rbX && mx <= rbX + hitW && my >= rbY && my <= rbY + rbSize) {
        EM_ASM(document.body.style.cursor = 'pointer');
        if (g_mouseClicked) {
#if POZHIL_IS_OF_A_GROUP
            // The program moves the choice.
#else
            demoState_POZHIL_ID = !demoState_POZHIL_ID;
            isSelected = demoState_POZHIL_ID;
#endif
            POZHIL_HANDLER;
        }
    }
#endif
    POZHIL_SELECTED_COLOUR;
    POZHIL_UNSELECTED_COLOUR;
    NVGcolor rbColor = isSelected ? nvgRGBA(onR, onG, onB, 255) : nvgRGBA(offR, offG, offB, 255);
    nvgBeginPath(vg);
    nvgCircle(vg, rbX + rbSize / 2, rbY + rbSize / 2, rbSize / 2);
    nvgStrokeColor(vg, rbColor);
    nvgStrokeWidth(vg, 2.0f);
    nvgStroke(vg);
    if (isSelected) {
        nvgBeginPath(vg);
        nvgCircle(vg, rbX + rbSize / 2, rbY + rbSize / 2, rbSize / 2 - 5.0f);
        nvgFillColor(vg, rbColor);
        nvgFill(vg);
    }
#if POZHIL_HAS_LABEL
    drawFixedText(std::floor(rbX + rbSize + 10), std::floor(rbY + rbSize / 2), rbTxt.c_str(),
                  "#000000", 18.0f, "left");
#endif
}
