// A child of a wrap. The first of a line stays there, however wide it is.

void wrap_child() {
    float childW = POZHIL_WIDTH;
    float childH = POZHIL_HEIGHT;
    if (curX + childW > wrapStartX + wrapMaxW && curX != wrapStartX) {
        curX = wrapStartX;
        curY += rowMaxH + spacing;
        rowMaxH = 0.0f;
    }
    if (childH > rowMaxH) rowMaxH = childH;
    POZHIL_CHILD;
    curX += childW + spacing;
}
