// A wrap: its children side by side, in as many lines as the width asks for. It tells its parent
// where it ends.

void wrap() {
    float wrapStartX = POZHIL_X;
    float wrapStartY = POZHIL_Y;
    float curX = wrapStartX;
    float curY = wrapStartY;
    float rowMaxH = 0.0f;
    float wrapMaxW = (forcedW > 0.0f) ? forcedW : winWidth;
    float spacing = POZHIL_SPACING;
    POZHIL_CHILDREN;
#if POZHIL_WRITES_BACK
    POZHIL_Y = curY + rowMaxH + spacing;
#endif
}
