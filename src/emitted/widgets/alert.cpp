// A warning above everything: drawn last, in the middle of the window, with what lies behind it
// dimmed, texts too. Its children are as large as itself.

void alert() {
    g_overlays.push_back([=]() mutable {
        nvgResetScissor(vg);
        POZHIL_SIZE;
        float radius = POZHIL_RADIUS;
        float shadow = POZHIL_SHADOW;
        alertW = responsiveW(alertW, winWidth, 40.0f);
        float alertX = (winWidth - alertW) / 2.0f;
        float alertY = (winHeight - alertH) / 2.0f;
        dimAround(alertX, alertY, alertW, alertH, radius, winWidth, winHeight);
        if (shadow > 0.0f) {
            float shadowBlur = shadow * 4.0f;
            nvgBeginPath(vg);
            nvgRect(vg, alertX - shadowBlur, alertY - shadowBlur, alertW + 2.0f * shadowBlur,
                    alertH + 2.0f * shadowBlur);
            nvgRoundedRect(vg, alertX, alertY, alertW, alertH, radius);
            nvgPathWinding(vg, NVG_HOLE);
            nvgFillPaint(vg,
                         nvgBoxGradient(vg, alertX, alertY + shadow * 1.5f, alertW, alertH, radius,
                                        shadowBlur, nvgRGBA(0, 0, 0, 100), nvgRGBA(0, 0, 0, 0)));
            nvgFill(vg);
        }
        nvgBeginPath(vg);
        nvgRoundedRect(vg, alertX, alertY, alertW, alertH, radius);
        nvgFillColor(vg, nvgRGBAf(POZHIL_BACKGROUND));
        nvgFill(vg);
        nvgSave(vg);
        nvgScissor(vg, alertX, alertY, alertW, alertH);
        POZHIL_OPEN_CLIP;
        POZHIL_CHILDREN;
        nvgRestore(vg);
        POZHIL_CLOSE_CLIP;
    });
}
