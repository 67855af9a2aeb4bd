// A line of a list: what leads it, its title, a second line, what ends it.

void list_tile() {
    float ltX = std::floor(POZHIL_X);
    float ltY = std::floor(POZHIL_Y);
    float ltW = POZHIL_WIDTH;
    float ltH = POZHIL_HEIGHT;
    float radius = POZHIL_RADIUS;
    if (forcedW > 0.0f) ltW = forcedW;
    if (forcedH > 0.0f) ltH = forcedH;
    ltW = responsiveW(ltW, winWidth, 0.0f);
    POZHIL_COLOUR;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isHover = mx >= ltX && mx <= ltX + ltW && my >= ltY && my <= ltY + ltH &&
                   (!g_block_background_clicks || g_inside_overlay);
    if (isHover) {
        r = std::max(0, r - 10);
        g = std::max(0, g - 10);
        b = std::max(0, b - 10);
#if POZHIL_IS_ENABLED
        EM_ASM(document.body.style.cursor = 'pointer');
        if (g_mouseClicked) {
            POZHIL_HANDLER;
        }
#endif
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, ltX, ltY, ltW, ltH, radius);
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
    float currentContentX = ltX + 16.0f;
#if POZHIL_HAS_LEADING
    {
        float leadX = currentContentX;
        float leadY = ltY + (ltH - POZHIL_LEADING_HEIGHT) / 2.0f;
        POZHIL_LEADING;
        currentContentX += POZHIL_LEADING_WIDTH + 12.0f;
    }
#endif
#if POZHIL_HAS_TITLE
    {
        float titleX = currentContentX;
#if POZHIL_HAS_SUBTITLE
        float titleY = ltY + 12.0f;
#else
        float titleY = ltY + (ltH - POZHIL_TITLE_HEIGHT) / 2.0f;
#endif
        POZHIL_TITLE;
    }
#endif
#if POZHIL_HAS_SUBTITLE_WIDGET
    {
        float subX = currentContentX;
        float subY = ltY + ltH - POZHIL_SUBTITLE_HEIGHT - 12.0f;
        POZHIL_SUBTITLE;
    }
#endif
#if POZHIL_HAS_TRAILING
    {
        float trailX = ltX + ltW - POZHIL_TRAILING_WIDTH - 16.0f;
        float trailY = ltY + (ltH - POZHIL_TRAILING_HEIGHT) / 2.0f;
        POZHIL_TRAILING;
    }
#endif
}
