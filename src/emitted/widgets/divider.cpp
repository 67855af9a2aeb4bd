// A line across the middle of its height.

void divider() {
    float divX = std::floor(POZHIL_X);
    float divY = std::floor(POZHIL_Y);
    POZHIL_SIZE;
    float thickness = POZHIL_THICKNESS;
    POZHIL_COLOUR;
    nvgBeginPath(vg);
    nvgMoveTo(vg, divX, divY + divHeight / 2);
    nvgLineTo(vg, divX + divWidth, divY + divHeight / 2);
    nvgStrokeColor(vg, nvgRGBA(r, g, b, a));
    nvgStrokeWidth(vg, thickness);
    nvgStroke(vg);
}
