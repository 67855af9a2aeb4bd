// A turning arc of three quarters.

void spinner() {
    float spX = std::floor(POZHIL_X);
    float spY = std::floor(POZHIL_Y);
    float size = POZHIL_SIZE;
    float radius = size / 2 - 4.0f;
    float thickness = POZHIL_THICKNESS;
    POZHIL_COLOUR;
    float time = (float)(emscripten_get_now() / 1000.0);
    nvgSave(vg);
    nvgTranslate(vg, spX + size / 2, spY + size / 2);
    nvgRotate(vg, time * 6.0f);
    nvgBeginPath(vg);
    nvgArc(vg, 0, 0, radius, 0, NVG_PI * 1.5f, NVG_CW);
    nvgLineCap(vg, NVG_ROUND);
    nvgStrokeColor(vg, nvgRGBA(r, g, b, a));
    nvgStrokeWidth(vg, thickness);
    nvgStroke(vg);
    nvgRestore(vg);
}
