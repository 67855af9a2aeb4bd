// A card: a raised sheet whose children stand one below the other, clipped to it. It forces its
// whole size on each of them, though they stand inside its edges. Meant. A card in a card is placed
// by the outer one's locals, which are read before its own hide them.

void card() {
    float placeOfCardX = POZHIL_X;
    float placeOfCardY = POZHIL_Y;
    float cardX = std::floor(placeOfCardX);
    float cardY = std::floor(placeOfCardY);
    POZHIL_SIZE;
    float radius = POZHIL_RADIUS;
    float elevation = POZHIL_ELEVATION;
    if (elevation > 0.0f) {
        float shadowBlur = elevation * 3.0f;
        float shadowOffsetY = elevation * 1.5f;
        float reach = shadowBlur + 5.0f;
        nvgBeginPath(vg);
        nvgRect(vg, cardX - reach, cardY - reach, cardW + reach * 2.0f, cardH + reach * 2.0f);
        nvgRoundedRect(vg, cardX, cardY, cardW, cardH, radius);
        nvgPathWinding(vg, NVG_HOLE);
        nvgFillPaint(vg, nvgBoxGradient(vg, cardX, cardY + shadowOffsetY, cardW, cardH, radius,
                                        shadowBlur, nvgRGBA(0, 0, 0, 80), nvgRGBA(0, 0, 0, 0)));
        nvgFill(vg);
    }
    nvgBeginPath(vg);
    nvgRoundedRect(vg, cardX, cardY, cardW, cardH, radius);
    nvgFillColor(vg, nvgRGBAf(POZHIL_COLOUR));
    nvgFill(vg);
    nvgSave(vg);
    nvgIntersectScissor(vg, cardX, cardY, cardW, cardH);
    POZHIL_OPEN_CLIP;
    float oldForcedW = forcedW;
    float oldForcedH = forcedH;
    forcedW = cardW;
    forcedH = cardH;
    float currentChildY = cardY + 15.0f;
    POZHIL_CHILDREN;
    forcedW = oldForcedW;
    forcedH = oldForcedH;
    nvgRestore(vg);
    POZHIL_CLOSE_CLIP;
}
