// A button, as large as its label asks for. An animated radius shows in the shadow alone. Meant.

void button() {
    float btnX = POZHIL_X;
    float btnY = POZHIL_Y;
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });
    float radius = POZHIL_RADIUS;
    float shadowBlur = 0.0f;
#if POZHIL_HAS_SHADOW
    shadowBlur = POZHIL_SHADOW;
#endif
    int r = 33, g = 150, b = 243, a = 255;
    int tr = 255, tg = 255, tb = 255, ta = 255;
    POZHIL_COLOURS;
    float responsiveSize = responsiveTextSize(POZHIL_FONT_SIZE, winWidth);
    nvgFontSize(vg, responsiveSize);
    nvgFontFace(vg, POZHIL_FACE);
    float bounds[4] = {0.0f, 0.0f, 0.0f, 0.0f};
    nvgTextBounds(vg, 0, 0, POZHIL_LABEL, NULL, bounds);
    float txtW = bounds[2] - bounds[0];
    float txtH = bounds[3] - bounds[1];
    float paddingX = 32.0f;
    POZHIL_WIDTH;
    btnW = responsiveW(btnW, winWidth, 40.0f);
    float paddingY = 18.0f;
    POZHIL_HEIGHT;
    if (forcedW > 0.0f) btnW = forcedW;
    if (forcedH > 0.0f) btnH = forcedH;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isHover = mx >= btnX && mx <= btnX + btnW && my >= btnY && my <= btnY + btnH &&
                   (!g_block_background_clicks || g_inside_overlay);
    POZHIL_ANIMATION;
    if (isHover) {
#if POZHIL_IS_ENABLED
        EM_ASM(document.body.style.cursor = 'pointer');
#endif
#if POZHIL_HAS_HOVER_COLOUR
        r = hr;
        g = hg;
        b = hb;
#endif
        r = std::max(0, r - 20);
        g = std::max(0, g - 20);
        b = std::max(0, b - 20);
#if POZHIL_IS_ENABLED
        if (g_mouseClicked) {
            POZHIL_PRESS;
        }
#endif
    }
    if (shadowBlur > 0.0f) {
        nvgBeginPath(vg);
        nvgRect(vg, btnX - 2, btnY - 2, btnW + 4, btnH + 4);
        nvgFillPaint(vg, nvgBoxGradient(vg, btnX, btnY + 2, btnW, btnH, radius, shadowBlur,
                                        nvgRGBA(0, 0, 0, 100), nvgRGBA(0, 0, 0, 0)));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, btnX + 1, btnY + 2, btnW, btnH, POZHIL_RADIUS);
    nvgFillColor(vg, nvgRGBA(0, 0, 0, 64));
    nvgFill(vg);
    nvgBeginPath(vg);
    nvgRoundedRect(vg, btnX, btnY, btnW, btnH, POZHIL_RADIUS);
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
#if POZHIL_HAS_BORDER
    nvgBeginPath(vg);
    nvgRoundedRect(vg, btnX, btnY, btnW, btnH, POZHIL_RADIUS);
    nvgStrokeColor(vg, nvgRGBAf(POZHIL_BORDER_COLOUR));
    nvgStrokeWidth(vg, POZHIL_BORDER_WIDTH);
    nvgStroke(vg);
#endif
    char tColor[48];
    snprintf(tColor, sizeof tColor, "rgb(%d,%d,%d)", tr, tg, tb);
    float labelX = btnX + btnW / 2;
    float labelY = btnY + btnH / 2 - responsiveSize / 2 + 2.0f;
#ifdef __EMSCRIPTEN__
    drawFixedText(labelX, labelY, POZHIL_LABEL, tColor, responsiveSize, "center", POZHIL_WEIGHT,
                  false, POZHIL_FONT);
#else
    nvgFillColor(vg, nvgRGBA(tr, tg, tb, ta));
    nvgTextAlign(vg, NVG_ALIGN_CENTER | NVG_ALIGN_TOP);
    nvgText(vg, labelX, labelY, POZHIL_LABEL, NULL);
#endif
}
