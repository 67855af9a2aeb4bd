// One child of a row. The gap and the correction are of no effect. Meant.

void row_child() {
#if POZHIL_TAKES_ONE_SHARE
    float word_gap = 2.0f;
    float offsetCorrection = 0.0f;
#else
    float current_wW = POZHIL_WIDTH;
#endif
    float childH_val = POZHIL_HEIGHT;
#if POZHIL_TAKES_ONE_SHARE
    float finalChildY = POZHIL_PLACE_Y + offsetCorrection;
#else
    float finalChildY = POZHIL_PLACE_Y;
#endif
    POZHIL_CHILD;
    currentX += POZHIL_ADVANCE + spacing;
}
