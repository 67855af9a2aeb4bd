// A grid: its children in cells, fewer beside each other on a tablet, below each other on a phone.

void grid() {
    int cols = POZHIL_COLUMNS;
    if (cols > 1) {
        if (winWidth <= 768.0f && cols >= 3) cols = 2;
        if (winWidth <= 480.0f) cols = 1;
    }
    float gapH = POZHIL_GAP_H;
    float gapV = POZHIL_GAP_V;
    float gX = POZHIL_X;
    float gY = POZHIL_Y;
    float gW = POZHIL_WIDTH;
    float cellW = (gW - ((cols - 1) * gapH)) / cols;
    int colIndex = 0;
    float curX = gX;
    float curY = gY;
    float maxRowH = 0.0f;
    POZHIL_CHILDREN;
}
