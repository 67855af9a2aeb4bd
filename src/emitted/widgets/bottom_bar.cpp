// The bar at the foot of the window, wherever it stands in the source. The program owns which item
// is chosen: a click only tells it, by the bar's handler and the item's. Meant.

void bottom_bar() {
    float winW = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winH = (float)EM_ASM_DOUBLE({ return window.innerHeight; });
    float navH = 64.0f;
    float navY = winH - navH;
    int currentIndex = POZHIL_CHOSEN;
    int itemCount = POZHIL_COUNT;
    nvgBeginPath(vg);
    nvgRect(vg, 0, navY - 4.0f, winW, 4.0f);
    nvgFillPaint(vg, nvgLinearGradient(vg, 0, navY - 4.0f, 0, navY, nvgRGBA(0, 0, 0, 0),
                                       nvgRGBA(0, 0, 0, 30)));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRect(vg, 0, navY, winW, navH);
    POZHIL_COLOUR;
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
    float itemW = itemCount > 0 ? winW / itemCount : winW;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    if (my >= navY && my <= winH) EM_ASM(document.body.style.cursor = 'pointer');
    if (g_mouseClicked && my >= navY) {
        int clickedIdx = (int)(mx / itemW);
        nvgBeginPath(vg);
        nvgCircle(vg, mx, my, 20.0f);
        nvgFillColor(vg, nvgRGBA(0, 0, 0, 20));
        nvgFill(vg);
        if (clickedIdx >= 0 && clickedIdx < itemCount) {
            POZHIL_HANDLER;
        }
    }
    POZHIL_ITEMS;
}
