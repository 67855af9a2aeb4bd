// A bar that is filled as far as its value says, of 100; without a value a piece that runs to and
// fro.

void progress_bar() {
    float lpX = std::floor(POZHIL_X);
    float lpY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    POZHIL_COLOUR;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, lpX, lpY, lpWidth, lpHeight, lpHeight / 2);
    nvgFillColor(vg, nvgRGBA(224, 224, 224, 255));
    nvgFill(vg);
#if POZHIL_HAS_VALUE
    float progress = (float)(fn_get_double(POZHIL_VALUE) / 100.0L);
    if (progress < 0.0f) progress = 0.0f;
    if (progress > 1.0f) progress = 1.0f;
    if (progress > 0.01f) {
        nvgBeginPath(vg);
        nvgRoundedRect(vg, lpX, lpY, lpWidth * progress, lpHeight, lpHeight / 2);
        nvgFillColor(vg, nvgRGBA(r, g, b, a));
        nvgFill(vg);
    }
#else
    double time = emscripten_get_now() / 1000.0;
    float animPos = (float)((sin(time * 3.0) + 1.0) / 2.0);
    float barW = lpWidth * 0.3f;
    nvgBeginPath(vg);
    nvgRoundedRect(vg, lpX + (lpWidth - barW) * animPos, lpY, barW, lpHeight, lpHeight / 2);
    nvgFillColor(vg, nvgRGBA(r, g, b, a));
    nvgFill(vg);
#endif
}
