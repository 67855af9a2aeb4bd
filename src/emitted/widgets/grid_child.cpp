// A child of a grid. Its cell moves the place of the next one on and gives it no size. Meant.

void grid_child() {
    POZHIL_CHILD;
    if (POZHIL_HEIGHT > maxRowH) maxRowH = POZHIL_HEIGHT;
    colIndex++;
    curX += cellW + gapH;
    if (colIndex >= cols) {
        colIndex = 0;
        curX = gX;
        curY += maxRowH + gapV;
        maxRowH = 0.0f;
    }
}
