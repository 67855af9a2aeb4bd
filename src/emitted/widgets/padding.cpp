// A space around its children, who all stand at one place. What a parent forces on it reaches them.

void padding() {
    // Inside another block the place is named like the locals below.
    float paddedX = POZHIL_X;
    float paddedY = POZHIL_Y;
    {
        float childX = paddedX + POZHIL_PADDING;
        float childY = paddedY + POZHIL_PADDING;
        POZHIL_CHILDREN;
    }
}
