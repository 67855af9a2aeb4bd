// A bar of tabs, as wide as the window. It moves the place of what follows by its height. Meant.

void tab_bar() {
    float tbX = POZHIL_X;
    float tbY = POZHIL_Y;
    float tbW = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float tbH = 50.0f;
    static int curTabIdx_POZHIL_ID = POZHIL_CHOSEN;
    int tabCount = POZHIL_COUNT;
    nvgBeginPath(vg);
    nvgRect(vg, tbX, tbY + tbH, tbW, 6.0f);
    nvgFillPaint(vg, nvgLinearGradient(vg, 0, tbY + tbH, 0, tbY + tbH + 6.0f, nvgRGBA(0, 0, 0, 40),
                                       nvgRGBA(0, 0, 0, 0)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRect(vg, tbX, tbY, tbW, tbH);
    POZHIL_COLOUR;
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
    float tabW = tabCount > 0 ? tbW / tabCount : tbW;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    if (mx >= tbX && mx <= tbX + tbW && my >= tbY && my <= tbY + tbH) {
        EM_ASM(document.body.style.cursor = 'pointer');
        if (g_mouseClicked) {
            int clickedTab = (int)((mx - tbX) / tabW);
            nvgBeginPath(vg);
            nvgCircle(vg, mx, my, 20.0f);
            nvgFillColor(vg, nvgRGBA(255, 255, 255, 30));
            nvgFill(vg);
            if (clickedTab >= 0 && clickedTab < tabCount) {
                curTabIdx_POZHIL_ID = clickedTab;
                POZHIL_HANDLER;
            }
        }
    }
    nvgBeginPath(vg);
    nvgRect(vg, tbX + curTabIdx_POZHIL_ID * tabW, tbY + tbH - 3.0f, tabW, 3.0f);
    nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));
    nvgFill(vg);
    POZHIL_ITEMS;
    POZHIL_Y += tbH;
}
