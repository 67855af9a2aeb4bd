// A list to choose from, and its menu, which is drawn last and above everything. A click reaches
// what lies below the menu too.

void dropdown() {
    float ddX = std::floor(POZHIL_X);
    float ddY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    std::vector<std::string> items;
    POZHIL_ITEMS;
    static bool isOpen_POZHIL_ID = false;
    static int selectedIndex_POZHIL_ID = -1;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isHover = mx >= ddX && mx <= ddX + ddW && my >= ddY && my <= ddY + ddH;
    bool isClicked = g_mouseClicked;
#if POZHIL_IS_ENABLED
    if (isHover) {
        EM_ASM(document.body.style.cursor = 'pointer');
        if (isClicked) isOpen_POZHIL_ID = !isOpen_POZHIL_ID;
    }
#endif
    nvgBeginPath(vg);
    nvgRoundedRect(vg, ddX, ddY, ddW, ddH, 6.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
    nvgStrokeColor(vg, isOpen_POZHIL_ID ? nvgRGBA(33, 150, 243, 255) : nvgRGBA(200, 200, 200, 255));
    nvgStrokeWidth(vg, isOpen_POZHIL_ID ? 2.0f : 1.5f);
    nvgStroke(vg);
    std::string displayFilter = "தேர்ந்தெடு...";
    if (selectedIndex_POZHIL_ID >= 0) displayFilter = items[selectedIndex_POZHIL_ID];
    drawFixedText(ddX + 15.0f, ddY + ddH / 2.0f - 8.0f, displayFilter.c_str(), "#333333", 16.0f,
                  "left");
    float arrowX = ddX + ddW - 20.0f;
    float arrowY = ddY + ddH / 2.0f;
    nvgBeginPath(vg);
    nvgMoveTo(vg, arrowX - 5.0f, arrowY - 3.0f);
    nvgLineTo(vg, arrowX, arrowY + 3.0f);
    nvgLineTo(vg, arrowX + 5.0f, arrowY - 3.0f);
    nvgStrokeColor(vg, nvgRGBA(150, 150, 150, 255));
    nvgStrokeWidth(vg, 2.0f);
    nvgStroke(vg);
    if (isOpen_POZHIL_ID) {
        g_overlays.push_back([=]() mutable {
            float itemH = 40.0f;
            float menuY = ddY + ddH + 4.0f;
            float menuH = itemH * items.size();
            bool isMenuHover = mx >= ddX && mx <= ddX + ddW && my >= menuY && my <= menuY + menuH;
            nvgBeginPath(vg);
            nvgRoundedRect(vg, ddX, menuY, ddW, menuH, 6.0f);
            nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
            nvgFill(vg);
            nvgStrokeColor(vg, nvgRGBA(220, 220, 220, 255));
            nvgStrokeWidth(vg, 1.0f);
            nvgStroke(vg);
            for (int i = 0; i < (int)items.size(); i++) {
                float itemY = menuY + i * itemH;
                if (mx >= ddX && mx <= ddX + ddW && my >= itemY && my < itemY + itemH) {
                    nvgBeginPath(vg);
                    nvgRect(vg, ddX, itemY, ddW, itemH);
                    nvgFillColor(vg, nvgRGBA(240, 240, 240, 255));
                    nvgFill(vg);
                    EM_ASM(document.body.style.cursor = 'pointer');
                    if (isClicked) {
                        selectedIndex_POZHIL_ID = i;
                        isOpen_POZHIL_ID = false;
                        POZHIL_HANDLER;
                    }
                }
                drawFixedText(ddX + 15.0f, itemY + itemH / 2.0f - 8.0f, items[i].c_str(),
                              selectedIndex_POZHIL_ID == i ? "#2196F3" : "#333333", 16.0f, "left");
            }
            if (g_mouseClicked && !isHover && !isMenuHover) isOpen_POZHIL_ID = false;
        });
    }
}
