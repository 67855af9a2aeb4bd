// How far a container is scrolled, and how far it can be. The wheel acts at once, a pixel a unit,
// and whoever takes it leaves nothing to others. A row takes either wheel, so that the plain one
// moves it too. Nothing ever says that a row wants the wheel alone. Meant.
// clang-format off

void scroll_range() {
    static float POZHIL_OFFSET = 0.0f;
    {
        float mx = (float)EM_ASM_DOUBLE({ return window.mouseX || 0; });
        float my = (float)EM_ASM_DOUBLE({ return window.mouseY || 0; });
        bool takesWheel = mx >= POZHIL_LEFT && mx <= POZHIL_LEFT + POZHIL_WIDTH &&
                          my >= POZHIL_TOP && my <= POZHIL_TOP + POZHIL_HEIGHT;
#if POZHIL_YIELDS
        if (g_isHoveringH) takesWheel = false;
#endif
        if (takesWheel) {
            POZHIL_OFFSET += (float)EM_ASM_DOUBLE({
#if POZHIL_IS_ACROSS
                var dx = window.wheelDeltaX || 0;
                var dy = window.wheelDelta || 0;
                window.wheelDeltaX = 0;
                window.wheelDelta = 0;
                return dx !== 0 ? dx : dy;
#else
                var delta = window.wheelDelta || 0;
                window.wheelDelta = 0;
                return delta;
#endif
            });
        }
    }
    float maxScroll = POZHIL_CONTENT - POZHIL_LENGTH;
    if (maxScroll < 0.0f) maxScroll = 0.0f;
    if (POZHIL_OFFSET < 0.0f) POZHIL_OFFSET = 0.0f;
    if (POZHIL_OFFSET > maxScroll) POZHIL_OFFSET = maxScroll;
}
