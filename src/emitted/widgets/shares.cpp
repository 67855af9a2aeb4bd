// What is free in a column or a row, shared out. Each child with a size of its own counts with the
// spacing behind it, the last one too; a share counts with none. Meant.

void shares() {
    float spacing = POZHIL_SPACING;
    float totalFlex = POZHIL_TOTAL;
    float POZHIL_FIXED_SUM = 0.0f;
    POZHIL_FIXED_SIZES;
    float POZHIL_REMAINING = POZHIL_CONTAINER - POZHIL_FIXED_SUM;
    if (POZHIL_REMAINING < 0.0f) POZHIL_REMAINING = 0.0f;
    float POZHIL_UNIT = totalFlex > 0.0f ? POZHIL_REMAINING / totalFlex : 0.0f;
}
