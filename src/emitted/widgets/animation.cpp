// The way of a button or a box from what it is to what its animation aims at: while the pointer is
// over it, or by itself. Any other condition leaves it where it is.

void animation() {
    bool animActive = false;
    std::string aCond = POZHIL_TRIGGER;
    if (aCond == "மவுஸ்_மேலே" || aCond == "hover" || aCond == "சுட்டி_மேல்") animActive = isHover;
    if (aCond == "தானாக") animActive = true;
    float progress =
        updateProgress(POZHIL_KEY, aCond, animActive, POZHIL_TOP, winHeight, POZHIL_DURATION);
    float t = getCurveValue(POZHIL_CURVE, progress);
#if POZHIL_HAS_WIDTH
    POZHIL_W = lerp(POZHIL_W, POZHIL_WIDTH, t);
#endif
#if POZHIL_HAS_HEIGHT
    POZHIL_H = lerp(POZHIL_H, POZHIL_HEIGHT, t);
#endif
#if POZHIL_HAS_RADIUS
    radius = lerp(radius, POZHIL_RADIUS, t);
#endif
#if POZHIL_HAS_SCALE
    float scale = lerp(1.0f, POZHIL_SCALE, t);
    POZHIL_LEFT -= POZHIL_W * (scale - 1.0f) / 2.0f;
    POZHIL_TOP -= POZHIL_H * (scale - 1.0f) / 2.0f;
    POZHIL_W *= scale;
    POZHIL_H *= scale;
#endif
#if POZHIL_HAS_SHIFT_X
    POZHIL_LEFT = lerp(POZHIL_LEFT, POZHIL_LEFT + POZHIL_SHIFT_X, t);
#endif
#if POZHIL_HAS_SHIFT_Y
    POZHIL_TOP = lerp(POZHIL_TOP, POZHIL_TOP + POZHIL_SHIFT_Y, t);
#endif
#if POZHIL_HAS_COLOUR
    NVGcolor targetCol = nvgRGBAf(POZHIL_COLOUR);
    POZHIL_TURN_COLOUR;
#endif
}
