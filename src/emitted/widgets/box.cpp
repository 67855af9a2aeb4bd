// A box: a shadow, a colour or a picture, a press, and children that are clipped to it. The press
// comes before the children are drawn. It counts where something blocks the page too, unlike what
// shows that the pointer is over the box. Meant.

void box() {
    float winWidth = (float)EM_ASM_DOUBLE({ return window.innerWidth; });
    float winHeight = (float)EM_ASM_DOUBLE({ return window.innerHeight; });
    float boxX = std::floor(POZHIL_X);
    float boxY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float radius = POZHIL_RADIUS;
    float shadow = POZHIL_SHADOW;
    float mx = (float)EM_ASM_DOUBLE({ return window.mouseX; });
    float my = (float)EM_ASM_DOUBLE({ return window.mouseY; });
    bool isHover = mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH &&
                   (!g_block_background_clicks || g_inside_overlay);
#if POZHIL_IS_PRESSED
    if (isHover) EM_ASM(document.body.style.cursor = 'pointer');
#endif
    NVGcolor boxColor = nvgRGBAf(POZHIL_COLOUR);
    POZHIL_ANIMATION;
#if POZHIL_HAS_HOVER_COLOUR
    if (isHover) {
        boxColor = nvgRGBAf(POZHIL_HOVER_COLOUR);
#if POZHIL_IS_ENABLED
        EM_ASM(document.body.style.cursor = 'pointer');
#endif
    }
#endif
    if (shadow > 0.0f) {
        float shadowBlur = shadow * 8.0f;
        float offsetY = shadow * 1.5f;
        float reach = shadowBlur + 10.0f;
        nvgBeginPath(vg);
        nvgRect(vg, boxX - reach, boxY - reach, boxW + reach * 2.0f, boxH + reach * 2.0f);
        nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);
        nvgPathWinding(vg, NVG_HOLE);
        nvgFillPaint(vg, nvgBoxGradient(vg, boxX, boxY + offsetY, boxW, boxH, radius, shadowBlur,
                                        nvgRGBA(0, 0, 0, 25), nvgRGBA(0, 0, 0, 0)));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, boxX, boxY, boxW, boxH, radius);
#if POZHIL_HAS_IMAGE
    std::string bgPath = fn_any_to_string(POZHIL_IMAGE);
    static std::map<std::string, int> bgImgCache;
    if (bgImgCache.find(bgPath) == bgImgCache.end()) {
        bgImgCache[bgPath] = nvgCreateImage(vg, bgPath.c_str(), 0);
    }
    int bgImg = bgImgCache[bgPath];
    if (bgImg > 0) {
        nvgFillPaint(vg, nvgImagePattern(vg, boxX, boxY, boxW, boxH, 0, bgImg, 1.0f));
    } else {
        nvgFillColor(vg, boxColor);
    }
#else
    nvgFillColor(vg, boxColor);
#endif
    nvgFill(vg);
#if POZHIL_IS_PRESSED
    bool isBoxClicked =
        g_mouseClicked && mx >= boxX && mx <= boxX + boxW && my >= boxY && my <= boxY + boxH;
    if (isBoxClicked) {
        POZHIL_PRESS;
    }
#endif
    nvgSave(vg);
    nvgBeginPath(vg);
    nvgIntersectScissor(vg, boxX, boxY, boxW, boxH);
    POZHIL_OPEN_CLIP;
    float oldForcedW_container = forcedW;
    float oldForcedH_container = forcedH;
    POZHIL_CHILDREN;
    forcedW = oldForcedW_container;
    forcedH = oldForcedH_container;
    nvgRestore(vg);
    POZHIL_CLOSE_CLIP;
}
